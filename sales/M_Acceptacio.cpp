#include "sales/M_Acceptacio.h"

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "documents/M_Peu.h"
#include "payments/M_Flags.h"
#include "sales/M_Albarans.h"
#include "sales/M_Comandes.h"
#include "sales/M_Factures.h"
#include "sales/M_Pressupostos.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Magatzems.h"

namespace {

Lloc_Linia Lloc_De(const Linia_Detall& linia) {
  return {linia.cap.numero, linia.cap.empresa, linia.lin};
}

// The lines of notes that serve that line of an order.
std::string Condicio_Que_Serveix(const Lloc_Linia& comanda) {
  return " WHERE COMANDA_AL = " + comanda.numero.Text() + " AND EMPRESA_AL = " + Text_SQL(comanda.empresa) +
         " AND COMANDA_LIN_AL = " + std::to_string(comanda.lin);
}

// The head of today for the customer of the line; its taxes are those of the document that the line comes from.
Valor Crear_Capcalera_Del_Client(const Tipus_Document& tipus, const Linia_Detall& linia) {
  return Crear_Capcalera(
      tipus,
      {{"CLIENT", linia.qui.codi}, {"CLIENT_DESC", linia.qui.nom}, {"IVA", linia.cap.iva}, {"RE", linia.cap.re}});
}

// The document is still open, and ours until the end of the transaction: another terminal that passes a line into it
// waits, and numbers its own after this one. False when it was closed, or is gone, or there was none.
bool Reservar_Obert(const Tipus_Document& tipus, std::int64_t numero, const std::string& empresa) {
  const std::string estat = tipus.cap.Columna("ESTAT");
  return numero != 0 && sessio.Connexio_Comuna.Execute("UPDATE " + std::string(tipus.cap.nom) + " SET " + estat +
                                                       " = 0" + Condicio_Document(tipus, tipus.cap, numero, empresa) +
                                                       " AND " + estat + " = 0") > 0;
}

// The line at the end of the customer's open document of today, and the foot and the total of it. `propies` fills the
// columns that only that kind has.
Lloc_Linia Passar_Linia(const Tipus_Document& desti, const Linia_Detall& linia,
                        const std::function<void(Recordset& fila)>& propies) {
  const std::string& empresa = linia.cap.empresa;
  const std::int64_t obert = Cercar_Document_Obert(desti, linia.qui.codi, empresa);
  const Valor numero = Reservar_Obert(desti, obert, empresa) ? Valor(obert) : Crear_Capcalera_Del_Client(desti, linia);
  Lloc_Linia lloc{numero, empresa, Seguent_Linia(desti, numero, empresa)};
  Recordset fila(SQL_Linia(desti, lloc), sessio.Connexio_Comuna, Bloqueig::Optimista);
  Posar_Linia_Nova(desti, lloc, linia.contingut, fila);
  propies(fila);
  fila.Update();
  Calcular_Peu_Document(desti, numero, empresa, linia.contingut.xifres.porc_re);
  return lloc;
}

// The stock of a line that goes into a note (signe +1) or comes out of it (-1). What it warns of is told before
// anything is written.
std::function<void(const Valor& nota)> Preparar_Moviment(double signe, const std::string& article, double unitats) {
  const Article_Estoc estoc = Preparar_Article_Estoc(article, -signe * unitats);
  return [=](const Valor& nota) { Moviment_Albara(signe, estoc, unitats, nota.Enter()); };
}

// Into a note, with the stock and the flags that follow. `desat` runs between the line and the stock.
void Passar_A_L_Albara(const Linia_Detall& linia, const Lloc_Linia& comanda,
                       const std::function<void(const Lloc_Linia& nota)>& desat) {
  const auto moure = Preparar_Moviment(+1, linia.contingut.article, linia.contingut.xifres.unitats);
  const Lloc_Linia nota = Passar_Linia(tipus_albara, linia, [&](Recordset& fila) {
    if (comanda.lin == 0) return;
    fila.Set("COMANDA_AL", comanda.numero);
    fila.Set("COMANDA_LIN_AL", std::int64_t{comanda.lin});
  });
  desat(nota);
  moure(nota.numero);
  Propagar_Flag_Pagaments("A", nota.numero.Enter());
}

// Raises 80040E38 when the line is not any more what `abans` says of it.
void Canviar_Linia(const Tipus_Document& tipus, const Lloc_Linia& lloc, const std::string& canvi,
                   const std::string& abans) {
  const int tocades = sessio.Connexio_Comuna.Execute("UPDATE " + std::string(tipus.lin.nom) + " SET " + canvi +
                                                     Condicio_Linia(tipus, lloc) + " AND " + abans);
  if (tocades == 0) Llancar_Error(errors::concurrencia, std::string(tipus.formulari));
}

void Marcar_Acceptada(const Lloc_Linia& linia, const Lloc_Linia& desti) {
  Canviar_Linia(tipus_pressupost, linia,
                "ESTAT_PL = -1, COMANDA_PL = " + desti.numero.Text() + ",COMANDA_LIN_PL = " + std::to_string(desti.lin),
                "ESTAT_PL = 0");
}

// A line goes out of a document, and the document with its last one. `porc_re` as Calcular_Peu_Document takes it. False
// when it was gone already.
bool Treure_Linia(const Tipus_Document& tipus, const Lloc_Linia& lloc, double porc_re) {
  if (sessio.Connexio_Comuna.Execute("DELETE * FROM " + std::string(tipus.lin.nom) + Condicio_Linia(tipus, lloc)) == 0)
    return false;
  if (Comptar_Linies(tipus, lloc.numero, lloc.empresa) == 0) return Esborrar_Document(tipus, lloc.numero, lloc.empresa);
  Buidar_Peu(tipus, lloc.numero, lloc.empresa);
  Calcular_Peu_Document(tipus, lloc.numero, lloc.empresa, porc_re);
  return true;
}

// A row of a note that serves an order's line, and its stock.
struct Entrega {
  Lloc_Linia lloc;
  double unitats;
  std::function<void(const Valor& nota)> moure;
};

// The deliveries that can be taken back. `facturades` says that there are others, which are invoiced.
std::vector<Entrega> Llegir_Entregues(const Lloc_Linia& comanda, bool& facturades) {
  std::vector<Entrega> entregues;
  Recordset rs(
      "SELECT NUMALB_AL, LIN_AL, ARTICLE_AL, UNITATS_AL, ESTAT_AC FROM ALBARALIN INNER JOIN ALBARACAP ON "
      "(ALBARALIN.EMPRESA_AL = ALBARACAP.EMPRESA_AC) AND (ALBARALIN.NUMALB_AL = ALBARACAP.NUMALB_AC)" +
          Condicio_Que_Serveix(comanda) + " ORDER BY NUMALB_AL, LIN_AL",
      sessio.Connexio_Comuna);
  for (; !rs.Eof(); rs.MoveNext()) {
    if (Nul_A_Defecte(rs["ESTAT_AC"]).Boolea()) {
      facturades = true;
      continue;
    }
    const double unitats = Nul_A_Defecte(rs["UNITATS_AL"]).Doble();
    entregues.push_back({{rs["NUMALB_AL"], comanda.empresa, static_cast<std::int16_t>(rs["LIN_AL"].Enter())},
                         unitats,
                         Preparar_Moviment(-1, rs["ARTICLE_AL"].Text(), unitats)});
  }
  return entregues;
}

// The units stand in the statement as their plain text, with a comma: a fraction makes it faulty.
void Retirar_Entrega(const Lloc_Linia& comanda, const Entrega& entrega, double porc_re) {
  if (!Treure_Linia(tipus_albara, entrega.lloc, porc_re))
    Llancar_Error(errors::concurrencia, std::string(tipus_albara.formulari));
  sessio.Connexio_Comuna.Execute("UPDATE COMANDALIN SET SERVIDES_CL = SERVIDES_CL - " + Text_Numero(entrega.unitats) +
                                 Condicio_Linia(tipus_comanda, comanda));
  entrega.moure(entrega.lloc.numero);
  Propagar_Flag_Pagaments("A", entrega.lloc.numero.Enter());
}

// What is left of a count after whole units went may still be a double's idea of a fraction.
void Arrodonir_Servides(const Lloc_Linia& comanda) {
  Recordset rs(SQL_Linia(tipus_comanda, comanda), sessio.Connexio_Comuna, Bloqueig::Optimista);
  if (rs.RecordCount() == 0) return;
  rs.Set("SERVIDES_CL", Unitats_Servides(rs));
  rs.Update();
}

// Documents of a kind by their lines, for the list of the detail.
std::string SQL_Lligats(const Tipus_Document& tipus, const Pregunta& que_es, const std::string& condicio) {
  const std::string cap(tipus.cap.nom);
  const std::string lin(tipus.lin.nom);
  return "SELECT " + Text_SQL(Missatge(que_es.catala, que_es.castella, que_es.angles)) + " AS DOCUMENT, " +
         tipus.cap.Columna("NUMALB") + " AS NUMERO, " + tipus.cap.Columna("DATA") + " AS DATA, " +
         tipus.lin.Columna("UNITATS") + " AS UNITATS FROM " + lin + " INNER JOIN " + cap + " ON (" + lin + "." +
         tipus.lin.Columna("EMPRESA") + " = " + cap + "." + tipus.cap.Columna("EMPRESA") + ") AND (" + lin + "." +
         tipus.lin.Columna("NUMALB") + " = " + cap + "." + tipus.cap.Columna("NUMALB") + ")" + condicio + " ORDER BY " +
         tipus.lin.Columna("NUMALB") + ", " + tipus.lin.Columna("LIN");
}

constexpr Pregunta una_comanda = {"Comanda", "Pedido", "Order"};
constexpr Pregunta un_albara = {"Albarà", "Albarán", "Delivery Note"};

Lloc_Linia Lloc_A_La_Fila(const Recordset& fila, const char* numero, const char* lin, const std::string& empresa) {
  return {Nul_A_Defecte(fila[numero]).Enter(), empresa, static_cast<std::int16_t>(Nul_A_Defecte(fila[lin]).Enter())};
}

std::string Lligats_De_Pressupost(const Linia_Detall& linia, const Recordset& fila) {
  const Lloc_Linia lloc = Lloc_A_La_Fila(fila, "COMANDA_PL", "COMANDA_LIN_PL", linia.cap.empresa);
  return Es_Usuari_Sense_Comandes() ? SQL_Lligats(tipus_albara, un_albara, Condicio_Linia(tipus_albara, lloc))
                                    : SQL_Lligats(tipus_comanda, una_comanda, Condicio_Linia(tipus_comanda, lloc));
}

std::string Lligats_De_Comanda(const Linia_Detall& linia, const Recordset& /*fila*/) {
  return SQL_Lligats(tipus_albara, un_albara, Condicio_Que_Serveix(Lloc_De(linia)));
}

std::string Lligats_D_Albara(const Linia_Detall& linia, const Recordset& fila) {
  const Lloc_Linia lloc = Lloc_A_La_Fila(fila, "COMANDA_AL", "COMANDA_LIN_AL", linia.cap.empresa);
  return SQL_Lligats(tipus_comanda, una_comanda, Condicio_Linia(tipus_comanda, lloc));
}

bool Es_Acceptada(const Linia_Detall& /*linia*/, const Recordset& fila) {
  return Nul_A_Defecte(fila["ESTAT_PL"]).Boolea();
}

bool Es_Servida(const Linia_Detall& /*linia*/, const Recordset& fila) {
  return Unitats_Servides(fila) > 0;
}

bool Serveix_O_Es_Facturada(const Linia_Detall& linia, const Recordset& fila) {
  return Nul_A_Defecte(fila["COMANDA_AL"]).Enter() != 0 || Estat_Albara(linia.cap.numero.Enter(), linia.cap.empresa);
}

bool Es_D_Albarans(const Linia_Detall& linia, const Recordset& /*fila*/) {
  return Factura_Te_Albarans(linia.cap.numero.Enter(), linia.cap.empresa);
}

constexpr Accio_De_Linia acceptar_pressupost = {
    {"Segur d'acceptar aquesta línia del pressupost", "Seguro de acceptar esta línia del presupuesto",
     "Sure to accept this Proposal line"},
    Acceptar_Linia_Pressupost};
constexpr Accio_De_Linia descartar_pressupost = {
    {"Segur de descartar aquesta línia del pressupost", "Seguro de descartar esta línia del presupuesto",
     "Sure to discard this Proposal line"},
    Descartar_Linia_Pressupost};
constexpr Accio_De_Linia servir_comanda = {
    {"Segur de generar Albarà per aquesta línia de la Comanda", "Seguro de generar Albarán para esta línia del Pedido",
     "Sure to do Delivery Note for this Order line"},
    Servir_Linia_Sencera};
constexpr Accio_De_Linia retirar_comanda = {
    {"Segur d'eliminar de l'Albarà aquesta línia de Comanda", "Seguro de eliminar del Albarán esta línia del Pedido",
     "Sure to delete from Delivery Note this Order line"},
    Retirar_Linia_Servida};

}  // namespace

