// The editor of a document on a small display: all columns of its lines, and enough of the lines.
#include <QHeaderView>
#include <QScrollBar>
#include <ranges>

#include "core/controls/Graella.h"
#include "documents/Documents.h"
#include "documents/M_Linies_Document.h"
#include "session/Canvi_Idioma.h"
#include "tests/pantalles/Cada_Pantalla.h"

namespace {

constexpr QSize display_petit(1366, 768);
constexpr int linies_de_sobres = 40;
constexpr int linies_que_es_veuen = 12;

class Editor_Al_Display_Petit : public Cada_Pantalla {
 protected:
  const Tipus_Document& Tipus() const {
    const auto es = [this](const Tipus_Document* tipus) { return Nom() == QString::fromUtf8(tipus->formulari); };
    return **std::ranges::find_if(Tipus_Registrats(), es);
  }
  void Omplir() const {
    const Tipus_Document& tipus = Tipus();
    const Valor numero = Obert()->Document()->Numero_Document();
    for (int linia = 100; linia < 100 + linies_de_sobres; ++linia) {
      sessio.Connexio_Comuna.Afegir_Fila(std::string(tipus.lin.nom),
                                         {{tipus.lin.Columna("NUMALB"), numero},
                                          {tipus.lin.Columna("EMPRESA"), sessio.Empresa_Actual},
                                          {tipus.lin.Columna("LIN"), linia},
                                          {tipus.lin.Columna("ARTICLE"), "MARTELL"},
                                          {tipus.lin.Columna("IMPORT_BRUT"), 123456.78}});
    }
  }
  Graella* Linies() const {
    for (auto* graella : Obert()->findChildren<Graella*>()) {
      if (graella->Files() >= linies_de_sobres) return graella;
    }
    return nullptr;
  }
};

}  // namespace

TEST_P(Editor_Al_Display_Petit, Shows_every_column_and_a_dozen_lines) {
  F_Principal::Unica()->resize(display_petit);
  Assentar();
  Tancar_I_Obrir();
  ASSERT_NE(Obert(), nullptr);
  if (Obert()->Document() == nullptr) GTEST_SKIP() << "no editor of documents";
  Omplir();
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    SCOPED_TRACE(idioma);
    Canviar_Idioma(idioma);
    Tancar_I_Obrir();
    const Graella* linies = Linies();
    ASSERT_NE(linies, nullptr);
    ASSERT_TRUE(linies->isVisible());
    EXPECT_TRUE(linies->verticalScrollBar()->isVisible());
    EXPECT_FALSE(linies->horizontalScrollBar()->isVisible());
    EXPECT_LE(linies->horizontalHeader()->length(), linies->viewport()->width());
    EXPECT_GE(linies->viewport()->height() / linies->rowHeight(0), linies_que_es_veuen);
    EXPECT_FALSE(linies->horizontalHeader()->isSortIndicatorShown());
  }
}

INSTANTIATE_TEST_SUITE_P(Cada_Editor, Editor_Al_Display_Petit, testing::ValuesIn(Camins().begin(), Camins().end()),
                         Nom_De_Prova);
