#include "session/M_Inici.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Registre_Errors.h"
#include "core/dades/Text.h"
#include "schema/Definicions.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* dades_en_una_casa = "/.local/share";

// Null when the variable is missing or is no absolute path, which the desktop's standard tells to ignore.
const char* Cami_De_Variable(const char* nom) {
  const char* valor = std::getenv(nom);
  return valor && *valor == '/' ? valor : nullptr;
}

std::string Carpeta_Dades_Usuari() {
  if (const char* dades = Cami_De_Variable("XDG_DATA_HOME")) return dades;
  const char* casa = Cami_De_Variable("HOME");
  const passwd* usuari = casa ? nullptr : getpwuid(geteuid());
  return std::string(casa ? casa : usuari ? usuari->pw_dir : "") + dades_en_una_casa;
}

// One spelling of a path that can be written in several ways.
std::string Cami_Unic(const std::string& cami) {
  std::error_code error;
  const std::filesystem::path unic = std::filesystem::weakly_canonical(cami, error);
  if (error) return cami;
  return unic.has_filename() ? unic.string() : unic.parent_path().string();
}

// Eight digits that tell a text from others (FNV-1a).
std::string Marca_De(const std::string& text) {
  std::uint32_t marca = 2166136261U;
  for (const char c : text) marca = (marca ^ static_cast<unsigned char>(c)) * 16777619U;
  std::array<char, 9> xifres{};
  std::snprintf(xifres.data(), xifres.size(), "%08x", marca);
  return xifres.data();
}

// The first item of a text: up to its closing quote, or up to a comma or the end of the line.
std::string Primer_Element(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  if (text.starts_with('"')) {
    text.remove_prefix(1);
    return std::string(text.substr(0, text.find_first_of("\"\r\n")));
  }
  text = text.substr(0, text.find_first_of(",\r\n"));
  return std::string(text.substr(0, text.find_last_not_of(" \t") + 1));
}

}  // namespace

void Fixar_Directoris() {
  sessio.Dir_Dades = Carpeta_Dades_Usuari() + "/brollador";
  sessio.Fitxer_Ini = sessio.Dir_Dades + "/Brollador.ini";
  sessio.Dir_Copia = sessio.Dir_Dades + "/copia";
  sessio.Fitxer_Locals = sessio.Dir_Dades + "/dadeslocals.db";
  sessio.Dir_Temp = sessio.Dir_Dades + "/Temp/";
}

std::string Nom_De_Terminal(const std::string& equip, const std::string& compte, const std::string& casa) {
  std::string nom = equip + "/" + compte;
  std::replace(nom.begin(), nom.end(), '\'', '_');  // it stands in statements
  const std::string carpeta = Cami_Unic(sessio.Dir_Dades);
  const bool habitual = !casa.empty() && carpeta == Cami_Unic(casa + dades_en_una_casa + "/brollador");
  if (Plegar(compte) != compte) return nom + "/" + Marca_De(compte + "/" + carpeta);
  return habitual ? nom : nom + "/" + Marca_De(carpeta);
}

std::string Nom_Equip() {
  char equip[256] = {};
  gethostname(equip, sizeof equip - 1);
  const passwd* usuari = getpwuid(geteuid());
  return usuari ? Nom_De_Terminal(equip, usuari->pw_name, usuari->pw_dir)
                : Nom_De_Terminal(equip, std::to_string(geteuid()), {});
}

void Llegir_Ini() {
  sessio.Fitxer_Comu.clear();
  std::ifstream fitxer(sessio.Fitxer_Ini, std::ios::binary);
  if (!fitxer) Llancar_Error(errors::fitxer_no_trobat, "Llegir_Ini", sessio.Fitxer_Ini);
  sessio.Fitxer_Comu = Primer_Element(std::string(std::istreambuf_iterator<char>(fitxer), {}));
}

