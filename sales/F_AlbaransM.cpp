#include "sales/F_AlbaransM.h"

#include "core/formularis/Aparenca.h"
#include "core/formularis/Control_Interface.h"
#include "documents/M_Consultes.h"
#include "sales/F_AlbaransS.h"
#include "sales/M_Albarans.h"
#include "ui_F_AlbaransM.h"

namespace {

const std::vector<Columna_Graella> columnes = {
    {"NUMALB_AC", 1200, "Albarà", true},
    {"DATA_AC", 1500, "Data"},
    {"CLIENT_DESC_AC", 4800, "Client"},
    {"OBSR_AC", 3600, "Observacions"},
    {"IMPORT_AC", 1700, "Import", true, "#,##0.00"},
    {"ESTAT_AC", 750, "OK?", false, "", true},
};

// The criteria of the search form; one that is not open is there all the same, as it comes.
F_AlbaransS* Cerca() {
  return static_cast<F_AlbaransS*>(Carregar_Amagat(QStringLiteral("F_ALBARANSS")));
}

}  // namespace

F_AlbaransM::F_AlbaransM()
    : Llista_Documents(QStringLiteral("F_AlbaransM"), tipus_albara), ui_(std::make_unique<Ui::F_AlbaransM>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_AlbM, columnes);
  Muntar_Botons(ui_->B_NouAlbara, ui_->B_EsborrarAlbara, ui_->B_Exit);
  Dibuixar(ui_->B_FACT, Dibuix::Calcular);
  Boto_De_Pantalla(QStringLiteral("B_FACT"), QStringLiteral("F_FACTURAR"));
  ui_->G_AlbM->Estil_De_Fila([this](std::int64_t fila) {
    const Valor estat = rs_.Valor_De_Fila(fila, rs_.Index_Camp("ESTAT_AC"));
    return !estat.Es_Nul() && estat.Boolea() ? QStringLiteral("OK") : QString();
  });
}

F_AlbaransM::~F_AlbaransM() = default;

std::string F_AlbaransM::Sentencia() const {
  return Consulta_Albarans(Cerca()->Criteris(), false) + " ORDER BY NUMALB_AC";
}

Valor F_AlbaransM::Crear_Document() {
  return Crear_Capcalera_Albara();
}
void F_AlbaransM::Esborrar(const Valor& numero) {
  Esborrar_Albara(numero.Enter(), sessio.Empresa_Actual);
}
void F_AlbaransM::Passar_Numero(const Valor& numero) {
  sessio.Numero_Albara = numero.Enter();
}
