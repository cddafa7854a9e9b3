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

class Model_Recordset : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Columnes(const std::vector<Columna_Graella>& columnes);
  const std::vector<Columna_Graella>& Columnes() const { return columnes_; }
  void Lligar(Recordset* rs);
  void Refrescar() { Lligar(rs_); }
  Recordset* Lligat() const { return rs_; }
  void Titol(int columna, const QString& titol);
  QString Titol(int columna) const { return titols_.value(columna); }
  int Columna_De(const QString& camp) const;  // -1 none
  bool Hi_Es(int columna) const;              // the statement gives its field

  Valor Valor_De(int fila, int columna) const;
  QString Text(int fila, int columna) const;
  QString Estil(int fila) const { return estil && fila < Files() ? estil(fila) : QString(); }
  std::function<QString(std::int64_t)> estil;

  int Files() const;  // of the recordset
  void Permetre_Canvis(bool permes);
  bool Permet_Canvis() const { return canvis_; }
  // A column takes one of these codes, and shows its text.
  void Desplegable(int columna, std::vector<Opcio_Graella> opcions) { opcions_[columna] = std::move(opcions); }
  const std::vector<Opcio_Graella>* Opcions(int columna) const;
  Tipus_Columna Tipus(int columna) const;

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
  std::map<int, std::vector<Opcio_Graella>> opcions_;
  bool canvis_ = false;
  int fila_ = -1;
};
