// Articles as document lines need them. Reads ARTICLES.
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
