#include "shell/Imprimir_Formulari.h"

#include <QPixmap>
#include <algorithm>
#include <cmath>
#include <deque>

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
constexpr int farciment = 50;          // between the text of a cell and its sides
constexpr int gruix_titols = 15;
constexpr int gruix_fila = 4;
constexpr int buit_entre_graelles = 250;
constexpr Estil_Lletra lletra_titol{.punts = 13, .negreta = true, .tinta = Tinta::Negra};
constexpr Estil_Lletra lletra_peu{.punts = 8, .tinta = Tinta::Negra};
constexpr int alcada_peu = 400;

std::vector<const Graella*> Graelles_De(const Formulari& formulari) {
  std::vector<const Graella*> graelles;
  for (const auto* graella : formulari.findChildren<Graella*>()) {
    if (graella->objectName().startsWith(u"G_", Qt::CaseInsensitive)) graelles.push_back(graella);
  }
  return graelles;
}

double Amplada_De(const Graella& graella) {
  double total = 0;
  for (int columna = 0; columna < graella.model()->columnCount(); ++columna) {
    total += graella.isColumnHidden(columna) ? 0 : graella.Amplada_Donada(columna) * twips_per_pixel;
  }
  return total;
}

// The cells of a grid as it shows them: column "3" is its fourth.
class Font_Graella : public Font_Informe {
 public:
  explicit Font_Graella(const Graella& graella) : graella_(graella) {}
  std::int64_t Files() const override { return graella_.Files(); }
  int Columna(const std::string& nom) const override { return std::stoi(nom); }
  Valor Cella(std::int64_t fila, int columna) const override {
    const QModelIndex cella = graella_.model()->index(static_cast<int>(fila), columna);
    const QVariant casella = cella.data(Qt::CheckStateRole);
    if (casella.isValid()) return casella.toInt() == Qt::Checked ? "✓" : "";
    return cella.data().toString().toStdString();
  }

 private:
  const Graella& graella_;
};

// One picture.
class Font_Imatge : public Font_Informe {
 public:
  std::int64_t Files() const override { return 1; }
  int Columna(const std::string& nom) const override { Llancar_Error(errors::camp_no_trobat, "Font_Imatge", nom); }
  Valor Cella(std::int64_t /*fila*/, int /*columna*/) const override { return {}; }
};

Costat Costat_De(const QVariant& alineacio) {
  if ((alineacio.toInt() & Qt::AlignRight) != 0) return Costat::Dreta;
  return (alineacio.toInt() & Qt::AlignHCenter) != 0 ? Costat::Centre : Costat::Esquerra;
}

class Full {
 public:
  Full(QString titol, bool apaisat) : titol_(std::move(titol)), apaisat_(apaisat) {}
  int Ample() const { return (apaisat_ ? paper::alcada : paper::amplada) - 2 * paper::marge; }
  int Alt() const {
    return (apaisat_ ? paper::amplada : paper::alcada) - 2 * paper::marge - Alt_Encapcalament() - alcada_peu;
  }

  // Title and date above, pages below; what stands between is still to be said.
  Definicio_Informe Buit() const {
    const Data_Hora avui = Avui();
    const QString data = QString::fromStdString(Text_Data({avui.any, avui.mes, avui.dia}));
    const int base = static_cast<int>(Base_De_Linia(lletra_titol) - Base_De_Linia(lletra_peu));
    const int ample_data = 1200;
    return {.nom = "",
            .alcades = {Alt_Encapcalament(), 0, alcada_peu, 0, 0},
            .controls = {{u"L_TITOL"_qs,
                          Seccio::Encapcalament,
                          Mena_Control::Etiqueta,
                          {0, 0, Ample() - ample_data - farciment, Alt_Encapcalament() - 1},
                          lletra_titol,
                          {},
                          {},
                          titol_},
                         {u"L_DATA"_qs,
                          Seccio::Encapcalament,
                          Mena_Control::Etiqueta,
                          {Ample() - ample_data, base, ample_data, 200},
                          lletra_peu,
                          Costat::Dreta,
                          {},
                          data},
                         {u"L_PAGINA"_qs,
                          Seccio::Peu_De_Pagina,
                          Mena_Control::Comptador,
                          {0, 100, Ample(), 200},
                          lletra_peu,
                          Costat::Dreta,
                          {},
                          u"%p/%P"_qs}},
            .apaisat = apaisat_,
            .peu_al_fons = false};
  }

