#include "documents/F_Editor_Document.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Camps.h"
#include "core/controls/Controls.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Control_Interface.h"
#include "documents/M_Peu.h"
#include "masters/M_Clients.h"
#include "output/informe/Imprimir.h"
#include "session/M_Locks.h"

namespace {

constexpr const char* mascara_import = "#,##0.00";

QString Qt_De(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
QString Text_De(const Valor& valor) {
  return QString::fromStdString(valor.Text());
}

bool Marcat(const Valor& valor) {
  return !valor.Es_Nul() && valor.Boolea();
}
Valor Text_O_Nul(const std::string& text) {
  return text.empty() ? Valor() : Valor(text);
}

// A document's number as typed: whole, from 1 to what a long integer holds.
std::optional<Valor> Numero_Escrit(const QString& text) {
  const auto numero = Numero_De_Text(text.toStdString());
  if (!numero || *numero < 1 || *numero > 2147483647 ||
      *numero != static_cast<double>(static_cast<std::int64_t>(*numero))) {
    return std::nullopt;
  }
  return Valor(static_cast<std::int64_t>(*numero));
}

}  // namespace

Editor_Document::Editor_Document(const QString& nom, const Descripcio_Editor& descripcio)
    : Formulari(nom), descripcio_(descripcio) {}

Editor_Document::~Editor_Document() = default;

// ---- Opening ----------------------------------------------------------------------------------------------------

template <class Control>
Control* Editor_Document::Del_Cap(const char* paper) const {
  return Control_De_Nom<Control>(QString::fromUtf8(paper) + u'_' + Qt_De(descripcio_.tipus.cap.sufix));
}

void Editor_Document::Trobar_Controls() {
  camp_numero_ = Del_Cap<QLineEdit>("TXT_NUMALB");
  data_ = Del_Cap<Selector_Data>("DT_DATA");
  client_ = Del_Cap<QLineEdit>("TXT_CLIENT");
  nom_client_ = Del_Cap<Combo_Codi>("CMB_CLIENT_DESC");
  iva_ = Del_Cap<QCheckBox>("CHK_IVA");
  re_ = Del_Cap<QCheckBox>("CHK_RE");
  estat_ = Del_Cap<QCheckBox>("CHK_ESTAT");
  pagament_ = Del_Cap<QCheckBox>("CHK_PAGAMENT");
  observacions_ = Del_Cap<QLineEdit>("TXT_OBSR");
  import_ = Del_Cap<QLineEdit>("TXT_IMPORT");
  nova_ = Control_De_Nom<QGroupBox>(QStringLiteral("FR_NOVA"));
  opcions_ = Control_De_Nom<Grup_Opcions>(QStringLiteral("OPT"));
  graella_linies_ = Control_De_Nom<Graella>(QString::fromUtf8(descripcio_.graella_linies));
  graella_peu_ = Control_De_Nom<Graella>(QString::fromUtf8(descripcio_.graella_peu));
}

void Editor_Document::Muntar() {
  Trobar_Controls();
  entrada_ = std::make_unique<Entrada_Linia>(nova_, Qt_De(descripcio_.tipus.lin.sufix),
                                             Entrada_Linia::Editor{.iva = [this] { return iva_->isChecked(); },
                                                                   .re = [this] { return re_->isChecked(); },
                                                                   .desar = [this] { Desar_Linia(); }});
  graella_linies_->Columnes(descripcio_.columnes_linies);
  graella_peu_->Columnes(descripcio_.columnes_peu);
  opcions_->Opcio(0);
  Connectar();
}

void Editor_Document::Connectar() {
  En_Sortir(camp_numero_, [this] { Guardar_Event([this] { Deixar_Numero(); }); });
  connect(data_, &Selector_Data::Canviada, this, [this] { Guardar_Event([this] { Desar_Capcalera(); }); });
  connect(nom_client_, &Combo_Codi::Triat, this,
          [this] { Guardar_Event([this] { Canviar_Client(); }, [this] { Cancellar_Edicions(); }); });
  connect(estat_, &QCheckBox::clicked, this, [this] {
    Guardar_Event([this] {
      Aplicar_Estat();
      Aplicar_Opcio();
    });
  });
  connect(opcions_, &Grup_Opcions::Triada, this, [this] { Aplicar_Opcio(); });
  const auto boto = [this](const char* nom, Dibuix dibuix, const std::function<void()>& rutina) {
    auto* control = Control_De_Nom<QPushButton>(QString::fromLatin1(nom));
    Dibuixar(control, dibuix);
    connect(control, &QPushButton::clicked, this,
            [this, rutina] { Guardar_Event(rutina, [this] { Cancellar_Edicions(); }); });
  };
  boto("B_EsborrarLinia", Dibuix::Esborrar, [this] { Esborrar_Linia_Actual(); });
  boto("B_AMUNT", Dibuix::Amunt, [this] { Desplacar_Linia(false); });
  boto("B_AVALL", Dibuix::Avall, [this] { Desplacar_Linia(true); });
  boto("B_VALORAR", Dibuix::Calcular, [this] { Valorar(); });
  boto("B_PRINT_VALORAT", Dibuix::Imprimir, [this] { Imprimir(";VALORAT"); });
  boto("B_PRINT_NO_VALORAT", Dibuix::Imprimir, [this] { Imprimir(";NO_VALORAT"); });
  auto* sortir = Control_De_Nom<QPushButton>(QStringLiteral("B_Exit"));
  Dibuixar(sortir, Dibuix::Sortir);
  connect(sortir, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

void Editor_Document::Carregar() {
  numero_ = Numero_A_Obrir();
  nom_client_->Omplir(SQL_Combo_Clients(), sessio.Connexio_Comuna, "NIF_CLI", "RAO_SOCIAL_CLI");
  cap_.Unique_Table(std::string(descripcio_.tipus.cap.nom));
  cap_.Open(SQL_Capcalera(descripcio_.tipus, numero_, sessio.Empresa_Actual), sessio.Connexio_Comuna,
            Bloqueig::Pessimista);
  Obrir_Recordsets();
  Mostrar_Capcalera();
  nova_->hide();  // until what the option asks for is there
  entrada_->Netejar();
  Aplicar_Opcio();
}

void Editor_Document::Obrir_Recordsets() {
  linies_.Open(SQL_Linies(descripcio_.tipus, numero_, sessio.Empresa_Actual), sessio.Connexio_Comuna,
               Bloqueig::Optimista);
  peu_.Open(SQL_Peu(descripcio_.tipus, numero_, sessio.Empresa_Actual), sessio.Connexio_Comuna);
  graella_linies_->Lligar(&linies_);
  graella_peu_->Lligar(&peu_);
}

void Editor_Document::Mostrar_Capcalera() {
  const Taula_Document& taula = descripcio_.tipus.cap;
  const auto valor = [&](const char* paper) { return cap_[taula.Columna(paper)]; };
  Del_Cap<QLineEdit>("TXT_EMPRESA")->setText(Text_De(valor("EMPRESA")));
  Del_Cap<QLineEdit>("TXT_EMP_DESC")->setText(Text_De(valor("EMP_DESC")));
  Del_Cap<QLineEdit>("TXT_EMP_DESC")->setCursorPosition(0);
  camp_numero_->setText(Text_De(valor("NUMALB")));
  data_->Data(valor("DATA").Es_Nul() ? std::nullopt : std::optional(valor("DATA").Data()));
  client_->setText(Text_De(valor("CLIENT")));
  nom_client_->Posar(valor("CLIENT").Text(), valor("CLIENT_DESC").Text());
  iva_->setChecked(Marcat(valor("IVA")));
  re_->setChecked(Marcat(valor("RE")));
  observacions_->setText(Text_De(valor("OBSR")));
  Posar_Import(Nul_A_Defecte(valor("IMPORT")).Doble());
  estat_->setChecked(Marcat(valor("ESTAT")));
  pagament_->setChecked(Marcat(valor("PAGAMENT")));
  Mostrar_Camps_Propis();
}

void Editor_Document::Activar() {
  const QString crida = QString::fromStdString(sessio.Crida_Mestre);
  const bool pot_entrar = nova_->isEnabled() && nova_->isVisible();
  auto* sortir = Control_De_Nom<QPushButton>(QStringLiteral("B_Exit"));
  if (crida.endsWith(u"NEW")) {
    Posar_Focus(camp_numero_);
  } else if (crida == u"EDIT_COMANDA") {
    if (pot_entrar)
      entrada_->Continuar_Comanda();
    else
      sortir->setFocus();
  } else if (crida.endsWith(u"EDIT")) {
    Posar_Focus(pot_entrar ? static_cast<QWidget*>(entrada_->Article()) : sortir);
  }
  if (client_->text().isEmpty()) nova_->hide();
  Aplicar_Estat();
}

// ---- What may be touched ----------------------------------------------------------------------------------------

// What the rights of the session give, less what the state of the document takes away.
void Editor_Document::Aplicar_Estat() {
  Formulari::Aplicar_Drets();
  const bool consulta = Dret() == "C";
  const bool te_linies = Comptar_Linies(descripcio_.tipus, numero_, sessio.Empresa_Actual) > 0;
  const bool cap_obert = !te_linies && Dret() == "M";
  const auto treure = [](QWidget* control, bool obert) {
    if (!obert) control->setEnabled(false);
  };
  for (QWidget* control : std::initializer_list<QWidget*>{camp_numero_, nom_client_, iva_, re_}) {
    treure(control, cap_obert);
  }
  treure(data_, cap_obert || (te_linies && !descripcio_.data_fixa_amb_linies));
  const auto boto = [this](const char* nom) { return Control_De_Nom<QPushButton>(QString::fromLatin1(nom)); };
  treure(boto("B_CLIENT"), te_linies ? !Bloquejat() : cap_obert);
  const bool tancat = estat_->isChecked();
  for (const char* nom : {"B_AMUNT", "B_AVALL"}) boto(nom)->setEnabled(!tancat && !consulta);
  if (tancat && descripcio_.amaga_entrada) nova_->hide();
  if (!descripcio_.amaga_entrada) nova_->setEnabled(!tancat);
}

// The first option is for lines, the second one shows the foot. No line can be typed before there is a customer.
void Editor_Document::Aplicar_Opcio() {
  const bool totals = opcions_->Opcio() == 1;
  graella_peu_->setVisible(totals);
  if (totals || (estat_->isChecked() && descripcio_.amaga_entrada)) return nova_->hide();
  if (Dret() == "M" && !client_->text().isEmpty()) nova_->show();
}

// ---- The head ---------------------------------------------------------------------------------------------------

Capcalera_Oberta Editor_Document::Capcalera() const {
  return {.numero = numero_, .empresa = sessio.Empresa_Actual, .iva = iva_->isChecked(), .re = re_->isChecked()};
}

void Editor_Document::Desar_Capcalera() {
  const Taula_Document& taula = descripcio_.tipus.cap;
  const auto posar = [&](const char* paper, const Valor& valor) { cap_.Set(taula.Columna(paper), valor); };
  const Valor escrit = Numero_Escrit(camp_numero_->text()).value_or(numero_);
  const bool altre_numero = !(escrit == numero_);
  if (altre_numero) {
    posar("NUMALB", escrit);
    posar("EMPRESA", sessio.Empresa_Actual);
  }
  posar("EMP_DESC", Text_O_Nul(Del_Cap<QLineEdit>("TXT_EMP_DESC")->text().toStdString()));
  const auto dia = data_->Data();
  posar("DATA", dia ? Valor(*dia) : Valor());
  posar("CLIENT", Text_O_Nul(client_->text().toStdString()));
  posar("CLIENT_DESC", client_->text().isEmpty() ? Valor() : Valor(nom_client_->Nom()));
  posar("IVA", iva_->isChecked());
  posar("RE", re_->isChecked());
  posar("OBSR", observacions_->text().toStdString());
  posar("IMPORT", Numero_De_Text(import_->text().toStdString()).value_or(0));
  posar("ESTAT", estat_->isChecked());
  Desar_Camps_Propis();
  posar("PAGAMENT", pagament_->isChecked());
  cap_.Update();
  if (altre_numero) {
    numero_ = escrit;
    Obrir_Recordsets();
  }
  Aplicar_Drets();
}

// True when the number in the field is the document's, or has become it. One that is taken gives way to the old one.
bool Editor_Document::Acceptar_Numero() {
  const auto escrit = Numero_Escrit(camp_numero_->text());
  if (!escrit) return false;
  if (*escrit == numero_) return true;
  if (Existeix_Document(descripcio_.tipus, *escrit, sessio.Empresa_Actual)) {
    camp_numero_->setText(Text_De(numero_));
    return false;
  }
  try {
    Canviar_Numero(*escrit);
    return true;
  } catch (const Error_Brollador&) {
    cap_.CancelUpdate();
    camp_numero_->setText(Text_De(numero_));
    Retenir_Focus(camp_numero_);
    throw;
  }
}

void Editor_Document::Deixar_Numero() {
  if (!Acceptar_Numero()) Retenir_Focus(camp_numero_);
}

// The lock of the new number first: when it is refused the document stays locked under its own.
void Editor_Document::Canviar_Numero(const Valor& nou) {
  const std::string lletra(descripcio_.tipus.lletra_bloqueig);
  const Valor vell = numero_;
  Bloquejar_Per_Tipus(lletra, nou.Text());
  try {
    Desar_Capcalera();
  } catch (const Error_Brollador&) {
    Desbloquejar_Document(lletra, sessio.Empresa_Actual, nou.Text());
    throw;
  }
  Desbloquejar_Document(lletra, sessio.Empresa_Actual, vell.Text());
}

void Editor_Document::Canviar_Client() {
  client_->setText(QString::fromStdString(nom_client_->Codi()));
  iva_->setChecked(Client_Te_IVA(nom_client_->Codi()));
  re_->setChecked(Client_Te_RE(nom_client_->Codi()));
  Desar_Capcalera();
  Recalcular_Linies(Capcalera());
  Requerir_Linies();
  Refrescar_Peu();
  Aplicar_Estat();
  Aplicar_Opcio();
}

bool Editor_Document::Re_Marcat() const {
  return re_->isChecked();
}
void Editor_Document::Posar_Estat(bool estat) {
  estat_->setChecked(estat);
}
void Editor_Document::Posar_Pagament(bool pagament) {
  pagament_->setChecked(pagament);
}
void Editor_Document::Posar_Import(double euros) {
  import_->setText(QString::fromStdString(Format_Numero(euros, mascara_import)));
}
void Editor_Document::Refrescar_Peu() {
  peu_.Requery();
  graella_peu_->Refrescar();
}

// ---- Lines ------------------------------------------------------------------------------------------------------

Valor Editor_Document::Camp_De_Linia(const char* paper) const {
  return graella_linies_->Valor_Actual(descripcio_.tipus.lin.Columna(paper).c_str());
}

// A line, its served units, its foot and its stock stand or fall together.
void Editor_Document::Desar_Linia() {
  Guardar_Event(
      [this] {
        Bloquejar_Entrada();
        Transaccio transaccio;
        entrada_->Refer_PVP();
        Afegir_Linia(Capcalera(), entrada_->Linia());
        transaccio.Confirmar();
        graella_linies_->Refrescar();
        Aplicar_Estat();
        Alliberar_Entrada();
      },
      [this] { Cancellar_Edicions(); });
}

// After a failure the screen shows what the database holds.
void Editor_Document::Cancellar_Edicions() {
  linies_.CancelUpdate();
  cap_.CancelUpdate();
  Requerir_Linies();
  Refrescar_Peu();
  Posar_Import(Total_Peu(descripcio_.tipus, numero_, sessio.Empresa_Actual));
  Aplicar_Estat();
}

void Editor_Document::Requerir_Linies() {
  sessio.Posicio_Guardada = static_cast<std::int32_t>(linies_.AbsolutePosition());
  linies_.Requery();
  Reposicionar(linies_, sessio.Posicio_Guardada - 1);
  graella_linies_->Refrescar();
}

void Editor_Document::Esborrar_Linia_Actual() {
  if (graella_linies_->Fila_Actual() < 0 || estat_->isChecked()) return;
  Transaccio transaccio;
  if (!Esborrar_Linia()) return;
  Requerir_Linies();
  Buidar_Peu(descripcio_.tipus, numero_, sessio.Empresa_Actual);
  Calcular_Peu(descripcio_.tipus, numero_, sessio.Empresa_Actual, *this);
  transaccio.Confirmar();
  Refrescar_Peu();
  // Propagar_Flag_Pagaments with the kind's letter goes here.
  Aplicar_Estat();
}

void Editor_Document::Desplacar_Linia(bool avall) {
  const std::int64_t fila = graella_linies_->Fila_Actual();
  if (fila < 0) return;
  if (!Moure_Linia(static_cast<std::int16_t>(Camp_De_Linia("LIN").Enter()), avall)) return;
  linies_.Requery();
  linies_.AbsolutePosition(fila + 1 + (avall ? 1 : -1));
  graella_linies_->Refrescar();
}

void Editor_Document::Valorar() {
  Transaccio transaccio;
  Calcular_Peu(descripcio_.tipus, numero_, sessio.Empresa_Actual, *this);
  transaccio.Confirmar();
}

void Editor_Document::Imprimir(const char* proposit) {
  if (Dret() != "C") Desar_Capcalera();
  sessio.Crida_Document = std::string(descripcio_.tipus.formulari) + proposit;
  Imprimir_Document(descripcio_.tipus, numero_, sessio.Empresa_Actual, 0);
}

// ---- Closing ----------------------------------------------------------------------------------------------------

// Each step runs whatever became of the one before: a document that cannot be saved is released all the same.
void Editor_Document::Descarregar() {
  if (Dret() != "C") {
    Guardar_Event([this] { Acceptar_Numero(); });  // typed, and the field never left
    Guardar_Event([this] { Desar_Capcalera(); }, [this] { cap_.CancelUpdate(); });
    Guardar_Event([this] { Esborrar_Buit(); });
  }
  Alliberar_Per_Tipus(std::string(descripcio_.tipus.lletra_bloqueig), numero_.Text());
  graella_linies_->Lligar(nullptr);
  graella_peu_->Lligar(nullptr);
  for (Recordset* rs : {&cap_, &linies_, &peu_}) rs->Close();
}
