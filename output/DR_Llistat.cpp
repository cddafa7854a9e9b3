#include "output/DR_Llistat.h"

#include <cmath>
#include <map>

#include "core/formularis/Text_Qt.h"
#include "output/informe/Sortida.h"

namespace {

using enum Mena_Control;
using enum Costat;

constexpr double ample_full = 180;
constexpr double entre_columnes = 2;
constexpr double alt_fila = 4.8;
constexpr int gruix_ratlla = 10;  // half a point
constexpr const char* mascara = "#,##0.00;; ";

constexpr Estil_Lletra nom_empresa{13, true};
constexpr Estil_Lletra nom_llistat{11, true};
constexpr Estil_Lletra titol{8, false, Tinta::Grisa};
constexpr Estil_Lletra criteri{9};
constexpr Estil_Lletra titol_columna{8.5, true};
constexpr Estil_Lletra fila{9};
constexpr Estil_Lletra suma{9, true};
constexpr Estil_Lletra fosca{0};
constexpr Estil_Lletra clara{9, false, Tinta::Clara};

int Mm(double mil_limetres) {
  return static_cast<int>(std::lround(mil_limetres * 1440 / 25.4));
}
QRect Lloc(double x, double y, double ample, double alt) {
  return {Mm(x), Mm(y), Mm(ample), Mm(alt)};
}

class Dibuixant {
 public:
  explicit Dibuixant(const Descripcio_Llistat& descripcio) : d_(descripcio) {}

  Definicio_Informe Dibuixar() {
    fet_.nom = d_.informe;
    fet_.peu_al_fons = false;
    seccio_ = Seccio::Encapcalament;
    Encapcalament();
    seccio_ = Seccio::Titols;
    Columnes(&Dibuixant::Titol_De_Columna);
    Ratllar(u"R_TITOLS"_qs, 6, fosca);
    Alcada(7);
    seccio_ = Seccio::Detall;
    Columnes(&Dibuixant::Camp_De_Columna);
    Ratllar(u"R_FILA"_qs, alt_fila, clara);
    Alcada(alt_fila + 0.4);
    seccio_ = Seccio::Peu_D_Informe;
    Ratllar(u"R_TOTALS"_qs, 1, fosca);
    Posar(u"L_TOTALS"_qs, Etiqueta, Lloc(0, 2, 60, 4.4), suma, Esquerra, u"Totals"_qs);
    Columnes(&Dibuixant::Suma_De_Columna);
    Alcada(8);
    seccio_ = Seccio::Peu_De_Pagina;
    Posar(u"L_PAGINA"_qs, Comptador, Lloc(140, 3, 40, 4), titol, Dreta, u"%p/%P"_qs);
    Alcada(7);
    return std::move(fet_);
  }

 private:
  void Alcada(double mil_limetres) { fet_.alcades[static_cast<std::size_t>(seccio_)] = Mm(mil_limetres); }
  void Posar(const QString& nom, Mena_Control mena, QRect lloc, Estil_Lletra lletra, Costat costat = Esquerra,
             const QString& text = {}) {
    fet_.controls.push_back({nom, seccio_, mena, lloc, lletra, costat, Ajust::Encongir, text});
  }
  void Ratllar(const QString& nom, double y, const Estil_Lletra& lletra) {
    Posar(nom, Ratlla, {0, Mm(y), Mm(ample_full), gruix_ratlla}, lletra);
  }

  void Encapcalament() {
    Posar(u"L_RAO_SOCIAL_EMP"_qs, Etiqueta, Lloc(0, 0, ample_full, 6), nom_empresa);
    Posar(u"L_LLISTAT"_qs, Etiqueta, Lloc(0, 7, ample_full, 5), nom_llistat, Esquerra, QString::fromUtf8(d_.titol));
    const QString numero = QString::fromUtf8(d_.numero);
    Interval(numero, QString::fromUtf8(d_.numero_entre), 0, 14);
    Interval(u"DATA"_qs, u"Data entre"_qs, 95, 14);
    Un_Sol(u"CLIENT"_qs, u"CLIENT"_qs, u"Client"_qs, 0, 19);
    Interval(u"IMPORT"_qs, u"Import entre"_qs, 95, 19);
    double y = 24;
    if (d_.amb_articles) {
      Un_Sol(u"ARTICLE"_qs, u"ARTICLE_CODI"_qs, u"Article"_qs, 0, y);
      Un_Sol(u"DESCRIPCIO"_qs, u"ARTICLE_DESC"_qs, u"Descripció"_qs, 95, y);
      y += 5;
    }
    Alcada(y + 3);
  }

