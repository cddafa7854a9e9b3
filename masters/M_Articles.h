// Articles. Reads ARTICLES, its reference tables and whatever names an article; writes ARTICLES.
#pragma once

#include <array>
#include <string>

// Positions of Dades_Article.
namespace article {
enum Posicio { codi, descripcio, cost, iva, marge, descompte, pvp_net, porta_stock, stock_minim, magatzem };
}

// Ten texts; "VAR" is answered without a query ("Descripció Manual", "GN"), an unknown code with "???".
std::array<std::string, 10> Dades_Article(const std::string& codi);
void Demanar_Article(const std::string& codi);          // Dades_Article will be wanted soon (Connexio::Demanar)
std::string Magatzem_Article(const std::string& codi);  // empty for VAR and for an unknown code

double Ultim_Cost(const std::string& codi);  // euros; 0 for an unknown code
bool Article_Existeix(const std::string& codi);
void Avisar_Article_Existent();  // the box of a code that is taken
bool Article_En_Us(const std::string& codi);
std::string Nou_Article();  // its code; raises 80004005 when another terminal took it at the same moment
void Esborrar_Article(const std::string& codi, const std::string& descripcio);  // asks; nothing when in use

// The four that stand in a relation.
struct Preus {
  double cost = 0;       // euros
  double marge = 0;      // percent on cost
  double pvp = 0;        // euros, net
  double descompte = 0;  // percent off the price that leads back to the cost
  bool operator==(const Preus&) const = default;
};
// The others follow the one that changed, told by its column: COST_ART, MARGE_ART, PVP_NET_ART or DESCOMPTE_ART. Any
// other column changes nothing.
Preus Recalcular_Preus(const std::string& camp, Preus preus);

struct Criteris_Articles {
  std::string familia = {};
  std::string subfamilia = {};
  std::string marca = {};
  std::string codi = {};        // a part of it
  std::string descripcio = {};  // a part of it
  std::string actiu = {};       // -1 or 0
  bool ultim_cost = false;      // only those whose last cost is another
};
// What no article holds: a list that opens with it opens empty.
inline const std::string cap_article = "NULO";
std::string SQL_Articles(const Criteris_Articles& criteris);
std::string SQL_Article(const std::string& codi);
