#include <exception>
#include <limits>

#include "core/M_Condicions.h"
#include "core/M_Funcions_Comuns.h"
#include "documents/M_Peu.h"
#include "payments/M_Flags.h"
#include "sales/M_Factures.h"
#include "sales/M_Tipus_Venda.h"

namespace {

struct Albara_A_Facturar {
  std::int64_t numero = 0;
  Valor data;
  Valor client;
  Valor client_desc;
  bool iva = false;
  bool re = false;
  bool facturat = false;
  bool operator==(const Albara_A_Facturar&) const = default;
};
using Albarans = std::vector<Albara_A_Facturar>;

// Another terminal changed the notes since they were read.
struct Albarans_Canviats : std::exception {};

constexpr const char* camps =
    "NUMALB_AC, DATA_AC, CLIENT_AC, CLIENT_DESC_AC, IVA_AC, RE_AC, ESTAT_AC FROM ALBARACAP WHERE EMPRESA_AC = ";

Albarans Llegir_Albarans(const std::string& sentencia, Bloqueig bloqueig = Bloqueig::Lectura) {
  Albarans albarans;
  for (Recordset rs(sentencia + " ORDER BY NUMALB_AC", sessio.Connexio_Comuna, bloqueig); !rs.Eof(); rs.MoveNext()) {
    albarans.push_back({.numero = rs["NUMALB_AC"].Enter(),
                        .data = rs["DATA_AC"],
                        .client = rs["CLIENT_AC"],
                        .client_desc = rs["CLIENT_DESC_AC"],
                        .iva = Nul_A_Defecte(rs["IVA_AC"]).Boolea(),
                        .re = Nul_A_Defecte(rs["RE_AC"]).Boolea(),
                        .facturat = Nul_A_Defecte(rs["ESTAT_AC"]).Boolea()});
  }
  return albarans;
}

// The question before notes are invoiced once more; empty when none would be.
std::string Albarans_Ja_Facturats(const Albarans& albarans) {
  std::string facturats;
  for (const Albara_A_Facturar& albara : albarans)
    if (albara.facturat) facturats += "     " + std::to_string(albara.numero) + "\n";
  if (facturats.empty()) return {};
  return "\nHi ha Albarans ja Facturats: \n" + facturats + "\n\n          Segur que vols Continuar?\n";
}

bool Mateixes_Condicions_IVA(const Albarans& albarans) {
  for (const Albara_A_Facturar& albara : albarans)
    if (albara.iva != albarans.front().iva || albara.re != albarans.front().re) return false;
  return true;
}

std::int64_t Numero_De_Factura(const std::string& text) {
  if (text == proforma) return 0;
  const std::int64_t numero = Valor(text).Enter();
  using Limits = std::numeric_limits<std::int32_t>;
  if (numero < Limits::min() || numero > Limits::max()) Llancar_Error(errors::desbordament, "M_Factures");
  return numero;
}

class Generador {
 public:
  Generador(const Albarans& albarans, std::int64_t numero, const Valor& data)
      : albarans_(albarans), numero_(numero), data_(data) {
    std::vector<std::int64_t> numeros;
    for (const Albara_A_Facturar& albara : albarans) numeros.push_back(albara.numero);
    llista_ = "IN(" + Llista_De_Numeros(numeros) + ")";
  }

  // The head is the first write, which other terminals wait for; then the notes are looked at once more.
  void Generar() {
    Escriure_Capcalera();
    if (Llegir_Albarans("SELECT " + (camps + empresa_) + " AND NUMALB_AC " + llista_, Bloqueig::Optimista) != albarans_)
      throw Albarans_Canviats();
    Llegir_Grups();
    Escriure_Encapcalaments();
    Copiar_Linies();
    Calcular_Peu_Document(tipus_factura, numero_, sessio.Empresa_Actual, Recarrec_De_L_Ultim());
  }

  void Marcar_Albarans() {
    sessio.Connexio_Comuna.Execute(
        "UPDATE ALBARACAP SET ESTAT_AC = -1, NUMFAC_AC = " + Text_SQL(std::to_string(numero_)) +
        " WHERE EMPRESA_AC = " + empresa_ + " AND NUMALB_AC " + llista_);
    Propagar_Flag_Pagaments("F", numero_);
  }

 private:
  // What a note that has lines brings: how many, and the rates of its first one.
  struct Grup {
    const Albara_A_Facturar* albara;
    std::int64_t linies;
    double porc_iva;
    double porc_re;
  };

  void Escriure_Capcalera() {
    const Albara_A_Facturar& primer = albarans_.front();
    sessio.Connexio_Comuna.Afegir_Fila("FACTURACAP", {{"NUMALB_FC", numero_},
                                                      {"EMPRESA_FC", sessio.Empresa_Actual},
                                                      {"EMP_DESC_FC", sessio.Nom_Empresa},
                                                      {"DATA_FC", data_},
                                                      {"CLIENT_FC", primer.client},
                                                      {"CLIENT_DESC_FC", primer.client_desc},
                                                      {"IVA_FC", primer.iva},
                                                      {"RE_FC", primer.re}});
  }

  std::string De_Les_Linies() const { return " WHERE EMPRESA_AL = " + empresa_ + " AND NUMALB_AL " + llista_; }

