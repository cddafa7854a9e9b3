#include "session/M_Idiomes.h"

#include "core/M_Textos.h"

#include "tests/regles/Base.h"

class M_Idiomes : public Base_Dades {
 protected:
  static void Posar_Text(const std::string& objecte, int idioma, const std::string& control, const std::string& text) {
    sessio.Connexio_Local.Execute("INSERT INTO TEXTS (F_OBJECT, F_LANGUAGE, F_CONTROL, F_PROPERTY, F_TEXT) VALUES(" +
                                  Text_SQL(objecte) + "," + std::to_string(idioma) + "," + Text_SQL(control) +
                                  ",'CAPTION'," + Text_SQL(text) + ")");
  }
};

TEST_F(M_Idiomes, a_language_has_its_own_name) {
  EXPECT_EQ(Nom_Idioma(0), "Català");
  EXPECT_EQ(Nom_Idioma(2), "English");
}

TEST_F(M_Idiomes, an_unknown_language_is_a_dash) {
  EXPECT_EQ(Nom_Idioma(9), "-");
  Executar("UPDATE LANGUAGES SET DESCRIPTION = NULL WHERE ID = 2");
  EXPECT_EQ(Nom_Idioma(2), "-");
}

TEST_F(M_Idiomes, the_texts_of_a_form_are_those_of_the_language_of_the_session) {
  Posar_Text("F_PROVA", 0, "B_EXIT", "Sortir");
  Posar_Text("F_PROVA", 2, "B_EXIT", "Exit");
  sessio.Idioma_Actual = 2;
  const auto textos = Textos_De("F_PROVA");
  ASSERT_EQ(textos.size(), 1U);
  EXPECT_EQ(textos[0].control, "B_EXIT");
  EXPECT_EQ(textos[0].propietat, "CAPTION");
  EXPECT_EQ(textos[0].text, "Exit");
}

TEST_F(M_Idiomes, a_form_without_rows_has_no_texts_in_any_language) {
  EXPECT_TRUE(Textos_De("F_PROVA").empty());
}

TEST_F(M_Idiomes, a_choice_of_language_follows_the_user_to_other_terminals) {
  Fixar_Idioma(1);
  EXPECT_EQ(sessio.Idioma_Actual, 1);
  EXPECT_EQ(sessio.Idioma_Usuari, 1);
  EXPECT_EQ(Numero("SELECT IDIOMA_USU FROM USUARIS WHERE CODI_USU = 'ADMIN'"), 1);
}

TEST_F(M_Idiomes, our_own_errors_speak_the_language_of_the_session) {
  const std::string catala = Descripcio_Error(errors::divisio_per_zero);
  Fixar_Idioma(2);
  EXPECT_NE(Descripcio_Error(errors::divisio_per_zero), catala);
}
