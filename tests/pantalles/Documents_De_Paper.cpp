#include "tests/pantalles/Documents_De_Paper.h"

#include "core/dades/Numeros.h"
#include "output/informe/Sortida.h"
#include "stock/M_Tipus_Estoc.h"

Documents_De_Paper::Documents_De_Paper() {
  sessio.Dir_Temp = installacio.Dir_Dades() + "/Temp/";
  Executar(
      "UPDATE EMPRESES SET RAO_SOCIAL_EMP = 'Ferreteria Montseny, S.L.', ADREÇA_EMP = 'Carrer Major, 1', "
      "TELEFON_EMP = '93 845 12 34', CP_EMP = '08470', LOCALITAT_EMP = 'Sant Celoni', COMENTARI_EMP = 'Des de 1975', "
      "PRESS_PEU1_EMP = 'Vàlid trenta dies', PRESS_PEU2_EMP = 'Ports a part', FACT_PEU1_EMP = 'Registre, full 7'");
  Executar(
      "INSERT INTO VENCIMENTS (CODI_VEN, DESCRIPCIO_VEN, DIES_VEN, TERMINIS_VEN) VALUES('T2', 'Dos terminis', 30, 2)");
  Executar(
      "INSERT INTO CLIENTS (NIF_CLI, RAO_SOCIAL_CLI, NOM_COMERCIAL_CLI, ADREÇA_CLI, CP_CLI, LOCALITAT_CLI, "
      "CODI_CLIENT_CLI, VENCIMENT_CLI, COMPTE_CLI) VALUES('B61234567', 'Construccions Puig, S.L.', 'Obres Puig', "
      "'Passeig del Riu, 45', '08500', 'Vic', 'C-77', 'T2', 'ES12 3456')");
  Executar(
      "INSERT INTO PROVEIDORS (NIF_PRO, RAO_SOCIAL_PRO, NOM_COMERCIAL_PRO, ADREÇA_PRO, CP_PRO, LOCALITAT_PRO) VALUES("
      "'B61234567', 'Metalls del Segre, S.A.', 'Segre', 'Polígon 4', '25001', 'Lleida')");
}

void Documents_De_Paper::Posar_Document(const Tipus_Document& tipus, const std::string& observacions) {
  const auto columna = [&](const char* paper) { return tipus.cap.Columna(paper); };
  Recordset rs("SELECT * FROM " + std::string(tipus.cap.nom), sessio.Connexio_Comuna, Bloqueig::Optimista);
  rs.AddNew();
  rs.Set(columna("NUMALB"), Numero_De(tipus));
  rs.Set(columna("EMPRESA"), empresa);
  rs.Set(columna("DATA"), Data_Hora{2026, 3, 5});
  rs.Set(columna(&tipus == &tipus_albcompra ? "PROVEIDOR" : "CLIENT"), "B61234567");
  rs.Set(columna("OBSR"), observacions);
  rs.Update();
}

void Documents_De_Paper::Posar_Linia(const Tipus_Document& tipus, const std::string& descripcio, double unitats,
                                     double preu, double dte) {
  const auto columna = [&](const char* paper) { return tipus.lin.Columna(paper); };
  Recordset rs("SELECT * FROM " + std::string(tipus.lin.nom) + " WHERE 1 = 0", sessio.Connexio_Comuna,
               Bloqueig::Optimista);
  rs.AddNew();
  rs.Set(columna("NUMALB"), Numero_De(tipus));
  rs.Set(columna("EMPRESA"), empresa);
  rs.Set(columna("LIN"), ++linia_);
  rs.Set(columna("DESCRIPCIO"), descripcio);
  rs.Set(columna("UNITATS"), unitats);
  rs.Set(columna("COST"), preu);
  rs.Set(columna("PREU_UNITARI"), &tipus == &tipus_albcompra ? 0 : preu);
  rs.Set(columna("DTE"), dte);
  rs.Set(columna("IMPORT_NET"), unitats * preu * (1 - dte / 100));
  rs.Update();
}

void Documents_De_Paper::Posar_Peu(const Tipus_Document& tipus, double base, double porc_iva, double porc_re) {
  const auto columna = [&](const char* paper) { return tipus.peu.Columna(paper); };
  Recordset rs("SELECT * FROM " + std::string(tipus.peu.nom) + " WHERE 1 = 0", sessio.Connexio_Comuna,
               Bloqueig::Optimista);
  rs.AddNew();
  rs.Set(columna("NUMALB"), Numero_De(tipus));
  rs.Set(columna("EMPRESA"), empresa);
  rs.Set(columna("TIPUS_IVA"), "T" + std::to_string(static_cast<int>(porc_iva)));
  rs.Set(columna("PORC_IVA"), porc_iva);
  rs.Set(columna("BASE"), base);
  rs.Set(columna("IVA"), base * porc_iva / 100);
  rs.Set(columna("PORC_RE"), porc_re);
  rs.Set(columna("RE"), base * porc_re / 100);
  rs.Set(columna("IMPORT"), base * (1 + (porc_iva + porc_re) / 100));
  rs.Update();
}

