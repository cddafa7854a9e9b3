#include "shell/Imprimir_Formulari.h"

#include <QHeaderView>
#include <QPixmap>
#include <algorithm>
#include <numeric>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Graella.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Formulari.h"
#include "output/informe/Informe.h"
#include "output/informe/Sortida.h"

namespace {

constexpr double twips_per_pixel = 15;
constexpr double apaisa = 0.8;         // a page that shrinks its columns to less than this lies on its side
constexpr double minim_lletra = 0.65;  // letters shrink with the columns, down to this
constexpr double minim_text = 0.8;     // of a cell that is too narrow, before it is cut
constexpr double minim_xifra = 0.4;
constexpr double farciment = 50;  // between the text of a cell and its sides
constexpr Estil_Lletra lletra_titol{.punts = 13, .negreta = true};
constexpr Estil_Lletra lletra_peu{.punts = 8};

struct Columna_Impresa {
  int columna;  // of the grid
  double x;
  double amplada;
};

std::vector<Graella*> Graelles_De(const Formulari& formulari) {
  std::vector<Graella*> graelles;
  for (auto* graella : formulari.findChildren<Graella*>()) {
    if (graella->objectName().startsWith(u"G_", Qt::CaseInsensitive)) graelles.push_back(graella);
  }
  return graelles;
}

double Amplada_De(const Graella& graella) {
  double total = 0;
  for (int columna = 0; columna < graella.model()->columnCount(); ++columna) {
    total += graella.isColumnHidden(columna) ? 0 : graella.columnWidth(columna) * twips_per_pixel;
  }
  return total;
}

class Maquetador {
 public:
  Maquetador(QString titol, bool apaisat)
      : titol_(std::move(titol)),
        amplada_(apaisat ? paper::alcada : paper::amplada),
        alcada_(apaisat ? paper::amplada : paper::alcada) {}

  double Lloc() const { return amplada_ - 2.0 * paper::marge; }

  void Posar(const Graella& graella) {
    if (pagines_.empty()) Nova_Pagina();
    Preparar(graella);
    if (y_ + 2 * Alcada_De_Fila() > Fons()) Nova_Pagina();
    Posar_Titols(graella);
    for (int fila = 0; fila < graella.Files(); ++fila) {
      if (y_ + Alcada_De_Fila() > Fons()) {
        Nova_Pagina();
        Posar_Titols(graella);
      }
      Posar_Fila(graella, fila);
    }
    y_ += 2 * Alcada_De_Fila();
  }

  void Posar(const QImage& imatge) {
    Nova_Pagina();
    QSizeF mida = QSizeF(imatge.deviceIndependentSize()) * twips_per_pixel;
    const QSizeF lloc(Lloc(), Fons() - y_);
    if (mida.width() > lloc.width() || mida.height() > lloc.height()) mida.scale(lloc, Qt::KeepAspectRatio);
    pagines_.back().emplace_back(Imatge_Posada{{QPointF(paper::marge, y_), mida}, imatge});
  }

  std::vector<Pagina> Acabar() {
    int numero = 0;
    for (Pagina& pagina : pagines_) {
      const QString comptador = QStringLiteral("%1/%2").arg(++numero).arg(pagines_.size());
      Escriure(pagina, comptador, lletra_peu, {paper::marge + 0.0, Fons() + 100}, Lloc(), Costat::Dreta);
    }
    return std::move(pagines_);
  }

 private:
  double Fons() const { return alcada_ - paper::marge - 2 * Pas_De_Linia(lletra_peu); }
  double Alcada_De_Fila() const { return Pas_De_Linia(lletra_) * 1.3; }

  void Nova_Pagina() {
    pagines_.emplace_back();
    y_ = paper::marge;
    Escriure(pagines_.back(), titol_, lletra_titol, {paper::marge + 0.0, y_}, Lloc() * 0.8, Costat::Esquerra);
    const Data_Hora avui = Avui();
    const double base = y_ + Base_De_Linia(lletra_titol) - Base_De_Linia(lletra_peu);
    Escriure(pagines_.back(), QString::fromStdString(Text_Data({avui.any, avui.mes, avui.dia})), lletra_peu,
             {paper::marge + 0.0, base}, Lloc(), Costat::Dreta);
    y_ += Pas_De_Linia(lletra_titol) * 1.6;
  }

  // Columns as wide as on the screen, or all of them narrower by the same when they do not fit.
  void Preparar(const Graella& graella) {
    const double escala = std::min(1.0, Lloc() / std::max(1.0, Amplada_De(graella)));
    lletra_.punts = 9 * std::max(escala, minim_lletra);
    columnes_.clear();
    double x = paper::marge;
    for (int columna = 0; columna < graella.model()->columnCount(); ++columna) {
      if (graella.isColumnHidden(columna)) continue;
      const double amplada = graella.columnWidth(columna) * twips_per_pixel * escala;
      columnes_.push_back({columna, x, amplada});
      x += amplada;
    }
    dreta_ = x;
  }

