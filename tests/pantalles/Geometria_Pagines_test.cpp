// Where everything stands on the pages of the five reports: nothing over anything else, figures under their titles, a
// foot that is whole and has lines above it; whatever the document is like and however many lines it has.
#include <QRegularExpression>
#include <algorithm>
#include <set>

#include "output/DR_Valorat.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/pantalles/Documents_De_Paper.h"

namespace {

// What a text takes of the page: the height of its letters, without the air around them.
struct Peca {
  QString text;
  QRectF lloc;
};
Peca Peca_De(const Text_Posat& text) {
  const double lletra = text.lletra.pixelSize();
  return {text.text, {text.base.x(), text.base.y() - 0.7 * lletra, Amplada(text.text, text.lletra), 0.9 * lletra}};
}

std::vector<Peca> Peces_De(const Pagina& pagina) {
  std::vector<Peca> peces;
  for (const auto& element : pagina) {
    if (const auto* text = std::get_if<Text_Posat>(&element)) peces.push_back(Peca_De(*text));
    if (const auto* imatge = std::get_if<Imatge_Posada>(&element)) peces.push_back({u"(picture)"_qs, imatge->lloc});
    if (const auto* ratlla = std::get_if<Ratlla_Posada>(&element)) peces.push_back({u"(rule)"_qs, ratlla->lloc});
  }
  return peces;
}

const Peca* Cercar(const std::vector<Peca>& peces, const QString& text) {
  const auto trobada = std::find_if(peces.begin(), peces.end(), [&](const Peca& peca) { return peca.text == text; });
  return trobada == peces.end() ? nullptr : &*trobada;
}

const QRegularExpression xifra(QStringLiteral("^-?[0-9.]+,[0-9]{2}$"));
const QRegularExpression inici_de_linia(QStringLiteral("^n([0-9]+)\\b"));

void Exigir_Dins_Dels_Marges(const std::vector<Peca>& peces) {
  const QRectF full(paper::marge - 1, paper::marge - 1, paper::amplada - 2 * paper::marge + 2,
                    paper::alcada - 2 * paper::marge + 2);
  for (const auto& peca : peces) EXPECT_TRUE(full.contains(peca.lloc)) << peca.text.toStdString();
}

void Exigir_Que_Res_No_Se_Solapi(const std::vector<Peca>& peces) {
  for (std::size_t i = 0; i < peces.size(); ++i) {
    for (std::size_t j = i + 1; j < peces.size(); ++j) {
      EXPECT_FALSE(peces[i].lloc.intersects(peces[j].lloc))
          << peces[i].text.toStdString() << " and " << peces[j].text.toStdString();
    }
  }
}

// The lines of a page: below the titles, above the foot.
struct Zona {
  double dalt;
  double baix;
};
Zona Zona_De_Linies(const std::vector<Peca>& peces) {
  const Peca* titol = Cercar(peces, u"Descripció"_qs);
  const Peca* peu = Cercar(peces, u"Base"_qs);
  EXPECT_NE(titol, nullptr) << "every page has the titles";
  return {titol == nullptr ? 0 : titol->lloc.bottom(), peu == nullptr ? paper::alcada : peu->lloc.top()};
}

void Exigir_Columnes(const std::vector<Peca>& peces, const Zona& zona) {
  std::vector<double> vores;
  double descripcio = paper::amplada;
  for (const auto& titol : {u"Unitats"_qs, u"Preu"_qs, u"Cost"_qs, u"Dte"_qs}) {
    const Peca* peca = Cercar(peces, titol);
    if (peca != nullptr) vores.push_back(peca->lloc.right());
  }
  vores.push_back(paper::amplada - paper::marge);
  for (const auto& peca : peces) {
    if (peca.lloc.top() < zona.dalt || peca.lloc.bottom() > zona.baix) continue;
    if (xifra.match(peca.text).hasMatch()) {
      const auto a_la_vora = [&](double vora) { return std::abs(vora - peca.lloc.right()) < 2; };
      EXPECT_TRUE(std::any_of(vores.begin(), vores.end(), a_la_vora)) << peca.text.toStdString();
      descripcio = std::min(descripcio, peca.lloc.left());
    }
  }
  for (const auto& peca : peces) {
    if (peca.lloc.top() < zona.dalt || peca.lloc.bottom() > zona.baix || xifra.match(peca.text).hasMatch()) continue;
    if (peca.text.startsWith(u'(') || peca.text.contains(u'/')) continue;
    EXPECT_NEAR(peca.lloc.left(), paper::marge, 1) << peca.text.toStdString();
    EXPECT_LT(peca.lloc.right(), descripcio) << peca.text.toStdString();
  }
}

int Linies_De(const std::vector<Peca>& peces, const Zona& zona) {
  return static_cast<int>(std::count_if(peces.begin(), peces.end(), [&](const Peca& peca) {
    return peca.lloc.top() > zona.dalt && peca.lloc.bottom() < zona.baix && inici_de_linia.match(peca.text).hasMatch();
  }));
}

std::vector<const Descripcio_Impressio*> Tots_Els_Informes() {
  std::vector<const Descripcio_Impressio*> tots;
  for (const auto& informe : Informes_De_Documents()) tots.push_back(&informe);
  return tots;
}

std::string Nom_De_L_Informe(const testing::TestParamInfo<const Descripcio_Impressio*>& info) {
  return info.param->informe;
}

class Geometria_Pagines : public Documents_De_Paper, public testing::WithParamInterface<const Descripcio_Impressio*> {
 protected:
  const Tipus_Document& Tipus() const { return GetParam()->Tipus(); }
  Pagines Fer(int linies, bool pitjor) {
    std::string observacions = "Portar al matí";
    if (pitjor) {
      Allargar_Noms();
      for (int i = 0; i < 80; ++i) observacions += " i trucar abans";
    }
    sessio.Parametres["P_Codi_Client_Visible"] = pitjor ? "True" : "False";
    Posar_Document(Tipus(), observacions);
    Posar_Linies_Variades(Tipus(), linies);
    Posar_Peu(Tipus(), 123456.78, 21, pitjor ? 5.2 : 0);
    if (pitjor) {
      for (const double porc : {10.0, 4.0, 0.0}) Posar_Peu(Tipus(), porc == 0 ? -7654.32 : 87654.32, porc, 1.4);
    }
    return Pagines_De(Tipus());
  }
  static void Exigir_Be(const Pagines& fetes, int linies);
};

void Geometria_Pagines::Exigir_Be(const Pagines& fetes, int linies) {
  ASSERT_FALSE(fetes.pagines.empty());
  std::set<int> vistes;
  for (std::size_t i = 0; i < fetes.pagines.size(); ++i) {
    SCOPED_TRACE("page " + std::to_string(i + 1));
    const bool darrera = i + 1 == fetes.pagines.size();
    const auto peces = Peces_De(fetes.pagines[i]);
    Exigir_Dins_Dels_Marges(peces);
    Exigir_Que_Res_No_Se_Solapi(peces);
    const Zona zona = Zona_De_Linies(peces);
    Exigir_Columnes(peces, zona);
    EXPECT_GT(Linies_De(peces, zona), 0);
    EXPECT_NE(Cercar(peces, u"%1/%2"_qs.arg(i + 1).arg(fetes.pagines.size())), nullptr);
    for (const auto& part : {u"Base"_qs, u"Net"_qs, u"Total €"_qs}) {
      EXPECT_EQ(Cercar(peces, part) != nullptr, darrera) << part.toStdString();
    }
    for (const auto& peca : peces) {
      EXPECT_FALSE(peca.text.contains(u'…')) << peca.text.toStdString();
      const auto linia = inici_de_linia.match(peca.text);
      EXPECT_TRUE(!linia.hasMatch() || vistes.insert(linia.captured(1).toInt()).second) << peca.text.toStdString();
    }
  }
  EXPECT_EQ(vistes.size(), static_cast<std::size_t>(linies));
}

}  // namespace

