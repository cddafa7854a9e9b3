#include "session/F_UsuarisM.h"

#include "session/M_Usuaris.h"
#include "ui_F_UsuarisM.h"

namespace {

const std::vector<Columna_Graella> columnes = {
    {"CODI_USU", 1800, "Codi"},
    {"DESCRIPCIO_USU", 4800, "Usuari"},
    {"ACTIU_USU", 900, "Actiu"},
    {"DESCRIPTION", 1800, "Idioma"},
};

constexpr Descripcio_Mestra usuaris = {.editor = u"F_USUARI",
                                       .codi = "CODI_USU",
                                       .descripcio = "DESCRIPCIO_USU",
                                       .per_obrir = &Sessio::Codi_Usuari,
                                       .nou = Nou_Usuari,
                                       .esborrar = Esborrar_Usuari};

}  // namespace

F_UsuarisM::F_UsuarisM()
    : Llista_Mestra(QStringLiteral("F_UsuarisM"), usuaris), ui_(std::make_unique<Ui::F_UsuarisM>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_UsuarisM, columnes);
  Muntar_Botons(ui_->B_NouUsuari, ui_->B_EsborrarUsuari, ui_->B_Exit);
  ui_->G_UsuarisM->Estil_De_Fila([this](std::int64_t fila) {
    const bool jo = rs_.Valor_De_Fila(fila, rs_.Index_Camp("CODI_USU")).Text() == sessio.Usuari_Actual;
    return jo ? QStringLiteral("Yo") : QString();
  });
}

F_UsuarisM::~F_UsuarisM() = default;

std::string F_UsuarisM::Sentencia() const {
  return SQL_Usuaris();
}
