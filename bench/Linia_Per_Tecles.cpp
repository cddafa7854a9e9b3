// A line of a delivery note by the keys of a person, through the real editor in the main window: article, price, units
// and the Tab key between them. What it takes, and how much of the window is painted for it.
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <ctime>

#include "bench/Base_Nua.h"
#include "bench/Mesura.h"
#include "bench/Nota_Oberta.h"
#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Pantalla_Qt.h"
#include "shell/Aplicacio.h"
#include "shell/F_Principal.h"
#include "tests/pantalles/Comptador_De_Pintura.h"
#include "tests/regles/Installacio_Prova.h"

namespace {

constexpr QSize display(1366, 768);
constexpr int linies_d_abans = 396;  // of the long note
constexpr int notes = 12;

double Mil_Segons_De_Processador() {
  timespec ara{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ara);
  return static_cast<double>(ara.tv_sec) * 1e3 + static_cast<double>(ara.tv_nsec) / 1e6;
}

struct Cost {
  std::vector<double> rellotge;
  std::vector<double> processador;
  std::vector<double> pintat;  // windows
};

// What a note reads when it is opened, without a window.
class Lectures_Nues {
 public:
  explicit Lectures_Nues(Base_Nua& base) : base_(base) {}
  void Fer(std::int64_t numero) {
    for (Sentencia_Nua* sentencia : {&cap_, &linies_, &peu_}) {
      for (sentencia->Amb(numero, std::string_view(empresa_mesura)); sentencia->Fila();) ++files_;
    }
    for (clients_.Amb(); clients_.Fila();) ++files_;
    base_.Reposar();
  }

 private:
  Base_Nua& base_;
  std::int64_t files_ = 0;
  Sentencia_Nua cap_{base_, "SELECT * FROM ALBARACAP WHERE NUMALB_AC = ?1 AND EMPRESA_AC = ?2"};
  Sentencia_Nua linies_{base_, "SELECT * FROM ALBARALIN WHERE NUMALB_AL = ?1 AND EMPRESA_AL = ?2 ORDER BY LIN_AL"};
  Sentencia_Nua peu_{base_, "SELECT * FROM ALBARAPEU WHERE NUMALB_AP = ?1 AND EMPRESA_AP = ?2 ORDER BY TIPUS_IVA_AP"};
  Sentencia_Nua clients_{base_, "SELECT NIF_CLI, RAO_SOCIAL_CLI FROM CLIENTS ORDER BY RAO_SOCIAL_CLI"};
};

class Oficina {
 public:
  Oficina() : comptador_(&principal_) {
    Sembrar_Articles(sessio.Connexio_Comuna);
    sessio.Connexio_Comuna.Execute("INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, IVA_CLI) VALUES ('B1', 'Soler', -1)");
    sessio.pantalla = &pantalla_;
    sessio.P_Albarans = "M";
    Registrar_Formularis();
    principal_.resize(display);
    principal_.show();
    QApplication::setActiveWindow(&principal_);
    Obrir(QStringLiteral("F_ALBARANSS"));
    Prem("F_ALBARANSS", "B_Albarans");
  }
  ~Oficina() {
    Descarregar_Tots();
    Assentar();
  }
  static void Nova_Nota() {
    Descarregar_Formulari(QStringLiteral("F_ALBARA"));
    Assentar();
    Prem("F_ALBARANSM", "B_NouAlbara");
    Camp<Combo_Codi>("CMB_CLIENT_DESC_AC")->Triar("B1", "Soler");
    Assentar();
    Camp<QLineEdit>("TXT_ARTICLE_AL")->setFocus();
    Assentar();
  }
  // The lines of another note come into this one, and it is opened again.
  static void Allargar_Nota() {
    Nova_Nota();
    const Valor numero = Formulari_De_Nom(QStringLiteral("F_ALBARA"))->Document()->Numero_Document();
    Afegir("1", "10");
    Transaccio transaccio(sessio.Connexio_Comuna);
    const Recordset primera("SELECT * FROM ALBARALIN WHERE NUMALB_AL = " + numero.Text(), sessio.Connexio_Comuna);
    for (int linia = 2; linia <= linies_d_abans; ++linia) {
      std::vector<std::pair<std::string_view, Valor>> columnes;
      for (const ::Camp& camp : primera.Fields()) {
        columnes.emplace_back(camp.nom, camp.nom == "LIN_AL" ? Valor(linia) : primera[camp.nom]);
      }
      sessio.Connexio_Comuna.Afegir_Fila("ALBARALIN", columnes);
    }
    transaccio.Confirmar();
    Descarregar_Formulari(QStringLiteral("F_ALBARA"));
    Assentar();
    sessio.Numero_Albara = numero;
    Obrir(QStringLiteral("F_ALBARA"));
    Assentar();
    Camp<QLineEdit>("TXT_ARTICLE_AL")->setFocus();
    Assentar();
  }
  // The note that is open, opened again and closed as it is.
  static Parella Mesurar_Obrir_I_Tancar() {
    const Valor numero = Formulari_De_Nom(QStringLiteral("F_ALBARA"))->Document()->Numero_Document();
    Descarregar_Formulari(QStringLiteral("F_ALBARA"));
    Assentar();
    Base_Nua base(sessio.Fitxer_Comu);
    Lectures_Nues lectures(base);
    Parella parella;
    for (int i = 0; i < notes; ++i) {
      const double abans = Mil_Segons_De_Processador();
      sessio.Numero_Albara = numero;
      Obrir(QStringLiteral("F_ALBARA"));
      Descarregar_Formulari(QStringLiteral("F_ALBARA"));
      Assentar();
      const double enmig = Mil_Segons_De_Processador();
      lectures.Fer(numero.Enter());
      parella.nostre.push_back(enmig - abans);
      parella.nu.push_back(Mil_Segons_De_Processador() - enmig);
    }
    return parella;
  }
  void Mesurar_Linia(int n, Cost& cost) {
    comptador_.Comencar();
    const double abans = Mil_Segons_De_Processador();
    cost.rellotge.push_back(Mil_Segons([&] { Afegir(std::to_string(n), "13"); }));
    cost.processador.push_back(Mil_Segons_De_Processador() - abans);
    cost.pintat.push_back(comptador_.Finestres());
  }

