// Statements and filters made up from a seed, against the dialect: nothing may end the program, nothing but the errors
// of the dialect may come of them, and no text of a value may ever be part of the statement that an engine is given.
//   prova_dialecte [--seed S] [N]     N statements and filters (1,000,000); prints its seed, to repeat a run
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "core/dades/Connexio.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Filtre.h"
#include "core/dades/Motor.h"
#include "core/dades/Parametres_Sentencia.h"
#include "core/dades/Recordset.h"
#include "core/dades/Text.h"
#include "tests/eines/dialecte/Generador.h"

namespace {

constexpr std::int64_t habitual = 1000000;
constexpr std::int64_t una_s_executa_cada = 1000;

struct Fallada : std::runtime_error {
  using std::runtime_error::runtime_error;
};

void Exigir(bool be, const char* que) {
  if (!be) throw Fallada(que);
}

// A small base to translate for, and to run some of the statements on.
class Base {
 public:
  Base() {
    std::string plantilla = (std::filesystem::temp_directory_path() / "brollador-dialecte-XXXXXX").string();
    if (mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error(plantilla);
    carpeta_ = plantilla;
    Crear_Base_Dades(carpeta_ + "/base.db");
    connexio.Open(carpeta_ + "/base.db");
    connexio.Execute(
        "CREATE TABLE CLIENTS (NIF_CLI CODI NOT NULL, RAO_SOCIAL_CLI TEXT, ADREÇA_CLI TEXT, IVA_CLI BOOLEA DEFAULT 0, "
        "SALDO_CLI DOBLE DEFAULT 0, ALTA_CLI DATA, PRIMARY KEY (NIF_CLI))");
    connexio.Execute("CREATE TABLE CAP (NUM_C LLARG NOT NULL, DATA_C DATA, HORA_C DATA_HORA, PRIMARY KEY (NUM_C))");
    connexio.Execute("CREATE TABLE LIN (NUM_L LLARG NOT NULL, LIN_L CURT NOT NULL, PRIMARY KEY (NUM_L, LIN_L))");
    connexio.Execute("CREATE TABLE DIARI (ARTICLE_D CODI, UNITATS_D DOBLE)");
    connexio.motor().BeginTrans();
    for (int i = 0; i < 20; ++i) {
      const std::string n = std::to_string(i);
      connexio.Execute("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI) VALUES ('" + n + "', 'Client " + n + "')");
      connexio.Execute("INSERT INTO CAP (NUM_C, DATA_C) VALUES (" + n + ", #3/5/2011#)");
    }
  }
  ~Base() {
    connexio.motor().RollbackTrans();
    connexio.Close();
    std::filesystem::remove_all(carpeta_);
  }
  Base(const Base&) = delete;
  Base& operator=(const Base&) = delete;

  Connexio connexio;

 private:
  std::string carpeta_;
};

bool Hi_Ha_Un_Valor(const std::string& sql, const Inventada& inventada) {
  if (inventada.soroll) return false;
  if (sql.find(marca_de_valor) != std::string::npos) return true;
  if (!inventada.sencera) return false;
  for (const Tros& tros : inventada.trossos) {
    if (tros.literal && sql.find(tros.text) != std::string::npos) return true;
  }
  return false;
}

void Traduir_Per_A(const Sentencia_Escanejada& escanejada, const Inventada& inventada, const Cataleg& taules,
                   const Trets_Motor& trets, std::string_view editable) {
  try {
    const Sentencia_Traduida traduida = Traduir(escanejada.forma, taules, trets, editable);
    Exigir(!Hi_Ha_Un_Valor(traduida.text + traduida.retencio, inventada), "a value in the translation");
    std::vector<Valor> parametres = escanejada.literals;
    Ordenar_Entre(traduida.entre, parametres);
  } catch (const Error_Brollador& error) {
    Exigir(error.Numero() == errors::sentencia, error.what());
  }
}

void Provar_Sentencia(const Inventada& inventada, const std::string& text, const Cataleg& taules) {
  Sense_Ordre(text);
  Sentencia_Escanejada escanejada;
  try {
    escanejada = Escanejar(text);
  } catch (const Error_Brollador& error) {
    Exigir(error.Numero() == errors::sentencia && !inventada.sencera, error.what());
    return;
  }
  Exigir(!Hi_Ha_Un_Valor(escanejada.forma, inventada), "a value in the shape");
  Exigir(!inventada.sencera || escanejada.literals == inventada.Literals(), "other values than were written");
  const std::string_view editable = text.size() % 2 == 0 ? "" : "*";
  Traduir_Per_A(escanejada, inventada, taules, Trets_SQLite(), editable);
  Traduir_Per_A(escanejada, inventada, taules, Trets_PostgreSQL(), editable);
}

void Executar(Connexio& connexio, const std::string& text) {
  try {
    if (text.starts_with("SELECT")) {
      const Recordset rs(text, connexio, text.size() % 2 == 0 ? Bloqueig::Lectura : Bloqueig::Optimista);
    } else {
      connexio.Execute(text);
    }
  } catch (const Error_Brollador& error) {
    const int numero = error.Numero();
    Exigir(numero == errors::sentencia || numero == errors::general || numero == errors::tipus, error.what());
  }
}

void Provar_Filtre(const Inventada& inventada, const std::string& text, Generador& generador) {
  const auto index = [](std::string_view nom) {
    if (Iguals_Plegats(nom, "NO_HI_ES")) Llancar_Error(errors::camp_no_trobat, "prova");
    return 0;
  };
  try {
    const auto condicions = Llegir_Filtre(text, index);
    const std::vector<Valor> escrits = inventada.Literals();
    Exigir(!inventada.sencera || condicions.size() == escrits.size(), "another number of conditions");
    for (std::size_t i = 0; i < condicions.size(); ++i) {
      Exigir(!inventada.sencera || condicions[i].literal == escrits[i], "other values in the filter");
      Compleix(condicions[i], generador.Bytes());
      Compleix(condicions[i], 1.5);
      if (inventada.sencera) Compleix(condicions[i], escrits[i]);
    }
  } catch (const Error_Brollador& error) {
    const bool del_filtre = error.Numero() == errors::sentencia || error.Numero() == errors::camp_no_trobat;
    Exigir(del_filtre && !inventada.sencera, error.what());
  }
}

// Whatever is typed comes out of a statement as it went in, or is refused.
void Provar_Text(const std::string& text) {
  std::string sentencia;
  try {
    sentencia = "SELECT " + Text_SQL(text) + " AS X";
  } catch (const Error_Brollador& error) {
    return Exigir(error.Numero() == errors::sentencia, error.what());
  }
  const Sentencia_Escanejada escanejada = Escanejar(sentencia);
  Exigir(escanejada.forma == "SELECT ?1 AS X", "a typed text in the shape");
  Exigir(escanejada.literals == std::vector<Valor>{text}, "another text than was typed");
}

void Provar_Tot(std::int64_t quantes, std::uint64_t llavor) {
  Base base;
  Generador generador(llavor);
  for (std::int64_t i = 0; i < quantes; ++i) {
    const bool filtre = i % 5 == 4;
    const Inventada inventada = filtre ? generador.Filtre() : generador.Sentencia();
    const std::string text = inventada.Text();
    try {
      if (filtre) {
        Provar_Filtre(inventada, text, generador);
        Provar_Text(generador.Bytes());
      } else {
        Provar_Sentencia(inventada, text, base.connexio.Taules());
        if (i % una_s_executa_cada == 0) Executar(base.connexio, text);
      }
    } catch (const std::exception& error) {
      std::printf("number %lld: %s\n%s\n", static_cast<long long>(i), error.what(), text.c_str());
      throw;
    }
  }
}

}  // namespace

int main(int argc, char** argv) try {
  const auto rellotge = std::chrono::steady_clock::now().time_since_epoch().count();
  auto llavor = static_cast<std::uint64_t>(rellotge);
  std::int64_t quantes = habitual;
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--seed") == 0 && i + 1 < argc) {
      llavor = std::strtoull(argv[++i], nullptr, 10);
    } else {
      quantes = std::strtoll(argv[i], nullptr, 10);
    }
  }
  std::printf("seed %llu\n", static_cast<unsigned long long>(llavor));
  std::fflush(stdout);
  Provar_Tot(quantes, llavor);
  std::printf("%lld statements and filters\n", static_cast<long long>(quantes));
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
