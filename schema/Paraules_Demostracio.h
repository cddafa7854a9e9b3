// The words that the demonstration's customers, articles and remarks are made of. All invented.
#pragma once

#include <array>

namespace demostracio {

struct Localitat {
  const char* cp;
  const char* nom;
  const char* provincia;
};
inline constexpr std::array<Localitat, 12> localitats = {{
    {"17001", "Girona", "Girona"},
    {"17800", "Olot", "Girona"},
    {"17600", "Figueres", "Girona"},
    {"17820", "Banyoles", "Girona"},
    {"17200", "Palafrugell", "Girona"},
    {"17430", "Santa Coloma de Farners", "Girona"},
    {"08500", "Vic", "Barcelona"},
    {"08001", "Barcelona", "Barcelona"},
    {"08720", "Vilafranca del Penedès", "Barcelona"},
    {"08700", "Igualada", "Barcelona"},
    {"25001", "Lleida", "Lleida"},
    {"43001", "Tarragona", "Tarragona"},
}};

inline constexpr std::array cognoms = {
    "Puig",     "Serra",  "Vila",   "Ferrer",  "Roca",       "Soler",    "Bosch", "Pujol",   "Camps", "Àlvarez",
    "Masó",     "Riera",  "Coll",   "Torrent", "Mercader",   "Planella", "Güell", "Sunyer",  "Vidal", "Canals",
    "Teixidor", "Çalvet", "Noguer", "Ribes",   "Ombravella", "Fàbregas", "Llach", "Oliveras"};
inline constexpr std::array noms = {"Montserrat", "Jordi", "Núria",  "Àngels", "Pere",
                                    "Mercè",      "Quim",  "Dolors", "Òscar",  "Laia"};
inline constexpr std::array oficis = {"Fusteria",    "Construccions", "Instal·lacions", "Jardineria",
                                      "Lampisteria", "Pintures",      "Reformes",       "Serralleria",
                                      "Restaurant",  "Tallers",       "Excavacions",    "Electricitat"};
inline constexpr std::array carrers = {"Carrer Major",     "Carrer de la Font", "Passeig de l’Onyar", "Carrer Nou",
                                       "Avinguda del Pla", "Plaça del Mercat",  "Carrer dels Horts",  "Camí Ral"};
inline constexpr std::array acabats = {"galvanitzat", "inoxidable", "lacat blanc", "natural", "reforçat", "lleuger"};
inline constexpr std::array marques = {"Tramun", "Garbí", "Ponent", "Xaloc", "Mestral", "Llevant", "Migjorn"};
inline constexpr std::array observacions = {"Lliurar abans de les 12 h", "Avisar per telèfon",
                                            "Deixar al magatzem del client", "Recollit a la botiga",
                                            "Falta part de la comanda"};

struct Familia {
  const char* nom;
  std::array<const char*, 4> peces;
  const char* mida;
  int pas;          // of the sizes: 50 W, 100 W...
  bool amb_acabat;  // a nail has a finish, a plant has none
  double cost;      // euros, around which the prices of the family lie
  const char* iva;
};
inline constexpr std::array<Familia, 10> families = {{
    {"Cargoleria", {"Cargol", "Femella", "Volandera", "Tac"}, "mm", 1, true, 0.35, "GN"},
    {"Eines de mà", {"Martell", "Tornavís", "Alicates", "Serra"}, "cm", 1, true, 9.5, "GN"},
    {"Màquines", {"Trepant", "Polidora", "Caladora", "Fresadora"}, "W", 50, true, 95, "GN"},
    {"Fusta", {"Llistó", "Tauler", "Post", "Sòcol"}, "cm", 5, true, 6.2, "GN"},
    {"Pintura", {"Esmalt", "Vernís", "Pintura plàstica", "Imprimació"}, "l", 1, false, 14, "GN"},
    {"Lampisteria", {"Colze", "Vàlvula", "Aixeta", "Tub"}, "mm", 1, true, 4.8, "GN"},
    {"Electricitat", {"Endoll", "Interruptor", "Cable", "Làmpada"}, "A", 1, true, 5.6, "GN"},
    {"Jardí", {"Planter", "Adob", "Llavor de gespa", "Escorça"}, "kg", 1, false, 7.3, "RD"},
    {"Hort",
     {"Planta de tomàquet", "Patata de sembra", "Llavor de mongeta", "Planta de carbassó"},
     "u",
     1,
     false,
     1.1,
     "SR"},
    {"Ferratges", {"Frontissa", "Pany", "Maneta", "Cadenat"}, "mm", 1, true, 11, "GN"},
}};

}  // namespace demostracio
