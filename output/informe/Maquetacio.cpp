// From sections and rows to pages.
#include <algorithm>
#include <limits>

#include "core/dades/Numeros.h"
#include "output/informe/Informe.h"

namespace {

constexpr double minim_text = 0.72;  // smaller than that a name is cut instead
constexpr double minim_xifra = 0.4;  // a figure that is cut is worth nothing

// A value as its field shows it.
QString Text_De_Camp(const Valor& valor, const std::string& mascara) {
  const bool nombre = valor.Es_Doble() || valor.Es_Enter();
  return QString::fromStdString(nombre && !mascara.empty() ? Format_Numero(valor.Doble(), mascara) : valor.Text());
}

std::string Columna_De(const Control_Informe& control) {
  return QString(control.nom).remove(QStringLiteral("TXT_")).toStdString();
}

}  // namespace

class Informe::Maquetador {
 public:
  explicit Maquetador(const Informe& informe) : informe_(informe) {}

  std::vector<Pagina> Fer(Recordset& files) {
    Nova_Pagina();
    const std::int64_t quantes = files.RecordCount();
    files.MoveFirst();
    for (std::int64_t i = 1; i <= quantes; ++i, files.MoveNext()) Posar_Fila(Llegir_Fila(files), i == quantes);
    Posar_Peu_D_Informe();
    Posar_Peus_De_Pagina();
    return std::move(pagines_);
  }

 private:
  // What is left of a field of the row that is being placed.
  struct Camp {
    const Estat* estat;
    QStringList linies;
    QFont lletra;
  };
  using Fila = std::vector<Camp>;

  double Alcada(Seccio seccio) const { return informe_.definicio_.alcades[static_cast<std::size_t>(seccio)]; }
  double Sostre() const { return paper::marge + Alcada(Seccio::Encapcalament); }
  double Fons() const { return paper::alcada - paper::marge - Alcada(Seccio::Peu_De_Pagina); }

  void Nova_Pagina() {
    pagines_.emplace_back();
    Posar_Seccio(Seccio::Encapcalament, paper::marge);
    y_ = Sostre();
  }

  void Posar_Seccio(Seccio seccio, double y) {
    for (const auto& estat : informe_.estats_) {
      if (estat.control->seccio == seccio) Posar(estat, estat.text, y);
    }
  }

  void Posar(const Estat& estat, const QString& text, double y) {
    if (!estat.visible) return;
    const Control_Informe& c = *estat.control;
    const QPointF lloc(paper::marge + c.lloc.x(), y + estat.dalt);
    if (c.mena == Mena_Control::Ratlla) {
      pagines_.back().emplace_back(Ratlla_Posada{{lloc, QSizeF(c.lloc.size())}, Color(c.lletra.tinta)});
    } else if (c.mena == Mena_Control::Imatge) {
      Posar_Imatge(estat, lloc);
    } else {
      Posar_Text(c, text, lloc);
    }
  }

  void Posar_Imatge(const Estat& estat, QPointF lloc) {
    if (estat.imatge.isNull()) return;
    const QSizeF mida = QSizeF(estat.imatge.size()).scaled(estat.control->lloc.size(), Qt::KeepAspectRatio);
    pagines_.back().emplace_back(Imatge_Posada{{lloc, mida}, estat.imatge});
  }

  void Posar_Text(const Control_Informe& c, const QString& text, QPointF lloc) {
    if (c.ajust == Ajust::Encongir) {
      const auto linia = Encongir(text, c);
      return Posar_Linia(c, linia.text, linia.lletra, lloc);
    }
    const int maxim = std::max(1, static_cast<int>(c.lloc.height() / Pas_De_Linia(c.lletra)));
    for (const auto& linia : Partir_En_Linies(text, c.lletra, c.lloc.width(), maxim)) {
      Posar_Linia(c, linia, Lletra(c.lletra), lloc);
      lloc.ry() += Pas_De_Linia(c.lletra);
    }
  }

  void Posar_Linia(const Control_Informe& c, const QString& text, const QFont& lletra, QPointF lloc) {
    if (text.trimmed().isEmpty()) return;
    if (c.costat == Costat::Dreta) lloc.rx() += c.lloc.width() - Amplada(text, lletra);
    lloc.ry() += Base_De_Linia(c.lletra);
    pagines_.back().emplace_back(Text_Posat{lloc, text, lletra, Color(c.lletra.tinta)});
  }