  // Columns as wide as on the screen, or all of them narrower by the same when they do not fit.
  Definicio_Informe De_Graella(const Graella& graella) const {
    const double escala = std::min(1.0, Ample() / std::max(1.0, Amplada_De(graella)));
    Estil_Lletra lletra{.punts = 9 * std::max(escala, minim_lletra), .tinta = Tinta::Negra};
    const int fila = static_cast<int>(std::lround(Pas_De_Linia(lletra) * 1.3));
    Definicio_Informe fet = Buit();
    fet.alcades[static_cast<std::size_t>(Seccio::Detall)] = fila;
    fet.alcades[static_cast<std::size_t>(Seccio::Titols)] = buit_entre_graelles + fila;
    double x = 0;
    for (int columna = 0; columna < graella.model()->columnCount(); ++columna) {
      if (graella.isColumnHidden(columna)) continue;
      const double amplada = graella.Amplada_Donada(columna) * twips_per_pixel * escala;
      const int esquerra = static_cast<int>(x) + farciment;
      const int dreta = static_cast<int>(x + amplada) - farciment;
      const Costat costat = Costat_De(graella.model()->headerData(columna, Qt::Horizontal, Qt::TextAlignmentRole));
      const QString numero = QString::number(columna);
      lletra.negreta = true;
      fet.controls.push_back({u"L_"_qs + numero,
                              Seccio::Titols,
                              Mena_Control::Etiqueta,
                              {esquerra, buit_entre_graelles, std::max(1, dreta - esquerra), fila - gruix_titols - 1},
                              lletra,
                              costat,
                              {},
                              graella.Titol_Columna(columna)});
      lletra.negreta = false;
      fet.controls.push_back({u"TXT_"_qs + numero,
                              Seccio::Detall,
                              Mena_Control::Camp,
                              {esquerra, 0, std::max(1, dreta - esquerra), fila - gruix_fila - 1},
                              lletra,
                              costat});
      x += amplada;
    }
    Ratllar(fet, Seccio::Titols, buit_entre_graelles + fila, x, gruix_titols);
    Ratllar(fet, Seccio::Detall, fila, x, gruix_fila);
    return fet;
  }

  Definicio_Informe D_Imatge(QSizeF mida) const {
    const QSizeF lloc(Ample(), Alt());
    if (mida.width() > lloc.width() || mida.height() > lloc.height()) mida.scale(lloc, Qt::KeepAspectRatio);
    Definicio_Informe fet = Buit();
    fet.alcades[static_cast<std::size_t>(Seccio::Detall)] = static_cast<int>(mida.height());
    fet.controls.push_back({u"IMG_FORMULARI"_qs, Seccio::Detall, Mena_Control::Imatge, {QPoint(), mida.toSize()}});
    return fet;
  }

 private:
  static int Alt_Encapcalament() { return static_cast<int>(Pas_De_Linia(lletra_titol) * 1.3); }
  // At the lower end of a row.
  static void Ratllar(Definicio_Informe& fet, Seccio seccio, int fila, double ample, int gruix) {
    fet.controls.push_back({u"R_FILA"_qs,
                            seccio,
                            Mena_Control::Ratlla,
                            {0, fila - gruix, static_cast<int>(ample), gruix},
                            {.tinta = Tinta::Negra}});
  }

  QString titol_;
  bool apaisat_;
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

// One grid after the other. What a report is made of stays where it is while the pages are laid out.
std::vector<Pagina> Pagines_De_Graelles(const Full& full, const std::vector<const Graella*>& graelles) {
  std::deque<Definicio_Informe> definicions;
  std::deque<Informe> informes;
  std::deque<Font_Graella> fonts;
  std::vector<Cos_Informe> cossos;
  for (const Graella* graella : graelles) {
    informes.emplace_back(definicions.emplace_back(full.De_Graella(*graella)));
    cossos.push_back({informes.back(), fonts.emplace_back(*graella)});
  }
  return Maquetar_Seguits(cossos);
}

std::vector<Pagina> Pagines_D_Imatge(const Full& full, const QImage& imatge) {
  const Definicio_Informe definicio = full.D_Imatge(imatge.deviceIndependentSize() * twips_per_pixel);
  Informe informe(definicio);
  informe.Picture(u"IMG_FORMULARI"_qs, imatge);
  const Font_Imatge una;
  return Maquetar_Seguits({{informe, una}});
}

}  // namespace

Pagines Pagines_De_Formulari(Formulari& formulari) {
  const auto graelles = Graelles_De(formulari);
  const bool apaisat = std::any_of(graelles.begin(), graelles.end(), [](const Graella* graella) {
    return Amplada_De(*graella) * apaisa > paper::amplada - 2 * paper::marge;
  });
  const Full full(formulari.windowTitle(), apaisat);
  return {
      .titol = formulari.windowTitle(),
      .autor = QString::fromStdString(sessio.Nom_Empresa),
      .pagines = graelles.empty() ? Pagines_D_Imatge(full, Imatge_De(formulari)) : Pagines_De_Graelles(full, graelles),
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