  void Posar_Titols(const Graella& graella) {
    Estil_Lletra lletra = lletra_;
    lletra.negreta = true;
    for (const auto& columna : columnes_) {
      const QVariant costat = graella.model()->headerData(columna.columna, Qt::Horizontal, Qt::TextAlignmentRole);
      Posar_Cella(columna, graella.model()->headerData(columna.columna, Qt::Horizontal).toString(), lletra, costat);
    }
    y_ += Alcada_De_Fila();
    Ratllar(15);
  }

  void Posar_Fila(const Graella& graella, int fila) {
    for (const auto& columna : columnes_) {
      const QModelIndex index = graella.model()->index(fila, columna.columna);
      Posar_Cella(columna, index.data().toString(), lletra_, index.data(Qt::TextAlignmentRole));
    }
    y_ += Alcada_De_Fila();
    Ratllar(4);
  }

  void Ratllar(double gruix) {
    const QRectF lloc(paper::marge, y_ - Alcada_De_Fila() * 0.08, dreta_ - paper::marge, gruix);
    pagines_.back().emplace_back(Ratlla_Posada{lloc, Qt::black});
  }

  void Posar_Cella(const Columna_Impresa& columna, const QString& text, const Estil_Lletra& lletra,
                   const QVariant& costat) {
    const bool dreta = (costat.toInt() & Qt::AlignRight) != 0;
    Escriure(pagines_.back(), text, lletra, {columna.x + farciment, y_}, columna.amplada - 2 * farciment,
             dreta ? Costat::Dreta : Costat::Esquerra);
  }

  static void Escriure(Pagina& pagina, const QString& text, const Estil_Lletra& lletra, QPointF lloc, double amplada,
                       Costat costat) {
    if (text.isEmpty() || amplada <= 0) return;
    const auto linia = Encongir(text, lletra, amplada, costat == Costat::Dreta ? minim_xifra : minim_text);
    if (costat == Costat::Dreta) lloc.rx() += amplada - Amplada(linia.text, linia.lletra);
    lloc.ry() += Base_De_Linia(lletra);
    pagina.emplace_back(Text_Posat{lloc, linia.text, linia.lletra, Qt::black});
  }

  QString titol_;
  double amplada_;
  double alcada_;
  double y_ = 0;  // top of what comes next
  double dreta_ = 0;
  Estil_Lletra lletra_;
  std::vector<Columna_Impresa> columnes_;
  std::vector<Pagina> pagines_;
};

// What the form shows, at twice its size, in black on white: what is nearly white on the screen is white on paper.
QImage Imatge_De(Formulari& formulari) {
  constexpr int escala = 2;
  constexpr int gairebe_blanc = 0xE0;
  QPixmap foto(formulari.size() * escala);
  foto.setDevicePixelRatio(escala);
  foto.fill(Qt::white);
  formulari.render(&foto);
  QImage imatge = foto.toImage().convertToFormat(QImage::Format_Grayscale8);
  for (int y = 0; y < imatge.height(); ++y) {
    uchar* linia = imatge.scanLine(y);
    std::replace_if(
        linia, linia + imatge.width(), [](uchar gris) { return gris >= gairebe_blanc; }, uchar{0xFF});
  }
  return imatge;
}

}  // namespace

Pagines Pagines_De_Formulari(Formulari& formulari) {
  const auto graelles = Graelles_De(formulari);
  const double mes_ampla = std::accumulate(graelles.begin(), graelles.end(), 0.0, [](double ampla, const Graella* g) {
    return std::max(ampla, Amplada_De(*g));
  });
  const bool apaisat = mes_ampla * apaisa > paper::amplada - 2 * paper::marge;
  Maquetador maquetador(formulari.windowTitle(), apaisat);
  for (const Graella* graella : graelles) maquetador.Posar(*graella);
  if (graelles.empty()) maquetador.Posar(Imatge_De(formulari));
  return {.titol = formulari.windowTitle(),
          .autor = QString::fromStdString(sessio.Nom_Empresa),
          .pagines = maquetador.Acabar(),
          .apaisades = apaisat};
}

void Imprimir_Formulari(Formulari* formulari) {
  try {
    if (formulari != nullptr) return Imprimir_Pagines(Pagines_De_Formulari(*formulari));
  } catch (const std::exception& error) {
    qWarning("%s", error.what());  // the box tells the user no more than that
  }
  sessio.pantalla->Caixa("No Puc !!!!!", estil::simple);
}
