#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabWidget>

#include "core/controls/Controls.h"
#include "core/controls/Graella.h"
#include "tests/eines/terminal/Cercar.h"
#include "tests/eines/terminal/Etiquetes.h"
#include "tests/eines/terminal/Ma.h"
#include "tests/eines/terminal/Ordres.h"

namespace {

void Exigir_Igual(const QString& vist, const QString& esperat) {
  if (vist != esperat) throw Error_Guio(QStringLiteral("\"%1\"").arg(vist));
}

void Exigir(bool es, const QString& vist) {
  if (!es) throw Error_Guio(vist);
}

// A caption without the marks of its shortcut.
QString Sense_Drecera(QString text) {
  text = text.section(u'\t', 0, 0);
  QString net;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'&' && i + 1 < text.size()) ++i;
    net += text[i];
  }
  return net;
}

QString On_Off(bool marcat) {
  return marcat ? QStringLiteral("on") : QStringLiteral("off");
}

// What a control shows, by the kind of control it is.
QString Text_Mostrat(const QWidget& control, const QString& adreca) {
  if (const auto* data = qobject_cast<const Selector_Data*>(&control)) return data->Text();
  if (const auto* text = qobject_cast<const QLineEdit*>(&control)) return text->text();
  if (const auto* area = qobject_cast<const QPlainTextEdit*>(&control)) return area->toPlainText();
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) return combo->currentText();
  if (const auto* grup = qobject_cast<const Grup_Opcions*>(&control)) return QString::number(grup->Opcio());
  if (const auto* casella = qobject_cast<const QCheckBox*>(&control)) return On_Off(casella->isChecked());
  if (const auto* opcio = qobject_cast<const QRadioButton*>(&control)) return On_Off(opcio->isChecked());
  if (const auto* boto = qobject_cast<const QAbstractButton*>(&control)) return Sense_Drecera(boto->text());
  if (const auto* etiqueta = qobject_cast<const QLabel*>(&control)) return Sense_Drecera(etiqueta->text());
  if (const auto* fitxes = qobject_cast<const QTabWidget*>(&control)) return QString::number(fitxes->currentIndex());
  if (const auto* grup = qobject_cast<const QGroupBox*>(&control)) return Sense_Drecera(grup->title());
  throw Error_Guio(
      QStringLiteral("%1 shows no text: it is a %2").arg(adreca, QString::fromUtf8(control.metaObject()->className())));
}

bool Tot_Seleccionat(QWidget& control) {
  const QWidget& camp = Camp_De_Text(control);
  if (const auto* text = qobject_cast<const QLineEdit*>(&camp)) return text->selectedText() == text->text();
  if (const auto* area = qobject_cast<const QPlainTextEdit*>(&camp))
    return area->textCursor().selectedText().size() == area->toPlainText().size();
  return false;
}

QString Focus_Vist() {
  const QWidget* amb_focus = QApplication::focusWidget();
  return QStringLiteral("the focus is on %1")
      .arg(amb_focus == nullptr ? QStringLiteral("nothing") : amb_focus->objectName());
}

void Estat_Control(QWidget& control, const QString& estat) {
  if (estat == QLatin1String("enabled")) return Exigir(control.isEnabled(), QStringLiteral("disabled"));
  if (estat == QLatin1String("disabled")) return Exigir(!control.isEnabled(), QStringLiteral("enabled"));
  if (estat == QLatin1String("visible")) return Exigir(control.isVisible(), QStringLiteral("hidden"));
  if (estat == QLatin1String("hidden")) return Exigir(!control.isVisible(), QStringLiteral("visible"));
  if (estat == QLatin1String("focused")) return Exigir(Te_Focus(control), Focus_Vist());
  Exigir(Tot_Seleccionat(control), QStringLiteral("not all of the text is selected"));
}

void Comprovar_Control(const QStringList& mots) {
  QWidget& control = Control(mots[2]);
  if (mots[3] == QLatin1String("state")) return Estat_Control(control, mots[4]);
  Exigir_Igual(Text_Mostrat(control, mots[2]), mots[4]);
}

void Comprovar_Formulari(const QStringList& mots) {
  const QWidget* finestra = Finestra_Oberta(mots[2]);
  if (mots[3] == QLatin1String("caption")) return Exigir_Igual(Finestra(mots[2]).windowTitle(), mots[4]);
  if (mots[4] == QLatin1String("open")) return Exigir(finestra != nullptr, QStringLiteral("closed"));
  if (mots[4] == QLatin1String("closed")) return Exigir(finestra == nullptr, QStringLiteral("open"));
  const bool habilitat = Finestra(mots[2]).isEnabled();
  if (mots[4] == QLatin1String("enabled")) return Exigir(habilitat, QStringLiteral("disabled"));
  Exigir(!habilitat, QStringLiteral("enabled"));
}