const Passos_Detall detall_pressupost = {.fixada = Es_Acceptada,
                                         .lligats = Lligats_De_Pressupost,
                                         .acceptar = &acceptar_pressupost,
                                         .descartar = &descartar_pressupost};
const Passos_Detall detall_comanda = {
    .fixada = Es_Servida, .lligats = Lligats_De_Comanda, .acceptar = &servir_comanda, .descartar = &retirar_comanda};
const Passos_Detall detall_albara = {.fixada = Serveix_O_Es_Facturada, .lligats = Lligats_D_Albara};
const Passos_Detall detall_factura = {.fixada = Es_D_Albarans};

std::int64_t Cercar_Document_Obert(const Tipus_Document& tipus, const std::string& client, const std::string& empresa) {
  const Taula_Document& cap = tipus.cap;
  const Recordset rs("SELECT " + cap.Columna("NUMALB") + " FROM " + std::string(cap.nom) + " WHERE " +
                         cap.Columna("EMPRESA") + " = " + Text_SQL(empresa) + " AND " + cap.Columna("CLIENT") + " = " +
                         Codi_SQL(client) + " AND " + cap.Columna("DATA") + " = " + Data_SQL(Avui()) + " AND " +
                         cap.Columna("ESTAT") + " = 0 ORDER BY " + cap.Columna("NUMALB"),
                     sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs[0].Enter() : 0;
}

void Acceptar_Linia_Pressupost(const Linia_Detall& linia) {
  const Lloc_Linia lloc = Lloc_De(linia);
  const auto marcar = [&](const Lloc_Linia& desti) { Marcar_Acceptada(lloc, desti); };
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    if (!Estat_Linia_Pressupost(lloc.numero.Enter(), lloc.empresa, lloc.lin)) {
      if (Es_Usuari_Sense_Comandes()) {
        Passar_A_L_Albara(linia, {}, marcar);
      } else {
        marcar(Passar_Linia(tipus_comanda, linia, [](Recordset& fila) { fila.Set("SERVIDES_CL", 0.0); }));
      }
    }
    Actualitzar_Estat_Pressupost(lloc.numero.Enter(), lloc.empresa);
  });
}

