// From sections and rows to pages.
#include <algorithm>

#include "output/informe/Disposicio.h"
#include "output/informe/Files_Informe.h"
#include "output/informe/Informe.h"

namespace {

constexpr double maxim_encapcalament = 0.55;  // of the page: rows have the rest

// What is left of a field of the row that is being placed.
struct Camp {
  const Estat_Control* estat;
  QStringList linies;
  QFont lletra;
  std::optional<double> amplada = {};  // of the one line, when it was measured
};
using Fila = std::vector<Camp>;

double Alcada_De(const Informe& informe, Seccio seccio) {
  return informe.Definicio().alcades[static_cast<std::size_t>(seccio)];
}

// A section no taller than `maxim`: the texts that grow are cut short where they must be.
Seccio_Disposada Disposar_Fins_A(const std::vector<Estat_Control>& estats, Seccio seccio, double alcada, double maxim) {
  Seccio_Disposada disposada = Disposar(estats, seccio, alcada);
  for (int linies = 48; disposada.alcada > maxim && linies > 0; --linies) {
    disposada = Disposar(estats, seccio, alcada, linies);
  }
  return disposada;
}

class Maquetador {
 public:
  explicit Maquetador(const Informe& primer) : primer_(primer), apaisat_(primer.Definicio().apaisat) {
    const double alcada = Alcada_De(primer, Seccio::Encapcalament);
    encapcalament_ = Disposar_Fins_A(primer.Controls(), Seccio::Encapcalament, alcada,
                                     std::max(alcada, maxim_encapcalament * Alcada_Paper()));
  }

  void Posar(const Cos_Informe& cos) {
    cos_ = &cos;
    estats_ = Amb_Sumes(cos);
    titols_ = Disposar(estats_, Seccio::Titols, Alcada_De(cos.informe, Seccio::Titols));
    peu_ = Disposar_Fins_A(estats_, Seccio::Peu_D_Informe, Alcada_De(cos.informe, Seccio::Peu_D_Informe),
                           Fons() - Sostre() - Detall());
    Buscar_Columnes();
    if (pagines_.empty() || y_ + titols_.alcada + Detall() > Fons()) {
      Nova_Pagina();
    } else {
      Posar_Titols();
    }
    const std::int64_t quantes = cos.files.Files();
    for (std::int64_t i = 0; i < quantes; ++i) Posar_Fila(Llegir_Fila(i), i + 1 == quantes);
    Posar_Peu_D_Informe();
  }

  std::vector<Pagina> Acabar() {
    Posar_Peus_De_Pagina();
    return std::move(pagines_);
  }

 private:
  double Alcada_Paper() const { return apaisat_ ? paper::amplada : paper::alcada; }
  double Sostre() const { return paper::marge + encapcalament_.alcada + titols_.alcada; }
  double Fons() const { return Alcada_Paper() - paper::marge - Alcada_De(primer_, Seccio::Peu_De_Pagina); }
  double Detall() const { return Alcada_De(cos_->informe, Seccio::Detall); }

  void Nova_Pagina() {
    pagines_.emplace_back();
    Posar_Seccio(encapcalament_, paper::marge);
    y_ = paper::marge + encapcalament_.alcada;
    Posar_Titols();
  }

  void Posar_Titols() {
    Posar_Seccio(titols_, y_);
    y_ += titols_.alcada;
  }

  void Posar_Seccio(const Seccio_Disposada& seccio, double y) {
    for (const auto& disposat : seccio.controls) Posar(disposat, y);
  }

  void Posar(const Control_Disposat& disposat, double y) {
    const Control_Informe& c = *disposat.estat->control;
    QRectF lloc = disposat.lloc.translated(paper::marge, y);
    if (c.mena == Mena_Control::Ratlla) {
      pagines_.back().emplace_back(Ratlla_Posada{lloc, Color(c.lletra.tinta)});
    } else if (c.mena == Mena_Control::Imatge) {
      const QImage& imatge = disposat.estat->imatge;
      const QSizeF mida = QSizeF(imatge.size()).scaled(lloc.size(), Qt::KeepAspectRatio);
      if (!imatge.isNull()) pagines_.back().emplace_back(Imatge_Posada{{lloc.topLeft(), mida}, imatge});
    } else {
      for (const auto& linia : disposat.linies) {
        Posar_Linia(*disposat.estat, linia, disposat.lletra, lloc.topLeft());
        lloc.translate(0, Pas_De_Linia(c.lletra));
      }
    }
  }

  void Posar_Linia(const Estat_Control& estat, const QString& text, const QFont& lletra, QPointF lloc,
                   std::optional<double> amplada = {}) {
    if (text.trimmed().isEmpty()) return;
    const Control_Informe& c = *estat.control;
    if (c.costat != Costat::Esquerra) {
      const double sobra = estat.lloc.width() - (amplada ? *amplada : Amplada(text, lletra));
      lloc.rx() += c.costat == Costat::Dreta ? sobra : sobra / 2;
    }
    lloc.ry() += Base_De_Linia(c.lletra);
    pagines_.back().emplace_back(Text_Posat{lloc, text, lletra, Color(c.lletra.tinta)});
  }

  // The controls of a row: fields, each with its column, and what is drawn with every row.
  void Buscar_Columnes() {
    columnes_.clear();
    for (const auto& estat : estats_) {
      const Control_Informe& c = *estat.control;
      if (c.seccio != Seccio::Detall || !estat.visible) continue;
      columnes_.push_back({&estat, c.mena == Mena_Control::Camp ? Columna_De(cos_->files, c) : sense_columna});
    }
  }

