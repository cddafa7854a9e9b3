#include <algorithm>
#include <utility>

#include "core/Sessio.h"
#include "core/controls/Lligam.h"
#include "core/controls/Model_Recordset.h"

void Model_Recordset::Permetre_Canvis(bool permes) {
  if (permes == canvis_) return;
  beginResetModel();
  canvis_ = permes;
  endResetModel();
}

Qt::ItemFlags Model_Recordset::flags(const QModelIndex& index) const {
  const Qt::ItemFlags trets = QAbstractTableModel::flags(index);
  if (!canvis_ || !index.isValid()) return trets;
  const Columna_Graella& que = columnes_[static_cast<std::size_t>(index.column())];
  if (que.fixa) return trets;
  return trets | (que.casella ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

bool Model_Recordset::Es_Clau(int columna) const {
  if (!Es_Obert() || !Hi_Es(columna)) return false;
  const Camp& camp = rs_->Fields()[static_cast<std::size_t>(camps_[static_cast<std::size_t>(columna)])];
  const Taula* taula = sessio.Connexio_Comuna.Taules().Cercar(camp.taula);
  if (taula == nullptr) taula = sessio.Connexio_Local.Taules().Cercar(camp.taula);
  return taula != nullptr && std::find(taula->clau.begin(), taula->clau.end(), camp.origen) != taula->clau.end();
}

Tipus_Columna Model_Recordset::Tipus(int columna) const {
  return rs_->Fields()[static_cast<std::size_t>(camps_.at(static_cast<std::size_t>(columna)))].tipus;
}

void Model_Recordset::Comencar(int fila) {
  if (fila_ >= 0 || fila >= Files()) return;
  rs_->AbsolutePosition(fila + 1);
  rs_->Edit();
  fila_ = fila;
}

void Model_Recordset::Posar(int fila, int columna, const Valor& valor) {
  if (fila_ < 0 && fila == Files()) {
    rs_->AddNew();
    fila_ = fila;
  }
  Comencar(fila);
  rs_->Set(columnes_[static_cast<std::size_t>(columna)].camp, valor);
}

// Raises 13 for a text where a number has to be. A cell that is left as it was changes nothing.
bool Model_Recordset::setData(const QModelIndex& index, const QVariant& valor, int paper) {
  if (paper == Qt::CheckStateRole) {
    Posar(index.row(), index.column(), valor.toInt() == Qt::Checked);
  } else {
    if (valor.toString() == data(index, Qt::EditRole).toString()) return false;
    Posar(index.row(), index.column(), Llegir_Escrit(valor.toString(), Tipus(index.column()), Titol(index.column())));
  }
  if (nova && rs_->EditMode() == Edicio::Alta) nova(columnes_[static_cast<std::size_t>(index.column())].camp);
  Q_EMIT dataChanged(index.siblingAtColumn(0), index.siblingAtColumn(columnCount() - 1));
  return true;
}

void Model_Recordset::Desar_Fila() {
  if (fila_ < 0) return;
  const bool alta = rs_->EditMode() == Edicio::Alta;
  rs_->Update();
  if (alta) beginInsertRows({}, fila_ + 1, fila_ + 1);
  if (alta) endInsertRows();
  Acabar();
}

void Model_Recordset::Descartar_Fila() {
  if (fila_ < 0) return;
  rs_->CancelUpdate();
  Acabar();
}

void Model_Recordset::Acabar() {
  const int fila = std::exchange(fila_, -1);
  Q_EMIT dataChanged(index(fila, 0), index(fila, columnCount() - 1));
}
