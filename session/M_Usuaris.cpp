#include "session/M_Usuaris.h"

#include <algorithm>
#include <array>

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
#include "session/M_Empresa.h"
#include "session/M_Idiomes.h"

namespace {

struct Dret {
  const char* columna;
  std::string Sessio::*lletra;
};
constexpr std::array<Dret, 10> drets = {{{"P_CLIENTS", &Sessio::P_Clients},
                                         {"P_PROVEIDORS", &Sessio::P_Proveidors},
                                         {"P_ARTICLES", &Sessio::P_Articles},
                                         {"P_USUARIS", &Sessio::P_Usuaris},
                                         {"P_CP", &Sessio::P_CP},
                                         {"P_VENCIMENTS", &Sessio::P_Venciments},
                                         {"P_PRESSUPOSTOS", &Sessio::P_Pressupostos},
                                         {"P_COMANDES", &Sessio::P_Comandes},
                                         {"P_ALBARANS", &Sessio::P_Albarans},
                                         {"P_FACTURES", &Sessio::P_Factures}}};

// The right behind each entry of the menu: companies go by the right over articles.
struct Entrada_Amb_Dret {
  const char* entrada;
  std::string Sessio::*lletra;
};
constexpr std::array<Entrada_Amb_Dret, 20> entrades_amb_dret = {
    {{"M_Empresa", &Sessio::P_Articles},          {"M_Marques", &Sessio::P_Articles},
     {"M_Families", &Sessio::P_Articles},         {"M_Subfamilies", &Sessio::P_Articles},
     {"M_Articles_C", &Sessio::P_Articles},       {"M_Magatzems", &Sessio::P_Articles},
     {"M_Stocks", &Sessio::P_Articles},           {"M_Moviments", &Sessio::P_Articles},
     {"M_Usuaris", &Sessio::P_Usuaris},           {"M_Clients", &Sessio::P_Clients},
     {"M_Proveidors", &Sessio::P_Proveidors},     {"M_Venciments", &Sessio::P_Venciments},
     {"M_FormesPagament", &Sessio::P_Venciments}, {"M_CP", &Sessio::P_CP},
     {"M_Pressupostos", &Sessio::P_Pressupostos}, {"M_Comandes", &Sessio::P_Comandes},
     {"M_Albarans", &Sessio::P_Albarans},         {"M_Factures", &Sessio::P_Factures},
     {"M_AlbMag", &Sessio::P_Albarans},           {"M_Compres", &Sessio::P_Albarans}}};

constexpr std::array entrades_de_sessio = {"M_Gestio", "M_Forms",       "M_Search",      "M_Languages", "M_Windows",
                                           "M_Help",   "M_CanviUsuari", "M_Sel_Empresa", "M_COPIA"};
constexpr std::array entrades_de_moduls = {"M_Empresa",     "M_Usuaris",    "M_Articles_C",    "M_Magatzems",
                                           "M_Stocks",      "M_Moviments",  "M_Clients",       "M_Proveidors",
                                           "M_CP",          "M_Venciments", "M_Marques",       "M_Families",
                                           "M_Subfamilies", "M_IVA",        "M_FormesPagament"};
constexpr std::array entrades_idiomes = {"M_Catalan", "M_Spanish", "M_English"};

std::string Sentencia_Usuari(const std::string& usuari) {
  return "SELECT * FROM USUARIS WHERE CODI_USU = " + Text_SQL(usuari) + " AND ACTIU_USU = 'S'";
}

template <typename Entrades>
void Habilitar(const Entrades& entrades, bool habilitat) {
  for (const char* entrada : entrades) sessio.pantalla->Menu_Habilitat(entrada, habilitat);
}

// The company where the user worked last, or the one that the chooser gives when that one is gone.
void Obrir_Empresa(const std::string& empresa) {
  if (Empresa_Existeix(empresa)) {
    sessio.Empresa_Actual = empresa;
    sessio.Nom_Empresa = Nom_De_Empresa(empresa);
    return;
  }
  Demanar_Empresa();
}

bool Parametre_Es(const char* nom, const char* valor) {
  const auto trobat = sessio.Parametres.find(nom);
  return trobat != sessio.Parametres.end() && trobat->second == valor;
}

// A parameter that holds a truth value; true when it is absent. Raises 13 when it holds anything else.
bool Parametre_Cert(const char* nom) {
  const auto trobat = sessio.Parametres.find(nom);
  if (trobat == sessio.Parametres.end()) return true;
  std::string text = trobat->second;
  std::replace(text.begin(), text.end(), '.', ',');
  return Valor(text).Boolea();
}

void Llegir_Drets(const std::string& usuari) {
  const Recordset rs(Sentencia_Usuari(usuari), sessio.Connexio_Comuna);
  const bool existeix = rs.RecordCount() > 0;
  for (const Dret& dret : drets) sessio.*dret.lletra = existeix ? rs[dret.columna].Text() : "X";
  if (Parametre_Es("P_Comandes", "X")) sessio.P_Comandes = "X";
}

}  // namespace