  Fila Llegir_Fila(std::int64_t numero) const {
    Fila fila;
    for (const auto& [estat, columna] : columnes_) {
      if (columna == sense_columna) continue;
      const Control_Informe& c = *estat->control;
      const QString text = Text_De_Camp(cos_->files.Cella(numero, columna), estat->mascara);
      if (c.ajust == Ajust::Creixer) {
        fila.push_back({estat, Partir_En_Linies(text, c.lletra, estat->lloc.width(), sense_maxim), Lletra(c.lletra)});
      } else {
        const auto linia = Linia_De(text, *estat);
        fila.push_back({estat, {linia.text}, linia.lletra, linia.amplada});
      }
    }
    return fila;
  }

  double Alcada_De_Fila(const Fila& fila) const {
    double afegit = 0;
    for (const Camp& camp : fila) {
      const auto mes_linies = static_cast<double>(camp.linies.size() - 1);
      afegit = std::max(afegit, mes_linies * Pas_De_Linia(camp.estat->control->lletra));
    }
    return Detall() + afegit;
  }

  // A row goes whole to the next page, unless no page could hold it. The last one takes the report footer along, so
  // that a footer never stands alone under its titles.
  void Posar_Fila(Fila fila, bool ultima) {
    const double alcada = Alcada_De_Fila(fila);
    const double peu = ultima ? peu_.alcada : 0;
    const double pagina = Fons() - Sostre();
    const bool cap_sencera = y_ + alcada + peu <= Fons();
    if (!cap_sencera && y_ > Sostre() && (alcada <= pagina || y_ + Detall() > Fons())) Nova_Pagina();
    if (y_ + alcada + peu <= Fons() || peu == 0) return Posar_Partida(std::move(fila), Fons());
    Posar_Amb_El_Peu(std::move(fila), peu);
  }

  // A last row too tall to stand on a page with the footer: its end goes along with it.
  void Posar_Amb_El_Peu(Fila fila, double peu) {
    while (y_ + Alcada_De_Fila(fila) + peu > Fons()) {
      const double una_linia = y_ + Detall();
      const double totes_menys_dues = y_ + Alcada_De_Fila(fila) - Detall();
      if (!Posar_El_Que_Hi_Cap(fila, std::min(std::max(totes_menys_dues, una_linia), Fons()))) return;
      Nova_Pagina();
    }
    Posar_Partida(std::move(fila), Fons());
  }

  void Posar_Partida(Fila fila, double fons) {
    while (Posar_El_Que_Hi_Cap(fila, fons)) Nova_Pagina();
  }

  // True when lines of the row are left for another page. A page with no room at all takes one line, so that rows end.
  bool Posar_El_Que_Hi_Cap(Fila& fila, double fons) {
    if (y_ <= Sostre()) fons = std::max(fons, y_ + Detall());
    double baixat = 0;
    bool en_queden = false;
    for (Camp& camp : fila) {
      const double pas = Pas_De_Linia(camp.estat->control->lletra);
      const QPointF lloc(paper::marge + camp.estat->lloc.x(), camp.estat->lloc.y());
      double y = y_;
      for (; !camp.linies.isEmpty() && y + Detall() <= fons; y += pas) {
        Posar_Linia(*camp.estat, camp.linies.takeFirst(), camp.lletra, lloc + QPointF(0, y), camp.amplada);
      }
      baixat = std::max(baixat, y - pas - y_);
      en_queden = en_queden || !camp.linies.isEmpty();
    }
    for (const auto& [estat, columna] : columnes_) {
      if (columna == sense_columna)
        Posar({estat, estat->lloc, {estat->text}, Lletra(estat->control->lletra)}, y_ + baixat);
    }
    y_ += baixat + Detall();
    return en_queden;
  }

  void Posar_Peu_D_Informe() {
    if (y_ + peu_.alcada > Fons()) Nova_Pagina();
    const bool al_fons = cos_->informe.Definicio().peu_al_fons;
    Posar_Seccio(peu_, al_fons ? Fons() - peu_.alcada : y_);
    y_ = al_fons ? Fons() : y_ + peu_.alcada;
  }

  // Last of all, when it is known how many pages there are.
  void Posar_Peus_De_Pagina() {
    const QString total = QString::number(pagines_.size());
    std::vector<Pagina> totes;
    totes.swap(pagines_);
    for (auto& pagina : totes) {
      pagines_.push_back(std::move(pagina));
      auto estats = primer_.Controls();
      for (auto& estat : estats) {
        if (estat.control->mena != Mena_Control::Comptador) continue;
        estat.text.replace(QStringLiteral("%p"), QString::number(pagines_.size())).replace(QStringLiteral("%P"), total);
      }
      Posar_Seccio(Disposar(estats, Seccio::Peu_De_Pagina, Alcada_De(primer_, Seccio::Peu_De_Pagina)), Fons());
    }
  }

  static constexpr int sense_columna = -1;
  struct Columna {
    const Estat_Control* estat;
    int columna;
  };

  const Informe& primer_;
  const bool apaisat_;
  Seccio_Disposada encapcalament_;
  const Cos_Informe* cos_ = nullptr;
  std::vector<Estat_Control> estats_;  // of the body that is being placed, and its sections
  Seccio_Disposada titols_;
  Seccio_Disposada peu_;
  std::vector<Columna> columnes_;
  std::vector<Pagina> pagines_;
  double y_ = 0;  // top of the next row
};

}  // namespace

std::vector<Pagina> Maquetar_Seguits(const std::vector<Cos_Informe>& cossos) {
  if (cossos.empty()) return {};
  Maquetador maquetador(cossos.front().informe);
  for (const auto& cos : cossos) maquetador.Posar(cos);
  return maquetador.Acabar();
}

std::vector<Pagina> Informe::Maquetar(Recordset& files) const {
  if (files.RecordCount() == 0) return {};
  const Font_Recordset font(files);
  return Maquetar_Seguits({{*this, font}});
}
