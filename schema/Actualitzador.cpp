#include "schema/Actualitzador.h"

#include <ctime>
#include <filesystem>
#include <map>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Recordset.h"
#include "schema/Definicions.h"

namespace {

using Recompte = std::map<std::string, std::int64_t>;

[[noreturn]] void Plegar_Veles(const std::string& motiu) {
  throw Error_Brollador(errors::general, "brollador-install", motiu);
}

void Exigir_Sana(Connexio& connexio) {
  if (const std::string defectes = connexio.Comprovar_Integritat(); !defectes.empty()) {
    Plegar_Veles("the database is not sound: " + defectes);
  }
}

// Terminals that hold a document, by their names.
void Exigir_Ningu(Connexio& comuna) {
  std::string terminals;
  for (Recordset rs("SELECT EQUIP_LCK FROM LOCKS GROUP BY EQUIP_LCK", comuna); !rs.Eof(); rs.MoveNext()) {
    terminals += (terminals.empty() ? "" : ", ") + rs[0].Text();
  }
  if (terminals.empty()) return;
  Plegar_Veles("documents stand open at " + terminals +
               "; close Brollador there, or add --with-locks when it is closed already");
}

Recompte Files_Per_Taula(Connexio& connexio) {
  Recompte files;
  for (const auto& [clau, taula] : connexio.Taules().Taules()) {
    const Recordset rs("SELECT COUNT(*) AS N FROM " + taula.nom, connexio);
    files[taula.nom] = rs[0].Enter();
  }
  return files;
}

std::string Ara() {
  const std::time_t ara = std::time(nullptr);
  std::tm camps{};
  localtime_r(&ara, &camps);
  char text[16] = {};
  std::strftime(text, sizeof text, "%Y%m%d_%H%M%S", &camps);
  return text;
}

std::string Adreca_De_Copia(const std::string& adreca, int versio) {
  const std::string cua = "_v" + std::to_string(versio) + "_" + Ara();
  return Es_De_Servidor(adreca) ? Amb_Base(adreca, Base_De_Adreca(adreca) + cua) : adreca + cua;
}

// The copy opens, is sound and holds as many rows of everything.
void Comprovar_Copia(const std::string& adreca, const Recompte& files) {
  Connexio copia;
  copia.Open(adreca);
  Exigir_Sana(copia);
  if (Files_Per_Taula(copia) != files) Plegar_Veles("the copy does not hold what the database does");
}

void Fer_Copia(const std::string& adreca, const std::string& copia, const Recompte& files) {
  Copiar_Base_Dades(adreca, copia);
  Comprovar_Copia(copia, files);
  if (Es_De_Servidor(copia)) return;
  for (const char* companyia : {"-journal", "-edicions"}) std::filesystem::remove(copia + companyia);
}

// What the database holds, when it is one that may be brought up.
Recompte Mirar(Connexio& comuna, const Opcions_Actualitzacio& opcions) {
  if (!opcions.amb_bloquejos) Exigir_Ningu(comuna);
  Exigir_Sana(comuna);
  return Files_Per_Taula(comuna);
}

}  // namespace

void Actualitzar_Compartida(const Opcions_Actualitzacio& opcions, const std::function<void(const std::string&)>& dir) {
  Connexio comuna;
  comuna.Open(opcions.adreca);
  const int versio = Versio_De(comuna);
  const int darrera = Versio_Del_Programa();
  if (versio > darrera) {
    Plegar_Veles("the database is of version " + std::to_string(versio) + " and this program of " +
                 std::to_string(darrera) + ": it takes a newer program");
  }
  if (versio == darrera) return dir("The database is of version " + std::to_string(versio) + ": nothing to do.");
  const Recompte files = Mirar(comuna, opcions);
  if (!opcions.copia_feta) {
    const std::string copia = Adreca_De_Copia(opcions.adreca, versio);
    comuna.Close();  // a server copies a database to which nobody is connected
    Fer_Copia(opcions.adreca, copia, files);
    dir("Copy: " + Adreca_Per_Mostrar(copia));
    comuna.Open(opcions.adreca);
  }
  for (const Pas_De_Versio& pas : Passos_De_Versio()) {
    if (pas.numero <= versio) continue;
    Fer_Pas(comuna, pas);
    dir("Version " + std::to_string(pas.numero) + ".");
  }
  Exigir_Sana(comuna);
}
