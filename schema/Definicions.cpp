#include "schema/Definicions.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Recordset.h"
#include "core/dades/Transaccio.h"
#include "schema/Fitxers_Encastats.h"
#include "schema/Textos.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view carpeta_passos = "upgrades/";
constexpr int primera_versio = 1;

// Tables of the local database whose rows an administrator writes; all others hold what the program puts there.
constexpr const char* taules_propies[] = {"CONFIGURACIO"};

void Carregar_Textos(Connexio& local) {
  Recordset rs("SELECT * FROM TEXTS WHERE F_LANGUAGE = -1", local, Bloqueig::Optimista);
  for (const auto& fila : Textos_De_Pantalles()) {
    for (std::size_t idioma = 0; idioma < fila.text.size(); ++idioma) {
      rs.AddNew();
      rs.Set("F_OBJECT", fila.objecte);
      rs.Set("F_LANGUAGE", static_cast<std::int64_t>(idioma));
      rs.Set("F_CONTROL", fila.control);
      rs.Set("F_PROPERTY", fila.propietat);
      rs.Set("F_TEXT", fila.text[idioma]);
      rs.Update();
    }
  }
}

// The columns that both know.
void Copiar_Files(Connexio& origen, Connexio& desti, const char* nom) {
  const Taula* vella = origen.Taules().Cercar(nom);
  if (vella == nullptr) return;
  for (Recordset rs("SELECT * FROM " + vella->nom, origen); !rs.Eof(); rs.MoveNext()) {
    std::vector<std::pair<std::string_view, Valor>> valors;
    for (const Columna& columna : desti.Taules().Cercar(nom)->columnes) {
      if (vella->Cercar(columna.nom) != nullptr) valors.emplace_back(columna.nom, rs[columna.nom]);
    }
    desti.Afegir_Fila(nom, valors);
  }
}

void Omplir_Local(Connexio& local) {
  Executar_Fitxer(local, Fitxer_Encastat("local.sql"));
  local.Execute("INSERT INTO VERSIO (EMPREMTA_VER) VALUES (" + Text_SQL(Empremta_Local()) + ")");
  Carregar_Textos(local);
}

void Crear_Fitxer_Privat(const std::string& cami) {
  Crear_Base_Dades(cami);
  fs::permissions(cami, fs::perms::owner_read | fs::perms::owner_write);
}

// What is to be kept of a local database, into a new one.
void Passar_Local(const std::string& cami, const std::string& nova) {
  Connexio origen;
  Connexio desti;
  origen.Open(cami);
  desti.Open(nova);
  En_Transaccio(desti, [&] {
    Omplir_Local(desti);
    for (const char* taula : taules_propies) Copiar_Files(origen, desti, taula);
  });
}

void Apuntar_Versio(Connexio& comuna, int numero) {
  comuna.Execute("DELETE * FROM VERSIO");
  comuna.Execute("INSERT INTO VERSIO (NUMERO_VER) VALUES (" + std::to_string(numero) + ")");
}

}  // namespace

void Executar_Fitxer(Connexio& connexio, std::string_view text) {
  std::string sentencia;
  for (std::size_t inici = 0; inici < text.size();) {
    const std::size_t fi = std::min(text.find('\n', inici), text.size());
    const std::string_view linia = text.substr(inici, fi - inici);
    inici = fi + 1;
    if (linia.starts_with("--")) continue;
    sentencia.append(linia).append(1, '\n');
    if (!linia.ends_with(';')) continue;
    connexio.Execute(sentencia);
    sentencia.clear();
  }
}

void Crear_Local(const std::string& cami) {
  Crear_Fitxer_Privat(cami);
  Connexio local;
  local.Open(cami);
  En_Transaccio(local, [&] { Omplir_Local(local); });
}

bool Es_Local_Al_Dia(Connexio& local) {
  const Taula* versio = local.Taules().Cercar("VERSIO");
  if (versio == nullptr || versio->Cercar("EMPREMTA_VER") == nullptr) return false;
  const Recordset rs("SELECT EMPREMTA_VER FROM VERSIO", local);
  return rs.RecordCount() == 1 && rs[0].Text() == Empremta_Local();
}

void Renovar_Local(const std::string& cami) {
  const std::string nova = cami + ".nova";
  try {
    Esborrar_Base_Dades(nova);  // what a start that was cut short left
    Crear_Fitxer_Privat(nova);
    Passar_Local(cami, nova);
    fs::rename(nova, cami);
    Esborrar_Base_Dades(nova);  // what stood beside it
  } catch (const fs::filesystem_error& error) {
    throw Error_Brollador(errors::general, "Renovar_Local", error.what());
  }
}

std::vector<Pas_De_Versio> Passos_De_Versio() {
  std::vector<Pas_De_Versio> passos;
  for (const auto& [nom, text] : Fitxers_Encastats()) {
    if (!nom.starts_with(carpeta_passos)) continue;
    int numero = 0;
    std::from_chars(nom.data() + carpeta_passos.size(), nom.data() + nom.size(), numero);
    passos.push_back({numero, nom});
  }
  std::sort(passos.begin(), passos.end(),
            [](const Pas_De_Versio& a, const Pas_De_Versio& b) { return a.numero < b.numero; });
  return passos;
}

int Versio_Del_Programa() {
  return Passos_De_Versio().back().numero;
}

int Versio_De(Connexio& comuna) {
  if (comuna.Taules().Cercar("VERSIO") == nullptr) return primera_versio;
  const Recordset rs("SELECT NUMERO_VER FROM VERSIO", comuna);
  return rs.RecordCount() == 0 ? primera_versio : static_cast<int>(rs[0].Enter());
}

void Definir_Comuna(Connexio& comuna) {
  Executar_Fitxer(comuna, Fitxer_Encastat("comuna.sql"));
  Apuntar_Versio(comuna, Versio_Del_Programa());
}

void Fer_Pas(Connexio& comuna, const Pas_De_Versio& pas) {
  En_Transaccio(comuna, [&] {
    comuna.Renovar_Funcions();
    Executar_Fitxer(comuna, Fitxer_Encastat(pas.fitxer));
    Apuntar_Versio(comuna, pas.numero);
  });
}