void Exigir_Versio() {
  const int versio = Versio_De(sessio.Connexio_Comuna);
  const int propia = Versio_Del_Programa();
  if (versio == propia) return;
  const std::string numeros = " (" + std::to_string(versio) + " / " + std::to_string(propia) + ")";
  if (versio > propia) {
    throw Error_Brollador(
        errors::general, "Exigir_Versio",
        Missatge("La base de dades compartida és més nova que aquest programa. Cal instal·lar-ne la darrera versió.",
                 "La base de datos compartida es más nueva que este programa. Hay que instalar su última versión.",
                 "The shared database is newer than this program. Its latest version has to be installed.") +
            numeros);
  }
  throw Error_Brollador(errors::general, "Exigir_Versio",
                        Missatge("La base de dades compartida és d'una versió anterior. L'administrador l'ha de posar "
                                 "al dia amb \"brollador-install --upgrade\".",
                                 "La base de datos compartida es de una versión anterior. El administrador debe "
                                 "ponerla al día con \"brollador-install --upgrade\".",
                                 "The shared database is of an earlier version. The administrator has to bring it up "
                                 "with \"brollador-install --upgrade\".") +
                            numeros);
}

void Obrir_Connexions() {
  sessio.Connexio_Comuna.Open(sessio.Fitxer_Comu);
  Exigir_Versio();
  sessio.Connexio_Local.Open(sessio.Fitxer_Locals);
  if (Es_Local_Al_Dia(sessio.Connexio_Local)) return;
  sessio.Connexio_Local.Close();
  Renovar_Local(sessio.Fitxer_Locals);
  sessio.Connexio_Local.Open(sessio.Fitxer_Locals);
}

void Tancar_Als_Altres() {
  std::error_code ignorat;  // what is somebody else's stays as its owner wants it
  const fs::path carpeta(sessio.Dir_Dades);
  std::vector<fs::path> carpetes = {sessio.Dir_Copia, sessio.Dir_Temp};
  const bool compartida_a_dins =
      fs::path(sessio.Fitxer_Comu).lexically_normal().parent_path() == carpeta.lexically_normal();
  if (!compartida_a_dins) carpetes.push_back(carpeta);
  for (const auto& cami : carpetes) fs::permissions(cami, fs::perms::owner_all, ignorat);
  for (const auto& cami : {sessio.Fitxer_Ini, sessio.Fitxer_Locals}) {
    fs::permissions(cami, fs::perms::owner_read | fs::perms::owner_write, ignorat);
  }
}

void Tancar_Connexions() {
  sessio.Connexio_Comuna.Close();
  sessio.Connexio_Local.Close();
}

void Carregar_Parametres() {
  sessio.Parametres.clear();
  for (Recordset rs("SELECT * FROM CONFIGURACIO", sessio.Connexio_Local); !rs.Eof(); rs.MoveNext()) {
    const std::string nom = rs["Parametre"].Text();
    if (!sessio.Parametres.emplace(nom, rs["Valor"].Text()).second) {
      throw Error_Brollador(errors::general, "Carregar_Parametres",
                            Missatge("Paràmetre repetit: ", "Parámetro repetido: ", "Parameter set twice: ") + nom);
    }
  }
}

void Preparar_Inici() {
  Fixar_Directoris();
  Obrir_Registre_Errors(sessio.Dir_Dades + "/errors.log");
  sessio.Equip_Actual = Nom_Equip();
  try {
    Llegir_Ini();
  } catch (const Error_Brollador& error) {
    // Without the file there is no address, and opening the connection is what tells the user.
    if (error.Numero() != errors::fitxer_no_trobat) throw;
  }
  Obrir_Connexions();
  Tancar_Als_Altres();
  Carregar_Parametres();
}

std::string Text_Inici_Fallit(const Error_Brollador& error) {
  return Missatge("Avui no estàs de sort !!!, ", "¡¡¡ Hoy no estás de suerte !!!, ", "Not lucky !!!, ") + "\n" +
         std::to_string(error.Numero()) + "/" + error.Descripcio();
}
