#include "sales/M_Comandes.h"

#include "core/M_Funcions_Comuns.h"
#include "sales/M_Tipus_Venda.h"
#include "stock/M_Magatzems.h"

void Servir_Linia_Comanda(std::int64_t numero, const std::string& empresa, std::int16_t linia, double unitats) {
  Recordset rs("SELECT * FROM COMANDALIN" + Condicio_Document(tipus_comanda, tipus_comanda.lin, numero, empresa) +
                   " AND LIN_CL = " + std::to_string(linia),
               sessio.Connexio_Comuna, Bloqueig::Optimista);
  if (rs.RecordCount() == 0) return;
  rs.Set("SERVIDES_CL", Arrodonir(Nul_A_Defecte(rs["SERVIDES_CL"]).Doble() + unitats, decimals_unitats));
  rs.Update();
  Actualitzar_Estat_Comanda(numero, empresa);
}

void Actualitzar_Estat_Comanda(std::int64_t numero, const std::string& empresa) {
  Recordset rs("SELECT (UNITATS_CL - SERVIDES_CL) AS ESTAT_CL FROM COMANDALIN" +
                   Condicio_Document(tipus_comanda, tipus_comanda.lin, numero, empresa),
               sessio.Connexio_Comuna);
  bool servida = rs.RecordCount() > 0;
  for (; servida && !rs.Eof(); rs.MoveNext())
    servida = Arrodonir(Nul_A_Defecte(rs["ESTAT_CL"]).Doble(), decimals_unitats) <= 0;
  // Whatever order the form shows takes the tick, and writes it when its head is saved.
  if (Document_Obert* oberta = sessio.pantalla->Document(tipus_comanda.formulari)) {
    oberta->Posar_Estat(servida);
  } else {
    Posar_Estat_Comanda(numero, empresa, servida);
  }
}

void Posar_Estat_Comanda(std::int64_t numero, const std::string& empresa, bool estat) {
  sessio.Connexio_Comuna.Execute("UPDATE COMANDACAP SET ESTAT_CC = " + Valor_SQL(estat) +
                                 Condicio_Document(tipus_comanda, tipus_comanda.cap, numero, empresa));
}
