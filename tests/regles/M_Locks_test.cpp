#include "session/M_Locks.h"

#include "documents/Documents.h"
#include "stock/M_Tipus_Estoc.h"
#include "tests/regles/Base.h"

class M_Locks : public Base_Dades {
 protected:
  // From now on the session is that of another terminal.
  static void Canviar_De_Terminal() {
    sessio.Equip_Actual = "prova/dos";
    sessio.Bloquejos.clear();
  }
  static std::int64_t Locks() { return Files("SELECT * FROM LOCKS"); }
};

TEST_F(M_Locks, a_lock_is_a_row_with_the_name_of_the_terminal) {
  EXPECT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
  EXPECT_EQ(Text("SELECT EQUIP_LCK FROM LOCKS WHERE DOCUMENT_LCK = 'P' AND NUMERO_LCK = '7'"), "prova/un");
}

TEST_F(M_Locks, a_document_in_use_refuses_a_second_terminal_and_the_same_one_again) {
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
  EXPECT_FALSE(Bloquejar_Document("P", empresa_prova, "7"));
  Canviar_De_Terminal();
  EXPECT_FALSE(Bloquejar_Document("P", empresa_prova, "7"));
  EXPECT_FALSE(sessio.Transaccio_Oberta());
  EXPECT_EQ(Locks(), 1);
}

TEST_F(M_Locks, the_same_number_in_another_company_or_kind_is_another_document) {
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
  EXPECT_TRUE(Bloquejar_Document("P", "C1", "7"));
  EXPECT_TRUE(Bloquejar_Document("AC", empresa_prova, "7"));
}

TEST_F(M_Locks, a_released_document_can_be_taken_again) {
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
  EXPECT_TRUE(Desbloquejar_Document("P", empresa_prova, "7"));
  EXPECT_EQ(Locks(), 0);
  EXPECT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
}

TEST_F(M_Locks, releasing_a_document_without_a_lock_ends_well) {
  EXPECT_TRUE(Desbloquejar_Document("P", empresa_prova, "7"));
}

TEST_F(M_Locks, releasing_removes_the_row_whoever_holds_it) {
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
  Canviar_De_Terminal();
  EXPECT_TRUE(Desbloquejar_Document("P", empresa_prova, "7"));
  EXPECT_EQ(Locks(), 0);
}

TEST_F(M_Locks, a_running_transaction_is_neither_committed_nor_undone_by_a_lock) {
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "6"));
  {
    const Transaccio transaccio(sessio.Connexio_Comuna);
    Executar("INSERT INTO MARQUES (CODI_MAR) VALUES('M')");
    EXPECT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
    EXPECT_FALSE(Bloquejar_Document("P", empresa_prova, "7"));
    EXPECT_TRUE(Desbloquejar_Document("P", empresa_prova, "6"));
    EXPECT_TRUE(sessio.Transaccio_Oberta());
  }
  EXPECT_EQ(Files("SELECT * FROM MARQUES"), 0);
  EXPECT_EQ(Text("SELECT NUMERO_LCK FROM LOCKS"), "6");
}

TEST_F(M_Locks, a_lock_that_is_refused_leaves_the_transaction_to_whoever_began_it) {
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
  Transaccio transaccio(sessio.Connexio_Comuna);
  Executar("INSERT INTO MARQUES (CODI_MAR) VALUES('M')");
  EXPECT_FALSE(Bloquejar_Document("P", empresa_prova, "7"));
  transaccio.Confirmar();
  EXPECT_EQ(Files("SELECT * FROM MARQUES"), 1);
}

TEST_F(M_Locks, any_failure_counts_as_a_document_in_use) {
  Executar("DROP TABLE LOCKS");
  EXPECT_FALSE(Bloquejar_Document("P", empresa_prova, "7"));
  EXPECT_FALSE(Desbloquejar_Document("P", empresa_prova, "7"));
}

TEST_F(M_Locks, the_locks_that_a_crash_left_go_at_the_next_login_of_that_terminal_alone) {
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "7"));
  Canviar_De_Terminal();
  ASSERT_TRUE(Bloquejar_Document("P", empresa_prova, "8"));
  Netejar_Locks_Equip();
  EXPECT_EQ(Text("SELECT NUMERO_LCK FROM LOCKS"), "7");
  EXPECT_EQ(Locks(), 1);
}