  static Linia_Encongida Encongir(const QString& text, const Control_Informe& c) {
    return ::Encongir(text, c.lletra, c.lloc.width(), c.costat == Costat::Dreta ? minim_xifra : minim_text);
  }

  Fila Llegir_Fila(const Recordset& files) const {
    Fila fila;
    for (const auto& estat : informe_.estats_) {
      const Control_Informe& c = *estat.control;
      if (c.seccio != Seccio::Detall || c.mena != Mena_Control::Camp || !estat.visible) continue;
      const QString text = Text_De_Camp(files[Columna_De(c)], estat.mascara);
      if (c.ajust == Ajust::Creixer) {
        const auto linies = Partir_En_Linies(text, c.lletra, c.lloc.width(), std::numeric_limits<int>::max());
        fila.push_back({&estat, linies, Lletra(c.lletra)});
      } else {
        const auto linia = Encongir(text, c);
        fila.push_back({&estat, {linia.text}, linia.lletra});
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
    return Alcada(Seccio::Detall) + afegit;
  }

  // A row goes whole to the next page, unless no page could hold it. The last one takes the report footer along, so
  // that a footer never stands alone under its titles.
  void Posar_Fila(Fila fila, bool ultima) {
    const double alcada = Alcada_De_Fila(fila);
    const bool hi_cap = y_ + alcada + (ultima ? Alcada(Seccio::Peu_D_Informe) : 0) <= Fons();
    const bool pagina_buida = y_ == Sostre();
    if (!hi_cap && !pagina_buida && Sostre() + alcada <= Fons()) Nova_Pagina();
    while (Posar_El_Que_Hi_Cap(fila)) Nova_Pagina();
  }

  // True when lines of the row are left for another page.
  bool Posar_El_Que_Hi_Cap(Fila& fila) {
    double baixat = 0;
    bool en_queden = false;
    for (Camp& camp : fila) {
      const Control_Informe& c = *camp.estat->control;
      const double pas = Pas_De_Linia(c.lletra);
      double y = y_;
      for (; !camp.linies.isEmpty() && y + Alcada(Seccio::Detall) <= Fons(); y += pas) {
        Posar_Linia(c, camp.linies.takeFirst(), camp.lletra, {paper::marge + c.lloc.x() + 0.0, y + camp.estat->dalt});
      }
      baixat = std::max(baixat, y - pas - y_);
      en_queden = en_queden || !camp.linies.isEmpty();
    }
    for (const auto& estat : informe_.estats_) {
      const Control_Informe& c = *estat.control;
      if (c.seccio == Seccio::Detall && c.mena != Mena_Control::Camp) Posar(estat, estat.text, y_ + baixat);
    }
    y_ += baixat + Alcada(Seccio::Detall);
    return en_queden;
  }

  void Posar_Peu_D_Informe() {
    if (y_ + Alcada(Seccio::Peu_D_Informe) > Fons()) Nova_Pagina();
    Posar_Seccio(Seccio::Peu_D_Informe, Fons() - Alcada(Seccio::Peu_D_Informe));
  }

  // Last of all, when it is known how many pages there are.
  void Posar_Peus_De_Pagina() {
    const QString total = QString::number(pagines_.size());
    std::vector<Pagina> totes;
    totes.swap(pagines_);
    for (auto& pagina : totes) {
      pagines_.push_back(std::move(pagina));
      for (const auto& estat : informe_.estats_) {
        if (estat.control->seccio != Seccio::Peu_De_Pagina) continue;
        QString text = estat.text;
        if (estat.control->mena == Mena_Control::Comptador) {
          text.replace(QStringLiteral("%p"), QString::number(pagines_.size())).replace(QStringLiteral("%P"), total);
        }
        Posar(estat, text, Fons());
      }
    }
  }

  const Informe& informe_;
  std::vector<Pagina> pagines_;
  double y_ = 0;  // top of the next row
};

std::vector<Pagina> Informe::Maquetar(Recordset& files) const {
  if (files.RecordCount() == 0) return {};
  return Maquetador(*this).Fer(files);
}
