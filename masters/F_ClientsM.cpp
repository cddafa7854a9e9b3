#include "masters/F_ClientsM.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>

#include "core/formularis/Aparenca.h"
#include "masters/M_Aniversaris.h"
#include "masters/M_Clients.h"
#include "ui_F_ClientsM.h"

namespace {

// The birthday is shown after the town, in the list of birthdays alone.
const std::vector<Columna_Graella> columnes = {
    {"NIF_CLI", 1600, "NIF"},
    {"RAO_SOCIAL_CLI", 4500, "Raó Social"},
    {"LOCALITAT_CLI", 2600, "Localitat"},
    {"TELEFON_CLI", 1500, "Telèfon"},
    {"MOBIL_CLI", 1500, "Mòbil"},
    {"EMAIL_CLI", 3000, "Email"},
    {.camp = "NAIXEMENT_CLID", .amplada = 1300, .titol = "Naixement", .opcional = true},
};
constexpr int columna_naixement = 6;
constexpr int lloc_naixement = 3;

constexpr Descripcio_Mestra clients = {.editor = u"F_CLIENT",
                                       .codi = "NIF_CLI",
                                       .descripcio = "RAO_SOCIAL_CLI",
                                       .per_obrir = &Sessio::Nif_Client,
                                       .nou = Nou_Client,
                                       .esborrar = Esborrar_Client};

bool Es_D_Aniversaris() {
  return sessio.Crida_Document == "F_SUBINICI;ANIVERSARIS" || sessio.Crida_Document == "F_CLIENTSM;ANIVERSARIS";
}

}  // namespace

F_ClientsM::F_ClientsM()
    : Llista_Mestra(QStringLiteral("F_ClientsM"), clients), ui_(std::make_unique<Ui::F_ClientsM>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_ClientsM, columnes);
  ui_->G_ClientsM->horizontalHeader()->moveSection(columna_naixement, lloc_naixement);
  Muntar_Botons(ui_->B_NouClient, ui_->B_EsborrarClient, ui_->B_Exit);
  Muntar_Filtre(ui_->B_Filtre, {ui_->CLIENT_DESC});
  Dibuixar(ui_->B_FILTRE_ANIVERSARIS, Dibuix::Llista);
  Dibuixar(ui_->B_EMAILS, Dibuix::Correu);
  connect(ui_->B_Filtre, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Reobrir(); }); });
  connect(ui_->B_FILTRE_ANIVERSARIS, &QPushButton::clicked, this,
          [this] { Guardar_Event([this] { Canviar_Aniversaris(); }); });
  connect(ui_->B_EMAILS, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Copiar_Adreces(); }); });
}

F_ClientsM::~F_ClientsM() = default;

std::string F_ClientsM::Sentencia() const {
  const std::string text = ui_->CLIENT_DESC->text().toStdString();
  return Es_D_Aniversaris() ? SQL_Aniversaris(text) : SQL_Clients(text);
}

void F_ClientsM::Carregar() {
  Llista_Mestra::Carregar();
  ui_->B_FILTRE_ANIVERSARIS->setCheckable(true);
  ui_->B_FILTRE_ANIVERSARIS->setChecked(Es_D_Aniversaris());
}

void F_ClientsM::Reobrir() {
  rs_.Reopen(Sentencia());
  ui_->G_ClientsM->Lligar(&rs_);
}

void F_ClientsM::Canviar_Aniversaris() {
  sessio.Crida_Document = Es_D_Aniversaris() ? "" : "F_CLIENTSM;ANIVERSARIS";
  ui_->B_FILTRE_ANIVERSARIS->setChecked(Es_D_Aniversaris());
  Reobrir();
}

void F_ClientsM::Copiar_Adreces() {
  if (rs_.RecordCount() == 0) return;
  const std::string adreces = Emails_Clients(rs_);
  QApplication::clipboard()->setText(QString::fromStdString(adreces));
  sessio.pantalla->Caixa(adreces, estil::informacio);
}

void F_ClientsM::Descarregar() {
  Llista_Mestra::Descarregar();
  sessio.Crida_Document.clear();
}
