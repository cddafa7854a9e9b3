// mesura_terminals: so many terminals, each a process, save delivery-note lines of their own documents on one database,
// with articles in common. Prints lines a second, median and 95th percentile of a save and the conflicts that were
// tried again; then checks that nothing was lost. Called by bench/terminals.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "bench/Mesura.h"
#include "bench/Nota_Oberta.h"
#include "session/M_Inici.h"
#include "session/M_Locks.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

namespace fs = std::filesystem;

constexpr int linies_per_terminal = 200;
constexpr int linies_per_nota = 20;
constexpr int linies_per_servida = 4;  // one of so many serves an order

// Two terminals serve the same order at the same time, each on a note of its own: a chain of three documents.
std::int64_t Comanda_De(int terminal, int nota) {
  return (terminal + 1) / 2 * 1000 + nota;
}

void Sembrar_Comandes(int terminals) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  for (int terminal = 1; terminal <= terminals; terminal += 2) {
    for (int nota = 0; nota < linies_per_terminal / linies_per_nota; ++nota) {
      const std::string numero = std::to_string(Comanda_De(terminal, nota));
      sessio.Connexio_Comuna.Execute("INSERT INTO COMANDACAP (NUMALB_CC, EMPRESA_CC, PAGAMENT_CC) VALUES (" + numero +
                                     ", " + Text_SQL(empresa_mesura) + ", -1)");
      sessio.Connexio_Comuna.Execute(
          "INSERT INTO COMANDALIN (NUMALB_CL, EMPRESA_CL, LIN_CL, UNITATS_CL, SERVIDES_CL) VALUES (" + numero + ", " +
          Text_SQL(empresa_mesura) + ", 1, 100000, 0)");
    }
  }
  transaccio.Confirmar();
}

struct Treball {
  std::vector<double> desades;  // milliseconds
  int conflictes = 0;
};

void Obrir_Sessio(const std::string& carpeta, int terminal, Pantalla_Falsa& pantalla) {
  sessio.Dir_Dades = carpeta;
  sessio.Fitxer_Ini = carpeta + "/Brollador.ini";
  sessio.Fitxer_Locals = carpeta + "/dadeslocals.db";
  sessio.Equip_Actual = "mesura/" + std::to_string(terminal);
  Llegir_Ini();
  Obrir_Connexions();
  sessio.Usuari_Actual = "ADMIN";
  sessio.Empresa_Actual = empresa_mesura;
  sessio.Nom_Empresa = "Empresa de prova";
  sessio.P_Comandes = sessio.P_Albarans = "M";
  sessio.pantalla = &pantalla;
}

// What two terminals do at the same moment to one row: the one that came second tries again, as its user would.
template <class Feina>
auto Fins_Que_Vagi(Treball& treball, Feina feina) {
  for (;;) {
    try {
      return feina();
    } catch (const Error_Brollador&) {
      sessio.Error_Mostrat = false;
      if (++treball.conflictes > 10000) throw;
    }
  }
}

std::int64_t Nota_Nova(Treball& treball) {
  return Fins_Que_Vagi(treball, [] {
    const std::int64_t numero = Crear_Capcalera_Albara();
    Bloquejar_Per_Tipus("AC", std::to_string(numero));
    return numero;
  });
}

Treball Treballar(int terminal) {
  Treball treball;
  for (int linia = 0; linia < linies_per_terminal;) {
    const std::int64_t numero = Nota_Nova(treball);
    Nota_Oberta nota(numero);
    const std::int64_t comanda = Comanda_De(terminal, linia / linies_per_nota);
    for (int k = 0; k < linies_per_nota && linia < linies_per_terminal; ++k, ++linia) {
      // Terminals walk the same articles from different places and meet again and again.
      Linia_Entrada entrada = Linia_Mesura(terminal * 7 + linia * 3);
      entrada.comanda = k % linies_per_servida == 0 ? comanda : 0;
      entrada.comanda_lin = entrada.comanda == 0 ? std::int16_t{0} : std::int16_t{1};
      treball.desades.push_back(Mil_Segons([&] { Fins_Que_Vagi(treball, [&] { nota.Afegir(entrada); }); }));
    }
    Alliberar_Per_Tipus("AC", std::to_string(numero));
  }
  return treball;
}

// A terminal's process: waits for the others at the gate and leaves what it measured in a file.
int Ser_Terminal(const std::string& carpeta, int terminal, int porta) {
  Pantalla_Falsa pantalla;
  Obrir_Sessio(carpeta, terminal, pantalla);
  char senyal = 0;
  if (read(porta, &senyal, 1) < 0) return 1;
  const Treball treball = Treballar(terminal);
  std::ofstream sortida(carpeta + "/mesura." + std::to_string(terminal));
  sortida << treball.conflictes << '\n';
  for (const double desada : treball.desades) sortida << desada << '\n';
  sortida.close();
  Tancar_Connexions();
  return sortida ? 0 : 1;
}

double Numero(const std::string& sentencia) {
  const Recordset rs(sentencia, sessio.Connexio_Comuna);
  return rs.RecordCount() == 0 || rs[0].Es_Nul() ? 0 : rs[0].Doble();
}

void Exigir(const std::string& que, double vist, double esperat) {
  if (std::abs(vist - esperat) < 0.005) return;
  throw std::runtime_error(que + ": " + Amb_Decimals(vist, 2) + " instead of " + Amb_Decimals(esperat, 2));
}

