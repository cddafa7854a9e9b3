#include "core/formularis/Teclat.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "core/formularis/Formulari.h"

namespace {

// A form with two fields, a long text and a button.
class Formulari_De_Prova : public Formulari {
 public:
  explicit Formulari_De_Prova(const QString& nom) : Formulari(nom) {
    setAttribute(Qt::WA_DeleteOnClose, false);
    for (QWidget* camp : std::initializer_list<QWidget*>{&a, &b, &notes, &boto}) {
      camp->setParent(this);
      camp->setFocusPolicy(Qt::StrongFocus);
    }
    notes.setObjectName(QStringLiteral("TXT_NOTES_CLID"));
    setTabOrder(&a, &b);
    setTabOrder(&b, &notes);
    setTabOrder(&notes, &boto);
    b.setText(QStringLiteral("text"));
    show();
    QApplication::setActiveWindow(this);
  }
  ~Formulari_De_Prova() override {
    for (QWidget* camp : std::initializer_list<QWidget*>{&a, &b, &notes, &boto}) camp->setParent(nullptr);
  }
  QLineEdit a;
  QLineEdit b;
  QPlainTextEdit notes;
  QPushButton boto;
};

}  // namespace

TEST(Enter_Avanca, Goes_to_the_next_field_and_selects_its_text) {
  Formulari_De_Prova formulari(QStringLiteral("F_Prova"));
  formulari.a.setFocus();
  QTest::keyClick(&formulari.a, Qt::Key_Return);
  EXPECT_TRUE(formulari.b.hasFocus());
  EXPECT_EQ(formulari.b.selectedText(), QStringLiteral("text"));
}

TEST(Enter_Avanca, Presses_the_button_that_has_the_focus) {
  Formulari_De_Prova formulari(QStringLiteral("F_Prova"));
  int clics = 0;
  QObject::connect(&formulari.boto, &QPushButton::clicked, &formulari, [&] { ++clics; });
  formulari.boto.setFocus();
  QTest::keyClick(&formulari.boto, Qt::Key_Enter);
  EXPECT_EQ(clics, 1);
}

TEST(Enter_Avanca, Keeps_a_line_break_in_the_notes_of_a_customer_and_of_nobody_else) {
  Formulari_De_Prova client(QStringLiteral("F_Client"));
  client.notes.setFocus();
  const QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  EXPECT_FALSE(Enter_Avanca(enter, client));
  Formulari_De_Prova altre(QStringLiteral("F_Altre"));
  altre.notes.setFocus();
  EXPECT_TRUE(Enter_Avanca(enter, altre));
  EXPECT_TRUE(altre.boto.hasFocus());
}