TEST_F(M_Locks, a_form_that_cannot_lock_raises_1010_with_its_name_and_the_words_of_the_language) {
  ASSERT_TRUE(Bloquejar_Document("AC", empresa_prova, "7"));
  const std::vector<std::string> textos = {"Document en ús!", "Documento en uso!", "Document is locked!"};
  for (std::int16_t idioma = 0; idioma < 3; ++idioma) {
    sessio.Idioma_Actual = idioma;
    const Error_Brollador error = Error_De([] { Bloquejar_Per_Tipus("AC", "7"); });
    EXPECT_EQ(error.Numero(), errors::refusat);
    EXPECT_EQ(error.Origen(), "F_ALBARA");
    EXPECT_EQ(error.Descripcio(), textos[static_cast<std::size_t>(idioma)]);
  }
}

TEST_F(M_Locks, each_kind_of_document_has_its_letter_and_its_form) {
  const std::map<std::string, std::string> formularis = {{"AC", "F_ALBARA"}, {"C", "F_ALBCOMPRA"},
                                                         {"AM", "F_ALBMAG"}, {"P", "F_COMANDA"},
                                                         {"F", "F_FACTURA"}, {"PR", "F_PRESSUPOST"}};
  for (const auto& [lletra, formulari] : formularis) {
    ASSERT_TRUE(Bloquejar_Document(lletra, empresa_prova, "7"));
    const auto refusat = Error_De([&lletra = lletra] { Bloquejar_Per_Tipus(lletra, "7"); });
    EXPECT_EQ(refusat.Origen(), formulari);
  }
}

// A supplier's number in other capitals is the same document, and the same lock.
TEST_F(M_Locks, numbers_that_differ_in_capitals_alone_share_a_lock_as_they_share_a_document) {
  ASSERT_TRUE(Bloquejar_Document("C", empresa_prova, "a/12"));
  EXPECT_FALSE(Bloquejar_Document("C", empresa_prova, "A/12"));
  Executar("INSERT INTO ALBCOMPRACAP (NUMALB_ACC, EMPRESA_ACC) VALUES('a/12', '" + std::string(empresa_prova) + "')");
  EXPECT_TRUE(Existeix_Document(tipus_albcompra, "A/12", empresa_prova));
}

TEST_F(M_Locks, another_letter_locks_nothing) {
  Bloquejar_Per_Tipus("ZZ", "7");
  EXPECT_FALSE(sessio.Bloquejos.contains("ZZ"));
  EXPECT_EQ(Locks(), 0);
}

TEST_F(M_Locks, a_form_knows_that_it_holds_a_lock_until_it_unloads) {
  Bloquejar_Per_Tipus("AC", "7");
  EXPECT_TRUE(sessio.Bloquejos.contains("AC"));
  Alliberar_Per_Tipus("AC", "7");
  EXPECT_FALSE(sessio.Bloquejos.contains("AC"));
  EXPECT_EQ(Locks(), 0);
}

TEST_F(M_Locks, a_form_that_holds_no_lock_releases_nobodys) {
  ASSERT_TRUE(Bloquejar_Document("AC", empresa_prova, "7"));  // another terminal's
  Alliberar_Per_Tipus("AC", "7");
  EXPECT_EQ(Locks(), 1);
}

TEST_F(M_Locks, going_to_another_number_takes_the_new_lock_and_releases_the_old_one) {
  Bloquejar_Per_Tipus("AC", "7");
  Bloquejar_Per_Tipus("AC", "8");
  Desbloquejar_Document("AC", empresa_prova, "7");
  EXPECT_TRUE(sessio.Bloquejos.contains("AC"));
  Alliberar_Per_Tipus("AC", "8");
  EXPECT_EQ(Locks(), 0);
}

TEST_F(M_Locks, a_number_that_is_refused_leaves_the_document_locked) {
  Bloquejar_Per_Tipus("AC", "7");
  ASSERT_TRUE(Bloquejar_Document("AC", empresa_prova, "8"));
  EXPECT_EQ(Error_De([] { Bloquejar_Per_Tipus("AC", "8"); }).Numero(), errors::refusat);
  EXPECT_TRUE(sessio.Bloquejos.contains("AC"));
}
