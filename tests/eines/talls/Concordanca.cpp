#include "tests/eines/talls/Concordanca.h"

#include <cmath>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "documents/M_Peu.h"
#include "payments/M_Flags.h"
#include "sales/M_Tipus_Venda.h"
#include "tests/eines/talls/Magatzem_De_Prova.h"

namespace talls {

namespace {

using Queixes = std::vector<std::string>;

double Numero(const std::string& sentencia) {
  const Recordset rs(sentencia, sessio.Connexio_Comuna);
  return rs.RecordCount() == 0 || rs[0].Es_Nul() ? 0 : rs[0].Doble();
}

void Exigir_Iguals(Queixes& queixes, const std::string& que, double vist, double esperat) {
  if (std::abs(vist - esperat) < 1e-6) return;
  queixes.push_back(que + ": " + Numero_SQL(vist) + " instead of " + Numero_SQL(esperat));
}

std::string Files_Del_Peu(std::int64_t nota) {
  Recordset rs("SELECT PORC_IVA_AP, TIPUS_IVA_AP, BASE_AP, IVA_AP, PORC_RE_AP, RE_AP, IMPORT_AP FROM ALBARAPEU" +
                   Condicio_Document(tipus_albara, tipus_albara.peu, nota, empresa) + " ORDER BY PORC_IVA_AP",
               sessio.Connexio_Comuna);
  std::string text;
  for (; !rs.Eof(); rs.MoveNext()) {
    for (int i = 0; i < 7; ++i) text += rs[i].Text() + " ";
    text += "/ ";
  }
  return text;
}

// The foot, against the one that the lines give when it is made anew; the new one is thrown away.
void Comparar_Peu(Queixes& queixes, std::int64_t nota) {
  const std::string desat = Files_Del_Peu(nota);
  const double base = Numero("SELECT SUM(BASE_AP) AS S FROM ALBARAPEU WHERE NUMALB_AP = " + std::to_string(nota));
  const double net = Numero("SELECT SUM(IMPORT_NET_AL) AS S FROM ALBARALIN WHERE NUMALB_AL = " + std::to_string(nota));
  Exigir_Iguals(queixes, "bases of note " + std::to_string(nota) + " against its lines", base, net);
  const Transaccio provisional(sessio.Connexio_Comuna);
  Buidar_Peu(tipus_albara, nota, empresa);
  Calcular_Peu_Document(tipus_albara, nota, empresa, nota % 2 == 0 ? 1 : 0);
  const std::string refet = Files_Del_Peu(nota);
  if (desat != refet) queixes.push_back("foot of note " + std::to_string(nota) + ": " + desat + "instead of " + refet);
}

void Comparar_Diari(Queixes& queixes, std::int64_t nota) {
  const double diari =
      Numero("SELECT SUM(UNIDADES_MOV) AS S FROM MOVIMIENTOS WHERE TIPO_MOV = 'AC' AND DOCUMENTO_MOV = " +
             Text_SQL(std::to_string(nota)));
  const double linies = Numero(
      "SELECT SUM(UNITATS_AL) AS S FROM ALBARALIN, ARTICLES WHERE ARTICLE_AL = CODI_ART AND STOCK_ART = -1 AND "
      "NUMALB_AL = " +
      std::to_string(nota));
  Exigir_Iguals(queixes, "journal of note " + std::to_string(nota) + " against its lines", -diari, linies);
}

void Comparar_Estoc(Queixes& queixes, const Article_Prova& article) {
  if (!article.porta_stock) return;
  const std::string codi = Text_SQL(article.codi);
  const double estoc = Numero("SELECT SUM(UNIDADES_ST) AS S FROM STOCK WHERE CODI_ART_ST = " + codi);
  const double diari = Numero("SELECT SUM(UNIDADES_MOV) AS S FROM MOVIMIENTOS WHERE ARTICULO_MOV = " + codi);
  const double venut = Numero("SELECT SUM(UNITATS_AL) AS S FROM ALBARALIN WHERE ARTICLE_AL = " + codi);
  Exigir_Iguals(queixes, std::string("stock of ") + article.codi + " against the journal", estoc, diari);
  Exigir_Iguals(queixes, std::string("stock of ") + article.codi + " against the lines", estoc, estoc_inicial - venut);
}

void Comparar_Servides(Queixes& queixes) {
  Recordset rs("SELECT NUMALB_CL, LIN_CL, SERVIDES_CL FROM COMANDALIN", sessio.Connexio_Comuna);
  for (; !rs.Eof(); rs.MoveNext()) {
    const std::string linia = rs["NUMALB_CL"].Text() + " AND COMANDA_LIN_AL = " + rs["LIN_CL"].Text();
    const double servides = Numero("SELECT SUM(UNITATS_AL) AS S FROM ALBARALIN WHERE COMANDA_AL = " + linia);
    Exigir_Iguals(queixes, "served units of order " + linia, rs["SERVIDES_CL"].Doble(), servides);
  }
}

std::vector<std::int64_t> Numeros(const std::string& sentencia) {
  std::vector<std::int64_t> numeros;
  for (Recordset rs(sentencia, sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext()) numeros.push_back(rs[0].Enter());
  return numeros;
}

// Money stands at one level only: on the note, or on every order that it serves.
void Comparar_Flags_De_Nota(Queixes& queixes, std::int64_t nota) {
  if (Comptar_Linies(tipus_albara, nota, empresa) == 0) return;
  const std::string numero = std::to_string(nota);
  bool a_les_comandes = false;
  for (const std::int64_t comanda :
       Numeros("SELECT DISTINCT COMANDA_AL FROM ALBARALIN WHERE COMANDA_AL <> 0 AND NUMALB_AL = " + numero)) {
    if (!Flag_Pagament("P", comanda)) continue;
    a_les_comandes = true;
    if (Flag_Pagament("A", nota))
      queixes.push_back("flags of note " + numero + ": its order " + std::to_string(comanda) + " has it too");
  }
  if (!a_les_comandes && !Flag_Pagament("A", nota)) queixes.push_back("flags of note " + numero + ": nobody has it");
}

void Comparar_Flags(Queixes& queixes) {
  for (int nota = 1; nota <= notes; ++nota) Comparar_Flags_De_Nota(queixes, nota);
  for (int comanda = 1; comanda <= comandes; ++comanda) {
    const std::string numero = std::to_string(comanda);
    const bool servida = !Numeros("SELECT NUMALB_AL FROM ALBARALIN WHERE COMANDA_AL = " + numero).empty();
    if (!servida && !Flag_Pagament("P", comanda)) queixes.push_back("order " + numero + " alone has no flag");
  }
  for (const std::string document : {"P", "A"}) {
    for (const std::int64_t numero :
         Numeros("SELECT DISTINCT NUMALB_PAG FROM PAGAMENTS WHERE DOCUMENT_PAG = " + Text_SQL(document))) {
      if (!Flag_Pagament(document, numero))
        queixes.push_back("payments of " + document + " " + std::to_string(numero) + ", which has no flag");
    }
  }
}

// A note is marked when its lines stand in the invoice that it names, and the other way round; the flag stands with one
// of them.
void Comparar_Factures(Queixes& queixes) {
  for (int nota = primera_per_facturar; nota <= ultima_per_facturar; ++nota) {
    const std::string numero = std::to_string(nota);
    const Recordset rs("SELECT ESTAT_AC, NUMFAC_AC, PAGAMENT_AC FROM ALBARACAP WHERE NUMALB_AC = " + numero,
                       sessio.Connexio_Comuna);
    const bool marcada = rs[0].Boolea();
    if (marcada != !rs[1].Text().empty()) queixes.push_back("note " + numero + " is marked with " + rs[1].Text());
    if (marcada == rs[2].Boolea()) queixes.push_back("note " + numero + " has the flag, and so has its invoice");
    const std::string encapcalament = " DESCRIPCIO_FL LIKE 'Albarán " + numero + " de %'";
    Exigir_Iguals(queixes, "headings of note " + numero,
                  Numero("SELECT COUNT(*) AS N FROM FACTURALIN WHERE" + encapcalament), marcada ? 1 : 0);
    if (!marcada) continue;
    Exigir_Iguals(
        queixes, "headings of note " + numero + " in its invoice",
        Numero("SELECT COUNT(*) AS N FROM FACTURALIN WHERE NUMALB_FL = " + rs[1].Text() + " AND" + encapcalament), 1);
  }
  for (const std::int64_t factura : Numeros("SELECT NUMALB_FC FROM FACTURACAP")) {
    const std::string numero = std::to_string(factura);
    const double notes_seves = Numero("SELECT COUNT(*) AS N FROM ALBARACAP WHERE NUMFAC_AC = '" + numero + "'");
    Exigir_Iguals(queixes, "lines of invoice " + numero,
                  Numero("SELECT COUNT(*) AS N FROM FACTURALIN WHERE NUMALB_FL = " + numero),
                  notes_seves * (linies_per_facturar + 1));
    Exigir_Iguals(queixes, "total of invoice " + numero,
                  Numero("SELECT IMPORT_FC FROM FACTURACAP WHERE NUMALB_FC = " + numero),
                  notes_seves * linies_per_facturar * 121);
    if (!Flag_Pagament("F", factura)) queixes.push_back("invoice " + numero + " has no flag");
  }
}

}  // namespace

std::vector<std::string> Discordances() {
  Queixes queixes;
  for (Connexio* connexio : {&sessio.Connexio_Comuna, &sessio.Connexio_Local}) {
    const std::string dany = connexio->Comprovar_Integritat();
    if (!dany.empty()) queixes.push_back(connexio->Adreca() + ": " + dany);
  }
  for (int nota = 1; nota <= notes; ++nota) {
    Comparar_Peu(queixes, nota);
    Comparar_Diari(queixes, nota);
  }
  for (const Article_Prova& article : Articles()) Comparar_Estoc(queixes, article);
  Comparar_Servides(queixes);
  Comparar_Flags(queixes);
  Comparar_Factures(queixes);
  return queixes;
}

}  // namespace talls
