#include "output/M_Impressio.h"

#include <algorithm>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "masters/M_Clients.h"
#include "masters/M_Proveidors.h"
#include "masters/M_Venciments_Factura.h"
#include "session/M_Empresa.h"

namespace {

constexpr const char* mascara = "#,##0.00";
constexpr const char* mascara_detall = "#,##0.00;; ";  // zero prints as a blank
constexpr std::size_t files_de_peu = 4;

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

std::string SQL_Linies_A_Imprimir(const Descripcio_Impressio& informe, const Valor& numero,
                                  const std::string& empresa) {
  const Taula_Document& lin = informe.Tipus().lin;
  std::string columnes;
  for (const auto& columna : informe.columnes) columnes += (columnes.empty() ? "" : ", ") + lin.Columna(columna.linia);
  return "SELECT " + columnes + " FROM " + std::string(lin.nom) +
         Condicio_Document(informe.Tipus(), lin, numero, empresa) + " ORDER BY " + lin.Columna("LIN");
}

void Copiar_Linies(const Descripcio_Impressio& informe, Recordset& linies) {
  Recordset impr("SELECT * FROM " + std::string(informe.taula.nom), Connexio_Impressio(), Bloqueig::Optimista);
  for (; !linies.Eof(); linies.MoveNext()) {
    impr.AddNew();
    for (const auto& [linia, impressio] : informe.columnes) {
      const Valor valor = linies[informe.Tipus().lin.Columna(linia)];
      const bool text = impressio == "DESCRIPCIO";
      impr.Set(informe.taula.Columna(impressio), text ? Valor(En_Una_Linia(valor.Text())) : valor);
    }
    impr.Update();
  }
}

// "Construccions", "Carrer Nou, 3", "08500 Vic": of whoever the document is for.
struct Adreca_Impresa {
  std::string nif;
  std::string rao_social;
  std::string nom_comercial;
  std::string adreca;
  std::string poblacio;
  std::string codi;
};

Adreca_Impresa Adreca_De(Destinatari destinatari, const std::string& nif) {
  if (destinatari == Destinatari::Proveidor) {
    const auto d = Dades_Proveidor(nif);
    return {d[0], d[1], d[2], d[3], d[4] + " " + d[5], {}};
  }
  const auto d = Dades_Client(nif);
  return {d[0], d[1], d[2], d[3], d[4] + " " + d[5], d[6]};
}

int Posicio_Top() {
  const auto trobat = sessio.Parametres.find("P_Posicio_Top");
  if (trobat == sessio.Parametres.end() || trobat->second.empty()) return 0;
  const auto twips = Numero_De_Text(trobat->second);
  if (!twips) Llancar_Error(errors::tipus, "P_Posicio_Top", trobat->second);
  constexpr double prou_lluny = 1e6;  // farther than any page
  return static_cast<int>(std::clamp(*twips, -prou_lluny, prou_lluny));
}

class Ompliment {
 public:
  Ompliment(const Descripcio_Impressio& informe, const Valor& numero, const std::string& empresa)
      : d_(informe), numero_(numero), empresa_(empresa) {}

  Ompliment_Informe Fer(bool valorat) {
    Empresa();
    Descompte();
    Capcalera();
    Formats();
    if (!valorat) Sense_Preus();
    Posar("L_NETO_IMP", Format_Numero(Net(), mascara));
    Peu();
    if (d_.venciments) Venciments();
    return std::move(fet_);
  }

 private:
  void Posar(std::string control, std::string text) { fet_.textos.emplace_back(std::move(control), std::move(text)); }
  void Amagar(std::string control) { fet_.amagats.push_back(std::move(control)); }
  std::string Titol(std::string_view paper) const { return "L_" + d_.Tipus().lin.Columna(paper); }
  std::string Camp(std::string_view paper) const { return "TXT_" + d_.taula.Columna(paper); }

  void Empresa() {
    enum { rao_social, nif, adreca, telefon, cp, localitat, imatge, comentari };
    const auto dades = Dades_Empresa();
    Posar("L_RAO_SOCIAL_EMP", dades[rao_social]);
    Posar("L_NIF_EMP", "NIF: " + dades[nif]);
    Posar("L_ADREÇA_EMP", dades[adreca] + std::string(d_.telefon) + dades[telefon]);
    Posar("L_CP_POBLACIO_EMP", dades[cp] + " " + dades[localitat]);
    if (d_.logo) {
      fet_.imatge = dades[imatge];
      fet_.posicio_top = Posicio_Top();
      Posar("L_COMENTARI_EMP", dades[comentari]);
    }
    for (const auto& peu : d_.peus) {
      Posar("L_" + std::string(peu.nom) + "_EMP", dades[peu.dada]);
      if (peu.titol != nullptr && dades[peu.dada].empty()) Amagar("L_" + std::string(peu.nom));
    }
  }

  // A document without discounts shows no title over the empty column.
  void Descompte() {
    const bool columna = !d_.Linia_De("DTE").empty();
    if (columna && !Hi_Ha_Descomptes(d_.Tipus(), numero_, empresa_)) Posar(Titol("DTE"), " ");
  }