QString Text_De_Cella(const Graella& graella, int fila, const QString& camp) {
  const int columna = graella.Columna_De_Camp(camp);
  if (columna < 0) throw Error_Guio(QStringLiteral("the grid has no column of %1").arg(camp));
  const QVariant marca = graella.model()->index(fila, columna).data(Qt::CheckStateRole);
  if (marca.isValid()) return On_Off(marca.toInt() == Qt::Checked);
  if (fila < graella.Files()) return graella.Text_Cella(fila, camp);
  return graella.model()->index(fila, columna).data().toString();  // the new row, in edit
}

// The captions that can be seen, as they stand from left to right.
QString Titols(const Graella& graella) {
  QStringList titols;
  const QHeaderView& capcalera = *graella.horizontalHeader();
  for (int lloc = 0; lloc < capcalera.count(); ++lloc) {
    const int columna = capcalera.logicalIndex(lloc);
    if (!capcalera.isSectionHidden(columna)) titols << graella.Titol_Columna(columna);
  }
  return titols.join(QStringLiteral(" | "));
}

void Estat_Cella(const Graella& graella, const QStringList& mots) {
  const int columna = graella.Columna_De_Camp(mots[4]);
  if (columna < 0) throw Error_Guio(QStringLiteral("the grid has no column of %1").arg(mots[4]));
  const QModelIndex index = graella.model()->index(Numero_De(mots[3]) - 1, columna);
  const bool editable = graella.isEnabled() && graella.editTriggers() != QAbstractItemView::NoEditTriggers &&
                        (graella.model()->flags(index) & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable)) != 0;
  Exigir(editable == (mots[5] == QLatin1String("editable")),
         editable ? QStringLiteral("editable") : QStringLiteral("readonly"));
}

void Comprovar_Graella(const QStringList& mots) {
  static const QRegularExpression blancs_del_voltant(QStringLiteral("^\\s+|\\s+$"));
  const auto& graella = De_Tipus<Graella>(Control(mots[2]), mots[2], "grid");
  if (mots[3] == QLatin1String("rows")) {
    return Exigir(graella.Files() == Numero_De(mots[4]), QStringLiteral("%1 rows").arg(graella.Files()));
  }
  if (mots[3] == QLatin1String("columns")) {
    return Exigir_Igual(
        Titols(graella),
        mots[4].split(u'|').replaceInStrings(blancs_del_voltant, QString()).join(QStringLiteral(" | ")));
  }
  const int fila = Fila_De(graella, mots[3]);
  if (mots.size() == 6 && mots[4] != QLatin1String("style")) return Estat_Cella(graella, mots);
  if (mots[4] != QLatin1String("style")) return Exigir_Igual(Text_De_Cella(graella, fila, mots[4]), mots[6]);
  const QString estil = graella.Estil(fila);
  Exigir_Igual(estil.isEmpty() ? QStringLiteral("none") : estil, mots[5]);
}

void Comprovar_Mostrat(const QStringList& mots) {
  const QStringList textos = Textos_De_L_Etiqueta(mots[2]);
  for (const QString& text : textos) {
    if (text.contains(mots[3])) return;
  }
  throw Error_Guio(textos.isEmpty() ? QStringLiteral("it showed nothing") : textos.join(QStringLiteral(" / ")));
}

void Comprovar_Menu(const QStringList& mots) {
  const QAction& entrada = Entrada_De_Menu(mots[2]);
  if (mots[3] == QLatin1String("=")) return Exigir_Igual(Sense_Drecera(entrada.text()), mots[4]);
  if (mots[4] == QLatin1String("enabled")) return Exigir(entrada.isEnabled(), QStringLiteral("disabled"));
  if (mots[4] == QLatin1String("disabled")) return Exigir(!entrada.isEnabled(), QStringLiteral("enabled"));
  if (mots[4] == QLatin1String("hidden")) return Exigir(!entrada.isVisible(), QStringLiteral("visible"));
  if (mots[4] == QLatin1String("checked")) return Exigir(entrada.isChecked(), QStringLiteral("unchecked"));
  Exigir(!entrada.isChecked(), QStringLiteral("checked"));
}

}  // namespace

void Ordre_Expect(const QStringList& mots) {
  if (mots[1] == QLatin1String("control")) return Comprovar_Control(mots);
  if (mots[1] == QLatin1String("form")) return Comprovar_Formulari(mots);
  if (mots[1] == QLatin1String("grid")) return Comprovar_Graella(mots);
  if (mots[1] == QLatin1String("menu")) return Comprovar_Menu(mots);
  if (mots[1] == QLatin1String("shown")) return Comprovar_Mostrat(mots);
  Exigir_Igual(QApplication::clipboard()->text(), mots[2]);
}