  // A criterion between two values, each under its label.
  void Interval(const QString& nom, const QString& caption, double x, double y) {
    Posar(u"L_"_qs + nom, Etiqueta, Lloc(x, y + 0.3, 23, 4), titol, Esquerra, caption);
    Posar(u"L_TXT_"_qs + nom + u"_ENTRE"_qs, Etiqueta, Lloc(x + 24, y, 25, 4.4), criteri);
    Posar(u"L_"_qs + nom + u"_Y"_qs, Etiqueta, Lloc(x + 50, y + 0.3, 6, 4), titol, Centre, u"i"_qs);
    Posar(u"L_TXT_"_qs + nom + u"_Y"_qs, Etiqueta, Lloc(x + 57, y, 27, 4.4), criteri);
  }
  void Un_Sol(const QString& nom, const QString& valor, const QString& caption, double x, double y) {
    Posar(u"L_"_qs + nom, Etiqueta, Lloc(x, y + 0.3, 23, 4), titol, Esquerra, caption);
    Posar(u"L_TXT_"_qs + valor, Etiqueta, Lloc(x + 24, y, 60, 4.4), criteri);
  }

  void Columnes(void (Dibuixant::*posar)(const Columna_Llistat&, double, Costat)) {
    double x = 0;
    for (const Columna_Llistat& columna : d_.columnes) {
      (this->*posar)(columna, x, columna.import || x == 0 ? Dreta : Esquerra);
      x += columna.ample;
    }
  }
  void Titol_De_Columna(const Columna_Llistat& columna, double x, Costat costat) {
    Posar(QString::fromUtf8(columna.control), Etiqueta, Lloc(x, 1.2, columna.ample - entre_columnes, 4), titol_columna,
          costat, QString::fromUtf8(columna.titol));
  }
  void Camp_De_Columna(const Columna_Llistat& columna, double x, Costat costat) {
    Posar(u"TXT_"_qs + QString::fromUtf8(columna.camp), Camp, Lloc(x, 0.5, columna.ample - entre_columnes, 4), fila,
          costat);
  }
  void Suma_De_Columna(const Columna_Llistat& columna, double x, Costat costat) {
    if (!columna.import) return;
    Posar(u"SUMA_"_qs + QString::fromUtf8(columna.camp), Suma, Lloc(x, 2, columna.ample - entre_columnes, 4.4), suma,
          costat);
  }

  const Descripcio_Llistat& d_;
  Definicio_Informe fet_{};
  Seccio seccio_ = Seccio::Encapcalament;
};

}  // namespace

const Definicio_Informe& DR_Llistat(const Descripcio_Llistat& descripcio) {
  static std::map<std::string_view, Definicio_Informe> fetes;
  const auto trobada = fetes.find(descripcio.informe);
  if (trobada != fetes.end()) return trobada->second;
  return fetes.emplace(descripcio.informe, Dibuixant(descripcio).Dibuixar()).first->second;
}

Pagines Pagines_De_Llistat(const Descripcio_Llistat& descripcio, const std::string& sentencia,
                           const Valors_Cerca& valors) {
  Informe informe(DR_Llistat(descripcio));
  informe.Traduir();
  Recordset files(sentencia, sessio.Connexio_Comuna);
  if (files.RecordCount() == 0) return {};
  for (const auto& [control, text] : Textos_De_Llistat(descripcio, valors))
    informe.Caption(Text_Qt(control), Text_Qt(text));
  for (const Columna_Llistat& columna : descripcio.columnes) {
    if (!columna.import) continue;
    for (const char16_t* prefix : {u"TXT_", u"SUMA_"})
      informe.Data_Format(QString::fromUtf16(prefix) + QString::fromUtf8(columna.camp), mascara);
  }
  return {.titol = informe.Caption(u"L_LLISTAT"_qs),
          .autor = informe.Caption(u"L_RAO_SOCIAL_EMP"_qs),
          .pagines = informe.Maquetar(files)};
}

void Imprimir_Llistat(const Descripcio_Llistat& descripcio, const std::string& sentencia, const Valors_Cerca& valors) {
  const Pagines pagines = Pagines_De_Llistat(descripcio, sentencia, valors);
  if (!pagines.pagines.empty()) Imprimir_Pagines(pagines);
}
