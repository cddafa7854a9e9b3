#include "tests/pantalles/Cada_Pantalla.h"

#include <QApplication>
#include <QFile>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Graella.h"
#include "output/informe/Treballs.h"
#include "shell/Aplicacio.h"

namespace {

void Doble_Clic(const char* llista, std::int64_t fila) {
  Graella* graella = Formulari_De_Nom(QString::fromLatin1(llista))->Graella_Llista();
  graella->Anar_A_Fila(fila);
  Q_EMIT graella->Doble_Clic(fila);
}

template <const char* nom>
void Obrir_Sol() {
  Obrir(QString::fromLatin1(nom));
}
constexpr char subinici[] = "F_SUBINICI";
constexpr char ajuda[] = "F_HELP";
constexpr char albarans_s[] = "F_ALBARANSS";
constexpr char albarans_m[] = "F_ALBARANSM";
constexpr char comandes_s[] = "F_COMANDESS";
constexpr char comandes_m[] = "F_COMANDESM";
constexpr char comandes_mcs[] = "F_COMANDESMCS";
constexpr char factures_s[] = "F_FACTURESS";
constexpr char factures_m[] = "F_FACTURESM";
constexpr char pressupostos_s[] = "F_PRESSUPOSTOSS";
constexpr char pressupostos_m[] = "F_PRESSUPOSTOSM";
constexpr char usuaris_m[] = "F_USUARISM";
constexpr char clients_m[] = "F_CLIENTSM";
constexpr char proveidors_m[] = "F_PROVEIDORSM";
constexpr char empreses_m[] = "F_EMPRESESM";
constexpr char articles_selc[] = "F_ARTICLESSELC";
constexpr char articles_mc[] = "F_ARTICLESMC";
constexpr char articles_mcs[] = "F_ARTICLESMCS";
constexpr char marques_m[] = "F_MARQUESM";
constexpr char families_m[] = "F_FAMILIESM";
constexpr char subfamilies_m[] = "F_SUBFAMILIESM";
constexpr char ivas_m[] = "F_IVASM";
constexpr char cp_m[] = "F_CPM";
constexpr char venciments_m[] = "F_VENCIMENTSM";
constexpr char formes_pagament_m[] = "F_FORMESPAGAMENTM";
constexpr char magatzems_m[] = "F_MAGATZEMSM";

// The editor of the row of that code, or of the code that it was given since.
template <const char* formulari, std::string Sessio::*per_obrir, const char* codi>
void Obrir_Editor() {
  if ((sessio.*per_obrir).empty()) sessio.*per_obrir = codi;
  Obrir(QString::fromLatin1(formulari));
}
constexpr char client[] = "F_CLIENT";
constexpr char proveidor[] = "F_PROVEIDOR";
constexpr char empresa[] = "F_EMPRESA";
constexpr char un_article[] = "F_ARTICLE";
constexpr char usuari[] = "F_USUARI";
constexpr char codi_client[] = "B1";
constexpr char codi_proveidor[] = "P1";
constexpr char codi_empresa[] = "B11111111";
constexpr char codi_article[] = "AAA";
constexpr char codi_usuari[] = "ANNA";

const Cami camins[] = {
    {clients_m, Obrir_Sol<clients_m>, true},
    {client, Obrir_Editor<client, &Sessio::Nif_Client, codi_client>, false,
     "DELETE * FROM CLIENTS WHERE NIF_CLI <> 'B1'", "UPDATE CLIENTS SET NIF_CLI = 'B1'"},
    {proveidors_m, Obrir_Sol<proveidors_m>, true},
    {proveidor, Obrir_Editor<proveidor, &Sessio::Nif_Proveidor, codi_proveidor>, false, "",
     "UPDATE PROVEIDORS SET NIF_PRO = 'P1'"},
    {empreses_m, Obrir_Sol<empreses_m>, true},
    {empresa, Obrir_Editor<empresa, &Sessio::Nif_Empresa, codi_empresa>, false,
     "DELETE * FROM EMPRESES WHERE NIF_EMP <> 'B11111111'", "UPDATE EMPRESES SET NIF_EMP = 'B11111111'"},
    {articles_selc, Obrir_Sol<articles_selc>, true},
    {articles_mc, Obrir_Sol<articles_mc>, true},
    {articles_mcs, Obrir_Sol<articles_mcs>, true},
    {un_article, Obrir_Editor<un_article, &Sessio::Codi_Article, codi_article>, false,
     "DELETE * FROM ARTICLES WHERE CODI_ART <> 'AAA'", "UPDATE ARTICLES SET CODI_ART = 'AAA'"},
    {marques_m, Obrir_Sol<marques_m>, false},
    {families_m, Obrir_Sol<families_m>, false},
    {subfamilies_m, Obrir_Sol<subfamilies_m>, false},
    {ivas_m, Obrir_Sol<ivas_m>, false},
    {cp_m, Obrir_Sol<cp_m>, false},
    {venciments_m, Obrir_Sol<venciments_m>, false},
    {formes_pagament_m, Obrir_Sol<formes_pagament_m>, false},
    {magatzems_m, Obrir_Sol<magatzems_m>, false},
    {subinici, Obrir_Sol<subinici>, true},
    {ajuda, Obrir_Sol<ajuda>, false},
    {"F_CERCA",
     [] {
       Obrir(QStringLiteral("F_USUARISM"));
       F_Principal::Unica()->Accio(QStringLiteral("M_Search"))->trigger();
     },
     true},
    {albarans_s, Obrir_Sol<albarans_s>, true},
    {albarans_m, Obrir_Sol<albarans_m>, false},
    {"F_ALBARA",
     [] {
       Obrir(QStringLiteral("F_ALBARANSM"));
       Doble_Clic("F_ALBARANSM", 0);
     },
     false},
    {pressupostos_s, Obrir_Sol<pressupostos_s>, true},
    {pressupostos_m, Obrir_Sol<pressupostos_m>, false},
    {"F_PRESSUPOST",
     [] {
       Obrir(QStringLiteral("F_PRESSUPOSTOSM"));
       Doble_Clic("F_PRESSUPOSTOSM", 0);
     },
     false},
    {comandes_s, Obrir_Sol<comandes_s>, true},
    {comandes_m, Obrir_Sol<comandes_m>, false},
    {comandes_mcs, Obrir_Sol<comandes_mcs>, true},
    {"F_COMANDA",
     [] {
       Obrir(QStringLiteral("F_COMANDESM"));
       Doble_Clic("F_COMANDESM", 0);
     },
     false},
    {factures_s, Obrir_Sol<factures_s>, true},
    {factures_m, Obrir_Sol<factures_m>, false},
    {"F_FACTURA",
     [] {
       Obrir(QStringLiteral("F_FACTURESM"));
       Doble_Clic("F_FACTURESM", 0);
     },
     false},
    {"F_FACTURAR",
     [] {
       Obrir(QStringLiteral("F_ALBARANSS"));
       Obrir(QStringLiteral("F_ALBARANSM"));
       Obrir(QStringLiteral("F_FACTURAR"));
     },
     true},
    {"F_DETALL_LINIA",
     [] {
       Obrir(QStringLiteral("F_PRESSUPOSTOSM"));
       Doble_Clic("F_PRESSUPOSTOSM", 0);
       Graella* linies =
           Formulari_De_Nom(QStringLiteral("F_PRESSUPOST"))->findChild<Graella*>(QStringLiteral("G_PRESSLIN"));
       Q_EMIT linies->Doble_Clic(0);
     },
     false},
    {"F_PAGDOC",
     [] {
       sessio.Pag_Document = "A";
       sessio.Pag_Numero = 1;
       Obrir(QStringLiteral("F_PAGDOC"));
     },
     false,
     "INSERT INTO PAGAMENTS (DOCUMENT_PAG, NUMALB_PAG, EMPRESA_PAG, PAGAMENT_PAG, DATA_PAG, IMPORT_PAG) VALUES "
     "('A', 1, 'B00000000', 'EF', #3/15/2011#, 20)"},
    {usuaris_m, Obrir_Sol<usuaris_m>, false},
    {usuari, Obrir_Editor<usuari, &Sessio::Codi_Usuari, codi_usuari>, false,
     "DELETE * FROM USUARIS WHERE CODI_USU = 'PERE'", "UPDATE USUARIS SET CODI_USU = 'ANNA' WHERE CODI_USU <> 'ADMIN'"},
};

// The rows that the scripts use too: a line a statement, after the word of its database.
void Carregar_Dades(const QString& fitxer) {
  QFile dades(QStringLiteral(CARPETA_PROVES "/guions/dades/") + fitxer);
  ASSERT_TRUE(dades.open(QIODevice::ReadOnly)) << fitxer.toStdString();
  for (const QString& linia : QString::fromUtf8(dades.readAll()).split(u'\n')) {
    if (linia.startsWith(u"shared ")) sessio.Connexio_Comuna.Execute(linia.mid(7).toStdString());
  }
}

void Donar_Drets() {
  for (auto lletra :
       {&Sessio::P_Clients, &Sessio::P_Proveidors, &Sessio::P_Articles, &Sessio::P_Usuaris, &Sessio::P_CP,
        &Sessio::P_Venciments, &Sessio::P_Pressupostos, &Sessio::P_Comandes, &Sessio::P_Albarans, &Sessio::P_Factures})
    sessio.*lletra = "M";
}

}  // namespace

