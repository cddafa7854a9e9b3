#include "documents/F_Capcalera_Document.h"

#include <algorithm>

#include <QCheckBox>

#include "core/formularis/Formularis_Oberts.h"
#include "masters/F_Client.h"
#include "masters/M_Clients.h"
#include "masters/M_Proveidors.h"
#include "session/M_Empresa.h"

namespace {

Caselles_D_Impost Caselles_Client(const std::string& codi) {
  Transaccio lectures(sessio.Connexio_Comuna);
  sessio.Connexio_Comuna.Demanar("SELECT RE_CLI FROM CLIENTS WHERE NIF_CLI = " + Text_SQL(codi));
  const Caselles_D_Impost caselles{Client_Te_IVA(codi), Client_Te_RE(codi)};
  lectures.Confirmar();
  return caselles;
}

Caselles_D_Impost Caselles_Proveidor(const std::string& codi) {
  return {Proveidor_Te_IVA(codi), Empresa_Te_RE(sessio.Empresa_Actual)};
}

void Refrescar_Client() {
  auto* client = dynamic_cast<F_Client*>(Formulari_De_Nom(QStringLiteral("F_CLIENT")));
  if (client != nullptr) client->Refrescar_Documents();
}

}  // namespace

const Per_A_Qui per_a_un_client = {.codi = "CLIENT",
                                   .nom = "CLIENT_DESC",
                                   .combo = "CLIENT_DESC",
                                   .boto = "B_CLIENT",
                                   .noms = noms_clients,
                                   .caselles = Caselles_Client,
                                   .document_tancat = Refrescar_Client};

const Per_A_Qui per_a_un_proveidor = {.codi = "PROVEIDOR",
                                      .nom = "PROVEIDOR_DESC",
                                      .combo = "PROVEIDOR",
                                      .boto = "B_PROVEIDOR",
                                      .noms = noms_proveidors,
                                      .caselles = Caselles_Proveidor};

Capcalera_Document::Capcalera_Document(const Formulari& formulari, const Tipus_Document& tipus, const Per_A_Qui* qui)
    : formulari_(formulari), tipus_(tipus), qui_(qui) {
  camp_numero_ = qobject_cast<QLineEdit*>(Control(QStringLiteral("TXT_NUMALB")));
  if (qui_ != nullptr) combo_ = qobject_cast<Combo_Codi*>(Control(QStringLiteral("CMB_") + QLatin1String(qui_->combo)));
  if (camp_numero_ == nullptr || (qui_ != nullptr && combo_ == nullptr))
    qFatal("%s: no number or no combo", qUtf8Printable(formulari.Nom()));
  if (auto* total = qobject_cast<Camp_Numeric*>(Control(QStringLiteral("TXT_IMPORT")))) total->Mascara("#,##0.00");
}

QWidget* Capcalera_Document::Control(const QString& nom) const {
  if (nom.startsWith(QLatin1String("B_"))) return formulari_.Cercar_Control(nom);
  return formulari_.Cercar_Control(nom + u'_' + QString::fromStdString(std::string(tipus_.cap.sufix)));
}

void Capcalera_Document::Obrir(const Valor& numero) {
  numero_ = numero;
  cap_.Unique_Table(std::string(tipus_.cap.nom));
  cap_.Open(SQL_Capcalera(tipus_, numero_, sessio.Empresa_Actual), sessio.Connexio_Comuna, Bloqueig::Pessimista);
  if (cap_.RecordCount() == 0) throw Document_Inexistent(tipus_);
  for (Lligam& camp : Lligams_De(formulari_, cap_)) {
    if (camp.Control() != camp_numero_ && camp.Control() != combo_) camps_.push_back(std::move(camp));
  }
  camp_numero_->setText(QString::fromStdString(numero_.Text()));
  Mostrar();
}

// What the user or a rule changed, and nobody saved yet, stays as it is.
void Capcalera_Document::Mostrar() {
  for (Lligam& camp : camps_) {
    if (!vista_ || !camp.Canviat()) camp.Mostrar();
  }
  if (combo_ != nullptr && (!vista_ || !Qui_Ha_Canviat())) {
    qui_mostrat_ = Qui_De_La_Fila();
    combo_->Posar(qui_mostrat_.codi, qui_mostrat_.nom);
  }
  vista_ = true;
}

Capcalera_Document::Qui Capcalera_Document::Qui_De_La_Fila() const {
  return {cap_[Columna(qui_->codi)].Text(), cap_[Columna(qui_->nom)].Text()};
}

bool Capcalera_Document::Qui_Ha_Canviat() const {
  return Qui{combo_->Codi(), combo_->Nom()} != qui_mostrat_;
}

void Capcalera_Document::Tancar() {
  camps_.clear();
  cap_.Close();
}

std::string Capcalera_Document::Text(const char* paper) const {
  const auto* camp = qobject_cast<QLineEdit*>(Control(QStringLiteral("TXT_") + QLatin1String(paper)));
  return camp == nullptr ? std::string() : camp->text().toStdString();
}

