#include "masters/F_ArticlesMC.h"

#include <utility>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Dialecte.h"
#include "core/formularis/Formularis_Oberts.h"
#include "masters/F_ArticlesSelC.h"
#include "masters/F_Columnes_Articles.h"
#include "ui_F_ArticlesMC.h"

namespace {

constexpr Descripcio_Mestra articles = {.editor = u"F_ARTICLE",
                                        .codi = "CODI_ART",
                                        .descripcio = "DESCRIPCIO_ART",
                                        .per_obrir = &Sessio::Codi_Article,
                                        .nou = Nou_Article,
                                        .esborrar = Esborrar_Article};

}  // namespace

F_ArticlesMC::F_ArticlesMC()
    : Llista_Mestra(QStringLiteral("F_ArticlesMC"), articles), ui_(std::make_unique<Ui::F_ArticlesMC>()) {
  ui_->setupUi(this);
  Muntar(ui_->G_ArticlesMC, Columnes_Articles());
  Muntar_Botons(ui_->B_NouArticle, ui_->B_EsborrarArticle, ui_->B_Exit);
  ui_->G_ArticlesMC->Estil_De_Fila([this](std::int64_t fila) { return Estil_Article(rs_, fila); });
}

F_ArticlesMC::~F_ArticlesMC() = default;

std::string F_ArticlesMC::Sentencia() const {
  return SQL_Articles(static_cast<F_ArticlesSelC*>(Carregar_Amagat(QStringLiteral("F_ARTICLESSELC")))->Criteris());
}

void F_ArticlesMC::Carregar() {
  Llista_Mestra::Carregar();
  acabada_de_llegir_ = true;
}

// Read again each time that it comes to the front, by the criteria of the moment. What the search form filters stays as
// it is.
void F_ArticlesMC::Activar() {
  if (std::exchange(acabada_de_llegir_, false)) return;
  if (Formulari_De_Nom(QStringLiteral("F_CERCA")) != nullptr) return;
  const std::string sentencia = Sentencia();
  // Under the same criteria the order that a header has given stays.
  const bool els_mateixos = Sense_Ordre(rs_.Source()) == Sense_Ordre(sentencia);
  Requerir_Alla_Mateix(rs_, els_mateixos ? std::string() : sentencia);
  ui_->G_ArticlesMC->Lligar(&rs_);
}

void F_ArticlesMC::Nou() {
  const std::string codi = Nou_Article();
  Requerir();
  Obrir_Editor(codi);
}
