#include "session/M_Inici.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

#include "core/M_Funcions_Comuns.h"

namespace {

// Null when the variable is missing or is no absolute path, which the desktop's standard tells to ignore.
const char* Cami_De_Variable(const char* nom) {
  const char* valor = std::getenv(nom);
  return valor && *valor == '/' ? valor : nullptr;
}

std::string Carpeta_Dades_Usuari() {
  if (const char* dades = Cami_De_Variable("XDG_DATA_HOME")) return dades;
  const char* casa = Cami_De_Variable("HOME");
  const passwd* usuari = casa ? nullptr : getpwuid(geteuid());
  return std::string(casa ? casa : usuari ? usuari->pw_dir : "") + "/.local/share";
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

std::string Nom_Equip() {
  char equip[256] = {};
  gethostname(equip, sizeof equip - 1);
  const passwd* usuari = getpwuid(geteuid());
  return std::string(equip) + "/" + (usuari ? usuari->pw_name : std::to_string(geteuid()));
}

void Llegir_Ini() {
  sessio.Fitxer_Comu.clear();
  std::ifstream fitxer(sessio.Fitxer_Ini, std::ios::binary);
  if (!fitxer) Llancar_Error(errors::fitxer_no_trobat, "Llegir_Ini", sessio.Fitxer_Ini);
  sessio.Fitxer_Comu = Primer_Element(std::string(std::istreambuf_iterator<char>(fitxer), {}));
}

void Obrir_Connexions() {
  sessio.Connexio_Comuna.Open(sessio.Fitxer_Comu);
  sessio.Connexio_Local.Open(sessio.Fitxer_Locals);
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
  sessio.Equip_Actual = Nom_Equip();
  try {
    Llegir_Ini();
  } catch (const Error_Brollador& error) {
    // Without the file there is no address, and opening the connection is what tells the user.
    if (error.Numero() != errors::fitxer_no_trobat) throw;
  }
  Obrir_Connexions();
  Carregar_Parametres();
}

std::string Text_Inici_Fallit(const Error_Brollador& error) {
  return Missatge("Avui no estàs de sort !!!, ", "¡¡¡ Hoy no estás de suerte !!!, ", "Not lucky !!!, ") + "\n" +
         std::to_string(error.Numero()) + "/" + error.Descripcio();
}
