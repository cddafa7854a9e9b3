#include "schema/Installador.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Recordset.h"
#include "core/dades/Transaccio.h"
#include "schema/Definicions.h"

namespace fs = std::filesystem;

namespace {

// Rows that every installation needs: the program asks for them by value.
constexpr const char* files_necessaries[] = {
    "INSERT INTO LANGUAGES (ID, DESCRIPTION) VALUES (0, 'Català')",
    "INSERT INTO LANGUAGES (ID, DESCRIPTION) VALUES (1, 'Castellà')",
    "INSERT INTO LANGUAGES (ID, DESCRIPTION) VALUES (2, 'English')",
    "INSERT INTO IVAS (CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA) VALUES ('GN', 'General', 21, 5.2)",
    "INSERT INTO IVAS (CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA) VALUES ('RD', 'Reduït', 10, 1.4)",
    "INSERT INTO IVAS (CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA) VALUES ('SR', 'Superreduït', 4, 0.5)",
    "INSERT INTO IVAS (CODI_IVA, DESC_IVA, PORC_IVA, RE_IVA) VALUES ('EX', 'Exempt', 0, 0)",
    "INSERT INTO FORMES_PAGAMENT (ID_FP, DESCRIPCIO_FP) VALUES ('EF', 'Efectiu')",
    "INSERT INTO FORMES_PAGAMENT (ID_FP, DESCRIPCIO_FP) VALUES ('TR', 'Transferència')",
    "INSERT INTO FORMES_PAGAMENT (ID_FP, DESCRIPCIO_FP) VALUES ('RE', 'Rebut domiciliat')",
    "INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES ('NO', 'NO', 0, 0)",
    "INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES ('30', '30 dies', 30, 1)",
    "INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES ('3060', '30 i 60 dies', 30, 2)",
    "INSERT INTO ALMACENES (CODI_ALM, DESC_ALM, STOCK_NEG_ALM) VALUES ('1', 'Magatzem central', 0)",
};

// Rows of the base installation alone.
constexpr const char* files_de_base[] = {
    "INSERT INTO ALMACENES (CODI_ALM, DESC_ALM, STOCK_NEG_ALM) VALUES ('2', 'Botiga', -1)",
    "INSERT INTO CP (CP_CP, LOCALITAT_CP, PROVINCIA_CP, PAIS_CP) VALUES ('08001', 'Barcelona', 'Barcelona', 'Espanya')",
    "INSERT INTO CP (CP_CP, LOCALITAT_CP, PROVINCIA_CP, PAIS_CP) VALUES ('17001', 'Girona', 'Girona', 'Espanya')",
    "INSERT INTO CP (CP_CP, LOCALITAT_CP, PROVINCIA_CP, PAIS_CP) VALUES ('08720', 'Vilafranca del Penedès', "
    "'Barcelona', "
    "'Espanya')",
};

constexpr const char* drets[] = {"P_Clients",    "P_Proveidors",   "P_Articles", "P_Usuaris",  "P_CP",
                                 "P_Venciments", "P_Pressupostos", "P_Comandes", "P_Albarans", "P_Factures"};

constexpr const char* fitxers_de_terminal[] = {"Brollador.ini", "dadeslocals.db"};

void Exigir_Lliure(const fs::path& cami) {
  if (fs::exists(cami)) Llancar_Error(errors::fitxer_existent, "brollador-install", cami.string());
}

// What has been made so far; taken away again unless the work is told done.
class Obra {
 public:
  Obra() = default;
  ~Obra() {
    if (acabada_) return;
    std::error_code ignorat;  // already failing: what cannot be taken away stays
    for (auto it = fets_.rbegin(); it != fets_.rend(); ++it) fs::remove(*it, ignorat);
    if (base_servidor_.empty()) return;
    try {
      Esborrar_Base_Dades(base_servidor_);
    } catch (const Error_Brollador&) {
      return;  // the same: a server that went away keeps what it has
    }
  }
  Obra(const Obra&) = delete;
  Obra& operator=(const Obra&) = delete;
  void Carpeta(const fs::path& cami) {
    for (fs::path prefix = cami; !prefix.empty() && !fs::exists(prefix); prefix = prefix.parent_path()) {
      pendents_.push_back(prefix);
    }
    for (; !pendents_.empty(); pendents_.pop_back()) {
      fs::create_directory(pendents_.back());
      fets_.push_back(pendents_.back());
    }
  }
  // A folder for the user alone; one that stands already stays as it is.
  void Carpeta_Privada(const fs::path& cami) {
    const bool nova = !fs::exists(cami);
    Carpeta(cami);
    if (nova) fs::permissions(cami, fs::perms::owner_all);
  }
  // A file that is about to be made, so that half a file goes too.
  void Fitxer(const fs::path& cami) {
    Exigir_Lliure(cami);
    fets_.push_back(cami);
  }
  void Base_De_Dades(const std::string& adreca) {
    if (Es_De_Servidor(adreca)) {
      Crear_Base_Dades(adreca);
      base_servidor_ = adreca;
      return;
    }
    Fitxer_De_Dades(adreca);
    Crear_Base_Dades(adreca);
  }
  // The same of a database, with what the engine puts beside it.
  void Fitxer_De_Dades(const std::string& cami) {
    Fitxer(cami);
    for (const char* companyia : {"-journal", "-edicions"}) fets_.emplace_back(cami + companyia);
  }
  void Acabada() { acabada_ = true; }

