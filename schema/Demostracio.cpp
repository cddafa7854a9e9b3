#include "schema/Demostracio.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <functional>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Dates.h"
#include "masters/M_Articles.h"
#include "masters/M_Clients.h"
#include "sales/M_Albarans.h"
#include "sales/M_Tipus_Venda.h"
#include "schema/Paraules_Demostracio.h"
#include "stock/M_Magatzems.h"

namespace {

constexpr int clients = 120;
constexpr int proveidors = 25;
constexpr int articles = 600;
constexpr int dies_feiners_d_albarans = 86;  // four months
constexpr const char* empresa = "B17000017";
constexpr const char* nom_empresa = "Subministraments Riudaura SL";

// A small generator of our own: the demonstration is the same on every machine.
class Sort {
 public:
  int Fins(int limit) {  // from 0 to limit - 1
    estat_ = estat_ * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<int>((estat_ >> 33) % static_cast<std::uint64_t>(limit));
  }
  bool Una_De(int quantes) { return Fins(quantes) == 0; }
  template <class Llista>
  const char* De(const Llista& llista) {
    return llista[static_cast<std::size_t>(Fins(static_cast<int>(llista.size())))];
  }

 private:
  std::uint64_t estat_ = 20260101;
};

std::string Codi(const char* prefix, int numero, std::size_t xifres) {
  const std::string text = std::to_string(numero);
  return prefix + std::string(xifres - std::min(xifres, text.size()), '0') + text;
}

// Nobody sits at the screen while the demonstration is made: every question is answered yes.
class Pantalla_Muda : public Pantalla {
 public:
  Resposta Obrir_Caixa(const std::string& text, int estil, const std::string&) override {
    if ((estil & 0x0F) == estil::simple && text.find("sota mínims") == std::string::npos) {
      throw Error_Brollador(errors::general, "Demostracio", text);
    }
    return Resposta::Ok;
  }
  bool Formulari_Carregat(std::string_view) const override { return false; }
  Document_Obert* Document(std::string_view) override { return nullptr; }
  void Processar_Events() override {}
  void Esperar(std::int32_t) override {}
  void Bloquejar_Entrada() override {}
  void Alliberar_Entrada() override {}
  std::string Obrir_Tria_Empresa(const std::string& actual, int) override { return actual; }
  void Menu_Habilitat(std::string_view, bool) override {}
  void Menu_Visible(std::string_view, bool) override {}
  void Menu_Marcat(std::string_view, bool) override {}
  void Menu_Text(std::string_view, const std::string&) override {}
};

// The head of a note while its lines are made.
class Albara_En_Curs : public Document_Obert {
 public:
  explicit Albara_En_Curs(bool re) : re_(re) {}
  Valor Numero_Document() const override { return 0; }
  bool Re_Marcat() const override { return re_; }
  void Posar_Import(double euros) override { import = euros; }
  void Posar_Estat(bool) override {}
  void Posar_Pagament(bool) override {}
  void Desar_Capcalera() override {}
  void Refrescar_Peu() override {}
  double import = 0;

 private:
  bool re_;
};

// The session of whoever makes the demonstration, and everything put back at the end.
class Sessio_De_Demostracio {
 public:
  explicit Sessio_De_Demostracio(const Opcions_Installacio& opcions) {
    sessio.pantalla = &pantalla_;
    sessio.Connexio_Comuna.Open(Adreca_Compartida(opcions));
    sessio.Connexio_Local.Open(opcions.carpeta + "/dadeslocals.db");
    sessio.Empresa_Actual = empresa;
    sessio.Nom_Empresa = nom_empresa;
    sessio.Usuari_Actual = "ADMIN";
    sessio.P_Albarans = sessio.P_Comandes = "M";
  }
  ~Sessio_De_Demostracio() {
    Deixar_Anar_Rellotge();
    sessio.Connexio_Local.Close();
    sessio.Connexio_Comuna.Close();
    sessio.pantalla = nullptr;
  }
  Sessio_De_Demostracio(const Sessio_De_Demostracio&) = delete;
  Sessio_De_Demostracio& operator=(const Sessio_De_Demostracio&) = delete;

