// Every screen, control by control, in the three languages: every text is there and none is cut, and the whole of it
// fits on a small display.
#include <QAbstractButton>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTabBar>
#include <algorithm>

#include "core/controls/Graella.h"
#include "core/formularis/Motius.h"
#include "session/Canvi_Idioma.h"
#include "tests/pantalles/Cada_Pantalla.h"

namespace {

class Pantalles_Senceres : public Cada_Pantalla {
 protected:
  void Comprovar() const {
    const auto* marc = qobject_cast<QMdiSubWindow*>(Obert()->parentWidget());
    ASSERT_NE(marc, nullptr);
    const QRect lloc = F_Principal::Unica()->Area()->viewport()->rect();
    EXPECT_TRUE(lloc.contains(marc->geometry())) << marc->width() << "x" << marc->height();
    EXPECT_FALSE(Obert()->windowTitle().trimmed().isEmpty());
    for (const auto* control : Obert()->findChildren<QWidget*>()) {
      if (!control->isVisible()) continue;
      SCOPED_TRACE(control->objectName().toStdString());
      if (qobject_cast<const QLabel*>(control) != nullptr || qobject_cast<const QAbstractButton*>(control) != nullptr)
        Sencer(control);
      if (const auto* graella = qobject_cast<const Graella*>(control)) Titols_Sencers(*graella);
      Diu_Que_Fa(*control);
    }
    for (const auto* pestanyes : Obert()->findChildren<QTabBar*>()) {
      for (int i = 0; i < pestanyes->count(); ++i) EXPECT_FALSE(pestanyes->tabText(i).trimmed().isEmpty());
    }
  }

 private:
  // What the text of a control takes, with the picture beside it.
  static int Amplada_Del_Text(const QWidget* control) {
    const auto* boto = qobject_cast<const QAbstractButton*>(control);
    const auto* etiqueta = qobject_cast<const QLabel*>(control);
    if (boto == nullptr && etiqueta->buddy() == nullptr) return control->minimumSizeHint().width();
    if (boto == nullptr) return Amplada_Dibuixada(etiqueta->fontMetrics(), etiqueta->text());
    const int imatge = boto->icon().isNull() ? 0 : boto->iconSize().width() + 4;
    return Amplada_Dibuixada(boto->fontMetrics(), boto->text()) + imatge;
  }
  // The letter of a key is drawn by itself: no kerning around it.
  static int Amplada_Dibuixada(const QFontMetrics& lletra, const QString& text) {
    const auto clau = text.indexOf(u'&');
    if (clau < 0) return lletra.horizontalAdvance(text);
    return lletra.horizontalAdvance(text.left(clau)) + lletra.horizontalAdvance(text.mid(clau + 1, 1)) +
           lletra.horizontalAdvance(text.mid(clau + 2));
  }
  static void Sencer(const QWidget* control) {
    EXPECT_GE(control->width(), Amplada_Del_Text(control));
    EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry()));
    if (control->objectName().startsWith(u"qt_") || control->objectName().isEmpty()) return;
    const auto* etiqueta = qobject_cast<const QLabel*>(control);
    const auto* boto = qobject_cast<const QAbstractButton*>(control);
    const bool amb_imatge = etiqueta != nullptr && !etiqueta->pixmap().isNull();
    EXPECT_TRUE(amb_imatge || Te_Etiqueta(control) ||
                !(etiqueta != nullptr ? etiqueta->text() : boto->text()).trimmed().isEmpty());
  }
  // A box may have its words in a label of its own.
  static bool Te_Etiqueta(const QWidget* control) {
    const auto etiquetes = control->parentWidget()->findChildren<QLabel*>();
    return std::ranges::any_of(etiquetes, [&](const QLabel* etiqueta) { return etiqueta->buddy() == control; });
  }
  // Three dots say what they open; what cannot be used says why.
  static void Diu_Que_Fa(const QWidget& control) {
    const auto* boto = qobject_cast<const QAbstractButton*>(&control);
    if (boto == nullptr) return;
    EXPECT_TRUE(boto->text() != u"..." || !boto->toolTip().isEmpty());
    EXPECT_TRUE(boto->isEnabled() || !Motiu_De_Desactivat(*boto).isEmpty());
  }
  static void Titols_Sencers(const Graella& graella) {
    const QFontMetrics lletra(graella.horizontalHeader()->font());
    for (int columna = 0; columna < graella.model()->columnCount(); ++columna) {
      if (graella.isColumnHidden(columna)) continue;
      const QString titol = graella.Titol_Columna(columna);
      EXPECT_FALSE(titol.trimmed().isEmpty()) << columna;
      EXPECT_GE(graella.columnWidth(columna), lletra.horizontalAdvance(titol)) << titol.toStdString();
    }
  }
};

}  // namespace

TEST_P(Pantalles_Senceres, In_the_three_languages) {
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    SCOPED_TRACE(idioma);
    sessio.Idioma_Actual = idioma;
    Tancar_I_Obrir();
    ASSERT_NE(Obert(), nullptr);
    Comprovar();
    // Also while it stands open.
    Canviar_Idioma(static_cast<std::int16_t>((idioma + 1) % 3));
    Assentar();
    Comprovar();
  }
}

INSTANTIATE_TEST_SUITE_P(Totes, Pantalles_Senceres, testing::ValuesIn(Camins().begin(), Camins().end()), Nom_De_Prova);
