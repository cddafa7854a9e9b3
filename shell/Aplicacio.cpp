#include "shell/Aplicacio.h"

#include <QMdiSubWindow>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Pantalla_Qt.h"
#include "core/formularis/Serveis.h"
#include "masters/F_Mestres.h"
#include "masters/F_Referencies.h"
#include "masters/M_Aniversaris.h"
#include "masters/M_CP.h"
#include "payments/F_PagDoc.h"
#include "sales/F_Vendes.h"
#include "session/F_Empresa.h"
#include "session/F_EmpresesM.h"
#include "session/F_Subinici.h"
#include "session/F_Usuari.h"
#include "session/F_UsuarisM.h"
#include "session/M_Inici.h"
#include "session/M_Usuaris.h"
#include "session/Selector_Empresa.h"
#include "shell/F_Cerca.h"
#include "shell/F_Help.h"
#include "shell/F_Principal.h"
#include "shell/Instancia_Unica.h"
#include "shell/M_Tipus.h"
#include "shell/Taules.h"

namespace {

// What lower rooms need of the ones above them.
void Posar_Serveis() {
  Posar_Taula_De_Pares();
  Posar_Taula_De_Drets();
  Posar_Taula_De_Crides();
  serveis.localitat_de_cp = Localitat_CP;
  serveis.triar_empresa = [](const std::string& actual) { return Selector_Empresa(actual).Triar(); };
  serveis.obrir_cerca = [](Formulari* llista, const QPoint& lloc) { Obrir_Cerca(llista, lloc); };
  serveis.despres_d_entrar = [] {
    if (!Toca_Avisar_Aniversaris()) return;
    sessio.Crida_Document = "F_SUBINICI;ANIVERSARIS";
    Obrir(QStringLiteral("F_CLIENTSM"));
  };
}

void Mostrar_Finestres() {
  auto* principal = new F_Principal;
  principal->setWindowTitle(QString::fromLatin1(nom_i_versio));
  principal->Mostrar();
  Habilitar_Menus(false);
  Mostrar_Formulari(QStringLiteral("F_SUBINICI"));
  Traduir_Formulari(QStringLiteral("F_PRINCIPAL"));
  Traduir_Formulari(QStringLiteral("F_SUBINICI"));
}

}  // namespace

Aplicacio::Aplicacio(int& argc, char** argv) : QApplication(argc, argv) {
  setApplicationName(QStringLiteral("Brollador"));
  setDesktopFileName(QStringLiteral("brollador"));
  Posar_Serveis();
  Vestir(*this);
}

bool Aplicacio::notify(QObject* receptor, QEvent* event) {
  try {
    return QApplication::notify(receptor, event);
  } catch (...) {
    Formulari::Guardar_Event([error = std::current_exception()] { std::rethrow_exception(error); });
    return true;
  }
}

void Registrar_Formularis() {
  Registrar_Tipus_De_Document();
  Registrar_Formulari(QStringLiteral("F_SUBINICI"), [] { return new F_Subinici; });
  Registrar_Formulari(QStringLiteral("F_CERCA"), [] { return new F_Cerca; });
  Registrar_Formulari(QStringLiteral("F_HELP"), [] { return new F_Help; });
  Registrar_Formulari(QStringLiteral("F_USUARISM"), [] { return new Llista_Descrita(Llista_Usuaris()); });
  Registrar_Formulari(QStringLiteral("F_USUARI"), [] { return new F_Usuari; });
  Registrar_Formulari(QStringLiteral("F_EMPRESESM"), [] { return new Llista_Descrita(Llista_Empreses()); });
  Registrar_Formulari(QStringLiteral("F_EMPRESA"), [] { return new F_Empresa; });
  Registrar_Formularis_Mestres();
  Registrar_Formularis_Referencia();
  Registrar_Formularis_Pagaments();
  Registrar_Formularis_Venda();
}

bool Inici_Aplicacio() {
  static Pantalla_Qt pantalla;
  sessio.pantalla = &pantalla;
  Registrar_Formularis();
  Punter_Ocupat();
  try {
    Preparar_Inici();
    Mostrar_Finestres();
    Punter_Normal();
    return true;
  } catch (const Error_Brollador& error) {
    Punter_Normal();
    pantalla.Caixa(Text_Inici_Fallit(error), estil::simple);
    return !Formularis_Carregats().empty();  // with a form to work in, the program goes on
  }
}

bool Acabar_Aplicacio() {
  F_Principal::Unica()->Recordar_Estat();
  if (!Descarregar_Tots()) return false;
  Tancar_Recordsets_Informe();
  Tancar_Connexions();
  QCoreApplication::quit();
  return true;
}

int Executar_Brollador(int argc, char** argv) {
  Aplicacio aplicacio(argc, argv);
  if (argc > 1) {
    qCritical("brollador: what is \"%s\"? See brollador --help", argv[1]);
    return 2;
  }
  Fixar_Directoris();
  Instancia_Unica instancia(QString::fromStdString(sessio.Dir_Dades));
  if (!instancia.Es_La_Primera()) return 0;
  if (!Inici_Aplicacio()) return 1;
  QObject::connect(&instancia, &Instancia_Unica::Cridada, F_Principal::Unica(), &F_Principal::Portar_Al_Davant_Del_Tot);
  return Aplicacio::exec();
}
