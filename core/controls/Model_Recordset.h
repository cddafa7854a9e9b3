// A recordset as Qt's views see it. Formats a cell when it is asked for and keeps nothing.
//
// Where changes are allowed a row may be in edit, which is the recordset's pending edit: its cells show what was typed,
// and Desar_Fila writes it. One more row stands at the end, for a new one.
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <map>
#include <vector>

#include "core/controls/Graella.h"

struct Desplegable_Graella {
  std::vector<Opcio_Graella> opcions;
  QStringList titols;  // of the codes and of the texts; none: only the texts are shown
};

class Model_Recordset : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Columnes(const std::vector<Columna_Graella>& columnes);
  const std::vector<Columna_Graella>& Columnes() const { return columnes_; }
  void Lligar(Recordset* rs);
  void Refrescar() { Lligar(rs_); }
  void Mostrar_Fila_Afegida();  // the recordset has one row more, the last one
  Recordset* Lligat() const { return rs_; }
  void Titol(int columna, const QString& titol);
  QString Titol(int columna) const { return titols_.value(columna); }
  int Columna_De(const QString& camp) const;  // -1 none
  bool Hi_Es(int columna) const;              // the statement gives its field

  Valor Valor_De(int fila, int columna) const;
  QString Text(int fila, int columna) const;
  QString Estil(int fila) const { return estil && fila < Files() ? estil(fila) : QString(); }
  QString Text_Mostrat(int fila, int columna) const;  // in one line; a tick is a tick
  std::function<QString(std::int64_t)> estil;
  std::function<void(const char* camp)> nova;  // a value was put into a row that is being added

  int Files() const;  // of the recordset
  void Permetre_Canvis(bool permes);
  bool Permet_Canvis() const { return canvis_; }
  // A column takes one of these codes, and shows its text.
  void Desplegable(int columna, Desplegable_Graella que) { desplegables_[columna] = std::move(que); }
  const Desplegable_Graella* Desplegable(int columna) const;
  Tipus_Columna Tipus(int columna) const;
  bool Es_Clau(int columna) const;  // of its table

  int Fila_En_Edicio() const { return fila_; }  // -1 none
  void Comencar(int fila);                      // holds an existing row; raises when another terminal edits it
  void Desar_Fila();                            // raises and leaves the row in edit when it is refused
  void Descartar_Fila();

  int rowCount(const QModelIndex& pare = {}) const override;
  int columnCount(const QModelIndex& pare = {}) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int paper) const override;
  bool setData(const QModelIndex& index, const QVariant& valor, int paper) override;
  QVariant headerData(int seccio, Qt::Orientation orientacio, int paper) const override;

 private:
  bool Es_Obert() const;
  int Camp_De_Columna(const Columna_Graella& columna) const;
  void Posar(int fila, int columna, const Valor& valor);
  void Acabar();

  std::vector<Columna_Graella> columnes_;
  QStringList titols_;
  Recordset* rs_ = nullptr;
  std::vector<int> camps_;  // place of each column in the recordset
  std::map<int, Desplegable_Graella> desplegables_;
  bool canvis_ = false;
  int fila_ = -1;
};
