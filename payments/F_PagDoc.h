// The payments of a document, entered in a grid. Which document, the session says: Pag_Document, Pag_Numero,
// Pag_Client, Pag_Total. Reads FORMES_PAGAMENT; writes PAGAMENTS, and the flags of the document's chain.
#pragma once

#include "core/menes/Taula_Referencia.h"

class QLabel;

class F_PagDoc : public Taula_Referencia {
  Q_OBJECT
 public:
  F_PagDoc();
  void Carregar() override;
  void Descarregar() override;

 protected:
  void Fila_Nova(Recordset& fila, const char* camp) override;
  bool Per_Desar(const Recordset& fila, const char* camp) override;
  void Files_Canviades() override;

 private:
  void Resum();
  QLabel* import_;
  QLabel* pagaments_;
  QLabel* pendents_;
  double pagat_ = 0;  // euros, as the summary showed it last
};

void Registrar_Formularis_Pagaments();
