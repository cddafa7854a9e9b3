// Rows held by several accounts of one machine.
#include "core/dades/Retencio_Fitxer.h"

#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/dades/Base_Dades.h"

namespace {

constexpr gid_t grup = 64000;
constexpr uid_t primer = 64001;
constexpr uid_t segon = 64002;

// What a piece of work gives in a process of another account, whose files are for itself alone; -1 when it raises.
template <class Feina>
int Com_A(uid_t compte, Feina feina) {
  const pid_t fill = fork();
  if (fill == 0) {
    if (setgroups(1, &grup) != 0 || setgid(compte) != 0 || setuid(compte) != 0) _exit(99);
    umask(077);
    try {
      _exit(feina());
    } catch (const Error_Brollador&) {
      _exit(255);
    }
  }
  int estat = 0;
  waitpid(fill, &estat, 0);
  const int codi = WEXITSTATUS(estat);
  return codi == 255 ? -1 : codi;
}

class Retencio : public testing::Test {
 protected:
  void SetUp() override {
    if (geteuid() != 0) GTEST_SKIP() << "only root can be two accounts";
    std::string plantilla = (std::filesystem::temp_directory_path() / "brollador-prova-XXXXXX").string();
    carpeta = mkdtemp(plantilla.data());
    base = carpeta + "/base.db";
    std::ofstream(base).flush();
    ASSERT_EQ(chown(carpeta.c_str(), 0, grup), 0);
    ASSERT_EQ(chmod(carpeta.c_str(), 0770), 0);
    ASSERT_EQ(chown(base.c_str(), 0, grup), 0);
    ASSERT_EQ(chmod(base.c_str(), 0660), 0);
  }
  void TearDown() override {
    if (!carpeta.empty()) std::filesystem::remove_all(carpeta);
  }
  struct stat Estat() const {
    struct stat estat {};
    EXPECT_EQ(stat((base + "-edicions").c_str(), &estat), 0);
    return estat;
  }

  std::string carpeta;
  std::string base;
};

}  // namespace

TEST_F(Retencio, The_second_account_of_a_machine_holds_rows_too) {
  const auto reten = [this](std::int64_t fila) { return Retencio_Fitxer(base).Retenir(fila) ? 1 : 0; };
  EXPECT_EQ(Com_A(primer, [&] { return reten(7); }), 1);
  EXPECT_EQ(Estat().st_mode & 0777U, 0660U);
  EXPECT_EQ(Estat().st_gid, grup);
  EXPECT_EQ(Com_A(segon, [&] { return reten(7); }), 1);
  Retencio_Fitxer aqui(base);
  EXPECT_TRUE(aqui.Retenir(7));
  EXPECT_EQ(Com_A(segon, [&] { return reten(7); }), 0);
  EXPECT_EQ(Com_A(segon, [&] { return reten(8); }), 1);
  aqui.Deixar_Anar(7);
  EXPECT_EQ(Com_A(segon, [&] { return reten(7); }), 1);
}

TEST_F(Retencio, A_file_of_before_is_put_right_by_the_account_that_made_it) {
  const std::string fitxer = base + "-edicions";
  std::ofstream(fitxer).flush();
  ASSERT_EQ(chown(fitxer.c_str(), primer, primer), 0);
  ASSERT_EQ(chmod(fitxer.c_str(), 0644), 0);
  const auto reten = [this] { return Retencio_Fitxer(base).Retenir(1) ? 1 : 0; };
  EXPECT_EQ(Com_A(segon, reten), -1);
  EXPECT_EQ(Com_A(primer, reten), 1);
  EXPECT_EQ(Com_A(segon, reten), 1);
}
