// The banded report: a definition names sections and controls; at run time their captions, visibility, tops, formats
// and pictures are set by name, a row source is bound, and the pages are laid out once, to be drawn anywhere alike.
//
// Measures are twips (1440 an inch) from the page's left and top margins. Texts never overlap: a growing field wraps
// and its row grows, a label is cut with an ellipsis, a figure that is too wide is drawn smaller. Page header and page
// footer stand on every page; the report footer is kept whole, at the bottom of the last page.
#pragma once

#include <QHash>
#include <QImage>
#include <QRectF>
#include <QString>
#include <vector>

#include "core/dades/Recordset.h"

class QPainter;

enum class Seccio { Encapcalament, Detall, Peu_De_Pagina, Peu_D_Informe };
enum class Mena_Control { Etiqueta, Camp, Imatge, Ratlla, Comptador };

struct Control_Informe {
  const char16_t* nom;  // a field is bound to the column of the same name without its TXT_
  Seccio seccio;
  Mena_Control mena;
  int esquerra;
  int dalt;
  int amplada;
  int alcada;
  Qt::Alignment alineacio = Qt::AlignLeft;
  const char16_t* text = u"";  // Catalan caption; "%p/%P" of a counter
  double punts = 9;            // size of the letter
  bool negreta = false;
  bool creix = false;  // wraps, and its row grows
};

struct Definicio_Informe {
  const char* nom;  // DR_ALBARA_VALORAT
  int alcades[4];   // of the sections; the detail's is that of a row at least
  std::vector<Control_Informe> controls;
};

// One thing to draw on a page.
struct Element {
  QRectF lloc;  // twips from the corner of the paper
  Mena_Control mena;
  QString text;
  Qt::Alignment alineacio;
  double punts;
  bool negreta;
  bool creix;
  QImage imatge;
};

struct Pagines {
  QString titol;
  std::vector<std::vector<Element>> pagines;
  bool Buides() const { return pagines.empty(); }
};

class Informe {
 public:
  explicit Informe(const Definicio_Informe& definicio);

  // The texts of the report in the language of the session, from TEXTS: NAME.section.
  void Traduir();
  // Each raises 1005 when the report has no such control.
  void Caption(const QString& control, const QString& text);
  QString Caption(const QString& control) const;
  void Visible(const QString& control, bool visible);
  void Top(const QString& control, int twips);
  void Data_Format(const QString& control, const char* mascara);
  void Picture(const QString& control, const QString& fitxer);  // a file that is no picture leaves it empty

  // One row of the recordset a detail. No rows, no pages.
  Pagines Maquetar(Recordset& files, const QString& titol) const;

 private:
  struct Estat {
    const Control_Informe* control;
    QString text;
    bool visible = true;
    int dalt;
    std::string mascara;
    QImage imatge;
  };
  class Maquetador;
  Estat& Cercar(const QString& nom);
  const Estat& Cercar(const QString& nom) const;

  const Definicio_Informe& definicio_;
  std::vector<Estat> estats_;
};

// Paper and margins, twips: A4 upright.
namespace paper {
constexpr int amplada = 11906;
constexpr int alcada = 16838;
constexpr int marge = 850;
constexpr int amplada_util = amplada - 2 * marge;
}  // namespace paper

// Draws a page on a painter whose unit is the twip.
void Pintar_Pagina(QPainter& pintor, const std::vector<Element>& pagina);