// Stock, journal, lines, feet, served units and payment flags tell one story, and nobody holds anything.
void Comprovar(int terminals) {
  const double linies = static_cast<double>(terminals) * linies_per_terminal;
  Exigir("lines", Numero("SELECT COUNT(*) AS N FROM ALBARALIN"), linies);
  Exigir("rows of the journal", Numero("SELECT COUNT(*) AS N FROM MOVIMIENTOS"), linies);
  Exigir("locks", Numero("SELECT COUNT(*) AS N FROM LOCKS"), 0);
  Recordset estoc("SELECT CODI_ART_ST, ALMACEN_ST, UNIDADES_ST FROM STOCK ORDER BY CODI_ART_ST",
                  sessio.Connexio_Comuna);
  for (; !estoc.Eof(); estoc.MoveNext()) {
    const std::string article = estoc["CODI_ART_ST"].Text();
    const std::string condicio =
        " WHERE ARTICULO_MOV = " + Text_SQL(article) + " AND ALMACEN_MOV = " + Text_SQL(estoc["ALMACEN_ST"].Text());
    Exigir("stock of " + article, estoc["UNIDADES_ST"].Doble() - 100000,
           Numero("SELECT SUM(UNIDADES_MOV) AS N FROM MOVIMIENTOS" + condicio));
  }
  Exigir("served units", Numero("SELECT SUM(SERVIDES_CL) AS N FROM COMANDALIN"),
         Numero("SELECT SUM(UNITATS_AL) AS N FROM ALBARALIN WHERE COMANDA_AL <> 0"));
  Exigir("orders with the flag", Numero("SELECT COUNT(*) AS N FROM COMANDACAP WHERE PAGAMENT_CC = -1"), 0);
  Exigir("notes without it", Numero("SELECT COUNT(*) AS N FROM ALBARACAP WHERE PAGAMENT_AC <> -1"), 0);
  Recordset notes("SELECT NUMALB_AL, SUM(IMPORT_NET_AL) AS NET FROM ALBARALIN GROUP BY NUMALB_AL",
                  sessio.Connexio_Comuna);
  for (; !notes.Eof(); notes.MoveNext()) {
    Exigir("foot of note " + notes["NUMALB_AL"].Text(),
           Numero("SELECT SUM(BASE_AP) AS N FROM ALBARAPEU WHERE NUMALB_AP = " + notes["NUMALB_AL"].Text()),
           notes["NET"].Doble());
  }
}

void Imprimir(const std::string& nom, const std::string& carpeta, int terminals, double segons) {
  std::vector<double> totes;
  int conflictes = 0;
  for (int i = 1; i <= terminals; ++i) {
    std::ifstream fitxer(carpeta + "/mesura." + std::to_string(i));
    int seus = 0;
    fitxer >> seus;
    conflictes += seus;
    for (double desada = 0; fitxer >> desada;) totes.push_back(desada);
  }
  std::sort(totes.begin(), totes.end());
  std::printf("%-22s | %9d | %12.0f | %8.2f ms | %8.2f ms | %8.2f ms | %9d\n", nom.c_str(), terminals,
              static_cast<double>(totes.size()) / segons, totes[totes.size() / 2], totes[totes.size() * 95 / 100],
              totes.back(), conflictes);
  std::fflush(stdout);
}

void Mesurar(const std::string& nom, int terminals) {
  std::string carpeta;
  int porta[2];
  if (pipe(porta) != 0) throw std::runtime_error("no pipe");
  const Installacio_Prova installacio;
  carpeta = installacio.Dir_Dades();
  Sembrar_Articles(sessio.Connexio_Comuna);
  Sembrar_Comandes(terminals);
  // A process starts without the connections of the one that began it.
  Tancar_Connexions();
  std::vector<pid_t> processos;
  for (int i = 1; i <= terminals; ++i) {
    const pid_t pid = fork();
    if (pid == 0) {
      close(porta[1]);
      int estat = 1;
      try {
        estat = Ser_Terminal(carpeta, i, porta[0]);
      } catch (const std::exception& error) {
        std::fprintf(stderr, "terminal %d: %s\n", i, error.what());
      }
      _exit(estat);
    }
    processos.push_back(pid);
  }
  close(porta[0]);
  sleep(1);  // all of them stand at the gate
  bool be = true;
  const double temps = Mil_Segons([&] {
    close(porta[1]);
    for (const pid_t pid : processos) {
      int estat = 0;
      be = waitpid(pid, &estat, 0) == pid && WIFEXITED(estat) && WEXITSTATUS(estat) == 0 && be;
    }
  });
  if (!be) throw std::runtime_error("a terminal failed");
  Obrir_Connexions();
  Comprovar(terminals);
  Imprimir(nom, carpeta, terminals, temps / 1000);
}

}  // namespace

int main() try {
  std::printf("%-22s | %9s | %12s | %11s | %11s | %11s | %9s\n", "engine", "terminals", "lines/second", "median",
              "95th", "slowest", "conflicts");
  for (const int terminals : {2, 8, 32}) {
    setenv("BROLLADOR_MOTOR", "postgres", 1);
    Mesurar("PostgreSQL", terminals);
  }
  for (const int terminals : {2, 8}) {
    setenv("BROLLADOR_MOTOR", "sqlite", 1);
    Mesurar("one file", terminals);
  }
  std::printf(
      "Nothing was lost: stock, journal, lines, feet, served units and flags agree after each of them, and no lock is "
      "left.\n");
  return 0;
} catch (const std::exception& error) {
  std::fprintf(stderr, "%s\n", error.what());
  return 1;
}
