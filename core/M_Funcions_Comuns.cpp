#include "core/M_Funcions_Comuns.h"

#include <chrono>
#include <cmath>
#include <ctime>
#include <filesystem>
#include <utility>

#include "core/dades/Dates.h"
#include "core/dades/Numeros.h"
#include "core/dades/Registre_Errors.h"

double Arrodonir(double valor, double decimals) {
  const double factor = std::pow(10.0, decimals);
  const double signe = valor > 0 ? 1 : valor < 0 ? -1 : 0;
  // The text form rounds to 15 digits by itself: it is what takes 100.99999999999999 to 101 before the cut.
  const std::string text = Text_Numero(factor * valor + signe * 0.5);
  // From 1E+15 on it has an exponent, which a cut would lose.
  if (text.find_first_not_of("-0123456789,") != std::string::npos) Llancar_Error(errors::desbordament, "Arrodonir");
  const double sencer = Numero_De_Text(text.substr(0, text.find(','))).value_or(0);
  return sencer / factor + 0.0;  // no negative zero
}

Valor Nul_A_Defecte(const Valor& valor, const Valor& defecte) {
  const bool buit = valor.Es_Nul() || (valor.Es_Text() && valor.Text().empty());
  return buit ? defecte : valor;
}

std::string Data_SQL(const Data_Hora& data) {
  return "#" + std::to_string(data.mes) + "/" + std::to_string(data.dia) + "/" + std::to_string(data.any) + "#";
}

std::string Valor_SQL(const Valor& valor) {
  if (valor.Es_Nul()) return "NULL";
  if (valor.Es_Text()) return Text_SQL(valor.Text());
  if (valor.Es_Data()) return Data_SQL(valor.Data());
  return valor.Es_Enter() ? std::to_string(valor.Enter()) : Numero_SQL(valor.Doble());
}

namespace {

Data_Hora Rellotge_Equip() {
  const std::time_t segons = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
  localtime_r(&segons, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::function<Data_Hora()> rellotge_actual = Rellotge_Equip;

}  // namespace

Data_Hora Ara() {
  return rellotge_actual();
}

Data_Hora Avui() {
  const Data_Hora ara = Ara();
  return {ara.any, ara.mes, ara.dia};
}

void Fixar_Rellotge(std::function<Data_Hora()> rellotge) {
  Fixar_Rellotge_Local(rellotge);
  rellotge_actual = std::move(rellotge);
}

void Fixar_Avui(const Data_Hora& dia) {
  Fixar_Rellotge([dia] {
    const Data_Hora ara = Rellotge_Equip();
    return Data_Hora{dia.any, dia.mes, dia.dia, ara.hora, ara.minut, ara.segon};
  });
}

void Deixar_Anar_Rellotge() {
  Fixar_Rellotge(Rellotge_Equip);
}

Data_Hora Data_Hora_Servidor() {
  const Recordset rs("SELECT TOP 1 NOW() AS DATA_HORA_SERVER FROM ARTICLES", sessio.Connexio_Comuna);
  return rs.RecordCount() > 0 ? rs["DATA_HORA_SERVER"].Data() : Ara();
}

void Tancar_Recordsets_Informe() {
  if (sessio.Recordset_Cerca != nullptr)
    sessio.Recordsets_Informe.insert(std::exchange(sessio.Recordset_Cerca, nullptr));
  for (Recordset* rs : std::exchange(sessio.Recordsets_Informe, {})) rs->Close();
}

void Esperar(std::int32_t segons) {
  if (segons > 0) sessio.pantalla->Esperar(segons);
}

void Reposicionar(Recordset& rs, std::int64_t posicio) {
  if (!rs.State() || rs.RecordCount() == 0) return;
  if (posicio > 0) rs.Move_Des_Del_Primer(posicio);
  if (rs.AbsolutePosition() == Recordset::posicio_inici) rs.MoveFirst();
  if (rs.AbsolutePosition() == Recordset::posicio_final) rs.MoveLast();
}

void Requerir_Alla_Mateix(Recordset& rs, const std::string& sentencia) {
  sessio.Posicio_Guardada = static_cast<std::int32_t>(rs.AbsolutePosition());
  if (sentencia.empty()) {
    rs.Requery();
  } else {
    rs.Reopen(sentencia);
  }
  Reposicionar(rs, sessio.Posicio_Guardada - 1);
}

void Crear_Directori(std::string& cami) {
  std::string refet = cami.starts_with('/') ? "/" : "";
  std::error_code error;
  for (const auto& tros : std::filesystem::path(cami)) {
    if (tros.empty() || tros == "/") continue;
    refet += tros.string() + "/";
    std::filesystem::create_directory(refet, error);
    if (error) throw Error_Brollador(errors::general, "Crear_Directori", refet + ": " + error.message());
  }
  cami = refet;
}

bool Formulari_Carregat(std::string_view nom) {
  return sessio.pantalla->Formulari_Carregat(nom);
}

std::string Missatge(const char* catala, const char* castella, const char* angles) {
  switch (sessio.Idioma_Actual) {
    case 0:
      return catala;
    case 1:
      return castella;
    case 2:
      return angles;
    default:
      return {};
  }
}

void Mostrar_Error(const Error_Brollador& error) {
  if (sessio.Error_Mostrat) return;
  sessio.Error_Mostrat = true;
  Apuntar_Error(error);
  sessio.pantalla->Caixa(std::to_string(error.Numero()) + " - " + error.Descripcio(), estil::critic);
}

void Bloquejar_Entrada() {
  sessio.pantalla->Bloquejar_Entrada();
  sessio.Entrada_Bloquejada = true;
}

void Alliberar_Entrada() {
  if (!sessio.Entrada_Bloquejada) return;
  sessio.Entrada_Bloquejada = false;
  sessio.pantalla->Alliberar_Entrada();
}