bool Capcalera_Document::Esta_Marcada(const char* paper) const {
  const auto* casella = qobject_cast<QCheckBox*>(Control(QStringLiteral("CHK_") + QLatin1String(paper)));
  return casella != nullptr && casella->isChecked();
}

void Capcalera_Document::Marcar(const char* paper, bool marcada) {
  auto* casella = qobject_cast<QCheckBox*>(Control(QStringLiteral("CHK_") + QLatin1String(paper)));
  if (casella == nullptr) return;
  Recordar_Abans();
  casella->setChecked(marcada);
  Posat_Per_Una_Regla(casella);
}

void Capcalera_Document::Posar_Import(double euros) {
  auto* total = qobject_cast<Camp_Numeric*>(Control(QStringLiteral("TXT_IMPORT")));
  if (total == nullptr) return;
  total->Numero(euros);
  Posat_Per_Una_Regla(total);
}

void Capcalera_Document::Posat_Per_Una_Regla(const QWidget* control) {
  for (Lligam& camp : camps_) {
    if (camp.Control() == control) camp.Posat_Per_Una_Regla();
  }
}

double Capcalera_Document::Import() const {
  const auto* total = qobject_cast<Camp_Numeric*>(Control(QStringLiteral("TXT_IMPORT")));
  return total == nullptr ? 0 : total->Numero();
}

bool Capcalera_Document::Te_Canvis() const {
  return camp_numero_->text().toStdString() != numero_.Text() || Qui_Ha_Canviat() ||
         std::ranges::any_of(camps_, &Lligam::Canviat_Per_L_Usuari);
}

Capcalera_Oberta Capcalera_Document::Oberta() const {
  const bool article = tipus_.taxes_de_l_article;
  return {.numero = numero_,
          .empresa = sessio.Empresa_Actual,
          .iva = article || Esta_Marcada("IVA"),
          .re = article || Esta_Marcada("RE")};
}

void Capcalera_Document::Canviar_Qui() {
  const std::string codi = combo_->Codi();
  if (auto* camp = qobject_cast<QLineEdit*>(Control(QStringLiteral("TXT_") + QLatin1String(qui_->codi))))
    camp->setText(QString::fromStdString(codi));
  const Caselles_D_Impost caselles = qui_->caselles(codi);
  Marcar("IVA", caselles.iva);
  Marcar("RE", caselles.re);
}

void Capcalera_Document::Posar_Canvis(const Valor& numero) {
  if (!(numero == numero_)) {
    cap_.Set(Columna("NUMALB"), numero);
    cap_.Set(Columna("EMPRESA"), sessio.Empresa_Actual);
  }
  for (const Lligam& camp : camps_) {
    if (camp.Canviat()) camp.Posar();
  }
  if (combo_ == nullptr || !Qui_Ha_Canviat()) return;
  const std::string codi = combo_->Codi();
  cap_.Set(Columna(qui_->codi), codi.empty() ? Valor() : Valor(codi));
  cap_.Set(Columna(qui_->nom), codi.empty() ? Valor() : Valor(combo_->Nom()));
}

void Capcalera_Document::Desar(const Valor& numero) {
  Desfer_Si_Cal();
  Recordar_Abans();
  try {
    Posar_Canvis(numero);
    cap_.Update();
  } catch (const Error_Brollador& error) {
    cap_.CancelUpdate();
    if (error.Numero() == errors::concurrencia) Recuperar();
    throw;
  }
  numero_ = numero;
  for (Lligam& camp : camps_) camp.Recordar();
  if (combo_ != nullptr) qui_mostrat_ = {combo_->Codi(), combo_->Nom()};
}

void Capcalera_Document::Recuperar() {
  cap_.Reopen(SQL_Capcalera(tipus_, numero_, sessio.Empresa_Actual));
  Exigir_Document(tipus_, numero_, sessio.Empresa_Actual);
  Mostrar();
}

void Capcalera_Document::Recordar_Abans() {
  const auto transaccio = Transaccio::Oberta(sessio.Connexio_Comuna);
  if (transaccio == nullptr || transaccio == abans_.transaccio) return;
  abans_ = {.transaccio = transaccio, .camps = camps_, .qui = qui_mostrat_, .numero = numero_, .caselles = {}};
  for (const Lligam& camp : camps_) {
    if (auto* casella = qobject_cast<QCheckBox*>(camp.Control()))
      abans_.caselles.emplace_back(casella, casella->isChecked());
  }
}

void Capcalera_Document::Desfer_Si_Cal() {
  if (abans_.transaccio == nullptr || abans_.transaccio->fi != Transaccio::Fi::Desfeta) return;
  const Abans abans = std::exchange(abans_, {});
  camps_ = abans.camps;
  qui_mostrat_ = abans.qui;
  numero_ = abans.numero;
  for (const auto& [casella, marcada] : abans.caselles) casella->setChecked(marcada);
  Recuperar();
}

void Capcalera_Document::Cancellar() {
  cap_.CancelUpdate();
  Desfer_Si_Cal();
}
