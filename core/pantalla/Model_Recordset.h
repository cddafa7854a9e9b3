// A recordset as Qt's views see it. Formats a cell when it is asked for and keeps nothing.
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

#include "core/pantalla/Graella.h"

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

  Valor Valor_De(int fila, int columna) const;
  QString Text(int fila, int columna) const;
  QString Estil(int fila) const { return estil ? estil(fila) : QString(); }
  std::function<QString(std::int64_t)> estil;

  int rowCount(const QModelIndex& pare = {}) const override;
  int columnCount(const QModelIndex& pare = {}) const override;
  QVariant data(const QModelIndex& index, int paper) const override;
  QVariant headerData(int seccio, Qt::Orientation orientacio, int paper) const override;

 private:
  std::vector<Columna_Graella> columnes_;
  QStringList titols_;
  Recordset* rs_ = nullptr;
  std::vector<int> camps_;  // place of each column in the recordset
};
