#include "masters/F_Client.h"

#include "core/controls/Controls.h"
#include "masters/M_Clients.h"
#include "masters/M_Venciments.h"
#include "ui_F_Client.h"

namespace {

const std::vector<Columna_Graella> columnes_vendes = {{"DATA_AC", 1400, "Data"},
                                                      {"DESCRIPCIO_AL", 4800, "Descripció"},
                                                      {"UNITATS_AL", 1400, "Unitats", true, "#,##0.00"},
                                                      {"PVP_AL", 1400, "PVP", true, "#,##0.00"},
                                                      {"IMPORT", 1500, "Import", true, "#,##0.00"}};

enum Pestanya { dades, historic, pagaments, dades_addicionals };

}  // namespace

F_Client::F_Client() : Fitxa(QStringLiteral("F_Client"), "CLIENTS"), ui_(std::make_unique<Ui::F_Client>()) {
  ui_->setupUi(this);
  Boto_Sortir(ui_->B_Exit);
  Exigir_Lliure(ui_->TXT_NIF_CLI, Client_Existeix, Avisar_Client_Existent);
  Seguir_CP(ui_->TXT_CP_CLI, ui_->TXT_LOCALITAT_CLI);
  Seguir_CP(ui_->TXT_CP_ENV_CLI, ui_->TXT_LOCALITAT_ENV_CLI);
  Descriure(ui_->TXT_VENCIMENT_CLI, ui_->NO_DESCRIPCIO_VEN, referencia_venciments);
  ui_->G_AlbLinCliM->Columnes(columnes_vendes);
  // Nothing fills the tab of payments.
  ui_->G_PagCli->setEnabled(false);
  ui_->B_Pagaments->setEnabled(false);
  ui_->B_COM_SERV->setEnabled(false);
  ui_->SST_Client->setTabVisible(dades_addicionals, Amb_Dades_Addicionals());
  connect(ui_->SST_Client, &QTabWidget::currentChanged, this, [this](int pestanya) {
    if (pestanya == historic) Guardar_Event([this] { Mostrar_Vendes(); });
  });
}

F_Client::~F_Client() = default;

bool F_Client::Amb_Dades_Addicionals() const {
  const auto parametre = sessio.Parametres.find("Fitxa_Client_Dades_Visible");
  return parametre != sessio.Parametres.end() && parametre->second == "True";
}

std::string F_Client::Sentencia() const {
  return SQL_Client(sessio.Nif_Client);
}

// The row of additional data is added when it is missing.
void F_Client::Abans_De_Mostrar() {
  if (!Amb_Dades_Addicionals()) return;
  Afegir_Fila(
      dades_, "CLIENTS_DADES", [] { return SQL_Client_Dades(sessio.Nif_Client); },
      [] { Assegurar_Dades_Client(sessio.Nif_Client); });
}

void F_Client::Mostrar_Altres() {
  sessio.Nif_Client = rs_["NIF_CLI"].Text();
}

// Whatever is saved, the additional data carry the name and the tax code by which they are found.
void F_Client::Abans_De_Desar() {
  if (!dades_.State() || (rs_.EditMode() == Edicio::Cap && dades_.EditMode() == Edicio::Cap)) return;
  for (const auto& [columna, del_client] :
       {std::pair("NIF_CLID", "NIF_CLI"), std::pair("CLIENT_DESC_CLID", "RAO_SOCIAL_CLI")}) {
    if (!(dades_[columna] == rs_[del_client])) dades_.Set(columna, rs_[del_client]);
  }
}

// A deleted customer of the new code may have left its additional data.
void F_Client::Abans_D_Escriure() {
  if (!dades_.State()) return;
  const std::string abans = dades_.Valor_De_Fila(0, dades_.Index_Camp("NIF_CLID")).Text();
  const std::string ara = dades_["NIF_CLID"].Text();
  if (ara != abans) Esborrar_Dades_Sobreres(ara, abans);
}

void F_Client::Mostrar_Vendes() {
  vendes_.Open(SQL_Vendes_Client(sessio.Nif_Client), sessio.Connexio_Comuna);
  ui_->G_AlbLinCliM->Lligar(&vendes_);
}

void F_Client::Refrescar_Documents() {
  if (!vendes_.State()) return;
  vendes_.Requery();
  ui_->G_AlbLinCliM->Refrescar();
}

void F_Client::Descarregar() {
  Fitxa::Descarregar();
  ui_->G_AlbLinCliM->Lligar(nullptr);
  if (vendes_.State()) vendes_.Close();
}
