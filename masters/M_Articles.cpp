#include "masters/M_Articles.h"

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
#include "session/M_Usuaris.h"

namespace {

constexpr Lloc clau = {"ARTICLES", "CODI_ART"};
constexpr Lloc us[] = {{"ALBALMLIN", "ARTICLE_AAL"},    {"ALBARALIN", "ARTICLE_AL"},  {"ALBCOMPRALIN", "ARTICLE_ACL"},
                       {"COMANDALIN", "ARTICLE_CL"},    {"FACTURALIN", "ARTICLE_FL"}, {"MOVIMIENTOS", "ARTICULO_MOV"},
                       {"PRESSUPOSTLIN", "ARTICLE_PL"}, {"STOCK", "CODI_ART_ST"}};

struct Camp_Article {
  const char* columna;
  const char* defecte;  // what a null, and an unknown code, read as
};
constexpr std::array<Camp_Article, 10> camps = {{{"CODI_ART", ""},
                                                 {"DESCRIPCIO_ART", ""},
                                                 {"COST_ART", "0"},
                                                 {"IVA_ART", "GN"},
                                                 {"MARGE_ART", "0"},
                                                 {"DESCOMPTE_ART", "0"},
                                                 {"PVP_NET_ART", "0"},
                                                 {"STOCK_ART", "0"},
                                                 {"STOCK_MINIM_ART", "0"},
                                                 {"MAGATZEM_ART", ""}}};

// An article that stands in no table.
std::array<std::string, 10> Sense_Fila(const std::string& codi, const char* descripcio) {
  std::array<std::string, 10> dades;
  for (std::size_t i = 0; i < camps.size(); ++i) dades[i] = camps[i].defecte;
  dades[article::codi] = codi;
  dades[article::descripcio] = descripcio;
  return dades;
}

std::string Sentencia(const std::string& codi) {
  static const std::string sense_codi = [] {
    std::string columnes;
    for (const Camp_Article& camp : camps) columnes += (columnes.empty() ? "" : ", ") + std::string(camp.columna);
    return "SELECT " + columnes + " FROM ARTICLES WHERE CODI_ART = ";
  }();
  return sense_codi + Text_SQL(codi);
}

}  // namespace

