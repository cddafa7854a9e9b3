#include "documents/Documents.h"

#include <array>
#include <limits>
#include <sstream>

#include "core/M_Funcions_Comuns.h"
#include "payments/M_Pagaments.h"

const Tipus_Document tipus_pressupost = {
    .formulari = "F_PRESSUPOST",
    .llista = "F_PRESSUPOSTOSM",
    .cap = {"PRESSUPOSTCAP", "PC"},
    .lin = {"PRESSUPOSTLIN", "PL"},
    .peu = {"PRESSUPOSTPEU", "PP"},
    .lletra_bloqueig = "PR",
    .lletra_pagament = "",
    .numero_es_text = false,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "ESTAT COST PORC_MARGE MARGE IMPORT_BRUT",
    .peu_exigeix_capcalera = false};

const Tipus_Document tipus_comanda = {
    .formulari = "F_COMANDA",
    .llista = "F_COMANDESM",
    .cap = {"COMANDACAP", "CC"},
    .lin = {"COMANDALIN", "CL"},
    .peu = {"COMANDAPEU", "CP"},
    .lletra_bloqueig = "P",
    .lletra_pagament = "P",
    .numero_es_text = false,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "SERVIDES COST PORC_MARGE MARGE IMPORT_BRUT",
    .peu_exigeix_capcalera = false};

const Tipus_Document tipus_albara = {
    .formulari = "F_ALBARA",
    .llista = "F_ALBARANSM",
    .cap = {"ALBARACAP", "AC"},
    .lin = {"ALBARALIN", "AL"},
    .peu = {"ALBARAPEU", "AP"},
    .lletra_bloqueig = "AC",
    .lletra_pagament = "A",
    .numero_es_text = false,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "COST PORC_MARGE MARGE IMPORT_BRUT COMANDA COMANDA_LIN",
    .peu_exigeix_capcalera = false};

const Tipus_Document tipus_factura = {
    .formulari = "F_FACTURA",
    .llista = "F_FACTURESM",
    .cap = {"FACTURACAP", "FC"},
    .lin = {"FACTURALIN", "FL"},
    .peu = {"FACTURAPEU", "FP"},
    .lletra_bloqueig = "F",
    .lletra_pagament = "F",
    .numero_es_text = false,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "COST PORC_MARGE MARGE IMPORT_BRUT",
    .peu_exigeix_capcalera = true};

const Tipus_Document tipus_albcompra = {
    .formulari = "F_ALBCOMPRA",
    .llista = "F_ALBCOMPRESM",
    .cap = {"ALBCOMPRACAP", "ACC"},
    .lin = {"ALBCOMPRALIN", "ACL"},
    .peu = {"ALBCOMPRAPEU", "ACP"},
    .lletra_bloqueig = "C",
    .lletra_pagament = "",
    .numero_es_text = true,
    .columnes_linies =
        "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO PREU_UNITARI UNITATS PORC_IVA PORC_RE IMPORT_NET DTE PVP "
        "COST PORC_MARGE MARGE IMPORT_BRUT",
    .peu_exigeix_capcalera = false};

const Tipus_Document tipus_albmag = {.formulari = "F_ALBMAG",
                                     .llista = "F_ALBMAGM",
                                     .cap = {"ALBALMCAP", "AAC"},
                                     .lin = {"ALBALMLIN", "AAL"},
                                     .peu = {"", ""},
                                     .lletra_bloqueig = "AM",
                                     .lletra_pagament = "",
                                     .numero_es_text = false,
                                     .columnes_linies = "NUMALB EMPRESA LIN ARTICLE DESCRIPCIO UNITATS PVP IMPORT_BRUT",
                                     .peu_exigeix_capcalera = false};

namespace {

constexpr std::array tots_els_tipus = {&tipus_pressupost, &tipus_comanda,   &tipus_albara,
                                       &tipus_factura,    &tipus_albcompra, &tipus_albmag};

// The only row of a reading statement gives one value; null when there is no row.
Valor Llegir_Valor(const std::string& sentencia) {
  const Recordset rs(sentencia, sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs[0] : Valor();
}

// The next of a count whose column ends at `maxim`: raises 6 beyond it.
std::int64_t Seguent(const Valor& ultim, std::int64_t maxim) {
  const std::int64_t seguent = Nul_A_Defecte(ultim).Enter() + 1;
  if (seguent > maxim) Llancar_Error(errors::desbordament, "Documents");
  return seguent;
}

}  // namespace

std::string Taula_Document::Columna(std::string_view paper) const {
  return std::string(paper) + "_" + std::string(sufix);
}

const Tipus_Document* Tipus_De_Bloqueig(std::string_view lletra) {
  for (const Tipus_Document* tipus : tots_els_tipus)
    if (tipus->lletra_bloqueig == lletra) return tipus;
  return nullptr;
}

std::string Numero_Document_SQL(const Tipus_Document& tipus, const Valor& numero) {
  return tipus.numero_es_text ? Text_SQL(numero.Text()) : std::to_string(numero.Enter());
}

std::string Condicio_Document(const Tipus_Document& tipus, const Taula_Document& taula, const Valor& numero,
                              const std::string& empresa) {
  return " WHERE " + taula.Columna("NUMALB") + " = " + Numero_Document_SQL(tipus, numero) + " AND " +
         taula.Columna("EMPRESA") + " = " + Text_SQL(empresa);
}

Valor Crear_Capcalera(const Tipus_Document& tipus) {
  const Taula_Document& cap = tipus.cap;
  if (sessio.Empresa_Actual.find_first_not_of(' ') == std::string::npos)
    throw Error_Brollador(errors::refusat, "Empresa", "Empresa");
  // Any row would do: the statement is there for a set with the columns of the head.
  Recordset rs(SQL_Capcalera(tipus, 1, "01"), sessio.Connexio_Comuna, Bloqueig::Optimista);
  rs.AddNew();
  rs.Set(cap.Columna("EMPRESA"), sessio.Empresa_Actual);
  rs.Set(cap.Columna("EMP_DESC"), sessio.Nom_Empresa);
  rs.Set(cap.Columna("NUMALB"), Seguent_Numero(tipus, sessio.Empresa_Actual));
  rs.Set(cap.Columna("DATA"), Avui());
  rs.Update();
  return rs[cap.Columna("NUMALB")];
}

Valor Seguent_Numero(const Tipus_Document& tipus, const std::string& empresa) {
  const std::string numero = tipus.cap.Columna("NUMALB");
  const std::string nomes_numeros = tipus.numero_es_text ? " AND ISNUMERIC(" + numero + ") = -1" : "";
  const std::int64_t seguent =
      Seguent(Llegir_Valor("SELECT MAX(" + numero + ") AS MAXIM FROM " + std::string(tipus.cap.nom) + " WHERE " +
                           tipus.cap.Columna("EMPRESA") + " = " + Text_SQL(empresa) + nomes_numeros),
              std::numeric_limits<std::int32_t>::max());
  return tipus.numero_es_text ? Valor(std::to_string(seguent)) : Valor(seguent);
}

std::int16_t Seguent_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const Valor ultima = Llegir_Valor("SELECT MAX(" + tipus.lin.Columna("LIN") + ") AS MAXIM FROM " +
                                    std::string(tipus.lin.nom) + Condicio_Document(tipus, tipus.lin, numero, empresa));
  return static_cast<std::int16_t>(Seguent(ultima, std::numeric_limits<std::int16_t>::max()));
}

