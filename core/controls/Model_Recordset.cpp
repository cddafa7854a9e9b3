#include "core/controls/Model_Recordset.h"

#include <QBrush>
#include <QFont>
#include <algorithm>

#include "core/Sessio.h"
#include "core/controls/Lligam.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Aparenca.h"

namespace {

QVariant Costat(const Columna_Graella& que) {
  if (que.casella) return Qt::AlignCenter;
  return QVariant(Qt::Alignment((que.a_la_dreta ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
}

}  // namespace

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
  fila_ = -1;
  camps_.clear();
  if (rs_ != nullptr && rs_->State()) {
    for (const auto& columna : columnes_) camps_.push_back(Camp_De_Columna(columna));
  }
  endResetModel();
}

void Model_Recordset::Mostrar_Fila_Afegida() {
  beginInsertRows({}, Files() - 1, Files() - 1);
  endInsertRows();
}

int Model_Recordset::Camp_De_Columna(const Columna_Graella& columna) const {
  const auto es = [&](const Camp& camp) { return camp.nom == columna.camp; };
  if (columna.opcional && std::none_of(rs_->Fields().begin(), rs_->Fields().end(), es)) return -1;
  return rs_->Index_Camp(columna.camp);
}

bool Model_Recordset::Hi_Es(int columna) const {
  const auto lloc = static_cast<std::size_t>(columna);
  return lloc >= camps_.size() || camps_[lloc] >= 0;
}

bool Model_Recordset::Es_Obert() const {
  return !camps_.empty() && rs_->State();
}

int Model_Recordset::Files() const {
  return Es_Obert() ? static_cast<int>(rs_->RecordCount()) : 0;
}

int Model_Recordset::Columna_De(const QString& camp) const {
  const auto es = [&](const Columna_Graella& que) {
    return camp.compare(QString::fromUtf8(que.camp), Qt::CaseInsensitive) == 0;
  };
  const auto trobada = std::find_if(columnes_.begin(), columnes_.end(), es);
  return trobada == columnes_.end() ? -1 : static_cast<int>(trobada - columnes_.begin());
}

int Model_Recordset::rowCount(const QModelIndex& pare) const {
  if (pare.isValid() || !Es_Obert()) return 0;
  return Files() + (canvis_ ? 1 : 0);
}

int Model_Recordset::columnCount(const QModelIndex& pare) const {
  return pare.isValid() ? 0 : static_cast<int>(columnes_.size());
}

void Model_Recordset::Titol(int columna, const QString& titol) {
  if (columna < 0 || columna >= titols_.size()) return;
  titols_[columna] = titol;
  Q_EMIT headerDataChanged(Qt::Horizontal, columna, columna);
}

Valor Model_Recordset::Valor_De(int fila, int columna) const {
  const auto lloc = static_cast<std::size_t>(columna);
  if (lloc >= camps_.size() || camps_[lloc] < 0 || !rs_->State()) return {};
  if (fila == fila_) return (*rs_)[camps_[lloc]];
  return rs_->Valor_De_Fila(fila, camps_[lloc]);
}

const Desplegable_Graella* Model_Recordset::Desplegable(int columna) const {
  const auto trobat = desplegables_.find(columna);
  return trobat == desplegables_.end() ? nullptr : &trobat->second;
}

QString Model_Recordset::Text(int fila, int columna) const {
  const Valor valor = Valor_De(fila, columna);
  const Columna_Graella& que = columnes_[static_cast<std::size_t>(columna)];
  if (que.casella) return !valor.Es_Nul() && valor.Boolea() ? QStringLiteral("on") : QStringLiteral("off");
  if (valor.Es_Nul()) return {};
  if (const auto* desplegable = Desplegable(columna)) {
    const QString codi = QString::fromStdString(valor.Text());
    const auto opcio =
        std::find_if(desplegable->opcions.begin(), desplegable->opcions.end(),
                     [&](const Opcio_Graella& o) { return o.codi.compare(codi, Qt::CaseInsensitive) == 0; });
    return opcio == desplegable->opcions.end() ? codi : opcio->text;
  }
  const bool nombre = valor.Es_Doble() || valor.Es_Enter();
  return QString::fromStdString(nombre && *que.mascara != '\0' ? Format_Numero(valor.Doble(), que.mascara)
                                                               : valor.Text());
}

QString Model_Recordset::Text_Mostrat(int fila, int columna) const {
  const QString text = Text(fila, columna);
  if (columnes_[static_cast<std::size_t>(columna)].casella) return text == u"on" ? QStringLiteral("✓") : QString();
  return text.simplified();
}

QVariant Model_Recordset::data(const QModelIndex& index, int paper) const {
  const Columna_Graella& que = columnes_[static_cast<std::size_t>(index.column())];
  switch (paper) {
    case Qt::DisplayRole:
      return que.casella && canvis_ ? QString() : Text_Mostrat(index.row(), index.column());
    case Qt::EditRole:
      return QString::fromStdString(Valor_De(index.row(), index.column()).Text());
    case Qt::CheckStateRole:
      if (!que.casella || !canvis_) return {};
      return Text(index.row(), index.column()) == u"on" ? Qt::Checked : Qt::Unchecked;
    case Qt::TextAlignmentRole:
      return Costat(que);
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
  return paper == Qt::TextAlignmentRole ? Costat(columnes_[static_cast<std::size_t>(seccio)]) : QVariant();
}