void Descartar_Linia_Pressupost(const Linia_Detall& linia) {
  const Lloc_Linia lloc = Lloc_De(linia);
  const auto refusar = [](const char* motiu) { sessio.pantalla->Caixa(motiu, estil::critic); };
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    if (Estat_Linia_Pressupost(lloc.numero.Enter(), lloc.empresa, lloc.lin)) {
      if (Es_Usuari_Sense_Comandes()) return refusar("No es pot esborrar el pressupost. Ja hi ha Albarà!!");
      const Lloc_Linia comanda = Comanda_De_Linia_Pressupost(lloc.numero.Enter(), lloc.empresa, lloc.lin);
      if (comanda.numero.Enter() != 0) {
        if (Linia_Comanda_Servida(comanda.numero.Enter(), comanda.empresa, comanda.lin))
          return refusar("No es pot esborrar la comanda. Ja hi ha Albarà!!");
        Treure_Linia(tipus_comanda, comanda, linia.contingut.xifres.porc_re);
      }
      Canviar_Linia(tipus_pressupost, lloc, "ESTAT_PL = 0, COMANDA_PL = 0,COMANDA_LIN_PL = 0", "ESTAT_PL <> 0");
    }
    Actualitzar_Estat_Pressupost(lloc.numero.Enter(), lloc.empresa);
  });
}

