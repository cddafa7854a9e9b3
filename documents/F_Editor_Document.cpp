#include "documents/F_Editor_Document.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"

namespace {

bool Te_Text(const QWidget* control) {
  const auto* camp = qobject_cast<const QLineEdit*>(control);
  return camp != nullptr && !camp->text().isEmpty();
}

}  // namespace

Editor_Document::Editor_Document(const Descripcio_Editor& descripcio) : Formulari(QString()), descripcio_(descripcio) {}

Editor_Document::~Editor_Document() = default;

QPushButton* Editor_Document::Boto(const char* nom) const {
  return qobject_cast<QPushButton*>(Cercar_Control(QString::fromUtf8(nom)));
}

void Editor_Document::Muntar() {
  cap_ = std::make_unique<Capcalera_Document>(*this, Tipus(), descripcio_.qui);
  nova_ = Control_De_Nom<QGroupBox>(QStringLiteral("FR_NOVA"));
  opcions_ = findChild<Grup_Opcions*>(QStringLiteral("OPT"));
  graella_linies_ = Control_De_Nom<Graella>(QString::fromUtf8(descripcio_.graella_linies));
  graella_linies_->Permetre_Ordre(false);  // the order of lines is the document's
  graella_linies_->Columnes(Columnes_De_Linies(Tipus(), descripcio_.columnes_linies));
  if (descripcio_.linia_ok != nullptr) graella_linies_->Files_OK(Tipus().lin.Columna(descripcio_.linia_ok));
  if (descripcio_.graella_peu != nullptr) {
    graella_peu_ = Control_De_Nom<Graella>(QString::fromUtf8(descripcio_.graella_peu));
    graella_peu_->Columnes(Columnes_De_Peu(Tipus()));
  }
  entrada_ = std::make_unique<Entrada_Linia>(
      nova_, descripcio_.entrada,
      Entrada_Linia::Editor{.cap = [this] { return cap_->Oberta(); }, .desar = [this] { return Desar_Linia(); }});
  if (opcions_ != nullptr) opcions_->Opcio(0);
  if (descripcio_.detall != nullptr)
    connect(graella_linies_, &Graella::Doble_Clic, this,
            [this] { Guardar_Event([this] { Obrir_Detall(); }, [this] { Rellegir_Linies(); }); });
  Connectar_Capcalera();
  Connectar_Botons();
}

void Editor_Document::Connectar_Capcalera() {
  const auto desar = [this] { Guardar_Event([this] { Desar_Capcalera(); }); };
  En_Sortir(cap_->Camp_Numero(), [this] { Guardar_Event([this] { Deixar_Numero(); }); });
  for (const char* nom : descripcio_.desen) {
    QWidget* control = cap_->Control(QString::fromUtf8(nom));
    if (auto* dia = qobject_cast<Selector_Data*>(control)) {
      connect(dia, &Selector_Data::Canviada, this, desar);
    } else if (auto* casella = qobject_cast<QCheckBox*>(control)) {
      connect(casella, &QCheckBox::clicked, this, desar);
    } else if (control != nullptr) {
      En_Sortir(control, [this, control, desar] {
        if (Te_Text(control)) desar();
        Aplicar_Opcio();
      });
    }
  }
  if (cap_->Combo() != nullptr) {
    connect(cap_->Combo(), &Combo_Codi::Triat, this,
            [this] { Guardar_Event([this] { Canviar_Qui(); }, [this] { Cancellar_Edicions(); }); });
  }
  if (auto* estat = qobject_cast<QCheckBox*>(cap_->Control(QStringLiteral("CHK_ESTAT"))))
    connect(estat, &QCheckBox::clicked, this, [this] { Guardar_Event([this] { Mostrar_Estat(); }); });
  if (opcions_ != nullptr) connect(opcions_, &Grup_Opcions::Triada, this, [this] { Aplicar_Opcio(); });
}

