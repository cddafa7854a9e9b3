#include "sales/F_ComandesMCS.h"

#include "core/formularis/Formularis_Oberts.h"
#include "sales/M_Comandes.h"
#include "ui_F_ComandesMCS.h"

namespace {

// Of the delivery note that the orders are picked for; empty without one.
std::string Camp_De_L_Albara(const char* nom) {
  const Formulari* albara = Formulari_De_Nom(QStringLiteral("F_ALBARA"));
  const auto* camp = albara == nullptr ? nullptr : albara->findChild<QLineEdit*>(QString::fromLatin1(nom));
  return camp == nullptr ? std::string() : camp->text().toStdString();
}

constexpr const char* decimals = "0.00";

}  // namespace

F_ComandesMCS::F_ComandesMCS()
    : Llista_Filtrada(QStringLiteral("F_ComandesMCS")), ui_(std::make_unique<Ui::F_ComandesMCS>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_ComandesMCS, {{"NUMALB_CC", 1000, "Comanda", true},
                              {"DATA_CC", 1200, "Data"},
                              {"CLIENT_DESC_CC", 2600, "Client"},
                              {"LIN_CL", 700, "Línia", true},
                              {"ARTICLE_CL", 1400, "Codi"},
                              {"DESCRIPCIO_CL", 3200, "Descripció Article"},
                              {"COST_CL", 1050, "Preu Cost", true, decimals},
                              {"PENDENTS", 1050, "Pendents", true, decimals},
                              {"PORC_MARGE_CL", 1050, "Marge (%)", true, decimals},
                              {"PREU_UNITARI_CL", 1150, "Preu Unitari", true, decimals},
                              {"PORC_IVA_CL", 800, "IVA %", true, decimals},
                              {"PVP_CL", 1050, "PVP", true, decimals},
                              {"DTE_CL", 800, "DTE", true, decimals}});
  Muntar_Botons(nullptr, nullptr, ui_->B_Exit);
  Muntar_Filtrada(ui_->B_Filtre, {ui_->TXT_CODI, ui_->TXT_DESCRIPCIO});
}

F_ComandesMCS::~F_ComandesMCS() = default;

std::string F_ComandesMCS::Sentencia() const {
  return SQL_Comandes_Pendents(Camp_De_L_Albara("TXT_CLIENT_AC"), Demanat(ui_->TXT_CODI), Demanat(ui_->TXT_DESCRIPCIO));
}

// The note goes on from its quantity. An order that may not be served on it leaves the list open.
bool F_ComandesMCS::Admet_Retorn() {
  sessio.Crida_Mestre = "EDIT_COMANDA";
  const std::string nota = Camp_De_L_Albara("TXT_NUMALB_AC");
  const char* refus = Per_Que_No_Es_Pot_Servir(Graella_Llista()->Valor_Actual("NUMALB_CC").Enter(),
                                               nota.empty() ? 0 : Valor(nota).Enter());
  if (refus == nullptr) return true;
  sessio.pantalla->Caixa(refus, estil::critic);
  return false;
}
