#include "shell/F_Cerca.h"

#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Fila_Recordada.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"
#include "shell/F_Principal.h"
#include "ui_F_Cerca.h"

namespace {

constexpr const char16_t* llistes[] = {
    u"F_ALBARANSM",   u"F_ALBCOMPRESM", u"F_ALBMAGM",      u"F_ARTICLESMC", u"F_ARTICLESMCS", u"F_CLIENTSM",
    u"F_COMANDESM",   u"F_CPM",         u"F_EMPRESESM",    u"F_FACTURESM",  u"F_FAMILIESM",   u"F_FORMESPAGAMENTM",
    u"F_MAGATZEMSM",  u"F_MARQUESM",    u"F_MOVIMENTSM",   u"F_PAGAMENTSM", u"F_PAGPENDM",    u"F_PRESSUPOSTOSM",
    u"F_PROVEIDORSM", u"F_STOCKSM",     u"F_SUBFAMILIESM", u"F_USUARISM",   u"F_VENCIMENTSM",
};

const QString nom_cerca = QStringLiteral("F_CERCA");

bool Es_De_Text(const Camp& camp) {
  return camp.tipus == Tipus_Columna::Text || camp.tipus == Tipus_Columna::Codi;
}

// The list that is searched, as long as it is there with its rows.
Formulari* Llista_Cercada() {
  Formulari* llista = Formulari_De_Nom(QString::fromStdString(sessio.Formulari_Actiu));
  const bool oberta = llista != nullptr && llista->Recordset_Llista() == sessio.Recordset_Cerca &&
                      sessio.Recordset_Cerca != nullptr && sessio.Recordset_Cerca->State();
  return oberta ? llista : nullptr;
}

// What is in edit in the list is written before its rows change; refused, it stays and nothing else is done.
bool Desar_Fila_De(Formulari& llista) {
  Graella* graella = llista.Graella_Llista();
  return graella == nullptr || graella->Desar_Fila();
}

// In the corner, where the least of a list is hidden.
void Apartar(QMdiSubWindow* finestra) {
  constexpr int marge = 12;
  const QSize lloc = finestra->mdiArea()->viewport()->size() - finestra->size();
  finestra->move(std::max(0, lloc.width() - marge), std::max(0, lloc.height() - marge));
}

// When this window has gone, and the list is the one in front.
void Tornar_El_Focus(Graella* graella) {
  const auto tornar = [graella] {
    const Formulari* davant = F_Principal::Unica() == nullptr ? nullptr : F_Principal::Unica()->Del_Davant();
    if (davant != nullptr && davant->isAncestorOf(graella)) graella->setFocus();
  };
  QMetaObject::invokeMethod(graella, tornar, Qt::QueuedConnection);
}

void Mostrar_A(std::optional<QPoint> lloc) {
  const bool ja_hi_era = Formulari_De_Nom(nom_cerca) != nullptr;
  Formulari* cerca = Mostrar_Formulari(nom_cerca);
  auto* finestra = cerca == nullptr ? nullptr : qobject_cast<QMdiSubWindow*>(cerca->parentWidget());
  if (finestra == nullptr) return;
  if (lloc) {
    finestra->move(finestra->parentWidget()->mapFromGlobal(*lloc));
  } else if (!ja_hi_era) {
    Apartar(finestra);
  }
}

}  // namespace

F_Cerca::F_Cerca() : Formulari(QStringLiteral("F_Cerca")), ui_(std::make_unique<Ui::F_Cerca>()) {
  ui_->setupUi(this);
  Dibuixar(ui_->B_Cerca, Dibuix::Cercar);
  Dibuixar(ui_->Endarrera, Dibuix::Sortir);
  ui_->B_Cerca->setDefault(true);
  connect(ui_->B_Cerca, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Filtrar(); }); });
  connect(ui_->Endarrera, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

F_Cerca::~F_Cerca() = default;

Graella* F_Cerca::Graella_Llista() {
  Formulari* llista = Llista_Cercada();
  return llista == nullptr ? nullptr : llista->Graella_Llista();
}

void F_Cerca::Omplir_Camps() {
  const QString triat = ui_->CMB_CAMPS->currentText();
  ui_->CMB_CAMPS->clear();
  for (const Camp& camp : sessio.Recordset_Cerca->Fields()) {
    if (Es_De_Text(camp)) ui_->CMB_CAMPS->addItem(QString::fromStdString(camp.nom));
  }
  const int lloc = ui_->CMB_CAMPS->findText(triat);
  if (lloc >= 0) ui_->CMB_CAMPS->setCurrentIndex(lloc);
}

void F_Cerca::Filtrar() {
  Posar_Focus(ui_->TXT_CERCA);
  Formulari* llista = Llista_Cercada();
  if (llista == nullptr || !Desar_Fila_De(*llista)) return;
  sessio.Recordset_Cerca->Filter(ui_->CMB_CAMPS->currentText().toStdString() + " LIKE " +
                                 Text_SQL('%' + ui_->TXT_CERCA->text().toStdString() + '%'));
  if (Graella* graella = llista->Graella_Llista()) graella->Refrescar();
}

// All the rows again, on the one where the user was.
void F_Cerca::Descarregar() {
  Formulari* llista = Llista_Cercada();
  if (llista != nullptr && Desar_Fila_De(*llista)) {
    const Fila_Recordada fila(*sessio.Recordset_Cerca);
    sessio.Recordset_Cerca->Filter("");
    sessio.Recordset_Cerca->Requery();
    fila.Tornar_Hi();
    if (Graella* graella = llista->Graella_Llista()) {
      graella->Refrescar();
      Tornar_El_Focus(graella);
    }
  }
  sessio.Formulari_Actiu.clear();
  sessio.Recordset_Cerca = nullptr;
}

// Enter searches from the text and from the field alike.
void F_Cerca::keyPressEvent(QKeyEvent* event) {
  const bool entra = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (entra && qobject_cast<QPushButton*>(focusWidget()) == nullptr) return ui_->B_Cerca->click();
  Formulari::keyPressEvent(event);
}

bool Es_Pot_Cercar(const QString& nom) {
  return std::any_of(std::begin(llistes), std::end(llistes), [majuscules = nom.toUpper()](const char16_t* llista) {
    return majuscules == QStringView(llista);
  });
}

void Obrir_Cerca(Formulari* llista, std::optional<QPoint> lloc) {
  if (llista == nullptr || !Es_Pot_Cercar(llista->Nom())) return;
  Recordset* rs = llista->Recordset_Llista();
  if (rs == nullptr || !rs->State() || rs->RecordCount() == 0) return;
  if (!Desar_Fila_De(*llista)) return;
  // What another list was filtered by goes before this one is searched.
  if (Llista_Cercada() != llista) Descarregar_Formulari(nom_cerca);
  sessio.Recordset_Cerca = rs;
  sessio.Formulari_Actiu = llista->Nom().toUpper().toStdString();
  Mostrar_A(lloc);
  Obrir_Formulari(nom_cerca);
  if (auto* cerca = qobject_cast<F_Cerca*>(Formulari_De_Nom(nom_cerca))) {
    cerca->Omplir_Camps();
    Posar_Focus(cerca->findChild<QWidget*>(QStringLiteral("TXT_CERCA")));
  }
}