  void Capcalera() {
    const bool proveidor = d_.destinatari == Destinatari::Proveidor;
    std::string observacions;
    const Recordset rs(SQL_Capcalera(d_.Tipus(), numero_, empresa_), sessio.Connexio_Comuna);
    if (rs.RecordCount() > 0) {
      data_ = rs[d_.Tipus().cap.Columna("DATA")];
      nif_ = rs[d_.Tipus().cap.Columna(proveidor ? "PROVEIDOR" : "CLIENT")].Text();
      observacions = rs[d_.Tipus().cap.Columna("OBSR")].Text();
    }
    Posar("L_TXT_OBSR", observacions);
    if (observacions.empty()) Amagar("L_OBSR");
    Posar("L_TXT_ALBARA", numero_.Text());
    Posar("L_TXT_DATA", data_.Text());
    const Adreca_Impresa qui = Adreca_De(d_.destinatari, nif_);
    Posar("L_TXT_NIF", qui.nif);
    Posar("L_NOM_FISCAL", qui.rao_social);
    Posar("L_NOM_COMERCIAL", qui.nom_comercial);
    Posar("L_DIRECCIO", qui.adreca);
    Posar("L_POBLACIO", qui.poblacio);
    if (d_.codi_client) Codi_Client(qui.codi);
  }

  void Codi_Client(const std::string& codi) {
    const auto visible = sessio.Parametres.find("P_Codi_Client_Visible");
    const bool es_veu = visible != sessio.Parametres.end() && visible->second == "True";
    Posar("L_TXT_CODI_CLIENT", es_veu ? codi : "");
    if (!es_veu) Amagar("L_CODI_CLIENT");
  }

  void Formats() {
    for (const char* paper : {"UNITATS", "PREU_UNITARI", "DTE", "TOTAL_IMPORT"}) {
      if (!d_.Linia_De(paper).empty()) fet_.formats.emplace_back(Camp(paper), mascara_detall);
    }
  }

  // The foot is printed all the same.
  void Sense_Preus() {
    for (const char* paper : {"PREU_UNITARI", "DTE", "TOTAL_IMPORT"}) {
      const std::string_view linia = d_.Linia_De(paper);
      if (linia.empty()) continue;
      Amagar(Camp(paper));
      Posar(Titol(linia == "IMPORT_NET" ? "TOTAL_IMPORT" : linia), " ");
    }
  }

  double Net() const {
    const Recordset rs(
        "SELECT SUM(" + d_.taula.Columna("TOTAL_IMPORT") + ") AS IMPORT_NET FROM " + std::string(d_.taula.nom),
        Connexio_Impressio());
    return Nul_A_Defecte(rs["IMPORT_NET"]).Doble();
  }

  // Labels that no row reaches are emptied.
  void Peu() {
    struct Etiqueta {
      const char* nom;
      const char* paper;
    };
    static constexpr Etiqueta etiquetes[] = {{"L_BASE_", "BASE"},   {"L_IVA_PORC_", "PORC_IVA"},
                                             {"L_IVA_IMP_", "IVA"}, {"L_RE_PORC_", "PORC_RE"},
                                             {"L_RE_IMP_", "RE"},   {"L_IMPORT_BRUT_", "IMPORT"}};
    std::size_t fila = 1;
    for (Recordset rs(SQL_Peu(d_.Tipus(), numero_, empresa_), sessio.Connexio_Comuna); !rs.Eof();
         rs.MoveNext(), ++fila) {
      const auto import = [&](const char* paper) { return Nul_A_Defecte(rs[d_.Tipus().peu.Columna(paper)]).Doble(); };
      for (const auto& [nom, paper] : etiquetes)
        Posar(nom + std::to_string(fila), Format_Numero(import(paper), mascara));
      total_ += import("IMPORT");
    }
    for (; fila <= files_de_peu; ++fila) {
      for (const auto& etiqueta : etiquetes) Posar(etiqueta.nom + std::to_string(fila), "");
    }
    Posar("L_IMPORT_TOTAL_IMP", Format_Numero(total_, mascara));
  }

  void Venciments() {
    const auto terme = data_.Es_Data() ? Venciments_Factura(nif_, data_.Data(), total_) : std::array<std::string, 3>();
    if (terme[2].empty()) {
      for (const char* control : {"L_VENCIMENTS", "L_TXT_PAGAMENT", "L_TXT_VENCIMENTS"}) Amagar(control);
      return;
    }
    Posar("L_TXT_PAGAMENT", terme[1] + " (" + Compte_Client(nif_) + ")");
    Posar("L_TXT_VENCIMENTS", terme[2]);
  }

  const Descripcio_Impressio& d_;
  const Valor& numero_;
  const std::string& empresa_;
  Ompliment_Informe fet_;
  Valor data_;
  std::string nif_;
  double total_ = 0;  // euros
};

}  // namespace

std::string SQL_Impressio(const Descripcio_Impressio& informe) {
  return "SELECT * FROM " + std::string(informe.taula.nom) + " ORDER BY " + informe.taula.Columna("LIN");
}

void Omplir_Taula_Impressio(const Descripcio_Impressio& informe, const Valor& numero, const std::string& empresa) {
  Recordset linies(SQL_Linies_A_Imprimir(informe, numero, empresa), sessio.Connexio_Comuna);
  // One write to the disk for all of it.
  Transaccio transaccio(Connexio_Impressio());
  Buidar_Taula_Impressio(informe);
  Copiar_Linies(informe, linies);
  transaccio.Confirmar();
}

void Buidar_Taula_Impressio(const Descripcio_Impressio& informe) {
  Connexio_Impressio().Execute("DELETE * FROM " + std::string(informe.taula.nom));
}

const std::string* Ompliment_Informe::Text_De(std::string_view control) const {
  const auto trobat =
      std::find_if(textos.rbegin(), textos.rend(), [&](const auto& text) { return text.first == control; });
  return trobat == textos.rend() ? nullptr : &trobat->second;
}

Ompliment_Informe Omplir_Informe(const Descripcio_Impressio& informe, const Valor& numero, const std::string& empresa,
                                 bool valorat) {
  return Ompliment(informe, numero, empresa).Fer(valorat);
}
