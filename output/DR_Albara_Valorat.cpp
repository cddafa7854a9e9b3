#include "output/DR_Albara_Valorat.h"

const Definicio_Informe& DR_Albara_Valorat() {
  constexpr auto dalt = Seccio::Encapcalament;
  constexpr auto detall = Seccio::Detall;
  constexpr auto peu_pagina = Seccio::Peu_De_Pagina;
  constexpr auto peu_informe = Seccio::Peu_D_Informe;
  constexpr auto etiqueta = Mena_Control::Etiqueta;
  constexpr auto camp = Mena_Control::Camp;
  constexpr auto ratlla = Mena_Control::Ratlla;
  constexpr auto comptador = Mena_Control::Comptador;
  // Name, section, kind, left, top, width, height (twips), alignment, caption, size, bold, grows.
  // clang-format off
  static const Definicio_Informe definicio{
      .nom = "DR_ALBARA_VALORAT",
      .alcades = {3600, 280, 360, 2350},
      .controls = {
        {u"L_RAO_SOCIAL_EMP", dalt, etiqueta, 0, 0, 6200, 380, Qt::AlignLeft, u"", 15, true, false},
        {u"L_NIF_EMP", dalt, etiqueta, 0, 420, 6200, 230, Qt::AlignLeft, u"", 9, false, false},
        {u"L_ADREÇA_EMP", dalt, etiqueta, 0, 650, 6200, 230, Qt::AlignLeft, u"", 9, false, false},
        {u"L_CP_POBLACIO_EMP", dalt, etiqueta, 0, 880, 6200, 230, Qt::AlignLeft, u"", 9, false, false},
        {u"R_EMPRESA", dalt, ratlla, 0, 1220, 10206, 10, Qt::AlignLeft, u"", 9, false, false},
        {u"L_ALBARA", dalt, etiqueta, 0, 1620, 1350, 250, Qt::AlignLeft, u"Albarà", 9, false, false},
        {u"L_TXT_ALBARA", dalt, etiqueta, 1400, 1590, 3400, 290, Qt::AlignLeft, u"", 11, true, false},
        {u"L_DATA", dalt, etiqueta, 0, 1920, 1350, 250, Qt::AlignLeft, u"Data", 9, false, false},
        {u"L_TXT_DATA", dalt, etiqueta, 1400, 1920, 3400, 290, Qt::AlignLeft, u"", 9, false, false},
        {u"L_NIF", dalt, etiqueta, 0, 2220, 1350, 250, Qt::AlignLeft, u"NIF", 9, false, false},
        {u"L_TXT_NIF", dalt, etiqueta, 1400, 2220, 3400, 290, Qt::AlignLeft, u"", 9, false, false},
        {u"L_OBSR", dalt, etiqueta, 0, 2520, 1350, 250, Qt::AlignLeft, u"Observacions", 9, false, false},
        {u"L_TXT_OBSR", dalt, etiqueta, 1400, 2520, 3400, 290, Qt::AlignLeft, u"", 9, false, false},
        {u"L_NOM_FISCAL", dalt, etiqueta, 5300, 1600, 4900, 280, Qt::AlignLeft, u"", 11, true, false},
        {u"L_NOM_COMERCIAL", dalt, etiqueta, 5300, 1900, 4900, 250, Qt::AlignLeft, u"", 10, false, false},
        {u"L_DIRECCIO", dalt, etiqueta, 5300, 2170, 4900, 250, Qt::AlignLeft, u"", 10, false, false},
        {u"L_POBLACIO", dalt, etiqueta, 5300, 2440, 4900, 250, Qt::AlignLeft, u"", 10, false, false},
        {u"R_TITOLS_DALT", dalt, ratlla, 0, 3200, 10206, 12, Qt::AlignLeft, u"", 9, false, false},
        {u"L_DESCRIPCIO_AL", dalt, etiqueta, 0, 3260, 5050, 240, Qt::AlignLeft, u"Descripció", 9, true, false},
        {u"L_UNITATS_AL", dalt, etiqueta, 5130, 3260, 1080, 240, Qt::AlignRight, u"Unitats", 9, true, false},
        {u"L_PREU_UNITARI_AL", dalt, etiqueta, 6290, 3260, 1250, 240, Qt::AlignRight, u"Preu €", 9, true, false},
        {u"L_DTE_AL", dalt, etiqueta, 7620, 3260, 800, 240, Qt::AlignRight, u"Dte %", 9, true, false},
        {u"L_TOTAL_IMPORT_AL", dalt, etiqueta, 8500, 3260, 1706, 240, Qt::AlignRight, u"Import €", 9, true, false},
        {u"R_TITOLS_BAIX", dalt, ratlla, 0, 3530, 10206, 6, Qt::AlignLeft, u"", 9, false, false},
        {u"TXT_DESCRIPCIO_AL", detall, camp, 0, 20, 5050, 230, Qt::AlignLeft, u"", 9, false, true},
        {u"TXT_UNITATS_AL", detall, camp, 5130, 20, 1080, 230, Qt::AlignRight, u"", 9, false, false},
        {u"TXT_PREU_UNITARI_AL", detall, camp, 6290, 20, 1250, 230, Qt::AlignRight, u"", 9, false, false},
        {u"TXT_DTE_AL", detall, camp, 7620, 20, 800, 230, Qt::AlignRight, u"", 9, false, false},
        {u"TXT_TOTAL_IMPORT_AL", detall, camp, 8500, 20, 1706, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_PAGINA", peu_pagina, comptador, 0, 120, 10206, 220, Qt::AlignHCenter, u"%p/%P", 8, false, false},
        {u"R_NET", peu_informe, ratlla, 0, 0, 10206, 12, Qt::AlignLeft, u"", 9, false, false},
        {u"L_NETO", peu_informe, etiqueta, 6290, 90, 2130, 250, Qt::AlignRight, u"Import net €", 9, false, false},
        {u"L_NETO_IMP", peu_informe, etiqueta, 8500, 90, 1706, 250, Qt::AlignRight, u"", 9, false, false},
        {u"L_BASE", peu_informe, etiqueta, 0, 470, 1700, 230, Qt::AlignRight, u"Base", 8.5, true, false},
        {u"L_IVA_PORC", peu_informe, etiqueta, 1780, 470, 1000, 230, Qt::AlignRight, u"% IVA", 8.5, true, false},
        {u"L_IVA_IMP", peu_informe, etiqueta, 2860, 470, 1500, 230, Qt::AlignRight, u"IVA", 8.5, true, false},
        {u"L_RE_PORC", peu_informe, etiqueta, 4440, 470, 1000, 230, Qt::AlignRight, u"% RE", 8.5, true, false},
        {u"L_RE_IMP", peu_informe, etiqueta, 5520, 470, 1500, 230, Qt::AlignRight, u"RE", 8.5, true, false},
        {u"L_IMPORT_BRUT", peu_informe, etiqueta, 8500, 470, 1706, 230, Qt::AlignRight, u"Import €", 8.5, true, false},
        {u"R_PEU", peu_informe, ratlla, 0, 720, 10206, 6, Qt::AlignLeft, u"", 9, false, false},
        {u"L_BASE_1", peu_informe, etiqueta, 0, 760, 1700, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_PORC_1", peu_informe, etiqueta, 1780, 760, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_IMP_1", peu_informe, etiqueta, 2860, 760, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_PORC_1", peu_informe, etiqueta, 4440, 760, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_IMP_1", peu_informe, etiqueta, 5520, 760, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IMPORT_BRUT_1", peu_informe, etiqueta, 8500, 760, 1706, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_BASE_2", peu_informe, etiqueta, 0, 1010, 1700, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_PORC_2", peu_informe, etiqueta, 1780, 1010, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_IMP_2", peu_informe, etiqueta, 2860, 1010, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_PORC_2", peu_informe, etiqueta, 4440, 1010, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_IMP_2", peu_informe, etiqueta, 5520, 1010, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IMPORT_BRUT_2", peu_informe, etiqueta, 8500, 1010, 1706, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_BASE_3", peu_informe, etiqueta, 0, 1260, 1700, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_PORC_3", peu_informe, etiqueta, 1780, 1260, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_IMP_3", peu_informe, etiqueta, 2860, 1260, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_PORC_3", peu_informe, etiqueta, 4440, 1260, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_IMP_3", peu_informe, etiqueta, 5520, 1260, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IMPORT_BRUT_3", peu_informe, etiqueta, 8500, 1260, 1706, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_BASE_4", peu_informe, etiqueta, 0, 1510, 1700, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_PORC_4", peu_informe, etiqueta, 1780, 1510, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IVA_IMP_4", peu_informe, etiqueta, 2860, 1510, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_PORC_4", peu_informe, etiqueta, 4440, 1510, 1000, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_RE_IMP_4", peu_informe, etiqueta, 5520, 1510, 1500, 230, Qt::AlignRight, u"", 9, false, false},
        {u"L_IMPORT_BRUT_4", peu_informe, etiqueta, 8500, 1510, 1706, 230, Qt::AlignRight, u"", 9, false, false},
        {u"R_TOTAL", peu_informe, ratlla, 6290, 1820, 3916, 12, Qt::AlignLeft, u"", 9, false, false},
        {u"L_IMPORT_TOTAL", peu_informe, etiqueta, 5520, 1920, 2900, 330, Qt::AlignRight, u"Total €", 12, true, false},
        {u"L_IMPORT_TOTAL_IMP", peu_informe, etiqueta, 8500, 1920, 1706, 330, Qt::AlignRight, u"", 12, true, false},
      }};
  // clang-format on
  return definicio;
}
