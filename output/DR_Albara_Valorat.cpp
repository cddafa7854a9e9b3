#include "output/DR_Albara_Valorat.h"

#include <cmath>

namespace {

using enum Mena_Control;
using enum Costat;
using enum Ajust;

constexpr int files_peu = 4;
constexpr int gruix_ratlla = 10;  // half a point

constexpr Estil_Lletra nom_empresa{15, true};
constexpr Estil_Lletra dades_empresa{9, false, Tinta::Grisa};
constexpr Estil_Lletra titol{8, false, Tinta::Grisa};
constexpr Estil_Lletra titol_columna{8.5, true};
constexpr Estil_Lletra text{9.5};
constexpr Estil_Lletra text_linia{9};
constexpr Estil_Lletra nom_client{10.5, true};
constexpr Estil_Lletra numero{14, true};
constexpr Estil_Lletra clara{0, false, Tinta::Clara};
constexpr Estil_Lletra fosca{0};

int Mm(double mil_limetres) {
  return static_cast<int>(std::lround(mil_limetres * 1440 / 25.4));
}
// Millimetres from the left margin and from the top of the section.
QRect Lloc(double x, double y, double ample, double alt) {
  return {Mm(x), Mm(y), Mm(ample), Mm(alt)};
}
QRect Ratlla_A(double x, double y, double ample) {
  return {Mm(x), Mm(y), Mm(ample), gruix_ratlla};
}

// The customer stands where the window of an envelope shows it: from 105 mm of the sheet's left edge, between 50 and 80
// mm of its top.
std::vector<Control_Informe> Encapcalament() {
  constexpr auto s = Seccio::Encapcalament;
  return {
      {u"L_RAO_SOCIAL_EMP"_qs, s, Etiqueta, Lloc(0, 0, 180, 7), nom_empresa},
      {u"L_NIF_EMP"_qs, s, Etiqueta, Lloc(0, 7.6, 180, 4), dades_empresa},
      {u"L_ADREÇA_EMP"_qs, s, Etiqueta, Lloc(0, 11.8, 180, 4), dades_empresa},
      {u"L_CP_POBLACIO_EMP"_qs, s, Etiqueta, Lloc(0, 16, 180, 4), dades_empresa},
      {u"R_EMPRESA"_qs, s, Ratlla, Ratlla_A(0, 22.5, 180), clara},

      {u"L_ALBARA"_qs, s, Etiqueta, Lloc(0, 38.9, 22, 4), titol, Esquerra, Encongir, u"Albarà"_qs},
      {u"L_TXT_ALBARA"_qs, s, Etiqueta, Lloc(23, 37, 58, 6), numero},
      {u"L_DATA"_qs, s, Etiqueta, Lloc(0, 46.4, 22, 4), titol, Esquerra, Encongir, u"Data"_qs},
      {u"L_TXT_DATA"_qs, s, Etiqueta, Lloc(23, 46, 58, 4), text},
      {u"L_NIF"_qs, s, Etiqueta, Lloc(0, 51.9, 22, 4), titol, Esquerra, Encongir, u"NIF"_qs},
      {u"L_TXT_NIF"_qs, s, Etiqueta, Lloc(23, 51.5, 58, 4), text},

      {u"L_NOM_FISCAL"_qs, s, Etiqueta, Lloc(90, 37.9, 90, 5), nom_client},
      {u"L_NOM_COMERCIAL"_qs, s, Etiqueta, Lloc(90, 43.4, 90, 4), text},
      {u"L_DIRECCIO"_qs, s, Etiqueta, Lloc(90, 48.3, 90, 4), text},
      {u"L_POBLACIO"_qs, s, Etiqueta, Lloc(90, 53.2, 90, 4), text},

      {u"L_OBSR"_qs, s, Etiqueta, Lloc(0, 60.4, 22, 4), titol, Esquerra, Encongir, u"Observacions"_qs},
      {u"L_TXT_OBSR"_qs, s, Etiqueta, Lloc(23, 60, 157, 12.4), text, Esquerra, Partir},

      {u"R_TITOLS_DALT"_qs, s, Ratlla, Ratlla_A(0, 74, 180), fosca},
      {u"L_DESCRIPCIO_AL"_qs, s, Etiqueta, Lloc(0, 75.5, 92, 4), titol_columna, Esquerra, Encongir, u"Descripció"_qs},
      {u"L_UNITATS_AL"_qs, s, Etiqueta, Lloc(95, 75.5, 20, 4), titol_columna, Dreta, Encongir, u"Unitats"_qs},
      {u"L_PREU_UNITARI_AL"_qs, s, Etiqueta, Lloc(117, 75.5, 23, 4), titol_columna, Dreta, Encongir, u"Preu"_qs},
      {u"L_DTE_AL"_qs, s, Etiqueta, Lloc(141, 75.5, 14, 4), titol_columna, Dreta, Encongir, u"Dte"_qs},
      {u"L_TOTAL_IMPORT_AL"_qs, s, Etiqueta, Lloc(156, 75.5, 24, 4), titol_columna, Dreta, Encongir, u"Import"_qs},
      {u"R_TITOLS_BAIX"_qs, s, Ratlla, Ratlla_A(0, 80.2, 180), fosca},
  };
}

std::vector<Control_Informe> Detall() {
  constexpr auto s = Seccio::Detall;
  return {
      {u"TXT_DESCRIPCIO_AL"_qs, s, Camp, Lloc(0, 0.6, 92, 4), text_linia, Esquerra, Creixer},
      {u"TXT_UNITATS_AL"_qs, s, Camp, Lloc(95, 0.6, 20, 4), text_linia, Dreta},
      {u"TXT_PREU_UNITARI_AL"_qs, s, Camp, Lloc(117, 0.6, 23, 4), text_linia, Dreta},
      {u"TXT_DTE_AL"_qs, s, Camp, Lloc(141, 0.6, 14, 4), text_linia, Dreta},
      {u"TXT_TOTAL_IMPORT_AL"_qs, s, Camp, Lloc(156, 0.6, 24, 4), text_linia, Dreta},
  };
}

std::vector<Control_Informe> Peu_De_Pagina() {
  return {{u"L_PAGINA"_qs, Seccio::Peu_De_Pagina, Comptador, Lloc(140, 3, 40, 4), titol, Dreta, Encongir, u"%p/%P"_qs}};
}

struct Columna_Peu {
  const char16_t* nom;
  const char16_t* titol;
  double x;
  double ample;
};
constexpr Columna_Peu columnes_peu[] = {
    {u"L_BASE", u"Base", 0, 24},     {u"L_IVA_PORC", u"% IVA", 25, 12}, {u"L_IVA_IMP", u"IVA", 38, 21},
    {u"L_RE_PORC", u"% RE", 60, 12}, {u"L_RE_IMP", u"RE", 73, 20},      {u"L_IMPORT_BRUT", u"Import", 94, 25},
};

// The tax rows on the left, what they come to on the right.
std::vector<Control_Informe> Peu_D_Informe() {
  constexpr auto s = Seccio::Peu_D_Informe;
  std::vector<Control_Informe> controls{
      {u"R_PEU"_qs, s, Ratlla, Ratlla_A(0, 4, 180), fosca},
      {u"L_NETO"_qs, s, Etiqueta, Lloc(132, 6.4, 18, 4), titol, Esquerra, Encongir, u"Net"_qs},
      {u"L_NETO_IMP"_qs, s, Etiqueta, Lloc(150, 6, 30, 4), text_linia, Dreta},
      {u"R_TOTAL"_qs, s, Ratlla, Ratlla_A(132, 25.5, 48), fosca},
      {u"L_IMPORT_TOTAL"_qs, s, Etiqueta, Lloc(132, 28.3, 18, 5), nom_client, Esquerra, Encongir, u"Total €"_qs},
      {u"L_IMPORT_TOTAL_IMP"_qs, s, Etiqueta, Lloc(150, 27.2, 30, 6), numero, Dreta},
  };
  for (const auto& [nom, caption, x, ample] : columnes_peu) {
    const QString base = QString::fromUtf16(nom);
    controls.push_back(
        {base, s, Etiqueta, Lloc(x, 6.4, ample, 4), titol, Dreta, Encongir, QString::fromUtf16(caption)});
    for (int fila = 1; fila <= files_peu; ++fila) {
      controls.push_back(
          {base + u'_' + QString::number(fila), s, Etiqueta, Lloc(x, 6.6 + 5 * fila, ample, 4), text_linia, Dreta});
    }
  }
  return controls;
}

Definicio_Informe Definir() {
  Definicio_Informe definicio{"DR_ALBARA_VALORAT", {Mm(81.4), Mm(4.7), Mm(7), Mm(33.4)}, {}};
  for (const auto& seccio : {Encapcalament(), Detall(), Peu_De_Pagina(), Peu_D_Informe()}) {
    definicio.controls.insert(definicio.controls.end(), seccio.begin(), seccio.end());
  }
  return definicio;
}

}  // namespace

const Definicio_Informe& DR_Albara_Valorat() {
  static const Definicio_Informe definicio = Definir();
  return definicio;
}
