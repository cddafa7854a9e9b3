// One line of a document outside its grid: its figures as they are typed, written back when the detail is closed, and
// what a kind of document does with a line of its own: accepting it, serving it, taking it back (Passos_Detall). Reads
// and writes the lines and the foot; reads ARTICLES and IVAS; through the steps of the kind whatever they say.
#pragma once

#include "documents/M_Linies_Document.h"

// Who the document is for, as its form shows it.
struct Qui_Del_Document {
  std::string codi;
  std::string nom;
};

// A line as its detail shows it.
struct Linia_Detall {
  Capcalera_Oberta cap;
  Qui_Del_Document qui;
  std::int16_t lin = 0;
  Contingut_Linia contingut;
};

// What a button of the detail does, after its question. In a transaction of its own, or not at all.
struct Accio_De_Linia {
  Pregunta pregunta;
  void (*fer)(const Linia_Detall& linia);
};

// What a kind does of its own with the detail of a line. A step that is null is not taken.
struct Passos_Detall {
  // Its figures may not change any more.
  bool (*fixada)(const Linia_Detall& linia, const Recordset& fila) = nullptr;
  // The documents that the line is tied to: a statement with DOCUMENT (what it is, in the language of the session),
  // NUMERO, DATA and UNITATS. Empty: none.
  std::string (*lligats)(const Linia_Detall& linia, const Recordset& fila) = nullptr;
  const Accio_De_Linia* acceptar = nullptr;
  const Accio_De_Linia* descartar = nullptr;
};

class Linia_Oberta {
 public:
  // Reads the line, its article and its tax type. Raises 80040E38 when it is there no more.
  Linia_Oberta(const Tipus_Document& tipus, Capcalera_Oberta cap, Qui_Del_Document qui, std::int16_t lin);

  const Tipus_Document& Tipus() const { return tipus_; }
  const Linia_Detall& Linia() const { return linia_; }
  bool Fixada() const { return fixada_; }
  bool Te_Canvis() const { return iva_canviat_ || linia_.contingut != en_obrir_; }
  const std::string& Codi_IVA() const { return codi_iva_; }  // empty when no type has its percentage
  // Percent; nothing for an article that is there no more.
  const std::optional<double>& Descompte_Article() const { return descompte_article_; }
  const Passos_Detall& Passos() const;
  std::string SQL_Lligats() const;  // empty: its kind has none

  // A figure was typed, which steers the others. Percent and euros as in Linia_Entrada. Raises 13 when there is no such
  // tax type.
  void Recalcular(Linia_Entrada escrita, Mode_Calcul mode);
  // Typed, and nothing follows from them.
  void Marge(double euros) { linia_.contingut.xifres.marge = euros; }
  void Descripcio(const std::string& text) { linia_.contingut.descripcio = text; }
  // Another tax type: the rows of the foot go, since they are known by their percentage. Desar and Refer_Peu bring them
  // back.
  void Buidar_Peu_Per_IVA();

  // Writes what changed, posts the units that changed, rebuilds the foot: all of it or nothing. Raises 80040E38 when
  // another terminal changed the line or deleted it, 1010 when the stock refuses it (already shown), the engine's.
  void Desar(Document_Obert& obert);
  // After a refusal: the foot that a change of tax type had emptied.
  void Refer_Peu(Document_Obert& obert);
  // The line as it stands now; what was typed is gone. False when it is there no more.
  bool Rellegir();

 private:
  void Llegir();
  Apunt_Estoc Preparar_Correccio() const;
  void Escriure();

  const Tipus_Document& tipus_;
  Linia_Detall linia_;
  Recordset fila_;
  Contingut_Linia en_obrir_;
  std::string codi_iva_;
  std::optional<double> descompte_article_;
  bool fixada_ = false;
  bool iva_canviat_ = false;
};
