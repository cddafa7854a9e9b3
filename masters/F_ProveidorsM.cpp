#include "masters/F_ProveidorsM.h"

#include "masters/M_Proveidors.h"
#include "ui_F_ProveidorsM.h"

namespace {

const std::vector<Columna_Graella> columnes = {
    {"NIF_PRO", 1600, "NIF"},
    {"RAO_SOCIAL_PRO", 4500, "Raó Social"},
    {"LOCALITAT_PRO", 2600, "Localitat"},
    {"TELEFON_PRO", 1500, "Telèfon"},
    {"FAX_PRO", 1500, "Fax"},
    {"EMAIL_PRO", 2700, "Email"},
};

constexpr Descripcio_Mestra proveidors = {.editor = u"F_PROVEIDOR",
                                          .codi = "NIF_PRO",
                                          .descripcio = "RAO_SOCIAL_PRO",
                                          .per_obrir = &Sessio::Nif_Proveidor,
                                          .nou = Nou_Proveidor,
                                          .esborrar = Esborrar_Proveidor};

}  // namespace

F_ProveidorsM::F_ProveidorsM()
    : Llista_Mestra(QStringLiteral("F_ProveidorsM"), proveidors), ui_(std::make_unique<Ui::F_ProveidorsM>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_ProveidorsM, columnes);
  Muntar_Botons(ui_->B_NouProveidor, ui_->B_EsborrarProveidor, ui_->B_Exit);
}

F_ProveidorsM::~F_ProveidorsM() = default;

std::string F_ProveidorsM::Sentencia() const {
  return SQL_Proveidors();
}
