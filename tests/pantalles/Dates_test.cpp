// Dates as people type them or pick them, and the language of the calendar.
#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Llengua_Qt.h"
#include "tests/pantalles/Base_Pantalles.h"
#include "tests/pantalles/Finestra_De_Camps.h"

class Dates_Escrites : public Base_Pantalles {
 protected:
  Dates_Escrites() { Fixar_Avui({2026, 11, 21}); }
  ~Dates_Escrites() override { Deixar_Anar_Rellotge(); }
  static std::string Llegida(const char16_t* text) {
    const auto dia = Dia_Escrit(QString::fromUtf16(text));
    return dia ? Text_Data(*dia) : "none";
  }
};

TEST_F(Dates_Escrites, Are_read_however_they_are_parted) {
  for (const char16_t* text : {u"1/9/2026", u"01/09/2026", u"1/9/26", u"010926", u"01092026", u"1-9-2026", u"1-9-26",
                               u"1.9.2026", u" 1/9/26 "})
    EXPECT_EQ(Llegida(text), "01/09/2026") << QString::fromUtf16(text).toStdString();
}

TEST_F(Dates_Escrites, Of_two_digits_of_year_are_of_this_century_up_to_thirty_years_ahead) {
  EXPECT_EQ(Llegida(u"1/1/00"), "01/01/2000");
  EXPECT_EQ(Llegida(u"1/1/56"), "01/01/2056");
  EXPECT_EQ(Llegida(u"1/1/57"), "01/01/1957");
  EXPECT_EQ(Llegida(u"150370"), "15/03/1970");
}

TEST_F(Dates_Escrites, That_are_no_day_are_none) {
  for (const char16_t* text : {u"31/06/2026", u"310626", u"1/9-2026", u"1/9", u"10926", u"1/9/026", u"a/9/2026", u""})
    EXPECT_EQ(Llegida(text), "none") << QString::fromUtf16(text).toStdString();
}

TEST(Selector_Data, The_key_of_its_label_reaches_it) {
  QWidget finestra;
  QVBoxLayout columna(&finestra);
  QLineEdit altre;
  Selector_Data data;
  QLabel etiqueta(QStringLiteral("&Data"));
  etiqueta.setBuddy(&data);
  for (QWidget* control : std::initializer_list<QWidget*>{&altre, &etiqueta, &data}) columna.addWidget(control);
  finestra.show();
  QApplication::setActiveWindow(&finestra);
  altre.setFocus();
  QTest::keyClick(&altre, Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(data.Camp_Text()->hasFocus());
  for (QWidget* control : std::initializer_list<QWidget*>{&altre, &etiqueta, &data}) control->setParent(nullptr);
}

class Calendari : public Base_Pantalles {
 protected:
  ~Calendari() override {
    sessio.Idioma_Actual = 0;
    Traduir_Toolkit();
  }
  // Of March 2011, as the user sees it after Alt+Down.
  QString Mes_Mostrat(std::int16_t idioma) {
    sessio.Idioma_Actual = idioma;
    Traduir_Toolkit();
    data->Data(Data_Hora{2011, 3, 15});
    data->Camp_Text()->setFocus();
    QTest::keyClick(data->Camp_Text(), Qt::Key_Down, Qt::AltModifier);
    auto* menu = QApplication::activePopupWidget();
    if (menu == nullptr) return {};
    auto* calendari = menu->findChild<QCalendarWidget*>();
    auto* mes = calendari->findChild<QToolButton*>(QStringLiteral("qt_calendar_monthbutton"));
    QString text = mes->text();
    QTest::keyClick(menu, Qt::Key_Escape);
    QApplication::processEvents();
    return text.toLower();
  }
  Selector_Data* data = new Selector_Data;
  Finestra_De_Camps finestra{data};
};

TEST_F(Calendari, Opens_with_Alt_and_the_arrow_and_speaks_the_language_of_the_session) {
  EXPECT_EQ(Mes_Mostrat(0), QStringLiteral("març"));
  EXPECT_EQ(Mes_Mostrat(1), QStringLiteral("marzo"));
  EXPECT_EQ(Mes_Mostrat(2), QStringLiteral("march"));
  EXPECT_EQ(data->Text(), QStringLiteral("15/03/2011"));
}

TEST_F(Calendari, Gives_the_day_that_is_chosen_with_the_keyboard) {
  const QSignalSpy senyal(data, &Selector_Data::Canviada);
  data->Data(Data_Hora{2011, 3, 15});
  data->Camp_Text()->setFocus();
  QTest::keyClick(data->Camp_Text(), Qt::Key_F4);
  auto* vista = QApplication::activePopupWidget()->findChild<QAbstractItemView*>();
  QTest::keyClick(vista, Qt::Key_Right);
  QTest::keyClick(vista, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(data->Text(), QStringLiteral("16/03/2011"));
  EXPECT_EQ(senyal.count(), 1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Calendari, And_the_toolkits_dialogs_and_hints_speak_it_too) {
  const auto paraula = [](std::int16_t idioma) {
    sessio.Idioma_Actual = idioma;
    Traduir_Toolkit();
    QApplication::processEvents();
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
  };
  EXPECT_EQ(paraula(0), QStringLiteral("Cancel·la"));
  EXPECT_EQ(data->Camp_Text()->placeholderText(), QStringLiteral("DD/MM/AAAA"));
  EXPECT_EQ(paraula(1), QStringLiteral("Cancelar"));
  EXPECT_EQ(paraula(2), QStringLiteral("Cancel"));
  EXPECT_EQ(data->Camp_Text()->placeholderText(), QStringLiteral("DD/MM/YYYY"));
}
