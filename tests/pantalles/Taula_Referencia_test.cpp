// A table edited in place whose rows depend on what the session holds: the payments of a document, made up here.
#include "core/menes/Taula_Referencia.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "core/M_Funcions_Comuns.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

constexpr int numero = 7;
constexpr const char* client = "B1";
constexpr double total = 100;

std::string Pagaments_Del_Document() {
  return "SELECT ID_PAG, DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, CLIENT_PAG, PAGAMENT_PAG, DATA_PAG, IMPORT_PAG FROM "
         "PAGAMENTS WHERE EMPRESA_PAG = " +
         Text_SQL(sessio.Empresa_Actual) + " AND DOCUMENT_PAG = " + Text_SQL(sessio.Pag_Document) +
         " AND NUMALB_PAG = " + std::to_string(numero) + " ORDER BY DATA_PAG, ID_PAG";
}

const Descripcio_Referencia pagaments = {
    .formulari = u"F_PAGDOC",
    .titol = u"Pagaments",
    .graella = u"G_PagDoc",
    .sentencia = Pagaments_Del_Document,
    .columnes = {{.camp = "ID_PAG", .amplada = 1500, .titol = "Codi", .a_la_dreta = true, .fixa = true},
                 {.camp = "DOCUMENT_PAG", .amplada = 0, .titol = "Document", .fixa = true},
                 {"PAGAMENT_PAG", 4000, "Forma Pagament"},
                 {"DATA_PAG", 1500, "Data", true},
                 {"IMPORT_PAG", 2000, "Import", true, "0.00"}},
    .boto_esborrar = u"B_EsborrarPag",
    .esborrar =
        [](const Recordset& fila) {
          sessio.Connexio_Comuna.Execute("DELETE * FROM PAGAMENTS WHERE ID_PAG = " + fila["ID_PAG"].Text());
        },
    .desplegables = {{"PAGAMENT_PAG",
                      "SELECT ID_FP, DESCRIPCIO_FP FROM FORMES_PAGAMENT ORDER BY DESCRIPCIO_FP",
                      {"Codi", "Código", "Code"},
                      {"Forma de Pagament", "Forma de Pago", "Method of payment"}}}};

class Pagaments_De_Prova : public Taula_Referencia {
 public:
  Pagaments_De_Prova() : Taula_Referencia(pagaments) {}
  double pagat = 0;
  int desades = 0;

 protected:
  void Fila_Nova(Recordset& fila, const char* camp) override {
    if (std::string(camp) != "PAGAMENT_PAG" || !fila["DOCUMENT_PAG"].Es_Nul()) return;
    fila.Set("DOCUMENT_PAG", sessio.Pag_Document);
    fila.Set("NUMALB_PAG", numero);
    fila.Set("EMPRESA_PAG", sessio.Empresa_Actual);
    fila.Set("CLIENT_PAG", client);
    fila.Set("DATA_PAG", Avui());
    fila.Set("IMPORT_PAG", 0.0);
  }
  bool Per_Desar(const Recordset& fila, const char* camp) override {
    const bool avisa = fila.EditMode() == Edicio::Alta && std::string(camp) == "IMPORT_PAG" &&
                       fila["IMPORT_PAG"].Doble() + pagat > total;
    return !avisa || sessio.pantalla->Caixa("Segur?", estil::si_no) == Resposta::Si;
  }
  void Fila_Desada() override { ++desades; }
};

}  // namespace

class Pagaments_D_Un_Document : public Amb_Principal {
 protected:
  Pagaments_D_Un_Document() {
    Fixar_Avui({2011, 3, 15});
    sessio.P_Albarans = "M";
    sessio.Empresa_Actual = "B00000000";
    sessio.Pag_Document = "A";

    Registrar_Formulari(QStringLiteral("F_PAGDOC"), [] { return new Pagaments_De_Prova; });
    Executar(
        "INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, PAGAMENT_PAG) VALUES ('A', 8, 'B00000000', "
        "'EF')");
    form = Obrir_I_Tenir<Pagaments_De_Prova>("F_PAGDOC");
    QApplication::setActiveWindow(&principal);
    graella = form->Graella_Llista();
    graella->setFocus();
  }
  // Cell by cell, as they are typed into the new row.
  void Escriure(int columna, const QString& valor) {
    const QModelIndex index = graella->model()->index(graella->model()->rowCount() - 1, columna);
    graella->setCurrentIndex(index);
    Formulari::Guardar_Event([&] { graella->model()->setData(index, valor); });
  }
  QString Text(const char* camp) const { return graella->Text_Cella(0, QString::fromLatin1(camp)); }
  static std::int64_t Desats() {
    return Recordset("SELECT * FROM PAGAMENTS WHERE NUMALB_PAG = 7 AND CLIENT_PAG = 'B1'", sessio.Connexio_Comuna)
        .RecordCount();
  }

  Pagaments_De_Prova* form = nullptr;
  Graella* graella = nullptr;
};

TEST_F(Pagaments_D_Un_Document, A_row_begins_with_what_the_form_fills_in) {
  EXPECT_EQ(graella->Files(), 0);
  Escriure(2, QStringLiteral("TR"));
  ASSERT_TRUE(graella->En_Edicio());
  EXPECT_EQ(graella->model()->index(0, 3).data().toString(), QStringLiteral("15/03/2011"));
  EXPECT_EQ(graella->model()->index(0, 4).data().toString(), QStringLiteral("0,00"));
  Escriure(4, QStringLiteral("60"));
  EXPECT_TRUE(graella->Desar_Fila());
  EXPECT_EQ(Desats(), 1);
  EXPECT_EQ(form->desades, 1);
  EXPECT_EQ(Text("PAGAMENT_PAG"), QStringLiteral("Transferència"));
  EXPECT_NE(Text("ID_PAG"), QString()) << "the database gives the number";
  EXPECT_TRUE(installacio.pantalla.caixes.empty());
}

TEST_F(Pagaments_D_Un_Document, A_row_that_is_refused_before_it_is_written_is_given_up) {
  installacio.pantalla.respostes.push_back(Resposta::No);
  Escriure(2, QStringLiteral("EF"));
  Escriure(4, QStringLiteral("100,01"));
  graella->Desar_Fila();
  EXPECT_EQ(installacio.pantalla.caixes.size(), 1U);
  EXPECT_FALSE(graella->En_Edicio());
  EXPECT_EQ(Desats(), 0);
  // Left from another column it is not asked.
  Escriure(2, QStringLiteral("EF"));
  Escriure(4, QStringLiteral("200"));
  graella->setCurrentIndex(graella->model()->index(0, 3));
  EXPECT_TRUE(graella->Desar_Fila());
  EXPECT_EQ(installacio.pantalla.caixes.size(), 1U);
  EXPECT_EQ(Desats(), 1);
}

TEST_F(Pagaments_D_Un_Document, Its_current_row_is_deleted_by_the_button_alone) {
  Escriure(2, QStringLiteral("EF"));
  ASSERT_TRUE(graella->Desar_Fila());
  graella->Anar_A_Fila(0);
  QMetaObject::invokeMethod(form->Cercar_Control(QStringLiteral("B_EsborrarPag")), "click");
  EXPECT_EQ(graella->Files(), 0);
  EXPECT_EQ(Desats(), 0);
}

// The same kind over the terminal's own database.
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