 private:
  Pantalla_Muda pantalla_;
};

void Afegir(Recordset& rs, const std::vector<std::pair<const char*, Valor>>& camps) {
  rs.AddNew();
  for (const auto& [camp, valor] : camps) rs.Set(camp, valor);
  rs.Update();
}

Recordset& Obrir_Buit(Recordset& rs, const std::string& taula) {
  const std::string clau = sessio.Connexio_Comuna.Taules().Cercar(taula)->columnes.front().nom;
  rs.Open("SELECT * FROM " + taula + " WHERE " + clau + " = '-'", sessio.Connexio_Comuna, Bloqueig::Optimista);
  return rs;
}

void Fer_Empresa() {
  Recordset rs("SELECT * FROM EMPRESES", sessio.Connexio_Comuna, Bloqueig::Optimista);
  rs.Set("NOM_COMERCIAL_EMP", "Riudaura");
  rs.Set("ADREÇA_EMP", "Polígon Les Forques, nau 14");
  rs.Set("CP_EMP", "17001");
  rs.Set("LOCALITAT_EMP", "Girona");
  rs.Set("TELEFON_EMP", "972 000 017");
  rs.Set("EMAIL_EMP", "oficina@riudaura.example");
  rs.Set("COMENTARI_EMP", "Ferreteria, fusteria i jardí");
  rs.Update();
}

void Fer_Taules_De_Referencia() {
  Recordset rs;
  Afegir(Obrir_Buit(rs, "ALMACENES"), {{"CODI_ALM", "2"}, {"DESC_ALM", "Botiga"}, {"STOCK_NEG_ALM", true}});
  for (const auto& [cp, localitat, provincia] : demostracio::localitats) {
    Afegir(Obrir_Buit(rs, "CP"),
           {{"CP_CP", cp}, {"LOCALITAT_CP", localitat}, {"PROVINCIA_CP", provincia}, {"PAIS_CP", "Espanya"}});
  }
  int codi = 0;
  for (const auto& familia : demostracio::families) {
    Afegir(Obrir_Buit(rs, "FAMILIES"), {{"CODI_FAM", Codi("", ++codi, 2)}, {"DESCRIPCIO_FAM", familia.nom}});
  }
  codi = 0;
  for (const char* nom : demostracio::acabats) {
    Afegir(Obrir_Buit(rs, "SUBFAMILIES"), {{"CODI_SUBF", Codi("", ++codi, 2)}, {"DESCRIPCIO_SUBF", nom}});
  }
  codi = 0;
  for (const char* nom : demostracio::marques) {
    Afegir(Obrir_Buit(rs, "MARQUES"), {{"CODI_MAR", Codi("", ++codi, 2)}, {"DESCRIPCIO_MAR", nom}});
  }
}

std::string Nom_De_Client(Sort& sort, int numero) {
  const std::string cognom = sort.De(demostracio::cognoms);
  const std::string segon = sort.De(demostracio::cognoms);
  if (numero % 4 == 0) return std::string(sort.De(demostracio::noms)) + " " + cognom + " " + segon;
  return std::string(sort.De(demostracio::oficis)) + " " + cognom + (sort.Una_De(3) ? " i Fills SL" : " SL");
}

void Fer_Clients(Sort& sort) {
  Recordset rs;
  Obrir_Buit(rs, "CLIENTS");
  for (int i = 1; i <= clients; ++i) {
    const auto& [cp, localitat, provincia] =
        demostracio::localitats[static_cast<std::size_t>(sort.Fins(static_cast<int>(demostracio::localitats.size())))];
    const bool sense_iva = i % 40 == 0;
    Afegir(rs, {{"NIF_CLI", Codi(i % 4 == 0 ? "4" : "B", 17000100 + i * 37, 8)},
                {"CODI_CLIENT_CLI", Codi("", i, 4)},
                {"RAO_SOCIAL_CLI", Nom_De_Client(sort, i)},
                {"ADREÇA_CLI", std::string(sort.De(demostracio::carrers)) + ", " + std::to_string(1 + sort.Fins(120))},
                {"CP_CLI", cp},
                {"LOCALITAT_CLI", localitat},
                {"TELEFON_CLI", Codi("972 ", 100000 + sort.Fins(899999), 6)},
                {"EMAIL_CLI", i % 2 == 0 ? Valor("client" + std::to_string(i) + "@exemple.example") : Valor()},
                {"VENCIMENT_CLI", i % 3 == 0   ? "3060"
                                  : i % 3 == 1 ? "30"
                                               : "NO"},
                {"IVA_CLI", !sense_iva},
                {"RE_CLI", !sense_iva && i % 11 == 0}});
  }
}

// Those that are persons have a birthday.
void Fer_Dades_De_Clients() {
  Recordset persones("SELECT NIF_CLI, RAO_SOCIAL_CLI FROM CLIENTS WHERE NIF_CLI LIKE '4%' ORDER BY NIF_CLI",
                     sessio.Connexio_Comuna);
  Recordset rs;
  Obrir_Buit(rs, "CLIENTS_DADES");
  for (int i = 1; !persones.Eof(); persones.MoveNext(), ++i) {
    Afegir(rs, {{"NIF_CLID", persones["NIF_CLI"]},
                {"CLIENT_DESC_CLID", persones["RAO_SOCIAL_CLI"]},
                {"NAIXEMENT_CLID", Data_Serial(1950 + i % 45, 1, 1 + i * 11)},
                {"PROFESSIO_CLID", demostracio::oficis[static_cast<std::size_t>(i) % demostracio::oficis.size()]}});
  }
}

void Fer_Proveidors(Sort& sort) {
  Recordset rs;
  Obrir_Buit(rs, "PROVEIDORS");
  for (int i = 1; i <= proveidors; ++i) {
    Afegir(rs, {{"NIF_PRO", Codi("A", 8000200 + i * 53, 8)},
                {"RAO_SOCIAL_PRO", std::string("Distribucions ") + sort.De(demostracio::cognoms) + " SA"},
                {"TELEFON_PRO", Codi("93 ", 1000000 + sort.Fins(8999999), 7)},
                {"VENCIMENT_PRO", "30"},
                {"IVA_PRO", true}});
  }
}

std::string Descripcio_D_Article(Sort& sort, const demostracio::Familia& familia, int acabat) {
  std::string descripcio = sort.De(familia.peces);
  if (familia.amb_acabat) descripcio += std::string(" ") + demostracio::acabats[static_cast<std::size_t>(acabat)];
  return descripcio + " " + std::to_string(familia.pas * (2 + sort.Fins(30))) + " " + familia.mida;
}

// Cost, margin, price and discount stand in the relation that the article's own screen keeps.
void Fer_Articles(Sort& sort) {
  Recordset rs;
  Obrir_Buit(rs, "ARTICLES");
  const int quantes_families = static_cast<int>(demostracio::families.size());
  for (int i = 1; i <= articles; ++i) {
    const int familia = (i - 1) % quantes_families;
    const auto& peca = demostracio::families[static_cast<std::size_t>(familia)];
    const int acabat = sort.Fins(static_cast<int>(demostracio::acabats.size()));
    const double cost = Arrodonir(peca.cost * (0.5 + sort.Fins(150) / 100.0), 2);
    const double marge = 20 + 5 * sort.Fins(7);
    const double pvp = Arrodonir(cost * (1 + marge / 100), 2);
    Afegir(rs, {{"CODI_ART", Codi("", i, 10)},
                {"DESCRIPCIO_ART", Descripcio_D_Article(sort, peca, acabat)},
                {"FAMILIA_ART", Codi("", familia + 1, 2)},
                {"SUBFAMILIA_ART", Codi("", acabat + 1, 2)},
                {"MARCA_ART", Codi("", 1 + sort.Fins(static_cast<int>(demostracio::marques.size())), 2)},
                {"IVA_ART", peca.iva},
                {"PROVEIDOR_ART", Codi("A", 8000200 + (1 + sort.Fins(proveidors)) * 53, 8)},
                {"COST_ART", cost},
                {"ULTIM_COST_ART", cost},
                {"MARGE_ART", marge},
                {"PVP_NET_ART", pvp},
                {"DESCOMPTE_ART", pvp == 0 ? 0 : Arrodonir((pvp - cost) * 100 / pvp, 5)},
                {"ALTA_ART", Data_Serial(Avui().any, 1, 2)},
                {"STOCK_ART", true},
                {"STOCK_MINIM_ART", sort.Una_De(5) ? 10.0 : 0.0},
                {"MAGATZEM_ART", i % 3 == 0 ? "2" : "1"},
                {"ACTIU_ART", true}});
  }
}

// The goods come in at the beginning, more than what will go out of the warehouse that may not go below zero.
void Entrar_Existencies(Sort& sort) {
  for (int i = 1; i <= articles; ++i) {
    const int unitats = 150 + sort.Fins(300);
    Moviment_Compra(+1, Preparar_Article_Estoc(Codi("", i, 10), unitats), unitats, "1");
  }
}

Linia_Entrada Linia_A_L_Atzar(Sort& sort) {
  Linia_Entrada linia;
  linia.article = Codi("", 1 + sort.Fins(articles), 10);
  const auto dades = Dades_Article(linia.article);
  const auto numero = [&](article::Posicio posicio) { return Valor(dades[posicio]).Doble(); };
  linia.descripcio = dades[article::descripcio];
  linia.iva_article = dades[article::iva];
  linia.cost = numero(article::cost);
  linia.porc_marge = numero(article::marge);
  linia.dte_article = numero(article::descompte);
  linia.preu_unitari = numero(article::pvp_net);
  linia.unitats = sort.Una_De(6) ? 0.5 + sort.Fins(8) : 1 + sort.Fins(12);
  linia.dte = sort.Una_De(7) ? 5 : 0;
  return linia;
}

void Fer_Albara(Sort& sort, const std::vector<std::string>& nifs) {
  const std::string& nif = nifs[static_cast<std::size_t>(sort.Fins(static_cast<int>(nifs.size())))];
  const bool iva = Client_Te_IVA(nif);
  const bool re = iva && Client_Te_RE(nif);
  const std::int64_t numero = Crear_Capcalera_Albara();
  Albara_En_Curs obert(re);
  Recordset linies(SQL_Linies(tipus_albara, numero, empresa), sessio.Connexio_Comuna, Bloqueig::Optimista);
  const Capcalera_Oberta cap{.numero = numero, .empresa = empresa, .iva = iva, .re = re};
  for (int quantes = 1 + sort.Fins(8); quantes > 0; --quantes)
    Afegir_Linia_Albara(cap, Linia_A_L_Atzar(sort), linies, obert);
  Recordset capcalera(SQL_Capcalera(tipus_albara, numero, empresa), sessio.Connexio_Comuna, Bloqueig::Optimista);
  capcalera.Set("CLIENT_AC", nif);
  capcalera.Set("CLIENT_DESC_AC", Dades_Client(nif)[1]);
  capcalera.Set("IVA_AC", iva);
  capcalera.Set("RE_AC", re);
  if (sort.Una_De(5)) capcalera.Set("OBSR_AC", sort.De(demostracio::observacions));
  capcalera.Set("IMPORT_AC", obert.import);
  capcalera.Update();
}

bool Es_Feiner(const Data_Hora& dia) {
  using namespace std::chrono;
  const year_month_day data(year(dia.any), month(static_cast<unsigned>(dia.mes)), day(static_cast<unsigned>(dia.dia)));
  return weekday(sys_days(data)).iso_encoding() < 6;
}

// The last working days up to today, the oldest first.
std::vector<Data_Hora> Dies_Feiners() {
  const Data_Hora avui = Avui();
  std::vector<Data_Hora> dies;
  for (int enrere = 0; std::ssize(dies) < dies_feiners_d_albarans; ++enrere) {
    const Data_Hora dia = Data_Serial(avui.any, avui.mes, avui.dia - enrere);
    if (Es_Feiner(dia)) dies.push_back(dia);
  }
  std::reverse(dies.begin(), dies.end());
  return dies;
}

// A few notes every working day of the last months.
void Fer_Albarans(Sort& sort) {
  std::vector<std::string> nifs;
  for (Recordset rs("SELECT NIF_CLI FROM CLIENTS ORDER BY NIF_CLI", sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext()) {
    nifs.push_back(rs["NIF_CLI"].Text());
  }
  for (const Data_Hora& dia : Dies_Feiners()) {
    Fixar_Avui(dia);
    for (int quants = 2 + sort.Fins(3); quants > 0; --quants) Fer_Albara(sort, nifs);
  }
}

void Fer_Any(const Opcions_Installacio& opcions) {
  const Sessio_De_Demostracio feina(opcions);
  Sort sort;
  Transaccio transaccio(sessio.Connexio_Comuna);
  Fer_Empresa();
  Fer_Taules_De_Referencia();
  Fer_Clients(sort);
  Fer_Dades_De_Clients();
  Fer_Proveidors(sort);
  Fer_Articles(sort);
  Entrar_Existencies(sort);
  Fer_Albarans(sort);
  transaccio.Confirmar();
}

}  // namespace

void Crear_Demostracio(const Opcions_Installacio& opcions) {
  const Primera_Empresa riudaura{.nif = empresa, .rao_social = nom_empresa, .contrasenya = ""};
  Crear_Buida(opcions, riudaura, [&] { Fer_Any(opcions); });
}
