#include "sales/M_Factures.h"

#include <memory>

#include "core/M_Funcions_Comuns.h"
#include "documents/M_Linies_Document.h"
#include "payments/M_Flags.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Magatzems.h"

namespace {

// The notes that name the invoice.
std::string Els_Seus_Albarans(std::int64_t numero) {
  return " WHERE NUMFAC_AC = " + Text_SQL(std::to_string(numero));
}

std::string Origens_De_Factura(const Valor& numero) {
  return "SELECT EMPRESA_AC, COUNT(*) AS CUENTA FROM ALBARACAP" + Els_Seus_Albarans(numero.Enter()) +
         " GROUP BY EMPRESA_AC";
}

Apunt_Estoc Estoc_De_Factura(const Capcalera_Oberta& cap, const std::string& article,
                             const std::vector<Unitats_Mogudes>& mogudes) {
  return Preparar_Apunts(article, mogudes, -1,
                         [numero = cap.numero.Enter()](double signe, const auto& estoc, double unitats) {
                           Moviment_Factura(signe, estoc, unitats, numero);
                         });
}

Apunt_Linia Flags_De_Factura(const Capcalera_Oberta& cap, const Linia_Entrada& /*linia*/) {
  const Document_Pagable factura{'F', cap.numero.Enter()};
  const auto cadena = std::make_shared<Cadena>(std::vector{factura});
  return {.abans = {}, .despres = [cadena, factura] {
            Propagar_Flag_Pagaments(*cadena, factura);
            if (cadena->Flag(factura)) return;
            throw Error_Brollador(errors::refusat, std::string(tipus_factura.formulari),
                                  "No es poden afegir línies a una factura que no pot tenir pagaments!");
          }};
}

bool Es_Pot_Esborrar(const Capcalera_Oberta& cap) {
  if (!Factura_Te_Albarans(cap.numero.Enter(), cap.empresa)) return true;
  sessio.pantalla->Caixa("Aquesta Factura conté Albarans, no es poden esborrar línies!!!", estil::critic);
  return false;
}

void Propagar_De_Factura(const Capcalera_Oberta& cap, Document_Obert& /*obert*/) {
  Propagar_Flag_Pagaments("F", cap.numero.Enter());
}

// Its notes can be invoiced anew. The flags of all of them are looked at together: what they share sees them all free.
void Alliberar_Albarans(const Valor& numero, const std::string& empresa) {
  const std::string condicio = Els_Seus_Albarans(numero.Enter()) + " AND EMPRESA_AC = " + Text_SQL(empresa);
  std::vector<Document_Pagable> documents;
  for (Recordset rs("SELECT NUMALB_AC FROM ALBARACAP" + condicio, sessio.Connexio_Comuna); !rs.Eof(); rs.MoveNext())
    documents.push_back({'A', rs[0].Enter()});
  if (documents.empty()) return;
  sessio.Connexio_Comuna.Execute("UPDATE ALBARACAP SET NUMFAC_AC = '', ESTAT_AC = 0" + condicio);
  Propagar_Flag_Pagaments(documents);
}

}  // namespace

const Passos_Document passos_factura = {.origens = Origens_De_Factura,
                                        .demanar = Demanar_Magatzem_Probable,
                                        .apunt = Flags_De_Factura,
                                        .estoc = Estoc_De_Factura,
                                        .es_pot_esborrar = Es_Pot_Esborrar,
                                        .linies_esborrades = Propagar_De_Factura,
                                        .document_esborrat = Alliberar_Albarans};

std::int64_t Crear_Capcalera_Factura() {
  return Crear_Capcalera(tipus_factura).Enter();
}

std::int64_t Seguent_Factura() {
  return Seguent_Numero(tipus_factura, sessio.Empresa_Actual).Enter();
}

std::int16_t Seguent_Linia_Factura(std::int64_t numero, const std::string& empresa) {
  return Seguent_Linia(tipus_factura, numero, empresa);
}

bool Existeix_Factura(std::int64_t numero, const std::string& empresa) {
  return Existeix_Document(tipus_factura, numero, empresa);
}

std::int64_t Comptar_Linies_Factura(std::int64_t numero, const std::string& empresa) {
  return Comptar_Linies(tipus_factura, numero, empresa);
}

std::int64_t Primer_Forat_Factura() {
  Recordset rs(
      "SELECT NUMALB_FC FROM FACTURACAP WHERE EMPRESA_FC = " + Text_SQL(sessio.Empresa_Actual) + " ORDER BY NUMALB_FC",
      sessio.Connexio_Comuna);
  std::int64_t esperat = rs.Eof() ? 1 : rs[0].Enter();
  for (; !rs.Eof() && rs[0].Enter() == esperat; rs.MoveNext()) ++esperat;
  return esperat;
}

bool Factura_Te_Albarans(std::int64_t numero, const std::string& empresa) {
  const Recordset rs(
      "SELECT COUNT(*) AS CUENTA FROM ALBARACAP" + Els_Seus_Albarans(numero) + " AND EMPRESA_AC = " + Text_SQL(empresa),
      sessio.Connexio_Comuna);
  return rs[0].Enter() > 0;
}

std::int64_t Albarans_De_Factura(std::int64_t numero) {
  return Recordset("SELECT * FROM ALBARACAP" + Els_Seus_Albarans(numero), sessio.Connexio_Comuna).RecordCount();
}

void Esborrar_Factura(std::int64_t numero, const std::string& empresa) {
  Demanar_Esborrar_Document(tipus_factura, numero, empresa);
}

void Afegir_Linia_Factura(const Capcalera_Oberta& cap, const Linia_Entrada& linia, Recordset& linies,
                          Document_Obert& obert) {
  Afegir_Linia(tipus_factura, cap, linia, linies, obert);
}

bool Esborrar_Linia_Factura(std::int64_t numero, const std::string& empresa, std::int16_t linia,
                            const std::string& article, double unitats) {
  return Esborrar_Linia(tipus_factura, {.numero = numero, .empresa = empresa},
                        {.numero = linia, .article = article, .unitats = unitats});
}
