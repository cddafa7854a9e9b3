#include "session/F_EmpresesM.h"

#include "session/M_Empresa.h"
#include "ui_F_EmpresesM.h"

namespace {

const std::vector<Columna_Graella> columnes = {
    {"NIF_EMP", 1600, "Codi"},
    {"RAO_SOCIAL_EMP", 4500, "Empresa"},
    {"LOCALITAT_EMP", 2400, "Localitat"},
    {"TELEFON_EMP", 1500, "Telèfon"},
    {"FAX_EMP", 1500, "Fax"},
    {"EMAIL_EMP", 2400, "Email"},
    {"ACTIU_EMP", 900, "Activa", false, "", true},
};

constexpr Descripcio_Mestra empreses = {.editor = u"F_EMPRESA",
                                        .codi = "NIF_EMP",
                                        .descripcio = "RAO_SOCIAL_EMP",
                                        .per_obrir = &Sessio::Nif_Empresa,
                                        .nou = Nova_Empresa,
                                        .esborrar = Esborrar_Empresa};

}  // namespace

F_EmpresesM::F_EmpresesM()
    : Llista_Mestra(QStringLiteral("F_EmpresesM"), empreses), ui_(std::make_unique<Ui::F_EmpresesM>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_EmpresesM, columnes);
  Muntar_Botons(ui_->B_NovaEmpresa, ui_->B_EsborrarEmpresa, ui_->B_Exit);
  ui_->G_EmpresesM->Estil_De_Fila([this](std::int64_t fila) {
    const bool actual = rs_.Valor_De_Fila(fila, rs_.Index_Camp("NIF_EMP")).Text() == sessio.Empresa_Actual;
    return actual ? QStringLiteral("Actual") : QString();
  });
}

F_EmpresesM::~F_EmpresesM() = default;

std::string F_EmpresesM::Sentencia() const {
  return SQL_Empreses();
}