void Documents_De_Paper::Posar_Linies_Variades(const Tipus_Document& tipus, int quantes) {
  Transaccio transaccio(sessio.Connexio_Comuna);
  for (int i = 1; i <= quantes; ++i) {
    const std::string num = "n" + std::to_string(i) + " ";
    if (i % 29 == 11) {
      Posar_Linia(tipus, num + "Albarà 7 del 01/03/2026", 0, 0);
    } else if (i % 13 == 4) {
      Posar_Linia(tipus,
                  num +
                      "Escala plegable d'alumini de sis graons amb plataforma, goma antilliscant i ganxo de seguretat, "
                      "homologada per a ús professional, amb bossa de transport i garantia de cinc anys",
                  1, 189.9, 10);
    } else if (i % 17 == 8) {
      Posar_Linia(tipus, num + std::string(120, 'W'), 12345.67, 98765.43);
    } else if (i % 11 == 7) {
      Posar_Linia(tipus, num + "Devolució de tub", -3, 1234.5);
    } else {
      Posar_Linia(tipus, num + "Tub de coure de 22 mm", i, 12.345, i % 5 == 0 ? 12.5 : 0);
    }
  }
  transaccio.Confirmar();
}

Pagines Documents_De_Paper::Pagines_De(const Tipus_Document& tipus, bool valorat) {
  sessio.Crida_Document = std::string(tipus.formulari) + (valorat ? ";VALORAT" : ";NO_VALORAT");
  return Pagines_De_Document(tipus, Numero_De(tipus), empresa);
}

void Documents_De_Paper::Deixar_Per_Mirar(const Pagines& pagines, const QString& nom) {
  const QString desti = qEnvironmentVariable("BROLLADOR_PAGINES");
  if (!desti.isEmpty()) Escriure_PDF(pagines, desti + u'/' + nom + QStringLiteral(".pdf"));
}

void Documents_De_Paper::Allargar_Noms() {
  const QString logo = QString::fromStdString(installacio.Dir_Dades()) + u"/logo.png"_qs;
  QImage imatge(640, 400, QImage::Format_RGB32);
  imatge.fill(QColor(20, 90, 160));
  ASSERT_TRUE(imatge.save(logo));
  const std::string llarg =
      "Instal·lacions i Subministraments Elèctrics, Hidràulics i de Calefacció del Baix Montseny i la Tordera, "
      "Societat "
      "Limitada Unipersonal";
  Executar("UPDATE EMPRESES SET RAO_SOCIAL_EMP = " + Codi_SQL(llarg) + ", ADREÇA_EMP = " +
           Codi_SQL("Avinguda dels Voluntaris Olímpics, 1245, escala B, nau 14, Polígon Industrial Can Parellada") +
           ", IMATGE_EMP = " + Codi_SQL(logo.toStdString()) +
           ", COMENTARI_EMP = 'Instal·ladors autoritzats de gas, aigua i electricitat des de 1975', FACT_PEU1_EMP = " +
           Codi_SQL("Inscrita al Registre Mercantil de Barcelona, volum 12345, foli 67, full B-89012, inscripció "
                    "primera. No s'admeten devolucions passats quinze dies de la data d'aquesta factura ni de "
                    "material obert.") +
           ", PRESS_PEU1_EMP = " + Codi_SQL(llarg) + ", PRESS_PEU2_EMP = " + Codi_SQL(llarg));
  Executar("UPDATE CLIENTS SET RAO_SOCIAL_CLI = " +
           Codi_SQL("Cooperativa de Serveis Integrals de Manteniment Industrial i Reformes del Vallès, S.C.C.L.") +
           ", NOM_COMERCIAL_CLI = " + Codi_SQL("Manteniments i Reformes del Vallès Oriental i del Baix Montseny") +
           ", ADREÇA_CLI = " + Codi_SQL("Passeig de les Hortes d'en Vilaplana i Casadevall, 1247, esc. B, 3r 2a") +
           ", LOCALITAT_CLI = " + Codi_SQL("Santa Maria de Palautordera i la Batllòria, Barcelona"));
  Executar("UPDATE PROVEIDORS SET RAO_SOCIAL_PRO = " +
           Codi_SQL("Cooperativa de Serveis Integrals de Manteniment Industrial i Reformes del Vallès, S.C.C.L."));
  Executar("UPDATE VENCIMENTS SET TERMINIS_VEN = 12, DESCRIPCIO_VEN = 'Dotze terminis de trenta dies'");
}
