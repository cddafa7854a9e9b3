#include "core/pantalla/Model_Recordset.h"

#include <QBrush>
#include <QFont>

#include "core/dades/Numeros.h"
#include "core/pantalla/Aparenca.h"

void Model_Recordset::Columnes(const std::vector<Columna_Graella>& columnes) {
  beginResetModel();
  columnes_ = columnes;
  titols_.clear();
  for (const auto& columna : columnes_) titols_ << QString::fromUtf8(columna.titol);
  endResetModel();
}

void Model_Recordset::Lligar(Recordset* rs) {
  beginResetModel();
  rs_ = rs;
  camps_.clear();
  if (rs_ != nullptr && rs_->State()) {
    for (const auto& columna : columnes_) camps_.push_back(rs_->Index_Camp(columna.camp));
  }
  endResetModel();
}

void Model_Recordset::Titol(int columna, const QString& titol) {
  if (columna < 0 || columna >= titols_.size()) return;
  titols_[columna] = titol;
  Q_EMIT headerDataChanged(Qt::Horizontal, columna, columna);
}

int Model_Recordset::rowCount(const QModelIndex& pare) const {
  return pare.isValid() || camps_.empty() || !rs_->State() ? 0 : static_cast<int>(rs_->RecordCount());
}

int Model_Recordset::columnCount(const QModelIndex& pare) const {
  return pare.isValid() ? 0 : static_cast<int>(columnes_.size());
}

Valor Model_Recordset::Valor_De(int fila, int columna) const {
  const auto lloc = static_cast<std::size_t>(columna);
  if (lloc >= camps_.size() || !rs_->State()) return {};
  return rs_->Valor_De_Fila(fila, camps_[lloc]);
}

QString Model_Recordset::Text(int fila, int columna) const {
  const Valor valor = Valor_De(fila, columna);
  const Columna_Graella& que = columnes_[static_cast<std::size_t>(columna)];
  if (que.casella) return !valor.Es_Nul() && valor.Boolea() ? QStringLiteral("on") : QStringLiteral("off");
  if (valor.Es_Nul()) return {};
  const bool nombre = valor.Es_Doble() || valor.Es_Enter();
  return QString::fromStdString(nombre && *que.mascara != '\0' ? Format_Numero(valor.Doble(), que.mascara)
                                                               : valor.Text());
}

QVariant Model_Recordset::data(const QModelIndex& index, int paper) const {
  const Columna_Graella& que = columnes_[static_cast<std::size_t>(index.column())];
  switch (paper) {
    case Qt::DisplayRole: {
      const QString text = Text(index.row(), index.column());
      if (que.casella) return text == u"on" ? QStringLiteral("✓") : QString();
      return text.simplified();
    }
    case Qt::ToolTipRole:
      return que.casella ? QVariant() : Text(index.row(), index.column());
    case Qt::TextAlignmentRole:
      if (que.casella) return Qt::AlignCenter;
      return QVariant(Qt::Alignment((que.a_la_dreta ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
    case Qt::BackgroundRole:
      return Fons_Estil(Estil(index.row()));
    case Qt::ForegroundRole:
      return Tinta_Estil(Estil(index.row()));
    case Qt::FontRole:
      return Lletra_Estil(Estil(index.row()));
    default:
      return {};
  }
}

QVariant Model_Recordset::headerData(int seccio, Qt::Orientation orientacio, int paper) const {
  if (orientacio == Qt::Vertical) return {};
  if (paper == Qt::DisplayRole) return titols_.value(seccio);
  if (paper != Qt::TextAlignmentRole) return {};
  const Columna_Graella& que = columnes_[static_cast<std::size_t>(seccio)];
  if (que.casella) return Qt::AlignCenter;
  return QVariant(Qt::Alignment((que.a_la_dreta ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
}
