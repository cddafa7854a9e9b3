// What is remembered of windows, by user.
#include "core/formularis/Memoria_Pantalles.h"

#include <QFile>
#include <QMdiArea>

#include "core/controls/Graella.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

const QString clients = QStringLiteral("F_CLIENTSM");

QString Fitxer() {
  return QString::fromStdString(sessio.Dir_Dades + "/pantalles.ini");
}
void Escriure_Fitxer(const QByteArray& text) {
  QFile fitxer(Fitxer());
  ASSERT_TRUE(fitxer.open(QIODevice::WriteOnly));
  fitxer.write(text);
}

}  // namespace

class Memoria : public Amb_Principal {
 protected:
  Memoria() { Registrar("F_CLIENTSM"); }
  QMdiSubWindow* Finestra() {
    Obrir(clients);
    return qobject_cast<QMdiSubWindow*>(Obert("F_CLIENTSM")->parentWidget());
  }
};

TEST_F(Memoria, A_window_comes_back_with_the_size_that_its_user_gave_it) {
  const QSize propia = Finestra()->size();
  Finestra()->resize(700, 400);
  Tancar("F_CLIENTSM");
  EXPECT_EQ(Finestra()->size(), QSize(700, 400));
  Tancar("F_CLIENTSM");
  sessio.Usuari_Actual = "L'ALTRE/1";
  EXPECT_EQ(Finestra()->size(), propia);
  Finestra()->resize(500, 300);
  Tancar("F_CLIENTSM");
  EXPECT_EQ(Finestra()->size(), QSize(500, 300));
  Tancar("F_CLIENTSM");
  sessio.Usuari_Actual = "ADMIN";
  EXPECT_EQ(Finestra()->size(), QSize(700, 400));
}

TEST_F(Memoria, A_size_larger_than_the_area_is_cut) {
  Recordar_Mida(clients, {9000, 9000}, {1, 1});
  EXPECT_EQ(Finestra()->size(), principal.Area()->viewport()->size());
}

TEST_F(Memoria, A_maximized_window_does_not_change_what_is_remembered) {
  Recordar_Mida(clients, {700, 400}, {1, 1});
  Finestra()->showMaximized();
  Tancar("F_CLIENTSM");
  EXPECT_EQ(Mida_Recordada(clients), QSize(700, 400));
}

TEST_F(Memoria, A_window_of_its_own_size_takes_no_room) {
  Finestra();
  Tancar("F_CLIENTSM");
  EXPECT_FALSE(QFile::exists(Fitxer()));
}

TEST_F(Memoria, A_column_that_is_not_shown_keeps_its_own_width_under_another_title) {
  Registrar_Llista("F_CPM", "SELECT CP_CP FROM CP",
                   {{"CP_CP", 1500, "CP"}, {.camp = "LOCALITAT_CP", .amplada = 900, .titol = "L", .opcional = true}});
  auto* llista = Obrir_I_Tenir<Llista_De_Prova>("F_CPM");
  Graella* graella = llista->Graella_Llista();
  ASSERT_TRUE(graella->isColumnHidden(1));
  graella->Titol_Columna(1, QStringLiteral("Població del client, tal com la diu el codi postal"));
  Recordset amb_localitat("SELECT CP_CP, LOCALITAT_CP FROM CP", sessio.Connexio_Comuna);
  graella->Lligar(&amb_localitat);
  ASSERT_FALSE(graella->isColumnHidden(1));
  EXPECT_GT(graella->Amplada_Donada(1), 200);
  Tancar("F_CPM");
  EXPECT_FALSE(QFile::exists(Fitxer()));
}

TEST_F(Memoria, Nobody_at_work_nothing_remembered) {
  sessio.Usuari_Actual.clear();
  Recordar_Mida(clients, {700, 400}, {1, 1});
  EXPECT_FALSE(Mida_Recordada(clients).has_value());
  EXPECT_FALSE(QFile::exists(Fitxer()));
}

TEST_F(Memoria, What_is_no_size_counts_as_none) {
  for (const char* valor : {"", "abc", "700", "700x", "0x0", "-5x300", "99999999999x10", "1x2x3", "@Size(1 2)"}) {
    Escriure_Fitxer(QByteArray("[ADMIN]\nF_CLIENTSM\\mida=") + valor + "\n");
    EXPECT_FALSE(Mida_Recordada(clients).has_value()) << valor;
  }
  Escriure_Fitxer("[ADMIN]\nF_CLIENTSM\\G_CLIENTSM\\NIF_CLI=molt\n");
  EXPECT_FALSE(Amplada_Recordada(clients, QStringLiteral("G_ClientsM"), QStringLiteral("NIF_CLI")).has_value());
}

TEST_F(Memoria, A_damaged_file_is_harmless_and_takes_new_sizes) {
  QByteArray brossa;
  for (int i = 0; i < 4000; ++i) brossa.append(static_cast<char>(i * 37));
  Escriure_Fitxer(brossa);
  EXPECT_FALSE(Mida_Recordada(clients).has_value());
  Recordar_Mida(clients, {700, 400}, {1, 1});
  EXPECT_EQ(Mida_Recordada(clients), QSize(700, 400));
}

TEST_F(Memoria, A_file_that_cannot_be_written_is_harmless) {
  sessio.Dir_Dades = "/proc/no/hi/es";
  Recordar_Mida(clients, {700, 400}, {1, 1});
  EXPECT_FALSE(Mida_Recordada(clients).has_value());
}
