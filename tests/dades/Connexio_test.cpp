#include "core/dades/Connexio.h"
#include "core/dades/Motor.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "tests/dades/Base_Dades.h"

using Enllac = Base_Dades;

namespace {
// What Open says of a path; empty when it opens.
std::string Paraules_En_Obrir(const std::string& cami) {
  try {
    Connexio connexio;
    connexio.Open(cami);
  } catch (const Error_Brollador& error) {
    EXPECT_EQ(error.Numero(), errors::general);
    return error.Descripcio();
  }
  return {};
}

// While it lives, no file of this process grows beyond the size.
class Sense_Lloc_Al_Disc {
 public:
  explicit Sense_Lloc_Al_Disc(std::uintmax_t mida) {
    getrlimit(RLIMIT_FSIZE, &abans_);
    senyal_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{mida, abans_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~Sense_Lloc_Al_Disc() {
    setrlimit(RLIMIT_FSIZE, &abans_);
    std::signal(SIGXFSZ, senyal_);
  }

 private:
  rlimit abans_{};
  void (*senyal_)(int);
};

}  // namespace

TEST_F(Enllac, A_missing_file_is_an_error_and_is_not_created) {
  const std::string no_hi_es = carpeta + "/no-hi-es.db";
  EXPECT_EQ(Paraules_En_Obrir(no_hi_es), Descripcio_Falla(Falla::Sense_Connexio) + ": " + no_hi_es);
  EXPECT_FALSE(std::filesystem::exists(no_hi_es));
  EXPECT_EQ(Paraules_En_Obrir(""), Descripcio_Falla(Falla::Sense_Connexio));
}

TEST_F(Enllac, A_damaged_file_says_so) {
  std::ofstream(carpeta + "/mal.db") << std::string(5000, 'x');
  EXPECT_NE(Paraules_En_Obrir(carpeta + "/mal.db").find("file is not a database (26)"), std::string::npos);
}

TEST_F(Enllac, A_file_that_holds_none_of_our_tables_is_refused) {
  std::ofstream(carpeta + "/buit.db").flush();
  Connexio connexio_buida;
  EXPECT_NE(Numero_Error([&] { connexio_buida.Open(carpeta + "/buit.db"); }), 0);
  EXPECT_FALSE(connexio_buida.Es_Oberta());
}

TEST_F(Enllac, A_folder_without_permission_is_an_error) {
  if (geteuid() == 0) {
    EXPECT_NE(Paraules_En_Obrir("/proc/no/hi/ha/base.db"), "");
    return;
  }
  chmod(carpeta.c_str(), 0);
  EXPECT_EQ(Paraules_En_Obrir(cami), Descripcio_Falla(Falla::Sense_Connexio) + ": " + cami);
  chmod(carpeta.c_str(), 0700);
}

TEST_F(Enllac, A_base_is_never_created_over_a_file) {
  EXPECT_EQ(Numero_Error([&] { Crear_Base_Dades(cami); }), errors::fitxer_existent);
}

TEST_F(Enllac, Rollback_undoes_and_commit_keeps) {
  connexio.motor().BeginTrans();
  Client("1", "A");
  connexio.motor().RollbackTrans();
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(0));
  connexio.motor().BeginTrans();
  Client("1", "A");
  connexio.motor().CommitTrans();
  const Recordset rs("SELECT * FROM CLIENTS", altra);
  EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(Enllac, A_transaction_without_a_write_holds_no_lock) {
  connexio.motor().BeginTrans();
  const Recordset llegit("SELECT * FROM CLIENTS", connexio);
  altra.Execute("INSERT INTO CLIENTS (NIF_CLI) VALUES ('x')");
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(1));
  connexio.motor().CommitTrans();
}

TEST_F(Enllac, A_file_that_another_terminal_keeps_locked_is_an_error_and_then_usable_again) {
  NOMES_AMB_FITXER();
  Connexio impacient;
  impacient.Open(cami, 50);
  altra.motor().BeginTrans();
  altra.Execute("INSERT INTO CLIENTS (NIF_CLI) VALUES ('theirs')");
  try {
    impacient.Execute("INSERT INTO CLIENTS (NIF_CLI) VALUES ('mine')");
    FAIL() << "the file was locked";
  } catch (const Error_Brollador& error) {
    EXPECT_EQ(error.Numero(), errors::general);
    EXPECT_EQ(error.Motiu(), Falla::Espera);
    EXPECT_EQ(error.Descripcio(), Descripcio_Falla(Falla::Espera));
  }
  altra.motor().CommitTrans();
  impacient.Execute("INSERT INTO CLIENTS (NIF_CLI) VALUES ('mine')");
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(2));
}

TEST_F(Enllac, A_failed_statement_leaves_the_transaction_usable) {
  connexio.motor().BeginTrans();
  Client("1", "A");
  EXPECT_EQ(Numero_Error([&] { Client("1", "again"); }), errors::general);
  EXPECT_EQ(Numero_Error([&] { connexio.Execute("SELEC nothing"); }), errors::sentencia);
  Client("2", "B");
  connexio.motor().CommitTrans();
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(2));
}

TEST_F(Enllac, A_disk_that_takes_no_more_undoes_the_transaction_and_nothing_is_written_behind_it) {
  NOMES_AMB_FITXER();
  connexio.motor().BeginTrans();
  Client("1", "A");
  const Sense_Lloc_Al_Disc limit(std::filesystem::file_size(cami));
  int error = 0;
  for (int i = 0; i < 60000 && error == 0; ++i) {
    error = Numero_Error([&] { Client("k" + std::to_string(i), std::string(400, 'x')); });
  }
  EXPECT_EQ(error, errors::general);
  EXPECT_EQ(Numero_Error([&] { connexio.motor().CommitTrans(); }), errors::general);
  connexio.motor().RollbackTrans();
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM CLIENTS"), Valor(0));
  EXPECT_EQ(connexio.Comprovar_Integritat(), "");
}

TEST_F(Enllac, Lines_follow_the_number_of_their_head_and_go_with_it) {
  Document(1, {"A", "B"});
  connexio.Execute("UPDATE CAP SET NUM_C = 9 WHERE NUM_C = 1");
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM LIN WHERE NUM_L = 9"), Valor(2));
  connexio.Execute("DELETE * FROM CAP WHERE NUM_C = 9");
  EXPECT_EQ(Un_Valor("SELECT COUNT(*) FROM LIN"), Valor(0));
}

TEST_F(Enllac, The_catalogue_survives_closing) {
  const Taula* taula = altra.Taules().Cercar("clients");
  ASSERT_NE(taula, nullptr);
  EXPECT_EQ(taula->clau, (std::vector<std::string>{"NIF_CLI"}));
  EXPECT_EQ(taula->Cercar("adreça_cli")->tipus, Tipus_Columna::Text);
  EXPECT_EQ(taula->Cercar("ALTA_CLI")->tipus, Tipus_Columna::Data);
}

TEST_F(Enllac, Many_different_statements_do_not_grow_the_memory_of_the_connection) {
  std::string llista = "1";
  for (int i = 2; i < 600; ++i) {
    llista += "," + std::to_string(i);
    const Recordset rs("SELECT NUM_C FROM CAP WHERE NUM_C IN(" + llista + ")", connexio);
    EXPECT_EQ(rs.RecordCount(), 0);
  }
}