void Servir_Linia_Sencera(const Linia_Detall& linia) {
  const Lloc_Linia lloc = Lloc_De(linia);
  const std::string servides =
      "SERVIDES_CL = " + Valor_SQL(Arrodonir(linia.contingut.xifres.unitats, decimals_unitats));
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    if (!Linia_Comanda_Servida(lloc.numero.Enter(), lloc.empresa, lloc.lin))
      Passar_A_L_Albara(linia, lloc, [&](const Lloc_Linia& /*nota*/) {
        Canviar_Linia(tipus_comanda, lloc, servides, "SERVIDES_CL <= 0");
      });
    Actualitzar_Estat_Comanda(lloc.numero.Enter(), lloc.empresa);
  });
}

void Retirar_Linia_Servida(const Linia_Detall& linia) {
  const Lloc_Linia lloc = Lloc_De(linia);
  bool facturades = false;
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    facturades = false;
    if (Linia_Comanda_Servida(lloc.numero.Enter(), lloc.empresa, lloc.lin)) {
      const std::vector<Entrega> entregues = Llegir_Entregues(lloc, facturades);
      for (const Entrega& entrega : entregues) Retirar_Entrega(lloc, entrega, linia.contingut.xifres.porc_re);
      if (!entregues.empty()) Arrodonir_Servides(lloc);
    }
    Actualitzar_Estat_Comanda(lloc.numero.Enter(), lloc.empresa);
  });
  if (facturades) sessio.pantalla->Caixa("No s'ha pogut desfer l'albarà. Està Facturat!!", estil::critic);
}
