#include "masters/F_ArticlesMCS.h"

#include "core/formularis/Formularis_Oberts.h"
#include "masters/F_Columnes_Articles.h"
#include "masters/M_Articles.h"
#include "ui_F_ArticlesMCS.h"

F_ArticlesMCS::F_ArticlesMCS() : Llista(QStringLiteral("F_ArticlesMCS")), ui_(std::make_unique<Ui::F_ArticlesMCS>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_ArticlesMCS, Columnes_Articles());
  Muntar_Botons(nullptr, nullptr, ui_->B_Exit);
  Muntar_Filtre(ui_->B_Filtre, {ui_->TXT_CODI, ui_->TXT_DESCRIPCIO});
  ui_->G_ArticlesMCS->Estil_De_Fila([this](std::int64_t fila) { return Estil_Article(rs_, fila); });
  connect(ui_->B_Filtre, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Filtrar(); }); });
}

F_ArticlesMCS::~F_ArticlesMCS() = default;

// Empty, until the user has said what to look for.
std::string F_ArticlesMCS::Sentencia() const {
  if (!filtrada_) return SQL_Articles({.codi = cap_article, .descripcio = cap_article, .actiu = "-1"});
  return SQL_Articles({.codi = ui_->TXT_CODI->text().toStdString(),
                       .descripcio = ui_->TXT_DESCRIPCIO->text().toStdString(),
                       .actiu = "-1"});
}

void F_ArticlesMCS::Carregar() {
  Llista::Carregar();
  ui_->TXT_CODI->setFocus();
}

void F_ArticlesMCS::Filtrar() {
  filtrada_ = true;
  rs_.Reopen(Sentencia());
  ui_->G_ArticlesMCS->Lligar(&rs_);
  ui_->G_ArticlesMCS->setFocus();
}

void F_ArticlesMCS::Obrir_Fila() {
  if (!Deixar_El_D_Abans(QStringLiteral("F_ARTICLE"))) return;
  sessio.Codi_Article = Graella_Llista()->Valor_Actual("CODI_ART").Text();
  sessio.Crida_Document = "F_ARTICLESMCS;EDIT";
  if (Mostrar_Formulari(QStringLiteral("F_ARTICLE")) != nullptr) Obrir_Formulari(QStringLiteral("F_ARTICLE"));
}
