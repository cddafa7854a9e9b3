#include "masters/F_ArticlesMCS.h"

#include "core/formularis/Formularis_Oberts.h"
#include "masters/F_Columnes_Articles.h"
#include "masters/M_Articles.h"
#include "ui_F_ArticlesMCS.h"

F_ArticlesMCS::F_ArticlesMCS()
    : Llista_Filtrada(QStringLiteral("F_ArticlesMCS")), ui_(std::make_unique<Ui::F_ArticlesMCS>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_ArticlesMCS, Columnes_Articles());
  Muntar_Botons(nullptr, nullptr, ui_->B_Exit);
  Muntar_Filtrada(ui_->B_Filtre, {ui_->TXT_CODI, ui_->TXT_DESCRIPCIO});
  ui_->G_ArticlesMCS->Estil_De_Fila([this](std::int64_t fila) { return Estil_Article(rs_, fila); });
}

F_ArticlesMCS::~F_ArticlesMCS() = default;

std::string F_ArticlesMCS::Sentencia() const {
  return SQL_Articles({.codi = Demanat(ui_->TXT_CODI), .descripcio = Demanat(ui_->TXT_DESCRIPCIO), .actiu = "-1"});
}

void F_ArticlesMCS::Obrir_Fila() {
  if (!Deixar_El_D_Abans(QStringLiteral("F_ARTICLE"))) return;
  sessio.Codi_Article = Graella_Llista()->Valor_Actual("CODI_ART").Text();
  sessio.Crida_Document = "F_ARTICLESMCS;EDIT";
  if (Mostrar_Formulari(QStringLiteral("F_ARTICLE")) != nullptr) Obrir_Formulari(QStringLiteral("F_ARTICLE"));
}
