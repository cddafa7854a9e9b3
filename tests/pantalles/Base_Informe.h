// A report of fifteen rows a page, and what stands on its pages; and pages without a report.
#pragma once

#include <QString>
#include <vector>

#include "output/informe/Informe.h"
#include "tests/pantalles/Base_Pantalles.h"

// A page of 15 rows of one line, and a footer as tall as three of them.
inline constexpr int alcada_fila = 300;
inline constexpr int files_per_pagina = 15;
inline constexpr int alcada_capcalera = paper::alcada - 2 * paper::marge - files_per_pagina * alcada_fila - 400;

inline const Definicio_Informe& Informe_De_Prova() {
  using enum Mena_Control;
  static const Definicio_Informe definicio{
      "DR_PROVA",
      {alcada_capcalera, alcada_fila, 400, 3 * alcada_fila},
      {
          {u"L_TITOL"_qs, Seccio::Encapcalament, Etiqueta, {0, 0, 3000, 300}, {}, {}, {}, u"Títol"_qs},
          {u"L_NOTA"_qs, Seccio::Encapcalament, Etiqueta, {0, 400, 3000, 230}, {}, {}, Ajust::Creixer},
          {u"L_SOTA"_qs, Seccio::Encapcalament, Etiqueta, {0, 680, 3000, 230}, {}, {}, {}, u"Sota"_qs},
          {u"IMG_LOGO"_qs, Seccio::Encapcalament, Imatge, {5000, 0, 2000, 1000}},
          {u"R_TITOL"_qs, Seccio::Encapcalament, Ratlla, {0, 350, 5000, 10}},
          {u"TXT_DESCRIPCIO_AL"_qs, Seccio::Detall, Camp, {0, 0, 4000, 230}, {}, {}, Ajust::Creixer},
          {u"TXT_TOTAL_IMPORT_AL"_qs, Seccio::Detall, Camp, {5000, 0, 1000, 230}, {}, Costat::Dreta},
          {u"L_PAGINA"_qs, Seccio::Peu_De_Pagina, Comptador, {0, 0, 2000, 230}, {}, {}, {}, u"%p/%P"_qs},
          {u"SUMA_TOTAL_IMPORT_AL"_qs, Seccio::Peu_D_Informe, Suma, {5000, 0, 1000, 230}, {}, Costat::Dreta},
          {u"L_PEU"_qs, Seccio::Peu_D_Informe, Etiqueta, {0, 0, 3000, 230}, {}, {}, {}, u"Peu"_qs},
      }};
  return definicio;
}

inline std::vector<Text_Posat> Textos_De_Pagina(const Pagina& pagina) {
  std::vector<Text_Posat> textos;
  for (const auto& element : pagina) {
    if (const auto* text = std::get_if<Text_Posat>(&element)) textos.push_back(*text);
  }
  return textos;
}

inline QStringList Paraules(const Pagina& pagina) {
  QStringList paraules;
  for (const auto& text : Textos_De_Pagina(pagina)) paraules << text.text;
  return paraules;
}

inline Text_Posat Text_De(const Pagina& pagina, const QString& buscat) {
  for (const auto& text : Textos_De_Pagina(pagina)) {
    if (text.text == buscat) return text;
  }
  ADD_FAILURE() << "not on the page: " << buscat.toStdString();
  return {};
}

inline double Amplada_De(const Text_Posat& text) {
  return Amplada(text.text, text.lletra);
}

inline const QString descripcio_llarga = QStringLiteral("paraula ").repeated(60).trimmed();

// Pages that tell their number, and nothing else.
inline Pagines Fer_Pagines(int quantes) {
  Pagines fetes{.titol = u"Albarà 12"_qs, .autor = {}, .pagines = {}};
  for (int i = 1; i <= quantes; ++i) {
    fetes.pagines.push_back(
        {Text_Posat{{paper::marge, paper::marge + 300}, u"pàgina %1"_qs.arg(i), Lletra({}), Qt::black}});
  }
  return fetes;
}

class Informe_Prova : public Base_Pantalles {
 protected:
  void Posar_Fila(const std::string& descripcio, double import = 1) {
    Recordset rs("SELECT * FROM ALBARALIN_VALORAT_IMPR", sessio.Connexio_Local, Bloqueig::Optimista);
    rs.AddNew();
    rs.Set("LIN_AL", ++linia_);
    rs.Set("DESCRIPCIO_AL", descripcio);
    rs.Set("TOTAL_IMPORT_AL", import);
    rs.Update();
  }
  void Posar_Files(int quantes) {
    for (int i = 1; i <= quantes; ++i) Posar_Fila("fila " + std::to_string(i));
  }
  std::vector<Pagina> Maquetar() {
    Recordset rs("SELECT * FROM ALBARALIN_VALORAT_IMPR ORDER BY LIN_AL", sessio.Connexio_Local);
    return informe.Maquetar(rs);
  }

  Informe informe{Informe_De_Prova()};

 private:
  int linia_ = 0;
};