bool Iniciar_Sessio(const std::string& usuari, const std::string& contrasenya) {
  const Recordset rs(Sentencia_Usuari(usuari), sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0 || rs["CLAU_USU"].Text() != contrasenya) return false;
  sessio.Usuari_Actual = rs["CODI_USU"].Text();
  sessio.Nom_Usuari = rs["DESCRIPCIO_USU"].Text();
  Posar_Idioma_Sessio(static_cast<std::int16_t>(Nul_A_Defecte(rs["IDIOMA_USU"]).Enter()));
  Obrir_Empresa(rs["EMPRESA_USU"].Text());
  return true;
}

void Habilitar_Menus(bool sessio_iniciada) {
  sessio.pantalla->Menu_Habilitat("M_Mestres", true);
  if (!sessio_iniciada) {
    sessio.pantalla->Menu_Habilitat("M_Exit", true);
    Habilitar(entrades_de_moduls, false);
  }
  Habilitar(entrades_de_sessio, sessio_iniciada);
}

void Carregar_Drets(const std::string& usuari) {
  Llegir_Drets(usuari);
  for (const auto& [entrada, lletra] : entrades_amb_dret)
    sessio.pantalla->Menu_Habilitat(entrada, Te_Acces(sessio.*lletra));
  sessio.pantalla->Menu_Habilitat("M_IVA", sessio.Usuari_Actual == "ADMIN");
  sessio.pantalla->Menu_Habilitat("M_Exit", true);
  sessio.pantalla->Menu_Visible("M_Pressupostos", Parametre_Cert("M_Pressupostos_Visible"));
  sessio.pantalla->Menu_Visible("M_Comandes", Parametre_Cert("M_Comandes_Visible"));
  Habilitar_Menus(true);
}

bool Te_Acces(const std::string& dret) {
  return dret == "C" || dret == "S" || dret == "M";
}

void Actualitzar_Menu_Sessio() {
  for (std::size_t idioma = 0; idioma < entrades_idiomes.size(); ++idioma) {
    sessio.pantalla->Menu_Marcat(entrades_idiomes[idioma], static_cast<int>(idioma) == sessio.Idioma_Actual);
  }
  const std::string paraula = Missatge("Usuari: ", "Usuario: ", "User: ");
  sessio.pantalla->Menu_Text("M_CanviUsuari", paraula.empty() ? paraula : paraula + sessio.Nom_Usuari);
  sessio.pantalla->Menu_Text("M_Sel_Empresa", Titol_Menu_Empresa());
}

std::string Nou_Usuari() {
  std::string codi = Proxim_Codi("USUARIS");
  std::vector<std::pair<std::string_view, Valor>> valors = {{"CODI_USU", codi},
                                                            {"DESCRIPCIO_USU", "Usuari" + codi},
                                                            {"CLAU_USU", ""},
                                                            {"ACTIU_USU", "S"},
                                                            {"IDIOMA_USU", sessio.Idioma_Actual}};
  for (const Dret& dret : drets) valors.emplace_back(dret.columna, "X");
  Crear_Fila("USUARIS", valors);
  return codi;
}

void Esborrar_Usuari(const std::string& codi, const std::string& descripcio) {
  if (!Confirmar({"Segur d'esborrar l'usuari ", "¿Seguro de eliminar el usuario ", "Are you sure to delete user "},
                 descripcio))
    return;
  if (codi == "ADMIN" || codi == sessio.Usuari_Actual) {
    sessio.pantalla->Caixa(Missatge("No es pot esborrar ni l'Administrador ni l'usuari Actual.",
                                    "No se pueden eliminar ni Administrador ni el usuario actual.",
                                    "Unable to delete Admin or current User."),
                           estil::simple);
    return;
  }
  sessio.Connexio_Comuna.Execute("DELETE * FROM USUARIS WHERE CODI_USU = " + Codi_SQL(codi));
}

std::string SQL_Usuaris() {
  // A user without a language, as an older installation may hold one, is in the list too.
  return "SELECT CODI_USU, DESCRIPCIO_USU, ACTIU_USU, DESCRIPTION FROM USUARIS LEFT JOIN LANGUAGES ON "
         "USUARIS.IDIOMA_USU = LANGUAGES.ID";
}

std::string SQL_Usuari(const std::string& codi) {
  std::string columnes = "CODI_USU, DESCRIPCIO_USU, CLAU_USU, ACTIU_USU, IDIOMA_USU";
  for (const Dret& dret : drets) columnes += std::string(", ") + dret.columna;
  return "SELECT " + columnes + " FROM USUARIS WHERE CODI_USU = " + Codi_SQL(codi);
}

bool Es_Actiu_Valid(const std::string& valor) {
  return valor == "S" || valor == "N";
}
void Avisar_Actiu_Invalid() {
  sessio.pantalla->Caixa(Missatge("Valors Autoritzats: S/N", "Valores Autorizados: S/N", "Allowed Values: S/N"),
                         estil::critic);
}
void Avisar_Sense_Idioma() {
  sessio.pantalla->Caixa(Missatge("Cal triar un idioma.", "Hay que elegir un idioma.", "A language has to be chosen."),
                         estil::critic);
}
bool Es_Dret_Valid(const std::string& valor) {
  return valor == "M" || valor == "C" || valor == "X";
}
void Avisar_Dret_Invalid() {
  sessio.pantalla->Caixa(Missatge("Valors Autoritzats: M/C/X", "Valores Autorizados: M/C/X", "Allowed Values: M/C/X"),
                         estil::critic);
}