std::span<const Cami> Camins() {
  return camins;
}

Cada_Pantalla::Cada_Pantalla() {
  for (const char* dades :
       {"botiga.txt", "albarans.txt", "comandes.txt", "pressupostos.txt", "factures.txt", "usuaris.txt"})
    Carregar_Dades(QString::fromLatin1(dades));
  sessio.Connexio_Comuna.Execute("INSERT INTO PROVEIDORS (NIF_PRO, RAO_SOCIAL_PRO) VALUES ('P1', 'Ferros')");
  sessio.Connexio_Comuna.Execute("INSERT INTO ARTICLES (CODI_ART, DESCRIPCIO_ART) VALUES ('AAA', 'Hostil')");
  sessio.Parametres["Fitxa_Client_Dades_Visible"] = "True";
  if (*GetParam().prepara != '\0') sessio.Connexio_Comuna.Execute(GetParam().prepara);
  sessio.pantalla = &pantalla_;
  Fixar_Avui({2011, 3, 15});
  Pantalla_Qt::Contestador = [this](const QString& text, int estil, const QString& titol) {
    return Contestar(text, estil, titol);
  };
  Pantalla_Qt::Triador_Empresa = [](const std::string&, int) { return "B00000000"; };
  // Whatever is printed is given up.
  Fixar_Carpeta_Treballs(QString::fromStdString(sessio.Dir_Dades));
  Fixar_Copies_Treballs([] { return treballs::desdit; });
  Registrar_Formularis();
  principal_.show();
  Donar_Drets();
  QApplication::setActiveWindow(&principal_);
}

Cada_Pantalla::~Cada_Pantalla() {
  Descarregar_Tots();
  Assentar();
  Pantalla_Qt::Contestador = nullptr;
  Pantalla_Qt::Triador_Empresa = nullptr;
  Fixar_Carpeta_Treballs({});
  Fixar_Copies_Treballs({});
}

void Cada_Pantalla::Assentar() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Cada_Pantalla::Tancar_I_Obrir() const {
  Descarregar_Tots();
  Assentar();
  GetParam().obrir();
  Assentar();
}

Resposta Cada_Pantalla::Contestar(const QString& text, int estil, const QString& titol) {
  caixes_.push_back({text.toStdString(), estil, titol.toStdString()});
  if ((estil & 0x0F) == estil::simple) return Resposta::Ok;
  return (estil & 0x0F) == estil::si_no ? Resposta::No : Resposta::Cancel;
}

std::string Nom_De_Prova(const testing::TestParamInfo<Cami>& info) {
  return info.param.formulari;
}