TEST_P(Geometria_Pagines, NothingIsCoveredCutOrLost) {
  for (const int linies : {1, 30, 120, 1000}) {
    for (const bool pitjor : {false, true}) {
      const Transaccio comuna(sessio.Connexio_Comuna);  // taken back before the next one
      const Transaccio local(sessio.Connexio_Local);
      const std::string nom = std::string(GetParam()->informe) + (pitjor ? "-long-" : "-") + std::to_string(linies);
      SCOPED_TRACE(nom);
      const Pagines fetes = Fer(linies, pitjor);
      Deixar_Per_Mirar(fetes, QString::fromStdString(nom));
      Exigir_Be(fetes, linies);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Informes, Geometria_Pagines, testing::ValuesIn(Tots_Els_Informes()), Nom_De_L_Informe);

// Line by line through two page breaks: the foot is whole, has a line above it, and asks for a page of its own only
// when this one has no room for it.
TEST_F(Documents_De_Paper, TheFootIsNeverAloneHoweverManyLines) {
  const Transaccio comuna(sessio.Connexio_Comuna);  // nothing of it has to reach the disk
  const Transaccio local(sessio.Connexio_Local);
  for (const auto& informe : Informes_De_Documents()) {
    Posar_Document(informe.Tipus());
    Posar_Peu(informe.Tipus(), 100);
    std::size_t pagines_abans = 1;
    for (int linies = 1; linies <= 85; ++linies) {
      SCOPED_TRACE(std::string(informe.informe) + " " + std::to_string(linies));
      Posar_Linia(informe.Tipus(), "n" + std::to_string(linies) + " Cargol", 1, 1);
      const Pagines fetes = Pagines_De(informe.Tipus());
      ASSERT_GE(fetes.pagines.size(), pagines_abans);
      ASSERT_LE(fetes.pagines.size(), pagines_abans + 1);
      pagines_abans = fetes.pagines.size();
      const auto peces = Peces_De(fetes.pagines.back());
      ASSERT_GT(Linies_De(peces, Zona_De_Linies(peces)), 0);
      ASSERT_NE(Cercar(peces, u"Total €"_qs), nullptr);
    }
    EXPECT_EQ(pagines_abans, 3U) << informe.informe;
  }
}

TEST_F(Documents_De_Paper, WithoutPricesNothingIsLeftOfTheirColumns) {
  for (const auto& informe : Informes_De_Documents()) {
    Posar_Document(informe.Tipus());
    Posar_Linies_Variades(informe.Tipus(), 12);
    Posar_Peu(informe.Tipus(), 100);
    const auto peces = Peces_De(Pagines_De(informe.Tipus(), false).pagines.front());
    const Peca* unitats = Cercar(peces, u"Unitats"_qs);
    ASSERT_NE(unitats, nullptr);
    const Zona zona = Zona_De_Linies(peces);
    for (const auto& peca : peces) {
      if (peca.lloc.top() > zona.dalt && peca.lloc.bottom() < zona.baix && !peca.text.startsWith(u'(')) {
        EXPECT_LT(peca.lloc.left(), unitats->lloc.right()) << peca.text.toStdString();
      }
    }
    EXPECT_NE(Cercar(peces, u"121,00"_qs), nullptr) << "the foot is printed all the same";
  }
}

// A title is never made smaller to fit, in any language.
TEST_F(Documents_De_Paper, TheTitlesFitInEveryLanguage) {
  for (const auto& descripcio : Informes_De_Documents()) {
    Posar_Document(descripcio.Tipus());
    Posar_Linies_Variades(descripcio.Tipus(), 5);
    Posar_Peu(descripcio.Tipus(), 100);
    for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
      sessio.Idioma_Actual = idioma;
      Informe informe(DR_Valorat(descripcio));
      informe.Traduir();
      for (const auto& estat : informe.Controls()) {
        if (estat.text.isEmpty()) continue;
        EXPECT_LE(Amplada(estat.text, Lletra(estat.control->lletra)), estat.lloc.width())
            << descripcio.informe << " " << idioma << " " << estat.text.toStdString();
      }
      const Pagines fetes = Pagines_De(descripcio.Tipus());
      for (const auto& pagina : fetes.pagines) Exigir_Que_Res_No_Se_Solapi(Peces_De(pagina));
    }
  }
}
