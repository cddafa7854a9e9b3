#include "output/M_Impressio.h"

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"

namespace {

// The scratch tables of a print belong to the terminal, so that two users can print at once.
Connexio& Connexio_Impressio() {
  return sessio.Connexio_Local;
}

std::string En_Una_Linia(std::string text) {
  constexpr std::string_view salt = "\r\n";
  constexpr std::string_view espai_fix = "\u00A0";
  for (std::size_t lloc = text.find(salt); lloc != std::string::npos; lloc = text.find(salt, lloc)) {
    text.replace(lloc, salt.size(), espai_fix);
  }
  return text;
}

std::string SQL_Linies_A_Imprimir(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const auto columna = [&](const char* paper) { return tipus.lin.Columna(paper); };
  return "SELECT " + columna("LIN") + ", " + columna("ARTICLE") + ", " + columna("DESCRIPCIO") + ", " +
         columna("UNITATS") + ", " + columna("PREU_UNITARI") + ", " + columna("DTE") + ", " + columna("IMPORT_NET") +
         " FROM " + std::string(tipus.lin.nom) + Condicio_Document(tipus, tipus.lin, numero, empresa) + " ORDER BY " +
         columna("LIN");
}

void Copiar_Linies(const Tipus_Document& tipus, Recordset& linies) {
  const auto columna = [&](const char* paper) { return tipus.lin.Columna(paper); };
  Recordset impr("SELECT * FROM " + Taula_Impressio(tipus), Connexio_Impressio(), Bloqueig::Optimista);
  for (; !linies.Eof(); linies.MoveNext()) {
    impr.AddNew();
    for (const char* paper : {"LIN", "ARTICLE", "UNITATS", "PREU_UNITARI", "DTE"}) {
      impr.Set(columna(paper), linies[columna(paper)]);
    }
    impr.Set(columna("TOTAL_IMPORT"), linies[columna("IMPORT_NET")]);
    impr.Set(columna("DESCRIPCIO"), En_Una_Linia(linies[columna("DESCRIPCIO")].Text()));
    impr.Update();
  }
}

std::string Import_Impres(const Valor& valor) {
  return Format_Numero(Nul_A_Defecte(valor).Doble(), "#,##0.00");
}

}  // namespace

std::string Taula_Impressio(const Tipus_Document& tipus) {
  return std::string(tipus.lin.nom) + "_VALORAT_IMPR";
}

std::string SQL_Impressio(const Tipus_Document& tipus) {
  return "SELECT * FROM " + Taula_Impressio(tipus) + " ORDER BY " + tipus.lin.Columna("LIN");
}

void Omplir_Taula_Impressio(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  Buidar_Taula_Impressio(tipus);
  Recordset linies(SQL_Linies_A_Imprimir(tipus, numero, empresa), sessio.Connexio_Comuna);
  if (linies.RecordCount() == 0) return;
  // One write to the disk for all the lines.
  Connexio_Impressio().BeginTrans();
  try {
    Copiar_Linies(tipus, linies);
    Connexio_Impressio().CommitTrans();
  } catch (...) {
    Connexio_Impressio().RollbackTrans();
    throw;
  }
}

void Buidar_Taula_Impressio(const Tipus_Document& tipus) {
  Connexio_Impressio().Execute("DELETE * FROM " + Taula_Impressio(tipus));
}

Capcalera_Impressa Dades_Capcalera(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const Recordset rs(SQL_Capcalera(tipus, numero, empresa), sessio.Connexio_Comuna);
  if (rs.RecordCount() == 0) return {};
  const auto text = [&](const char* paper) { return rs[tipus.cap.Columna(paper)].Text(); };
  return {text("DATA"), text("CLIENT"), text("OBSR")};
}

double Net_Impres(const Tipus_Document& tipus) {
  const Recordset rs(
      "SELECT SUM(" + tipus.lin.Columna("TOTAL_IMPORT") + ") AS IMPORT_NET FROM " + Taula_Impressio(tipus),
      Connexio_Impressio());
  return Nul_A_Defecte(rs["IMPORT_NET"]).Doble();
}

Peu_Impres Dades_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  Peu_Impres peu;
  for (Recordset rs(SQL_Peu(tipus, numero, empresa), sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext()) {
    const auto import = [&](const char* paper) { return Import_Impres(rs[tipus.peu.Columna(paper)]); };
    peu.files.push_back(
        {import("BASE"), import("PORC_IVA"), import("IVA"), import("PORC_RE"), import("RE"), import("IMPORT")});
    peu.total += Nul_A_Defecte(rs[tipus.peu.Columna("IMPORT")]).Doble();
  }
  return peu;
}