 private:
  template <class Control>
  static Control* Camp(const char* nom) {
    return Formulari_De_Nom(QStringLiteral("F_ALBARA"))->findChild<Control*>(QString::fromLatin1(nom));
  }
  static void Prem(const char* formulari, const char* boto) {
    Formulari_De_Nom(QString::fromLatin1(formulari))->findChild<QPushButton*>(QString::fromLatin1(boto))->click();
    Assentar();
  }
  static void Assentar() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static void Tecla(Qt::Key tecla, const QString& text = {}) {
    QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), tecla, text, Qt::NoModifier);
    QCoreApplication::processEvents();
  }
  static void Escriure(const std::string& text) {
    for (const char lletra : text) Tecla(Qt::Key(lletra), QString(QLatin1Char(lletra)));
  }
  static void Anar_A(const char* nom) {
    while (QApplication::focusWidget() != Camp<QLineEdit>(nom)) Tecla(Qt::Key_Tab);
  }
  static void Afegir(const std::string& n, const std::string& preu) {
    Escriure(Codi_Article(std::stoi(n)));
    Anar_A("TXT_PREU_UNITARI_AL");
    Escriure(preu);
    Anar_A("TXT_UNITATS_AL");
    Escriure("2");
    Tecla(Qt::Key_Tab);
    Anar_A("TXT_ARTICLE_AL");
  }

  const Installacio_Prova installacio_;
  Pantalla_Qt pantalla_;
  F_Principal principal_;
  Comptador_De_Pintura comptador_;
};

double Processador_De_Les_Regles() {
  const Installacio_Prova installacio;
  Sembrar_Articles(sessio.Connexio_Comuna);
  Nota_Oberta oberta(Crear_Capcalera_Albara());
  std::vector<double> costos;
  for (int k = 1; k <= 40; ++k) {
    const double abans = Mil_Segons_De_Processador();
    oberta.Afegir(Linia_Mesura(k));
    costos.push_back(Mil_Segons_De_Processador() - abans);
  }
  return Mediana(costos);
}

}  // namespace

std::vector<Figura> Mesurar_Linia_Per_Tecles() {
  const double regles = Processador_De_Les_Regles();
  Oficina oficina;
  Cost quarta;
  Cost quatre_centes;
  for (int i = 0; i < notes; ++i) {
    Oficina::Nova_Nota();
    Cost primeres;
    oficina.Mesurar_Linia(1, primeres);
    for (int k = 2; k <= 5; ++k) oficina.Mesurar_Linia(k, k >= 3 ? quarta : primeres);
    Oficina::Allargar_Nota();
    oficina.Mesurar_Linia(1, primeres);
    oficina.Mesurar_Linia(2, primeres);
    for (int k = 3; k <= 5; ++k) oficina.Mesurar_Linia(k, quatre_centes);
  }
  const Parella obrir = Oficina::Mesurar_Obrir_I_Tancar();
  const auto figura = [](const char* nom, const std::vector<double>& nostre, double nu, double limit) {
    return Figura{nom, Amb_Decimals(Mediana(nostre), 2) + " ms", Amb_Decimals(nu, 2) + " ms", Mediana(nostre) / nu,
                  limit};
  };
  return {
      {.nom = "line by keys: wall", .nostre = Amb_Decimals(Mediana(quarta.rellotge), 2) + " ms"},
      {.nom = "line by keys: processor (bare: that of the rules alone)",
       .nostre = Amb_Decimals(Mediana(quarta.processador), 2) + " ms",
       .nu = Amb_Decimals(regles, 2) + " ms",
       .rao = Mediana(quarta.processador) / regles},
      {"line by keys: painted, in windows", Amb_Decimals(Mediana(quarta.pintat), 3), "1", Mediana(quarta.pintat), 0.5},
      {"line by keys, the 400th: painted, in windows", Amb_Decimals(Mediana(quatre_centes.pintat), 3), "1",
       Mediana(quatre_centes.pintat), 0.5},
      figura("line by keys: wall of the 400th, against the 4th", quatre_centes.rellotge, Mediana(quarta.rellotge), 1.2),
      figura("line by keys: processor of the 400th, against the 4th", quatre_centes.processador,
             Mediana(quarta.processador), 1.2),
      obrir.Fer_Figura("note of 400 lines opened and closed as it is, processor (bare: its reads)", "ms", {})};
}
