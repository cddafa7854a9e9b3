// A table edited in place that stands on the terminal's own database.
#include "core/menes/Taula_Referencia.h"

#include "core/M_Funcions_Comuns.h"
#include "tests/pantalles/Formularis_De_Prova.h"

class Taula_Local : public Amb_Principal {};

TEST_F(Taula_Local, A_table_may_stand_on_the_local_database) {
  static const Descripcio_Referencia parametres = {
      .formulari = u"F_MARQUESM",
      .titol = u"Paràmetres",
      .graella = u"G_MarquesM",
      .sentencia = [] { return std::string("SELECT * FROM CONFIGURACIO ORDER BY Parametre"); },
      .columnes = {{"Parametre", 3000, "Paràmetre"}, {"Valor", 3000, "Valor"}},
      .boto_esborrar = u"B_Esborrar",
      .esborrar = [](const Recordset&) {},
      .base = &Sessio::Connexio_Local};
  sessio.P_Articles = "M";
  Registrar_Formulari(QStringLiteral("F_MARQUESM"), [] { return new Taula_Referencia(parametres); });
  Graella* graella = Obrir_I_Tenir("F_MARQUESM")->Graella_Llista();
  const int fila = graella->model()->rowCount() - 1;
  graella->setCurrentIndex(graella->model()->index(fila, 0));
  graella->model()->setData(graella->model()->index(fila, 0), QStringLiteral("Nou"));
  graella->model()->setData(graella->model()->index(fila, 1), QStringLiteral("True"));
  EXPECT_TRUE(graella->Desar_Fila());
  EXPECT_EQ(Recordset("SELECT Valor FROM CONFIGURACIO WHERE Parametre = 'Nou'", sessio.Connexio_Local)[0],
            Valor("True"));
}