std::array<std::string, 10> Dades_Article(const std::string& codi) {
  if (codi == "VAR") return Sense_Fila(codi, "Descripció Manual");
  const Recordset rs(Sentencia(codi), sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return Sense_Fila(codi, "???");
  std::array<std::string, 10> dades;
  for (std::size_t i = 0; i < camps.size(); ++i)
    dades[i] = Nul_A_Defecte(rs[static_cast<int>(i)], camps[i].defecte).Text();
  return dades;
}

void Demanar_Article(const std::string& codi) {
  const bool es_cercara = codi != "VAR" && codi.find('\'') == std::string::npos;  // a quote is refused by the look-up
  if (es_cercara) sessio.Connexio_Comuna.Demanar(Sentencia(codi));
}

std::string Magatzem_Article(const std::string& codi) {
  return Dades_Article(codi)[article::magatzem];
}

double Ultim_Cost(const std::string& codi) {
  return Nul_A_Defecte(Camp_De(clau, codi, "ULTIM_COST_ART")).Doble();
}

bool Article_Existeix(const std::string& codi) {
  return !Camp_De(clau, codi, "CODI_ART").Es_Nul();
}

void Avisar_Article_Existent() {
  sessio.pantalla->Caixa("Ja Existeix !!!", estil::critic, "Article");
}

bool Article_En_Us(const std::string& codi) {
  return Es_En_Us(us, codi);
}

std::string Nou_Article() {
  std::string codi = Proxim_Codi("ARTICLES");
  const Data_Hora avui = Avui();
  Crear_Fila("ARTICLES", {{"CODI_ART", codi},
                          {"DESCRIPCIO_ART", "Article " + codi},
                          {"IVA_ART", "GN"},
                          {"ALTA_ART", Data_Hora{avui.any, avui.mes, avui.dia}},
                          {"ACTIU_ART", true}});
  return codi;
}

void Esborrar_Article(const std::string& codi, const std::string& descripcio) {
  Esborrar_Mestre({"Segur d'esborrar l'article ", "¿Seguro de eliminar el artículo ", "Are you sure to delete item "},
                  descripcio, clau, codi, us);
}

namespace {

double Percentatge(double part, double total) {
  return Arrodonir(part * 100 / total, 5);
}

void Segueix_El_Preu(Preus& preus) {
  preus.pvp = Arrodonir(preus.cost * (1 + preus.marge / 100), 2);
  if (preus.pvp != 0) preus.descompte = Percentatge(preus.pvp - preus.cost, preus.pvp);
}

void Segueix_El_Cost(Preus& preus) {
  preus.cost = Arrodonir(preus.pvp * (1 - preus.descompte / 100), 2);
  if (preus.cost != 0) preus.marge = Percentatge(preus.pvp - preus.cost, preus.cost);
}

}  // namespace

// A new price makes the cost give way as soon as a margin or a discount has been set.
Preus Recalcular_Preus(const std::string& camp, Preus preus) {
  if (camp == "COST_ART" || camp == "MARGE_ART") {
    Segueix_El_Preu(preus);
  } else if (camp == "PVP_NET_ART" && preus.cost != 0 && preus.marge == 0 && preus.descompte == 0) {
    preus.marge = Percentatge(preus.pvp - preus.cost, preus.cost);
    if (preus.pvp != 0) preus.descompte = Percentatge(preus.pvp - preus.cost, preus.pvp);
  } else if (camp == "PVP_NET_ART" || camp == "DESCOMPTE_ART") {
    Segueix_El_Cost(preus);
  }
  return preus;
}

std::string SQL_Articles(const Criteris_Articles& criteris) {
  std::string condicions;
  const auto afegir = [&](const std::string& condicio) {
    condicions += (condicions.empty() ? " WHERE " : " AND ") + condicio;
  };
  const auto igual = [&](const char* columna, const std::string& codi) {
    if (!codi.empty() && codi != cap_article) afegir(std::string(columna) + " = " + Text_SQL(codi));
  };
  const auto conte = [&](const char* columna, const std::string& text) {
    if (!text.empty()) afegir(std::string(columna) + " LIKE " + Text_SQL('%' + text + '%'));
  };
  if (!criteris.actiu.empty()) afegir("ACTIU_ART = " + criteris.actiu);
  igual("FAMILIA_ART", criteris.familia);
  igual("SUBFAMILIA_ART", criteris.subfamilia);
  igual("MARCA_ART", criteris.marca);
  conte("CODI_ART", criteris.codi);
  conte("DESCRIPCIO_ART", criteris.descripcio);
  if (criteris.ultim_cost) afegir(" ULTIM_COST_ART <> COST_ART");
  return "SELECT CODI_ART, DESCRIPCIO_ART, FAMILIA_ART, F.DESCRIPCIO_FAM, SUBFAMILIA_ART, SF.DESCRIPCIO_SUBF, "
         "MARCA_ART, "
         "M.DESCRIPCIO_MAR, I.PORC_IVA, COST_ART, PVP_NET_ART, DESCOMPTE_ART, ACTIU_ART FROM (((ARTICLES LEFT JOIN "
         "FAMILIES "
         "AS F ON ARTICLES.FAMILIA_ART = F.CODI_FAM) LEFT JOIN SUBFAMILIES AS SF ON ARTICLES.SUBFAMILIA_ART = "
         "SF.CODI_SUBF) LEFT JOIN MARQUES AS M ON ARTICLES.MARCA_ART = M.CODI_MAR) LEFT JOIN IVAS AS I ON "
         "ARTICLES.IVA_ART = I.CODI_IVA" +
         condicions + " ORDER BY CODI_ART";
}

std::string SQL_Article(const std::string& codi) {
  return "SELECT * FROM ARTICLES WHERE CODI_ART = " + Codi_SQL(codi);
}
