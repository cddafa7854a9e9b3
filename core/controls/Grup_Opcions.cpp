#include "core/controls/Grup_Opcions.h"

#include <QChildEvent>
#include <QRadioButton>

Grup_Opcions::Grup_Opcions(QWidget* pare) : QGroupBox(pare) {}

QList<QRadioButton*> Grup_Opcions::Opcions() const {
  return findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
}

int Grup_Opcions::Opcio() const {
  const auto opcions = Opcions();
  for (int i = 0; i < opcions.size(); ++i) {
    if (opcions[i]->isChecked()) return i;
  }
  return -1;
}

void Grup_Opcions::Opcio(int index) {
  if (QRadioButton* boto = Opcions().value(index)) boto->setChecked(true);
}

void Grup_Opcions::Titol_Opcio(int index, const QString& titol) {
  if (QRadioButton* boto = Opcions().value(index)) boto->setText(titol);
}

void Grup_Opcions::childEvent(QChildEvent* event) {
  QGroupBox::childEvent(event);
  auto* boto = event->polished() ? qobject_cast<QRadioButton*>(event->child()) : nullptr;
  if (boto == nullptr) return;
  connect(boto, &QRadioButton::clicked, this, [this] { Q_EMIT Triada(Opcio()); });
}
