// The banded report: a definition names sections and controls; at run time their captions, visibility, tops, formats
// and pictures are set by name, a row source is bound, and the pages are laid out once, to be drawn anywhere alike.
//
// Measures are twips (1440 an inch) from the page's left and top margins. Texts never overlap: each either wraps or is
// drawn smaller and at last cut with an ellipsis. Page header and page footer stand on every page; the report footer is
// kept whole, at the bottom of the last page, with a row above it.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>
#include <array>
#include <variant>
#include <vector>

#include "core/dades/Recordset.h"
#include "output/informe/Lletra.h"

class QPainter;

enum class Seccio { Encapcalament, Detall, Peu_De_Pagina, Peu_D_Informe };
enum class Mena_Control { Etiqueta, Camp, Imatge, Ratlla, Comptador };
enum class Costat { Esquerra, Dreta };
// What becomes of a text longer than its place: one line drawn smaller, as many lines as its place holds, or as many as
// it needs in a row that grows.
enum class Ajust { Encongir, Partir, Creixer };

struct Control_Informe {
  QString nom;  // a field is bound to the column of the same name without its TXT_
  Seccio seccio;
  Mena_Control mena;
  QRect lloc;
  Estil_Lletra lletra = {};
  Costat costat = Costat::Esquerra;
  Ajust ajust = Ajust::Encongir;
  QString text = {};  // Catalan caption; "%p/%P" of a counter
};

struct Definicio_Informe {
  const char* nom;             // DR_ALBARA_VALORAT
  std::array<int, 4> alcades;  // of the sections; the detail's is that of a row of one line
  std::vector<Control_Informe> controls;
};

// What there is to draw on a page, in twips from the corner of the paper. Nothing is left to be measured.
struct Text_Posat {
  QPointF base;  // where its first letter stands
  QString text;
  QFont lletra;
  QColor tinta;
};
struct Ratlla_Posada {
  QRectF lloc;
  QColor tinta;
};
struct Imatge_Posada {
  QRectF lloc;
  QImage imatge;
};
using Element = std::variant<Text_Posat, Ratlla_Posada, Imatge_Posada>;
using Pagina = std::vector<Element>;

struct Pagines {
  QString titol;
  QString autor;
  std::vector<Pagina> pagines;
  bool apaisades = false;  // all of them
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

  // One row of the recordset a detail. No rows, no pages. Raises 1005 for a field whose column is not there.
  std::vector<Pagina> Maquetar(Recordset& files) const;

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
}  // namespace paper

// Draws a page on a painter whose unit is the twip.
void Pintar_Pagina(QPainter& pintor, const Pagina& pagina);
