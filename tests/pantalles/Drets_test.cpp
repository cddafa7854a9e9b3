// The rights on the controls of every form.
#include "core/formularis/Drets.h"

#include <QFile>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <filesystem>

#include "core/controls/Controls.h"
#include "core/formularis/Pares.h"
#include "tests/pantalles/Formularis_De_Prova.h"

namespace {

QString Nom(const char16_t* nom) {
  return QString::fromUtf16(nom);
}

// The names of the controls of every .ui file, in capitals, by the form's.
std::map<QString, QSet<QString>> Controls_Dels_Formularis() {
  static const QRegularExpression control(QStringLiteral("<widget class=\"[^\"]+\" name=\"([^\"]+)\""));
  std::map<QString, QSet<QString>> formularis;
  for (const auto& fitxer : std::filesystem::recursive_directory_iterator(CARPETA_PROVES "/..")) {
    const QString cami = QString::fromStdString(fitxer.path().string());
    if (!cami.endsWith(u".ui") || cami.contains(u"/build/")) continue;
    QFile obert(cami);
    EXPECT_TRUE(obert.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(obert.readAll());
    auto& noms = formularis[QString::fromStdString(fitxer.path().stem().string()).toUpper()];
    for (auto it = control.globalMatch(text); it.hasNext();) noms << it.next().captured(1).toUpper();
  }
  return formularis;
}

}  // namespace

TEST(Taula_De_Drets, Every_row_is_of_a_form_of_the_system_and_names_each_control_once) {
  QSet<QString> formularis;
  QSet<QString> vistos;
  for (const Fila_Drets& fila : Taula_De_Drets()) {
    EXPECT_TRUE(Es_Del_Sistema(Nom(fila.formulari))) << Nom(fila.formulari).toStdString();
    formularis << Nom(fila.formulari);
    for (const char16_t* control : fila.controls) {
      const QString quin = Nom(fila.formulari) + u'.' + Nom(control).toUpper();
      EXPECT_FALSE(vistos.contains(quin)) << quin.toStdString();
      vistos << quin;
    }
  }
  EXPECT_EQ(formularis.size(), 33);
  for (const char16_t* sense : {u"F_MOVIMENTSM", u"F_MOVIMENTSS", u"F_PAGAMENTSS", u"F_PAGPENDM", u"F_ALBARANSS",
                                u"F_ARTICLESMCS", u"F_ARTICLESSELC", u"F_COMANDESMCS", u"F_DETALL_LINIA",
                                u"F_DETALL_LINIAC", u"F_CERCA", u"F_FACTURAR", u"F_HELP"}) {
    EXPECT_FALSE(formularis.contains(Nom(sense))) << Nom(sense).toStdString();
  }
}

TEST(Taula_De_Drets, The_screens_that_exist_have_the_controls_that_it_names) {
  const auto formularis = Controls_Dels_Formularis();
  int mirats = 0;
  for (const Fila_Drets& fila : Taula_De_Drets()) {
    const auto formulari = formularis.find(Nom(fila.formulari));
    if (formulari == formularis.end()) continue;
    ++mirats;
    for (const char16_t* control : fila.controls) {
      EXPECT_TRUE(formulari->second.contains(Nom(control).toUpper()))
          << Nom(fila.formulari).toStdString() << " has no " << Nom(control).toStdString();
    }
  }
  EXPECT_GE(mirats, 3);
}

class Drets : public Amb_Principal {
 protected:
  // A form with the controls of its rows; grids where they are grids.
  Formulari_De_Prova* Formulari_Sencer(const char16_t* nom) {
    const QString text = Nom(nom);
    Registrar(qUtf8Printable(text));
    auto* formulari = Obrir_I_Tenir<Formulari_De_Prova>(qUtf8Printable(text));
    for (const Fila_Drets& fila : Taula_De_Drets()) {
      if (text != QStringView(fila.formulari)) continue;
      for (const char16_t* control : fila.controls) {
        const QByteArray nom_control = Nom(control).toUtf8();
        if (nom_control.startsWith("G_")) {
          formulari->Posar<Graella>(nom_control);
        } else {
          formulari->Posar<QLineEdit>(nom_control);
        }
      }
    }
    return formulari;
  }
  static bool Permes(Formulari* formulari, const QString& nom) {
    auto* control = formulari->Cercar_Control(nom);
    const auto* graella = qobject_cast<Graella*>(control);
    const bool en_lloc = graella != nullptr && formulari->Nom().endsWith(u'M');
    return control->isEnabledTo(formulari) &&
           (!en_lloc || graella->editTriggers() != QAbstractItemView::NoEditTriggers);
  }
  static bool Actiu(Formulari* formulari, const char* control) {
    formulari->Aplicar_Drets();
    return Permes(formulari, QString::fromUtf8(control));
  }
};

TEST_F(Drets, Lists_ask_for_M_and_editors_refuse_C) {
  for (const Fila_Drets& fila : Taula_De_Drets()) {
    if (fila.dret == nullptr || fila.condicio != nullptr || fila.mena == Mena_Drets::Sempre_Desactivat) continue;
    auto* formulari = Formulari_Sencer(fila.formulari);
    for (const char* lletra : {"M", "C", "S", "X", "m", ""}) {
      sessio.*fila.dret = lletra;
      const std::string text = lletra;
      const bool esperat = fila.mena == Mena_Drets::Editor ? text != "C" : text == "M";
      formulari->Aplicar_Drets();
      for (const char16_t* control : fila.controls) {
        EXPECT_EQ(Permes(formulari, Nom(control)), esperat)
            << Nom(fila.formulari).toStdString() << " " << Nom(control).toStdString() << " " << text;
      }
    }
    Tancar(qUtf8Printable(formulari->Nom()));
  }
}

TEST_F(Drets, Localities_follow_their_postal_code_whoever_looks) {
  sessio.P_Clients = sessio.P_Proveidors = "M";
  EXPECT_FALSE(Actiu(Formulari_Sencer(u"F_CLIENT"), "TXT_LOCALITAT_ENV_CLI"));
  EXPECT_FALSE(Actiu(Formulari_Sencer(u"F_PROVEIDOR"), "TXT_LOCALITAT_PRO"));
  EXPECT_FALSE(Actiu(Formulari_Sencer(u"F_EMPRESA"), "TXT_LOCALITAT_EMP"));
}

TEST_F(Drets, Companies_are_the_administrators) {
  auto* llista = Formulari_Sencer(u"F_EMPRESESM");
  auto* fitxa = Formulari_Sencer(u"F_EMPRESA");
  sessio.P_Clients = "M";
  EXPECT_TRUE(Actiu(llista, "B_NovaEmpresa") && Actiu(fitxa, "TXT_NIF_EMP"));
  sessio.P_Clients = "S";
  EXPECT_FALSE(Actiu(llista, "B_NovaEmpresa"));
  EXPECT_TRUE(Actiu(fitxa, "TXT_NIF_EMP"));
  sessio.P_Clients = "C";
  EXPECT_FALSE(Actiu(fitxa, "TXT_NIF_EMP"));
  sessio.P_Clients = "M";
  sessio.Usuari_Actual = "MARIA";
  EXPECT_FALSE(Actiu(llista, "B_NovaEmpresa") || Actiu(fitxa, "TXT_NIF_EMP"));
}

TEST_F(Drets, Stock_rows_are_deleted_by_the_administrator_alone) {
  auto* llista = Formulari_Sencer(u"F_STOCKSM");
  sessio.P_Articles = "C";
  EXPECT_TRUE(Actiu(llista, "B_Esborrar"));
  sessio.P_Articles = "M";
  for (const char* usuari : {"MARIA", "C", "M"}) {
    sessio.Usuari_Actual = usuari;
    EXPECT_FALSE(Actiu(llista, "B_Esborrar")) << usuari;
  }
}

TEST_F(Drets, Payments_go_by_the_right_of_their_document) {
  auto* pagaments = Formulari_Sencer(u"F_PAGDOC");
  sessio.P_Albarans = sessio.P_Comandes = sessio.P_Factures = "M";
  const std::pair<const char*, std::string*> lletres[] = {
      {"A", &sessio.P_Albarans}, {"P", &sessio.P_Comandes}, {"F", &sessio.P_Factures}};
  for (const auto& [document, dret] : lletres) {
    sessio.Pag_Document = document;
    EXPECT_TRUE(Actiu(pagaments, "G_PagDoc")) << document;
    *dret = "C";
    EXPECT_FALSE(Actiu(pagaments, "G_PagDoc") || Actiu(pagaments, "B_EsborrarPag")) << document;
    *dret = "M";
  }
  sessio.Pag_Document.clear();
  EXPECT_FALSE(Actiu(pagaments, "G_PagDoc"));
}

TEST_F(Drets, Nobody_changes_what_makes_the_administrator_one) {
  auto* usuari = Formulari_Sencer(u"F_USUARI");
  auto* codi = qobject_cast<QLineEdit*>(usuari->Cercar_Control(QStringLiteral("TXT_CODI_USU")));
  sessio.P_Usuaris = "M";
  codi->setText(QStringLiteral("ADMIN"));
  EXPECT_TRUE(Actiu(usuari, "TXT_CLAU_USU"));
  for (const char* control : {"TXT_CODI_USU", "TXT_ACTIU_USU", "TXT_P_FACTURES"}) EXPECT_FALSE(Actiu(usuari, control));
  codi->setText(QStringLiteral("0000000001"));
  for (const char* control : {"TXT_CODI_USU", "TXT_ACTIU_USU", "TXT_P_FACTURES"}) EXPECT_TRUE(Actiu(usuari, control));
  sessio.P_Usuaris = "C";
  for (const char* control : {"TXT_CLAU_USU", "TXT_P_CLIENTS"}) EXPECT_FALSE(Actiu(usuari, control));
}

TEST_F(Drets, Invoicing_asks_for_its_own_right_and_for_one_customer) {
  auto* llista = Formulari_Sencer(u"F_ALBARANSM");
  sessio.P_Factures = "M";
  EXPECT_FALSE(Actiu(llista, "B_FACT"));
  Registrar("F_ALBARANSS");
  auto* client = Obrir_I_Tenir<Formulari_De_Prova>("F_ALBARANSS")->Posar<Combo_Codi>("CMB_CLIENT");
  EXPECT_FALSE(Actiu(llista, "B_FACT"));
  client->Posar("B1", "Ferreteria Soler");
  EXPECT_TRUE(Actiu(llista, "B_FACT"));
  sessio.P_Factures = "S";
  EXPECT_FALSE(Actiu(llista, "B_FACT"));
  sessio.P_Factures = "M";
  sessio.P_Albarans = "C";
  EXPECT_FALSE(Actiu(llista, "B_FACT"));
}

TEST_F(Drets, A_control_that_the_form_has_not_is_passed_over) {
  Registrar("F_CLIENTSM");
  auto* llista = Obrir_I_Tenir<Formulari_De_Prova>("F_CLIENTSM");
  llista->Posar<QPushButton>("B_NouClient");
  sessio.P_Clients = "C";
  EXPECT_FALSE(Actiu(llista, "B_NouClient"));
}

TEST_F(Drets, No_right_enables_a_button_whose_screen_is_not_there) {
  QPushButton boto;
  boto.setProperty("pantalla", QStringLiteral("F_QUE_NO_HI_ES"));
  Habilitar_Control(boto, true);
  EXPECT_FALSE(boto.isEnabled());
  boto.setProperty("pantalla", QStringLiteral("F_CLIENTSM"));
  Registrar("F_CLIENTSM");
  Habilitar_Control(boto, true);
  EXPECT_TRUE(boto.isEnabled());
}
