#include "core/controls/Combo_Codi.h"

#include <QCompleter>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include "core/controls/Focus_Camps.h"
#include "core/dades/Recordset.h"

namespace {

// An entry of the open list: the name, and its note.
class Pintor_Amb_Nota : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* opcio, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(opcio, index);
    const QString nota = index.data(paper_nota).toString();
    if (!nota.isEmpty()) opcio->text += QStringLiteral("   ") + nota;
  }
};

}  // namespace

Combo_Codi::Combo_Codi(QWidget* pare) : QComboBox(pare) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setMaxVisibleItems(15);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(20);
  setItemDelegate(new Pintor_Amb_Nota(this));
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  completer()->setFilterMode(Qt::MatchContains);
  completer()->setCaseSensitivity(Qt::CaseInsensitive);
  connect(this, &QComboBox::activated, this, &Combo_Codi::Escollir);
  En_Sortir(this, [this] { Deixar(); });
}

void Combo_Codi::Omplir(const std::string& sentencia, Connexio& connexio, const char* camp_codi, const char* camp_nom,
                        const char* camp_nota) {
  const Recordset rs(sentencia, connexio);
  const int codi = rs.Index_Camp(camp_codi);
  const int nom = rs.Index_Camp(camp_nom);
  const int nota = camp_nota == nullptr ? -1 : rs.Index_Camp(camp_nota);
  clear();
  for (std::int64_t fila = 0; fila < rs.RecordCount(); ++fila) {
    addItem(QString::fromStdString(rs.Valor_De_Fila(fila, nom).Text()),
            QString::fromStdString(rs.Valor_De_Fila(fila, codi).Text()));
    if (nota >= 0) setItemData(count() - 1, QString::fromStdString(rs.Valor_De_Fila(fila, nota).Text()), paper_nota);
  }
  Posar({}, {});
}

std::string Combo_Codi::Codi() const {
  return codi_.toStdString();
}
std::string Combo_Codi::Nom() const {
  return nom_.toStdString();
}

void Combo_Codi::Posar(const std::string& codi, const std::string& nom) {
  codi_ = QString::fromStdString(codi);
  nom_ = QString::fromStdString(nom);
  setCurrentIndex(codi_.isEmpty() ? -1 : findData(codi_));
  setEditText(nom_);
  lineEdit()->setCursorPosition(0);
}

void Combo_Codi::Posar(const std::string& codi) {
  const int index = codi.empty() ? -1 : findData(QString::fromStdString(codi));
  Posar(codi, index < 0 ? codi : itemText(index).toStdString());
}

void Combo_Codi::Triar(const std::string& codi, const std::string& nom) {
  Posar(codi, nom);
  Q_EMIT Triat();
}

void Combo_Codi::Escollir(int index) {
  if (index < 0) return;
  codi_ = itemData(index).toString();
  nom_ = itemText(index);
  setEditText(nom_);
  Q_EMIT Triat();
}

// A name typed in full chooses its entry, an empty field chooses none, and any other text gives way to the choice.
void Combo_Codi::Deixar() {
  const QString escrit = currentText().trimmed();
  if (escrit.compare(nom_, Qt::CaseInsensitive) == 0) return setEditText(nom_);
  const int index = escrit.isEmpty() ? -1 : findText(escrit, Qt::MatchFixedString);
  if (index >= 0) {
    setCurrentIndex(index);
    return Escollir(index);
  }
  if (!escrit.isEmpty() && !text_estrany_es_cap_) return setEditText(nom_);
  Posar({}, {});
  Q_EMIT Triat();
}
