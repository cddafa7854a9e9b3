#include "documents/M_Peu.h"

#include <vector>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "masters/M_IVAs.h"

namespace {

struct Document {
  const Tipus_Document& tipus;
  const Valor& numero;
  const std::string& empresa;
};

struct Grup {
  double porc_iva = 0;
  double net = 0;
};

std::string SQL_Grups(const Document& document) {
  const Taula_Document& lin = document.tipus.lin;
  const std::string taxes = lin.Columna("PORC_IVA") + ", " + lin.Columna("PORC_RE");
  return "SELECT " + taxes + ", SUM(" + lin.Columna("IMPORT_NET") + ") AS IMPORT_NET, SUM(" +
         lin.Columna("IMPORT_BRUT") + ") AS IMPORT_BRUT FROM " + std::string(lin.nom) +
         Condicio_Document(document.tipus, lin, document.numero, document.empresa) + " GROUP BY " + taxes;
}

std::string SQL_Total(const Document& document) {
  const Taula_Document& peu = document.tipus.peu;
  return "SELECT SUM(" + peu.Columna("IMPORT") + ") AS IMPORT_BRUT FROM " + std::string(peu.nom) +
         Condicio_Document(document.tipus, peu, document.numero, document.empresa);
}

// One group a pair of rates. Two groups at one IVA and different RE fall on one row, and the second one wins.
std::vector<Grup> Llegir_Grups(const Document& document) {
  const Taula_Document& lin = document.tipus.lin;
  std::vector<Grup> grups;
  Recordset rs(SQL_Grups(document), sessio.Connexio_Comuna);
  for (; !rs.Eof(); rs.MoveNext())
    grups.push_back(
        {Nul_A_Defecte(rs[lin.Columna("PORC_IVA")]).Doble(), Arrodonir(Nul_A_Defecte(rs["IMPORT_NET"]).Doble(), 2)});
  return grups;
}

// The amounts of the current foot row. The rates are those of the row, not those of the lines. Returns the total.
double Escriure_Imports(Recordset& rs, const Taula_Document& peu, double base) {
  const double iva = Arrodonir(base * rs[peu.Columna("PORC_IVA")].Doble() / 100, 2);
  const double re = Arrodonir(base * rs[peu.Columna("PORC_RE")].Doble() / 100, 2);
  const double total = Arrodonir(base + iva + re, 2);
  rs.Set(peu.Columna("BASE"), base);
  rs.Set(peu.Columna("IVA"), iva);
  rs.Set(peu.Columna("RE"), re);
  rs.Set(peu.Columna("IMPORT"), total);
  rs.Update();
  return total;
}

void Afegir_Fila(Recordset& rs, const Document& document, const Grup& grup, bool amb_re) {
  const Taula_Document& peu = document.tipus.peu;
  rs.AddNew();
  const Tipus_IVA iva = Dades_IVA_Percentatge(grup.porc_iva);
  rs.Set(peu.Columna("NUMALB"), document.numero);
  rs.Set(peu.Columna("EMPRESA"), document.empresa);
  rs.Set(peu.Columna("TIPUS_IVA"), iva.codi);
  rs.Set(peu.Columna("DESC_IVA"), iva.descripcio);
  rs.Set(peu.Columna("PORC_IVA"), iva.porc_iva.Doble());
  rs.Set(peu.Columna("PORC_RE"), amb_re ? iva.porc_re.Doble() : 0.0);
  Escriure_Imports(rs, peu, grup.net);  // kept even when it comes to 0
}

// The percentage stands in the statement as its plain text, with a comma: one with decimals makes it faulty.
void Refer_Fila(const Document& document, const Grup& grup, bool amb_re) {
  const Taula_Document& peu = document.tipus.peu;
  Recordset rs("SELECT * FROM " + std::string(peu.nom) +
                   Condicio_Document(document.tipus, peu, document.numero, document.empresa) + " AND " +
                   peu.Columna("PORC_IVA") + " = " + Text_Numero(grup.porc_iva),
               sessio.Connexio_Comuna, Bloqueig::Optimista);
  if (rs.RecordCount() == 0) {
    Afegir_Fila(rs, document, grup, amb_re);
  } else if (Escriure_Imports(rs, peu, grup.net) == 0) {
    rs.Delete();
  }
}

}  // namespace

void Calcular_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa, Document_Obert& obert) {
  const Document document{tipus, numero, empresa};
  for (const Grup& grup : Llegir_Grups(document)) {
    Refer_Fila(document, grup, obert.Re_Marcat());
    sessio.Connexio_Comuna.Demanar(SQL_Total(document));
    obert.Refrescar_Peu();
    sessio.pantalla->Processar_Events();
  }
  obert.Posar_Import(Total_Peu(tipus, numero, empresa));
}

void Calcular_Peu_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                           double porc_re) {
  const Document document{tipus, numero, empresa};
  for (const Grup& grup : Llegir_Grups(document)) Refer_Fila(document, grup, porc_re > 0);

  const Taula_Document& cap = tipus.cap;
  Recordset rs("SELECT " + cap.Columna("NUMALB") + ", " + cap.Columna("EMPRESA") + ", " + cap.Columna("IMPORT") +
                   " FROM " + std::string(cap.nom) + Condicio_Document(tipus, cap, numero, empresa),
               sessio.Connexio_Comuna, Bloqueig::Optimista);
  if (rs.RecordCount() == 0 && !tipus.peu_exigeix_capcalera) return;
  rs.Set(cap.Columna("IMPORT"), Total_Peu(tipus, numero, empresa));
  rs.Update();
}

double Total_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const Recordset rs(SQL_Total({tipus, numero, empresa}), sessio.Connexio_Comuna);
  const Valor total = rs["IMPORT_BRUT"];
  return total.Es_Nul() ? 0 : Arrodonir(total.Doble(), 2);
}

void Demanar_Grups(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  sessio.Connexio_Comuna.Demanar(SQL_Grups({tipus, numero, empresa}));
}

void Buidar_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  sessio.Connexio_Comuna.Execute("DELETE * FROM " + std::string(tipus.peu.nom) +
                                 Condicio_Document(tipus, tipus.peu, numero, empresa));
}
