#include "masters/M_Venciments_Factura.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
#include "core/dades/Dates.h"
#include "core/dades/Numeros.h"

namespace {

struct Condicions {
  std::string descripcio;
  double dies = 0;
  int terminis = 0;
  int dia_pagament = 0;  // of the month; 0 none
};

Condicions Condicions_De(const std::string& nif) {
  Condicions condicions;
  const Recordset client("SELECT VENCIMENT_CLI, DIA_PAG_CLI FROM CLIENTS WHERE NIF_CLI = " + Codi_SQL(nif),
                         sessio.Connexio_Comuna);
  const bool existeix = client.RecordCount() > 0;
  const std::string codi = existeix ? client["VENCIMENT_CLI"].Text() : "0";
  if (existeix) condicions.dia_pagament = static_cast<int>(Nul_A_Defecte(client["DIA_PAG_CLI"]).Enter());
  const Recordset venciment("SELECT * FROM VENCIMENTS WHERE CODI_VEN = " + Codi_SQL(codi), sessio.Connexio_Comuna);
  if (venciment.RecordCount() == 0) return condicions;
  condicions.dies = Nul_A_Defecte(venciment["DIES_VEN"]).Doble();
  condicions.terminis = static_cast<int>(Nul_A_Defecte(venciment["TERMINIS_VEN"]).Enter());
  condicions.descripcio = venciment["DESCRIPCIO_VEN"].Text();
  const std::string& d = condicions.descripcio;
  if (d.size() == 2 && std::toupper(d[0]) == 'N' && std::toupper(d[1]) == 'O') condicions.descripcio.clear();
  return condicions;
}

// The same day of a later month, or the last one of a shorter month.
Data_Hora Mes_Tard(const Data_Hora& data, int mesos) {
  const Data_Hora primer = Data_Serial(data.any, data.mes + mesos, 1);
  const Data_Hora ultim = Data_Serial(primer.any, primer.mes + 1, 0);
  return {primer.any, primer.mes, std::min(data.dia, ultim.dia)};
}

// A multiple of 30 days is so many months.
Data_Hora Un_Pas(const Data_Hora& data, double dies) {
  constexpr double mes = 30;
  if (std::fmod(dies, mes) == 0) return Mes_Tard(data, static_cast<int>(dies / mes));
  return Data_Serial(data.any, data.mes, data.dia + static_cast<int>(Arrodonir_Parell(dies, 0)));
}

// The first such day of a month from `data` on; a day that no month has leaves the date as it is.
Data_Hora Al_Dia_De_Pagament(const Data_Hora& data, int dia) {
  if (dia < 1 || dia > 31) return data;
  Data_Hora buscada = data;
  while (buscada.dia != dia) buscada = Data_Serial(buscada.any, buscada.mes, buscada.dia + 1);
  return buscada;
}

std::string Text_Venciments(const Condicions& condicions, const Data_Hora& data, double import) {
  if (import <= 0 || condicions.terminis < 1) return {};
  double quota = Arrodonir_Parell(Arrodonir_Parell(import, 2) / condicions.terminis, 2);
  double acumulat = 0;
  Data_Hora venciment = {data.any, data.mes, data.dia};
  std::string text;
  for (int i = 1; i <= condicions.terminis; ++i) {
    // The cents that the division lost fall on the last term.
    if (i == condicions.terminis) quota = Arrodonir_Parell(import - acumulat, 2);
    venciment = Al_Dia_De_Pagament(Un_Pas(venciment, condicions.dies), condicions.dia_pagament);
    text += Text_Data(venciment) + " " + Text_Numero(quota) + " ; ";
    acumulat += quota;
  }
  return text;
}

}  // namespace

std::array<std::string, 3> Venciments_Factura(const std::string& nif, const Data_Hora& data, double import) {
  const Condicions condicions = Condicions_De(nif);
  return {"", condicions.descripcio, Text_Venciments(condicions, data, import)};
}
