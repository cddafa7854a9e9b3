// The number fields of every screen, found by walking the screens: what they read, and what they refuse and how.
#include <QLineEdit>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <algorithm>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Refus.h"
#include "tests/pantalles/Cada_Pantalla.h"

namespace {

struct Cas {
  const char* text;
  double valor;
};
constexpr Cas admesos[] = {{"1.234,50 €", 1234.5}, {"1 234,50", 1234.5}, {"-3", -3}, {"+3", 3},
                           {"1,5%", 1.5},          {"12.5", 12.5}};
constexpr const char* refusats[] = {"dotze", "1,2,3", "12a"};

void Mostrar(QWidget* control) {
  QWidget* pagina = control->parentWidget();
  while (pagina != nullptr && qobject_cast<QStackedWidget*>(pagina->parentWidget()) == nullptr)
    pagina = pagina->parentWidget();
  if (pagina == nullptr) return;
  if (auto* pestanyes = qobject_cast<QTabWidget*>(pagina->parentWidget()->parentWidget()))
    pestanyes->setCurrentWidget(pagina);
}

bool Es_De_Nombre(Tipus_Columna tipus) {
  return tipus == Tipus_Columna::Doble || tipus == Tipus_Columna::Llarg || tipus == Tipus_Columna::Curt;
}

class Nombres_De_Cada_Pantalla : public Cada_Pantalla {
 protected:
  // The type of the column that a field is named after.
  static std::optional<Tipus_Columna> Tipus_De(const QLineEdit* camp) {
    const std::string nom = camp->objectName().mid(4).toStdString();
    for (const auto& [clau, taula] : sessio.Connexio_Comuna.Taules().Taules()) {
      const auto columna = std::ranges::find(taula.columnes, nom, &Columna::nom);
      if (columna != taula.columnes.end()) return columna->tipus;
    }
    return std::nullopt;
  }
  static bool Es_Pot_Escriure(QLineEdit* camp) {
    Mostrar(camp);
    return camp->isVisible() && camp->isEnabled() && !camp->isReadOnly();
  }
  // Names of the fields that can be typed in and hold a number.
  QStringList Camps() const {
    QStringList noms;
    for (auto* camp : Obert()->findChildren<QLineEdit*>()) {
      const auto tipus = Tipus_De(camp);
      const bool nombre = qobject_cast<Camp_Numeric*>(camp) != nullptr || (tipus && Es_De_Nombre(*tipus));
      if (nombre && Es_Pot_Escriure(camp)) noms << camp->objectName();
    }
    return noms;
  }
  // Pastes over what the field holds and goes on with the Tab key.
  static void Enganxar_I_Deixar(QLineEdit* camp, const char* text) {
    Mostrar(camp);
    Posar_Focus(camp);
    camp->insert(QString::fromUtf8(text));
    Q_EMIT camp->textEdited(camp->text());
    QTest::keyClick(camp, Qt::Key_Tab);
    Assentar();
  }
};

}  // namespace

TEST_P(Nombres_De_Cada_Pantalla, What_is_no_number_keeps_the_focus_and_says_why) {
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  for (const QString& nom : Camps()) {
    for (const char* text : refusats) {
      SCOPED_TRACE(nom.toStdString() + " " + text);
      const QPointer<QLineEdit> camp = Obert()->findChild<QLineEdit*>(nom);
      ASSERT_TRUE(camp);
      Enganxar_I_Deixar(camp, text);
      ASSERT_TRUE(camp);
      EXPECT_EQ(QApplication::focusWidget(), camp.data());
      EXPECT_EQ(camp->text(), QString::fromUtf8(text));
      EXPECT_EQ(camp->selectedText(), camp->text());
      EXPECT_NE(Refus_De(camp), QString());
      EXPECT_EQ(camp->toolTip(), Refus_De(camp));
      const auto* linia = Obert()->findChild<QWidget*>(QStringLiteral("L_REFUS"));
      EXPECT_TRUE(linia != nullptr && linia->isVisible());
    }
    Tancar_I_Obrir();
  }
}

TEST_P(Nombres_De_Cada_Pantalla, A_number_is_taken_as_people_type_and_paste_it) {
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  // A price is of an article, whose tax it follows.
  for (auto* article : Obert()->findChildren<QLineEdit*>(QRegularExpression(QStringLiteral("^TXT_ARTICLE_[A-Z]+$"))))
    Enganxar_I_Deixar(article, "VAR");
  for (const QString& nom : Camps()) {
    for (const auto& [text, valor] : admesos) {
      SCOPED_TRACE(nom.toStdString() + " " + text);
      auto* camp = Obert()->findChild<Camp_Numeric*>(nom);
      if (camp == nullptr) break;  // the number of a document, which no sign nor decimal has
      Posar_Focus(camp);
      camp->setText(QString::fromUtf8(text));
      EXPECT_EQ(camp->Numero(), valor);
      caixes_.clear();
      Enganxar_I_Deixar(camp, text);
      EXPECT_TRUE(caixes_.empty()) << caixes_.front().text;
      EXPECT_EQ(Refus_De(camp), QString());
      EXPECT_NE(QApplication::focusWidget(), camp);
    }
  }
}

TEST_P(Nombres_De_Cada_Pantalla, A_field_of_amounts_is_one_of_numbers) {
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  for (auto* camp : Obert()->findChildren<QLineEdit*>()) {
    const auto tipus = Tipus_De(camp);
    const bool de_numero = tipus == Tipus_Columna::Llarg || tipus == Tipus_Columna::Curt;  // of a document, of a line
    if (camp->isReadOnly()) continue;
    const bool import = tipus == Tipus_Columna::Doble || (!de_numero && (camp->alignment() & Qt::AlignRight) != 0);
    EXPECT_TRUE(!import || qobject_cast<Camp_Numeric*>(camp) != nullptr) << camp->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Cada_Pantalla, Nombres_De_Cada_Pantalla, testing::ValuesIn(Camins().begin(), Camins().end()),
                         Nom_De_Prova);
