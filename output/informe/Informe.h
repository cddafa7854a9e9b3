// The banded report: a definition names sections and controls; at run time their captions, visibility, places, formats
// and pictures are set by name, a source of rows is bound, and the pages are laid out once, to be drawn anywhere alike.
//
// Measures are twips (1440 an inch) from the page's left and top margins. Texts never overlap: each is drawn smaller
// and at last cut with an ellipsis, or wraps and pushes what stands below it down. Page header and page footer stand on
// every page; the report footer is kept whole, with something of the rows above it. Knows nothing of what it prints.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QString>
#include <array>
#include <optional>
#include <variant>
#include <vector>

#include "core/dades/Recordset.h"
#include "output/informe/Lletra.h"

class QPainter;

// Titles stand above the first row, and above the first of every further page.
enum class Seccio { Encapcalament, Detall, Peu_De_Pagina, Peu_D_Informe, Titols };
constexpr int quantes_seccions = 5;
// A sum stands in the report footer: what its column comes to over all the rows.
enum class Mena_Control { Etiqueta, Camp, Imatge, Ratlla, Comptador, Suma };
enum class Costat { Esquerra, Dreta, Centre };
// What becomes of a text longer than its place: one line drawn smaller, or as many lines as it needs. One that may grow
// gives its place back to what stands below it when it is empty.
enum class Ajust { Encongir, Creixer };

struct Control_Informe {
  QString nom;  // a field shows the column of the same name without its TXT_, a sum without its SUMA_
  Seccio seccio;
  Mena_Control mena;
  QRect lloc;
  Estil_Lletra lletra = {};
  Costat costat = Costat::Esquerra;
  Ajust ajust = Ajust::Encongir;
  QString text = {};      // Catalan caption; "%p/%P" of a counter
  QString titol_de = {};  // in a header or a footer: the control that this one is the title of, and moves with
};

struct Definicio_Informe {
  const char* nom;                            // DR_ALBARA_VALORAT
  std::array<int, quantes_seccions> alcades;  // of the sections; the detail's is that of a row of one line
  std::vector<Control_Informe> controls;
  bool apaisat = false;     // paper across
  bool peu_al_fons = true;  // the report footer at the bottom of the last page; else right under the last row
};

// The rows of a report.
class Font_Informe {
 public:
  virtual ~Font_Informe() = default;
  virtual std::int64_t Files() const = 0;
  virtual int Columna(const std::string& nom) const = 0;  // raises 1005 when there is none
  virtual Valor Cella(std::int64_t fila, int columna) const = 0;
};

// A control of a report that is being filled.
struct Estat_Control {
  const Control_Informe* control;
  QString text;
  QRect lloc;                    // its top is the definition's
  std::optional<int> dalt = {};  // a top that was set: it stands there, or lower where something pushes it
  bool visible = true;
  std::string mascara = {};
  QImage imatge = {};
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
  const Definicio_Informe& Definicio() const { return definicio_; }
  const std::vector<Estat_Control>& Controls() const { return estats_; }

  // The texts of the report in the language of the session, from TEXTS: NAME.section.
  void Traduir();
  // Each raises 1005 when the report has no such control.
  void Caption(const QString& control, const QString& text);
  QString Caption(const QString& control) const;
  void Visible(const QString& control, bool visible);
  void Top(const QString& control, int twips);
  void Amplada(const QString& control, int esquerra, int amplada);
  void Data_Format(const QString& control, const char* mascara);
  // A picture is drawn as large as its place allows, in proportion; a null one leaves the place empty.
  void Picture(const QString& control, const QImage& imatge);
  QSize Mida_Imatge(const QString& control) const;  // as it will be drawn; empty without a picture

  // One row a detail. No rows, no pages. Raises 1005 for a field whose column is not there.
  std::vector<Pagina> Maquetar(Recordset& files) const;

 private:
  Estat_Control& Cercar(const QString& nom);
  const Estat_Control& Cercar(const QString& nom) const;

  const Definicio_Informe& definicio_;
  std::vector<Estat_Control> estats_;
};

// Reports one after the other on the same pages: page header, page footer and paper are those of the first.
struct Cos_Informe {
  const Informe& informe;
  const Font_Informe& files;
};
std::vector<Pagina> Maquetar_Seguits(const std::vector<Cos_Informe>& cossos);

// Paper and margins, twips: A4 upright.
namespace paper {
constexpr int amplada = 11906;
constexpr int alcada = 16838;
constexpr int marge = 850;
}  // namespace paper

// Draws a page on a painter whose unit is the twip.
void Pintar_Pagina(QPainter& pintor, const Pagina& pagina);