bool Existeix_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return Recordset(SQL_Capcalera(tipus, numero, empresa), sessio.Connexio_Comuna).RecordCount() > 0;
}

std::int64_t Comptar_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return Llegir_Valor("SELECT COUNT(*) AS CUENTA FROM " + std::string(tipus.lin.nom) +
                      Condicio_Document(tipus, tipus.lin, numero, empresa))
      .Enter();
}

bool Hi_Ha_Descomptes(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const std::string dte = tipus.lin.Columna("DTE");
  const Recordset rs("SELECT " + dte + " FROM " + std::string(tipus.lin.nom) +
                         Condicio_Document(tipus, tipus.lin, numero, empresa) + " AND " + dte + " <> 0",
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0;
}

void Esborrar_Document(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  sessio.Connexio_Comuna.Execute("DELETE * FROM " + std::string(tipus.cap.nom) +
                                 Condicio_Document(tipus, tipus.cap, numero, empresa));
}

bool Esborrar_Document_Buit(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  if (Comptar_Linies(tipus, numero, empresa) > 0) return false;
  if (!tipus.lletra_pagament.empty() && Tenir_Pagaments(std::string(tipus.lletra_pagament), numero.Enter()))
    return false;
  Esborrar_Document(tipus, numero, empresa);
  return true;
}

bool Intercanviar_Linia(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa,
                        std::int16_t linia, bool avall) {
  const std::string lin = tipus.lin.Columna("LIN");
  const std::string condicio = Condicio_Document(tipus, tipus.lin, numero, empresa) + " AND " + lin;
  const Valor vei =
      Llegir_Valor("SELECT " + lin + " FROM " + std::string(tipus.lin.nom) + condicio + (avall ? " > " : " < ") +
                   std::to_string(linia) + " ORDER BY " + lin + (avall ? "" : " DESC"));
  if (vei.Es_Nul()) return false;
  const auto renumerar = [&](std::int64_t de, std::int64_t a) {
    sessio.Connexio_Comuna.Execute("UPDATE " + std::string(tipus.lin.nom) + " SET " + lin + " = " + std::to_string(a) +
                                   condicio + " = " + std::to_string(de));
  };
  Transaccio transaccio;
  renumerar(linia, 0);
  renumerar(vei.Enter(), linia);
  renumerar(0, vei.Enter());
  transaccio.Confirmar();
  return true;
}

std::string SQL_Capcalera(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  return "SELECT * FROM " + std::string(tipus.cap.nom) + Condicio_Document(tipus, tipus.cap, numero, empresa);
}

std::string SQL_Linies(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  std::istringstream papers{std::string(tipus.columnes_linies)};
  std::string columnes;
  for (std::string paper; papers >> paper;) columnes += (columnes.empty() ? "" : ", ") + tipus.lin.Columna(paper);
  return "SELECT " + columnes + " FROM " + std::string(tipus.lin.nom) +
         Condicio_Document(tipus, tipus.lin, numero, empresa) + " ORDER BY " + tipus.lin.Columna("LIN");
}

std::string SQL_Peu(const Tipus_Document& tipus, const Valor& numero, const std::string& empresa) {
  const auto columna = [&](const char* paper) { return tipus.peu.Columna(paper); };
  return "SELECT " + columna("TIPUS_IVA") + ", " + columna("DESC_IVA") + ", " + columna("PORC_IVA") + ", " +
         columna("PORC_RE") + ", " + columna("BASE") + "," + columna("IVA") + ", " + columna("RE") + ", " +
         columna("IMPORT") + " FROM " + std::string(tipus.peu.nom) +
         Condicio_Document(tipus, tipus.peu, numero, empresa) + " ORDER BY " + columna("TIPUS_IVA");
}