  void Llegir_Grups() {
    Recordset rs(
        "SELECT NUMALB_AL, PORC_IVA_AL, PORC_RE_AL, LINIES, PRIMERA, DARRERA FROM ALBARALIN, (SELECT NUMALB_AL AS "
        "ALBARA, MIN(LIN_AL) AS PRIMERA, MAX(LIN_AL) AS DARRERA, COUNT(*) AS LINIES FROM ALBARALIN" +
            De_Les_Linies() + " GROUP BY NUMALB_AL) AS PRIMERES WHERE EMPRESA_AL = " + empresa_ +
            " AND NUMALB_AL = ALBARA AND LIN_AL = PRIMERA ORDER BY NUMALB_AL",
        sessio.Connexio_Comuna);
    auto albara = albarans_.begin();
    for (; !rs.Eof(); rs.MoveNext()) {
      while (albara->numero != rs["NUMALB_AL"].Enter()) ++albara;
      grups_.push_back({&*albara, rs["LINIES"].Enter(), Nul_A_Defecte(rs["PORC_IVA_AL"]).Doble(),
                        Nul_A_Defecte(rs["PORC_RE_AL"]).Doble()});
      linies_ += grups_.back().linies;
      sense_forats_ = sense_forats_ && rs["PRIMERA"].Enter() == 1 && rs["DARRERA"].Enter() == grups_.back().linies;
    }
    if (linies_ + static_cast<std::int64_t>(grups_.size()) > std::numeric_limits<std::int16_t>::max())
      Llancar_Error(errors::desbordament, "M_Factures");
  }

  void Escriure_Encapcalaments() {
    std::int64_t lin = 1;
    for (const Grup& grup : grups_) {
      sessio.Connexio_Comuna.Afegir_Fila(
          "FACTURALIN",
          {{"NUMALB_FL", numero_},
           {"EMPRESA_FL", sessio.Empresa_Actual},
           {"LIN_FL", lin},
           {"ARTICLE_FL", ""},
           {"DESCRIPCIO_FL", "Albarán " + std::to_string(grup.albara->numero) + " de " + grup.albara->data.Text()},
           {"PORC_IVA_FL", grup.porc_iva},
           {"PORC_RE_FL", grup.porc_re}});
      lin += grup.linies + 1;
    }
  }

  // Each line behind those of the notes before it, and behind one heading a note.
  void Copiar_Linies() {
    static constexpr const char* papers[] = {"ARTICLE",    "DESCRIPCIO",   "COST",     "UNITATS", "PORC_MARGE",
                                             "MARGE",      "PREU_UNITARI", "PORC_IVA", "PORC_RE", "PVP",
                                             "IMPORT_NET", "IMPORT_BRUT",  "DTE"};
    std::string on;
    std::string d_on;
    for (const char* paper : papers) {
      on += std::string(", ") + paper + "_FL";
      d_on += std::string(", ") + paper + "_AL";
    }
    // Counting them takes longer than copying them.
    const std::string en_la_nota =
        sense_forats_ ? "LIN_AL" : "ROW_NUMBER() OVER (PARTITION BY NUMALB_AL ORDER BY LIN_AL)";
    const int copiades = sessio.Connexio_Comuna.Execute(
        "INSERT INTO FACTURALIN (NUMALB_FL, EMPRESA_FL, LIN_FL" + on + ") SELECT NUMALB_FC, EMPRESA_FC, ABANS + " +
        en_la_nota + d_on +
        " FROM ALBARALIN, FACTURACAP, (SELECT NUMALB_AL AS ALBARA, SUM(COUNT(*) + 1) OVER (ORDER BY NUMALB_AL) - "
        "COUNT(*) AS ABANS FROM ALBARALIN" +
        De_Les_Linies() + " GROUP BY NUMALB_AL) AS LINIES_ABANS" + De_Les_Linies() +
        " AND NUMALB_AL = ALBARA AND NUMALB_FC = " + std::to_string(numero_) + " AND EMPRESA_FC = " + empresa_);
    if (copiades != linies_) throw Albarans_Canviats();
  }

  // Percent; of a last note without lines, 0.
  double Recarrec_De_L_Ultim() const {
    const bool en_te = !grups_.empty() && grups_.back().albara == &albarans_.back();
    return en_te ? grups_.back().porc_re : 0;
  }

  const Albarans& albarans_;
  const std::int64_t numero_;
  const Valor& data_;
  const std::string empresa_ = Text_SQL(sessio.Empresa_Actual);
  std::string llista_;
  std::vector<Grup> grups_;
  std::int64_t linies_ = 0;
  bool sense_forats_ = true;  // the lines of every note are numbered from 1 on
};

}  // namespace

std::string Llista_Albarans_Seleccionats(const std::vector<std::int64_t>& numeros) {
  return numeros.empty() ? std::string() : " AND NUMALB_AC IN(" + Llista_De_Numeros(numeros) + ")";
}

// Notes that other terminals change meanwhile are read again, but not for ever.
bool Facturar(const Facturacio& facturacio) {
  constexpr int intents = 20;
  std::string acceptat;
  for (int intent = 0; intent < intents; ++intent) {
    const Albarans albarans = Llegir_Albarans(facturacio.albarans);
    const std::string avis = Albarans_Ja_Facturats(albarans);
    if (!avis.empty() && avis != acceptat && sessio.pantalla->Caixa(avis, estil::si_no) != Resposta::Si) return false;
    acceptat = avis;
    if (!Mateixes_Condicions_IVA(albarans))
      throw Error_Brollador(errors::camp_no_trobat, "M_Factures",
                            "Els Albarans seleccionats no tenen les mateixes condicions d'IVA i RE!!!");
    const std::int64_t numero = Numero_De_Factura(facturacio.numero);
    if (albarans.empty()) return false;
    try {
      En_Transaccio(sessio.Connexio_Comuna, [&] {
        Generador generador(albarans, numero, facturacio.data);
        generador.Generar();
        if (facturacio.numero != proforma) generador.Marcar_Albarans();
      });
      return true;
    } catch (const Albarans_Canviats&) {
      sessio.pantalla->Processar_Events();
    }
  }
  Llancar_Error(errors::concurrencia, "M_Factures");
}
