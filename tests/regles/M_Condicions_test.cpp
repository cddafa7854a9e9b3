#include "core/M_Condicions.h"

#include "tests/regles/Base.h"

class Condicio_D_Aniversari : public Base_Dades {
 protected:
  Condicio_D_Aniversari() {
    Fixar_Avui({2011, 3, 5});
    for (const auto& [nif, dia] : {std::pair{"C1", "#3/5/1960#"}, {"C2", "#3/20/1975#"}, {"C3", "#2/29/1980#"}})
      Executar(std::string("INSERT INTO CLIENTS_DADES (NIF_CLID, CLIENT_DESC_CLID, NAIXEMENT_CLID) VALUES ('") + nif +
               "', 'x', " + dia + ")");
    Executar("INSERT INTO CLIENTS_DADES (NIF_CLID, CLIENT_DESC_CLID) VALUES ('C4', 'x')");
  }
  ~Condicio_D_Aniversari() override { Deixar_Anar_Rellotge(); }
  static std::string Qui(const std::optional<Data_Hora>& des_de, const std::optional<Data_Hora>& fins_a) {
    const Recordset rs("SELECT NIF_CLID FROM CLIENTS_DADES WHERE " +
                           Condicio_Aniversari(des_de, fins_a, "NAIXEMENT_CLID") + " ORDER BY NIF_CLID",
                       sessio.Connexio_Comuna);
    std::string qui;
    for (std::int64_t fila = 0; fila < rs.RecordCount(); ++fila) qui += rs.Valor_De_Fila(fila, 0).Text() + " ";
    return qui;
  }
  const Data_Hora avui_{2011, 3, 5};
  const Data_Hora despres_{2011, 3, 20};
};

TEST_F(Condicio_D_Aniversari, is_a_day_of_this_year_between_two_from_one_or_up_to_one) {
  const std::string dia =
      "NAIXEMENT_CLID IS NOT NULL AND DATESERIAL(2011,DATEPART('m',NAIXEMENT_CLID),DATEPART('d',NAIXEMENT_CLID))";
  EXPECT_EQ(Condicio_Aniversari(avui_, despres_, "NAIXEMENT_CLID"), dia + " BETWEEN #3/5/2011# AND #3/20/2011#");
  EXPECT_EQ(Condicio_Aniversari(avui_, {}, "NAIXEMENT_CLID"), dia + " >= #3/5/2011#");
  EXPECT_EQ(Condicio_Aniversari({}, avui_, "NAIXEMENT_CLID"), dia + " <= #3/5/2011#");
  EXPECT_EQ(Condicio_Aniversari({}, {}, "NAIXEMENT_CLID"), "");
}

TEST_F(Condicio_D_Aniversari, finds_whoever_was_born_on_those_days_of_any_year) {
  EXPECT_EQ(Qui(avui_, despres_), "C1 C2 ");
  EXPECT_EQ(Qui(despres_, {}), "C2 ");
  EXPECT_EQ(Qui({}, avui_), "C1 C3 ");
  EXPECT_EQ(Qui(Data_Hora{2011, 3, 1}, Data_Hora{2011, 3, 1}), "C3 ");
}