// Ctrl, Shift and an arrow, wherever the focus is: the letters of the form are taken.
void Editor_Document::Drecera(const char* nom, Qt::Key tecla) {
  QPushButton* boto = Boto(nom);
  if (boto == nullptr) return;
  auto* drecera = new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | tecla), this);
  drecera->setContext(Qt::WidgetWithChildrenShortcut);
  connect(drecera, &QShortcut::activated, boto, [boto] {
    if (boto->isEnabled() && Deixar_El_Camp_Pel_Boto(boto)) boto->click();
  });
}

void Editor_Document::Connectar_Botons() {
  const auto boto = [this](const char* nom, Dibuix dibuix, const std::function<void()>& rutina) {
    QPushButton* control = Boto(nom);
    if (control == nullptr) return;
    Dibuixar(control, dibuix);
    connect(control, &QPushButton::clicked, this,
            [this, rutina] { Guardar_Event(rutina, [this] { Cancellar_Edicions(); }); });
  };
  boto("B_EsborrarLinia", Dibuix::Esborrar, [this] { Esborrar_Linia_Actual(); });
  boto("B_AMUNT", Dibuix::Amunt, [this] { Desplacar_Linia(false); });
  boto("B_AVALL", Dibuix::Avall, [this] { Desplacar_Linia(true); });
  Drecera("B_AMUNT", Qt::Key_Up);
  Drecera("B_AVALL", Qt::Key_Down);
  boto("B_VALORAR", Dibuix::Calcular, [this] { Valorar(); });
  boto("B_PRINT_VALORAT", Dibuix::Imprimir, [this] { Imprimir(";VALORAT"); });
  boto("B_PRINT_NO_VALORAT", Dibuix::Imprimir, [this] { Imprimir(";NO_VALORAT"); });
  if (descripcio_.primer_forat != nullptr) boto("B_Forats", Dibuix::Cercar, [this] { Proposar_Forat(); });
  for (const auto& [nom, formulari] : descripcio_.botons)
    Boto_De_Pantalla(QString::fromUtf16(nom), QString::fromUtf16(formulari));
  if (descripcio_.sense_pagaments != nullptr) {
    Boto_De_Pantalla(QStringLiteral("B_Pagaments"), QStringLiteral("F_PAGDOC"));
    connect(Boto("B_Pagaments"), &QPushButton::clicked, this, [this] { Guardar_Event([this] { Obrir_Pagaments(); }); });
  }
  auto* sortir = Control_De_Nom<QPushButton>(QStringLiteral("B_Exit"));
  Dibuixar(sortir, Dibuix::Sortir);
  connect(sortir, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

// All that the form shows is read together.
void Editor_Document::Carregar() {
  Connexio& connexio = sessio.Connexio_Comuna;
  const Valor& numero = sessio.*Tipus().numero_a_obrir;
  Transaccio lectures(connexio);
  connexio.Demanar(SQL_Linies(Tipus(), numero, sessio.Empresa_Actual), Bloqueig::Optimista);
  if (graella_peu_ != nullptr) connexio.Demanar(SQL_Peu(Tipus(), numero, sessio.Empresa_Actual));
  if (descripcio_.qui != nullptr) {
    const Noms_Amb_Codi& noms = descripcio_.qui->noms;
    cap_->Combo()->Omplir(noms.sentencia(), connexio, noms.codi, noms.nom);
  }
  Demanar_Estat(Tipus(), numero, sessio.Empresa_Actual);
  cap_->Obrir(numero);
  Obrir_Recordsets();
  llegit_ = Llegir_Estat(Tipus(), numero, sessio.Empresa_Actual);
  lectures.Confirmar();
  nova_->hide();  // until what the option asks for is there
  entrada_->Netejar();
  Aplicar_Opcio();
}

void Editor_Document::Obrir_Recordsets() {
  linies_.Open(SQL_Linies(Tipus(), Numero(), sessio.Empresa_Actual), sessio.Connexio_Comuna, Bloqueig::Optimista);
  graella_linies_->Lligar(&linies_);
  if (graella_peu_ == nullptr) return;
  peu_.Open(SQL_Peu(Tipus(), Numero(), sessio.Empresa_Actual), sessio.Connexio_Comuna);
  graella_peu_->Lligar(&peu_);
}

void Editor_Document::Activar() {
  const QString crida = QString::fromStdString(sessio.*Tipus().crida);
  const bool pot_entrar = nova_->isEnabled() && nova_->isVisible();
  auto* sortir = Boto("B_Exit");
  if (std::exchange(torna_del_detall_, false)) {
    graella_linies_->setFocus();
  } else if (crida.endsWith(u"NEW")) {
    Posar_Focus(cap_->Camp_Numero());
  } else if (crida == u"EDIT_COMANDA") {
    if (pot_entrar)
      entrada_->Continuar_Comanda();
    else
      sortir->setFocus();
  } else if (crida.endsWith(u"EDIT")) {
    Posar_Focus(pot_entrar ? static_cast<QWidget*>(entrada_->Article()) : sortir);
  }
  if (!Pot_Entrar()) nova_->hide();
  Aplicar_Estat();
  llegit_.reset();
}

bool Editor_Document::Tancat() const {
  return cap_->Esta_Marcada("ESTAT");
}

// The head holds what a line needs: whom it is for, where from and where to.
bool Editor_Document::Pot_Entrar() const {
  return std::ranges::all_of(descripcio_.demanats,
                             [this](const char* nom) { return Te_Text(cap_->Control(QString::fromUtf8(nom))); });
}

// What the rights of the session give, less what the state of the document takes away.
void Editor_Document::Aplicar_Estat() {
  Formulari::Aplicar_Drets();
  if (!linies_.State()) return;
  estat_ = llegit_ ? *llegit_ : Llegir_Estat(Tipus(), Numero(), sessio.Empresa_Actual);
  const bool cap_obert = !estat_.te_linies && Dret() == "M";
  const auto treure = [](QWidget* control, bool obert) {
    if (control != nullptr && !obert) control->setEnabled(false);
  };
  for (const char* nom : descripcio_.fixats) treure(cap_->Control(QString::fromUtf8(nom)), cap_obert);
  if (descripcio_.qui != nullptr) {
    const bool es_pot_triar = estat_.te_linies ? Dret() != "C" && !estat_.bloquejat : cap_obert;
    treure(Boto(descripcio_.qui->boto), es_pot_triar && !estat_.te_origens);
  }
  const bool tancat = Tancat();
  for (const char* nom : {"B_AMUNT", "B_AVALL"}) {
    if (QPushButton* boto = Boto(nom)) boto->setEnabled(!tancat && Dret() != "C");
  }
  if (tancat && descripcio_.amaga_entrada) nova_->hide();
  if (!descripcio_.amaga_entrada) nova_->setEnabled(!tancat && !estat_.congelat);
}

// The first option is for lines, the second one shows the foot.
void Editor_Document::Aplicar_Opcio() {
  const bool totals = opcions_ != nullptr && opcions_->Opcio() == 1;
  if (graella_peu_ != nullptr) graella_peu_->setVisible(totals);
  if (totals || !Pot_Entrar() || (descripcio_.amaga_entrada && Tancat())) return nova_->hide();
  if (Dret() == "M") nova_->show();
}

void Editor_Document::Mostrar_Estat() {
  Aplicar_Estat();
  Aplicar_Opcio();
}

QString Editor_Document::Que_Mostra() const {
  return windowTitle() + u' ' + QString::fromStdString(Numero().Text());
}

bool Editor_Document::Tot_Desat() const {
  return entrada_->Article()->text().isEmpty() && !cap_->Te_Canvis();
}

QString Editor_Document::Per_Que_No(const QWidget& /*control*/) const {
  const auto paraules = [](const char* catala, const char* castella, const char* angles) {
    return QString::fromStdString(Missatge(catala, castella, angles));
  };
  if (Tancat()) {
    return paraules("El document està tancat", "El documento está cerrado", "The document is closed");
  }
  if (estat_.te_origens) {
    return paraules("El document està fet d'altres documents", "El documento está hecho de otros documentos",
                    "The document is made of other documents");
  }
  if (estat_.te_linies) {
    return paraules("El document ja té línies", "El documento ya tiene líneas", "The document has lines already");
  }
  return {};
}