 private:
  std::vector<fs::path> pendents_;
  std::vector<fs::path> fets_;
  std::string base_servidor_;
  bool acabada_ = false;
};

// Brollador.ini holds the address between quotes, on one line. There may be a password in it: nobody else ever reads
// it.
void Escriure_Ini(const fs::path& ini, const std::string& adreca) {
  const int descriptor = open(ini.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor >= 0) close(descriptor);
  std::ofstream fitxer(ini);
  fitxer << '"' << adreca << "\"\n";
  if (!fitxer.flush()) throw Error_Brollador(errors::general, "brollador-install", ini.string());
}

void Exigir_Adreca_Escrivible(const std::string& adreca) {
  if (adreca.find_first_of("\"\r\n") == std::string::npos) return;
  throw Error_Brollador(errors::general, "brollador-install",
                        "an address cannot hold quotes or line breaks: " + Adreca_Per_Mostrar(adreca));
}

void Crear_Carpeta_Dades(const Opcions_Installacio& opcions, Obra& obra) {
  const fs::path carpeta(opcions.carpeta);
  Exigir_Adreca_Escrivible(Adreca_Compartida(opcions));
  for (const char* fitxer : fitxers_de_terminal) Exigir_Lliure(carpeta / fitxer);
  for (const auto& cami : {carpeta, carpeta / "copia", carpeta / "Temp"}) obra.Carpeta_Privada(cami);
  const std::string locals = carpeta / "dadeslocals.db";
  obra.Fitxer_De_Dades(locals);
  Crear_Local(locals);
  const fs::path ini = carpeta / "Brollador.ini";
  obra.Fitxer(ini);
  Escriure_Ini(ini, Adreca_Compartida(opcions));
}

// A company that charges VAT, and the administrator who works in it.
void Afegir_Empresa(Connexio& comuna, const Primera_Empresa& empresa) {
  Recordset rs("EMPRESES", comuna, Bloqueig::Optimista);
  rs.AddNew();
  rs.Set("NIF_EMP", empresa.nif);
  rs.Set("RAO_SOCIAL_EMP", empresa.rao_social);
  rs.Set("ACTIU_EMP", true);
  rs.Set("IVA_EMP", true);
  rs.Update();
  Recordset usuaris("USUARIS", comuna, Bloqueig::Optimista);
  usuaris.AddNew();
  usuaris.Set("CODI_USU", "ADMIN");
  usuaris.Set("DESCRIPCIO_USU", "Administrador");
  usuaris.Set("CLAU_USU", empresa.contrasenya);
  usuaris.Set("EMPRESA_USU", empresa.nif);
  for (const char* dret : drets) usuaris.Set(dret, "M");
  usuaris.Update();
}

void Crear_Compartida(const Opcions_Installacio& opcions, const Primera_Empresa& empresa, bool de_base, Obra& obra) {
  const std::string adreca = Adreca_Compartida(opcions);
  obra.Base_De_Dades(adreca);
  Connexio comuna;
  comuna.Open(adreca);
  En_Transaccio(comuna, [&] {
    Definir_Comuna(comuna);
    for (const char* fila : files_necessaries) comuna.Execute(fila);
    if (de_base) {
      for (const char* fila : files_de_base) comuna.Execute(fila);
    }
    Afegir_Empresa(comuna, empresa);
  });
}

void Crear(const Opcions_Installacio& opcions, const Primera_Empresa& empresa, bool de_base,
           const std::function<void()>& despres = {}) {
  Obra obra;
  Crear_Carpeta_Dades(opcions, obra);
  Crear_Compartida(opcions, empresa, de_base, obra);
  if (despres) despres();
  obra.Acabada();
}

}  // namespace

std::string Adreca_Compartida(const Opcions_Installacio& opcions) {
  Exigir_Adreca(opcions.compartida);
  if (Es_De_Servidor(opcions.compartida)) return opcions.compartida;
  const fs::path cami =
      opcions.compartida.empty() ? fs::path(opcions.carpeta) / "comuna.db" : fs::path(opcions.compartida);
  return fs::absolute(cami).string();
}

void Exigir_Lloc_Lliure(const Opcions_Installacio& opcions) {
  for (const char* fitxer : fitxers_de_terminal) Exigir_Lliure(fs::path(opcions.carpeta) / fitxer);
  const std::string adreca = Adreca_Compartida(opcions);
  if (Base_Dades_Ocupada(adreca)) {
    Llancar_Error(errors::fitxer_existent, "brollador-install", Adreca_Per_Mostrar(adreca));
  }
}

void Crear_Base(const Opcions_Installacio& opcions) {
  Crear(opcions, {.nif = "B00000000", .rao_social = "Empresa de prova", .contrasenya = ""}, true);
}

void Crear_Base(const std::string& carpeta, const std::string& compartida) {
  Crear_Base(Opcions_Installacio{.carpeta = carpeta, .compartida = compartida});
}

void Crear_Buida(const Opcions_Installacio& opcions, const Primera_Empresa& empresa,
                 const std::function<void()>& despres) {
  Crear(opcions, empresa, false, despres);
}

void Crear_Terminal(const Opcions_Installacio& opcions) {
  Connexio comuna;
  comuna.Open(Adreca_Compartida(opcions));  // it must be there and serve before a terminal points at it
  if (const int versio = Versio_De(comuna); versio != Versio_Del_Programa()) {
    throw Error_Brollador(errors::general, "brollador-install",
                          "the shared database is of version " + std::to_string(versio) + " and this program of " +
                              std::to_string(Versio_Del_Programa()));
  }
  Obra obra;
  Crear_Carpeta_Dades(opcions, obra);
  obra.Acabada();
}
