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

// A document and its tables.
struct Paper {
  const Tipus_Document& tipus;
  std::int64_t numero;
  std::string Nom() const { return std::string(tipus.cap.nom) + " " + std::to_string(numero); }
  std::string Peu(const std::string& que) const {
    return "SELECT " + que + " FROM " + std::string(tipus.peu.nom) +
           Condicio_Document(tipus, tipus.peu, numero, empresa);
  }
};

std::string Files_Del_Peu(const Paper& paper) {
  std::string text;
  Recordset rs(paper.Peu("*") + " ORDER BY " + paper.tipus.peu.Columna("PORC_IVA"), sessio.Connexio_Comuna);
  for (; !rs.Eof(); rs.MoveNext()) {
    for (const char* camp : {"PORC_IVA", "TIPUS_IVA", "BASE", "IVA", "PORC_RE", "RE", "IMPORT"})
      text += rs[paper.tipus.peu.Columna(camp)].Text() + " ";
    text += "/ ";
  }
  return text;
}

// The foot, against the one that the lines give when it is made anew; the new one is thrown away.
void Comparar_Peu(Queixes& queixes, const Paper& paper) {
  const Tipus_Document& tipus = paper.tipus;
  const std::string desat = Files_Del_Peu(paper);
  const double base = Numero(paper.Peu("SUM(" + tipus.peu.Columna("BASE") + ")"));
  const double net = Numero("SELECT SUM(" + tipus.lin.Columna("IMPORT_NET") + ") FROM " + std::string(tipus.lin.nom) +
                            Condicio_Document(tipus, tipus.lin, paper.numero, empresa));
  Exigir_Iguals(queixes, "bases of " + paper.Nom() + " against its lines", base, net);
  const double re = Numero("SELECT " + tipus.cap.Columna("RE") + " FROM " + std::string(tipus.cap.nom) +
                           Condicio_Document(tipus, tipus.cap, paper.numero, empresa));
  const Transaccio provisional(sessio.Connexio_Comuna);
  Buidar_Peu(tipus, paper.numero, empresa);
  Calcular_Peu_Document(tipus, paper.numero, empresa, -re);
  const std::string refet = Files_Del_Peu(paper);
  if (desat != refet) queixes.push_back("foot of " + paper.Nom() + ": " + desat + "instead of " + refet);
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

// What the lines of the proposal became: an order's line each, in documents that have lines, with their feet and their
// states.
void Comparar_Acceptades(Queixes& queixes) {
  double acceptades = 0;
  Recordset rs("SELECT LIN_PL, ESTAT_PL, COMANDA_PL, COMANDA_LIN_PL FROM PRESSUPOSTLIN", sessio.Connexio_Comuna);
  for (; !rs.Eof(); rs.MoveNext()) {
    const bool acceptada = rs["ESTAT_PL"].Boolea();
    if (acceptada) ++acceptades;
    if (acceptada != (rs["COMANDA_PL"].Enter() != 0))
      queixes.push_back("line " + rs["LIN_PL"].Text() + " names order " + rs["COMANDA_PL"].Text());
    Exigir_Iguals(queixes, "order lines of line " + rs["LIN_PL"].Text(),
                  Numero("SELECT COUNT(*) AS N FROM COMANDALIN WHERE NUMALB_CL = " + rs["COMANDA_PL"].Text() +
                         " AND LIN_CL = " + rs["COMANDA_LIN_PL"].Text()),
                  acceptada ? 1 : 0);
  }
  const std::string nova = " > " + std::to_string(comandes);
  Exigir_Iguals(queixes, "lines of orders", Numero("SELECT COUNT(*) AS N FROM COMANDALIN WHERE NUMALB_CL" + nova),
                acceptades);
  for (const std::int64_t comanda : Numeros("SELECT NUMALB_CC FROM COMANDACAP WHERE NUMALB_CC" + nova)) {
    const Paper paper{tipus_comanda, comanda};
    Comparar_Peu(queixes, paper);
    const std::string seves = " FROM COMANDALIN WHERE NUMALB_CL = " + std::to_string(comanda);
    if (Numero("SELECT COUNT(*) AS N" + seves) == 0) queixes.push_back(paper.Nom() + " is empty");
    // One whose pending line was discarded stays open.
    const bool servida = Numero("SELECT ESTAT_CC FROM COMANDACAP WHERE NUMALB_CC = " + std::to_string(comanda)) != 0;
    if (servida && Numero("SELECT COUNT(*) AS N" + seves + " AND UNITATS_CL > SERVIDES_CL") > 0)
      queixes.push_back(paper.Nom() + " is served, and has lines that are not");
  }
}

// The notes that were made for lines of orders go with their last one.
void Comparar_Entregues(Queixes& queixes) {
  const std::string nova = " > " + std::to_string(ultima_per_facturar);
  for (const std::int64_t nota : Numeros("SELECT NUMALB_AC FROM ALBARACAP WHERE NUMALB_AC" + nova)) {
    const Paper paper{tipus_albara, nota};
    Comparar_Peu(queixes, paper);
    if (Comptar_Linies(tipus_albara, nota, empresa) == 0) queixes.push_back(paper.Nom() + " is empty");
  }
  for (Recordset rs("SELECT DISTINCT DOCUMENTO_MOV FROM MOVIMIENTOS WHERE TIPO_MOV = 'AC'", sessio.Connexio_Comuna);
       !rs.Eof(); rs.MoveNext())
    Comparar_Diari(queixes, Valor(rs[0].Text()).Enter());
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
    Comparar_Peu(queixes, {tipus_albara, nota});
    Comparar_Diari(queixes, nota);
  }
  for (const Article_Prova& article : Articles()) Comparar_Estoc(queixes, article);
  Comparar_Servides(queixes);
  Comparar_Flags(queixes);
  Comparar_Acceptades(queixes);
  Comparar_Entregues(queixes);
  Comparar_Factures(queixes);
  return queixes;
}

}  // namespace talls
