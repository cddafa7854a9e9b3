#include "tests/eines/terminal/Ordres.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <map>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "core/dades/Numeros.h"
#include "tests/eines/terminal/Cercar.h"
#include "tests/eines/terminal/Etiquetes.h"
#include "tests/eines/terminal/Ganxos.h"
#include "tests/eines/terminal/Ma.h"
#include "tests/eines/terminal/Servidor.h"

namespace {

void Today(const QStringList& mots) {
  const auto dia = Data_De_Text(mots[1].toStdString());
  if (!dia) throw Error_Guio(QStringLiteral("%1 is no date").arg(mots[1]));
  Fixar_Avui(*dia);
}

void Company(const QStringList& mots) {
  Encuar_Empresa(mots[1] == QLatin1String("none") ? QString() : mots[1]);
}

void Answer(const QStringList& mots) {
  static const std::map<QString, Resposta> respostes = {{QStringLiteral("OK"), Resposta::Ok},
                                                        {QStringLiteral("Cancel"), Resposta::Cancel},
                                                        {QStringLiteral("Yes"), Resposta::Si},
                                                        {QStringLiteral("No"), Resposta::No}};
  Encuar_Resposta(respostes.at(mots[1]));
}

void Menu(const QStringList& mots) {
  QAction& entrada = Entrada_De_Menu(mots[1]);
  if (!Entrada_Assolible(entrada)) throw Error_Guio(QStringLiteral("%1 is disabled or hidden").arg(mots[1]));
  Exigir_Usable(Finestra_Principal(), QStringLiteral("the menu"));
  entrada.trigger();
}

void Focus(const QStringList& mots) {
  Enfoca(Control_Usable(mots[1]));
}

void Exigir_Editable(QWidget& camp, const QString& adreca) {
  const auto* text = qobject_cast<QLineEdit*>(&camp);
  const auto* area = qobject_cast<QPlainTextEdit*>(&camp);
  if ((text != nullptr && text->isReadOnly()) || (area != nullptr && area->isReadOnly()))
    throw Error_Guio(QStringLiteral("%1 is read-only").arg(adreca));
}

void Escriure(const QString& adreca, const QString& text) {
  QWidget& control = Control_Usable(adreca);
  QWidget& camp = Camp_De_Text(control);
  Exigir_Usable(camp, adreca);
  Exigir_Editable(camp, adreca);
  Exigeix_Focus(control, adreca);
  Selecciona_Tot();
  if (text.isEmpty()) {
    Prem_Tecla(QStringLiteral("Del"));
  } else {
    Tecleja(text);
  }
}

void Type(const QStringList& mots) {
  Escriure(mots[1], mots[2]);
}

void Enter(const QStringList& mots) {
  Escriure(mots[1], mots[2]);
  Prem_Tecla(QStringLiteral("Tab"));
}

void Key(const QStringList& mots) {
  Prem_Tecla(mots[1]);
}

void Press(const QStringList& mots) {
  Clica_Al_Mig(De_Tipus<QAbstractButton>(Control_Usable(mots[1]), mots[1], "button"));
}

void Login(const QStringList& mots) {
  const QString formulari = QStringLiteral("F_Subinici.");
  Escriure(formulari + QStringLiteral("T_USUARI"), mots[1]);
  Escriure(formulari + QStringLiteral("T_CONSTRASENYA"), mots[2]);
  Press({mots[0], formulari + QStringLiteral("B_Inici")});
}

// On the box itself: the rest of a wide one may be deaf.
void Clica_Casella(QAbstractButton& boto) {
  Clica(boto, QPoint(8, boto.height() / 2));
}

void Check(const QStringList& mots) {
  auto& casella = De_Tipus<QCheckBox>(Control_Usable(mots[1]), mots[1], "check box");
  if (casella.isChecked() != (mots[2] == QLatin1String("on"))) Clica_Casella(casella);
}

void Option(const QStringList& mots) {
  auto& grup = De_Tipus<Grup_Opcions>(Control_Usable(mots[1]), mots[1], "option set");
  const auto opcions = grup.findChildren<QRadioButton*>();
  const int quina = Numero_De(mots[2]);
  if (quina < 0 || quina >= opcions.size())
    throw Error_Guio(QStringLiteral("%1 has %2 options").arg(mots[1]).arg(opcions.size()));
  Exigir_Usable(*opcions[quina], mots[1]);
  Clica_Casella(*opcions[quina]);
}

void Tab(const QStringList& mots) {
  auto& fitxes = De_Tipus<QTabWidget>(Control_Usable(mots[1]), mots[1], "tab strip");
  const int quina = Numero_De(mots[2]);
  if (!fitxes.isTabEnabled(quina) || !fitxes.isTabVisible(quina))
    throw Error_Guio(QStringLiteral("%1 has no tab %2 that can be shown").arg(mots[1]).arg(quina));
  Clica(*fitxes.tabBar(), fitxes.tabBar()->tabRect(quina).center());
}

// Opens the list of the combo and clicks the entry, so that it counts as the user's choice.
void Pick(const QStringList& mots) {
  auto& combo = De_Tipus<QComboBox>(Control_Usable(mots[1]), mots[1], "combo");
  Exigeix_Focus(combo, mots[1]);
  int quina = combo.findText(mots[2], Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (quina < 0) quina = combo.findData(mots[2], paper_nota, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (quina < 0) throw Error_Guio(QStringLiteral("%1 has no entry that shows it").arg(mots[1]));
  combo.showPopup();
  Calmar();
  QAbstractItemView& llista = *combo.view();
  const QModelIndex index = combo.model()->index(quina, combo.modelColumn(), combo.rootModelIndex());
  llista.scrollTo(index);
  Clica(*llista.viewport(), llista.visualRect(index).center());
}

void Date(const QStringList& mots) {
  De_Tipus<Selector_Data>(Control_Usable(mots[1]), mots[1], "date picker");
  Enter({mots[0], mots[1], mots[2] == QLatin1String("none") ? QString() : mots[2]});
}

// The window around a form, when the form is one of several in the main window.
QWidget& Marc(QWidget& finestra) {
  auto* marc = qobject_cast<QMdiSubWindow*>(finestra.parentWidget());
  return marc != nullptr ? *marc : finestra;
}

void Close(const QStringList& mots) {
  QWidget& finestra = Finestra(mots[1]);
  Exigir_Usable(finestra, mots[1]);
  Marc(finestra).close();
}

// Modal windows stand over the main one as the user sees them.
void Picture(const QStringList& mots) {
  QMainWindow& principal = Finestra_Principal();
  QPixmap imatge = principal.grab();
  QPainter pintor(&imatge);
  for (QWidget* finestra : QApplication::topLevelWidgets())
    if (finestra != &principal && finestra->isVisible() && finestra->isWindow())
      pintor.drawPixmap(principal.mapFromGlobal(finestra->mapToGlobal(QPoint())), finestra->grab());
  pintor.end();
  QDir().mkpath(QFileInfo(mots[1]).path());
  if (!imatge.save(mots[1])) throw Error_Guio(QStringLiteral("%1 cannot be written").arg(mots[1]));
}

using Rutina = void (*)(const QStringList&);

const std::map<QString, Rutina>& Rutines() {
  static const std::map<QString, Rutina> rutines = {
      {QStringLiteral("start"), [](const QStringList&) { Engegar_Programa(); }},
      {QStringLiteral("today"), Today},
      {QStringLiteral("login"), Login},
      {QStringLiteral("company"), Company},
      {QStringLiteral("answer"), Answer},
      {QStringLiteral("answer_print"), [](const QStringList& mots) { Encuar_Copies(mots[1].toInt()); }},
      {QStringLiteral("menu"), Menu},
      {QStringLiteral("focus"), Focus},
      {QStringLiteral("type"), Type},
      {QStringLiteral("enter"), Enter},
      {QStringLiteral("key"), Key},
      {QStringLiteral("press"), Press},
      {QStringLiteral("check"), Check},
      {QStringLiteral("option"), Option},
      {QStringLiteral("tab"), Tab},
      {QStringLiteral("pick"), Pick},
      {QStringLiteral("date"), Date},
      {QStringLiteral("row"), Ordre_Row},
      {QStringLiteral("rows"), Ordre_Rows},
      {QStringLiteral("doubleclick"), Ordre_Doubleclick},
      {QStringLiteral("header"), Ordre_Header},
      {QStringLiteral("cell"), Ordre_Cell},
      {QStringLiteral("leave_row"), Ordre_Leave_Row},
      {QStringLiteral("close"), Close},
      {QStringLiteral("picture"), Picture},
      {QStringLiteral("expect"), Ordre_Expect},
  };
  return rutines;
}

}  // namespace

void Executar_Ordre(const QStringList& mots) {
  const auto rutina = Rutines().find(mots.value(0));
  if (rutina == Rutines().end()) throw Error_Guio(QStringLiteral("the terminal knows no %1").arg(mots.value(0)));
  static const QStringList sense_programa = {QStringLiteral("start"), QStringLiteral("today"),
                                             QStringLiteral("company"), QStringLiteral("answer"),
                                             QStringLiteral("answer_print")};
  if (!sense_programa.contains(mots[0])) {
    Finestra_Principal();
    Activa_Alguna_Finestra();
  }
  if (mots[0] != QLatin1String("expect")) Oblidar_Etiquetes();
  rutina->second(mots);
}
