#include "core/dades/Connexio.h"

#include <filesystem>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Motor.h"
#include "core/dades/Parametres_Sentencia.h"

Connexio::Connexio() = default;
Connexio::~Connexio() = default;

void Connexio::Open(const std::string& adreca, int espera) {
  // An empty path would be a database of the engine's own making, gone at the end.
  if (adreca.empty()) Llancar_Falla(Falla::Sense_Connexio, "Connexio");
  Exigir_Adreca(adreca);
  motor_ = Es_De_Servidor(adreca) ? Obrir_Motor_PostgreSQL(adreca, espera) : Obrir_Motor_SQLite(adreca, espera);
  adreca_ = adreca;
}

void Connexio::Close() {
  Transaccio::Desfer_Oberta(*this);
  motor_.reset();
}

Motor& Connexio::motor() {
  if (!motor_) Llancar_Falla(Falla::Sense_Connexio, "Connexio");
  return *motor_;
}

int Connexio::Execute(std::string_view sentencia) {
  if (Es_Definicio(sentencia)) {
    motor().Definir(Llegir_Definicio(sentencia));
    motor().Oblidar_Traduccions();
    return 0;
  }
  Sentencia_Escanejada escanejada = Escanejar(sentencia);
  const Sentencia_Traduida& traduida = motor().Traduccio(escanejada.forma, {}).traduida;
  Ordenar_Entre(traduida.entre, escanejada.literals);
  return motor().Executar(traduida.text, escanejada.literals);
}

void Connexio::Execute_Despres(std::string_view sentencia) {
  Sentencia_Escanejada escanejada = Escanejar(sentencia);
  const Sentencia_Traduida& traduida = motor().Traduccio(escanejada.forma, {}).traduida;
  Ordenar_Entre(traduida.entre, escanejada.literals);
  motor().Executar_Despres(traduida.text, escanejada.literals);
}

void Connexio::Afegir_Fila(std::string_view nom, const std::vector<std::pair<std::string_view, Valor>>& valors) {
  const Taula* taula = Taules().Cercar(nom);
  if (taula == nullptr) Llancar_Error(errors::sentencia, "Connexio", std::string(nom));
  std::string columnes;
  std::string marcadors;
  std::vector<Valor> parametres;
  for (const auto& [camp, valor] : valors) {
    const Columna* columna = taula->Cercar(camp);
    if (columna == nullptr) Llancar_Error(errors::camp_no_trobat, "Connexio", std::string(camp));
    parametres.push_back(Convertir_A_Columna(valor, columna->tipus));
    columnes += (columnes.empty() ? "\"" : ", \"") + columna->nom + "\"";
    marcadors += (marcadors.empty() ? "" : ", ") + (motor().Trets().marcador + std::to_string(parametres.size()));
  }
  motor().Executar_Despres("INSERT INTO \"" + taula->nom + "\" (" + columnes + ") VALUES (" + marcadors + ")",
                           parametres);
}

void Connexio::BeginTrans() {
  motor().BeginTrans();
}
void Connexio::CommitTrans() {
  motor().CommitTrans();
}
void Connexio::RollbackTrans() {
  motor().RollbackTrans();
}
bool Connexio::En_Transaccio() const {
  return motor_ && motor_->En_Transaccio();
}
bool Connexio::Te_Canvis() const {
  return motor_ && motor_->Te_Canvis();
}

const Cataleg& Connexio::Taules() const {
  if (!motor_) Llancar_Falla(Falla::Sense_Connexio, "Connexio");
  return motor_->Taules();
}

std::int64_t Connexio::Viatges() const {
  return motor_ ? motor_->Viatges() : 0;
}

std::string Connexio::Comprovar_Integritat() {
  return motor().Comprovar_Integritat();
}

void Connexio::Renovar_Funcions() {
  motor().Renovar_Funcions();
}

void Crear_Base_Dades(const std::string& adreca) {
  Exigir_Adreca(adreca);
  if (Es_De_Servidor(adreca)) return Crear_Base_PostgreSQL(adreca);
  Crear_Fitxer_SQLite(adreca);
}

bool Base_Dades_Ocupada(const std::string& adreca) {
  Exigir_Adreca(adreca);
  return Es_De_Servidor(adreca) ? Base_PostgreSQL_Ocupada(adreca) : std::filesystem::exists(adreca);
}

void Copiar_Base_Dades(const std::string& adreca, const std::string& desti) {
  if (Es_De_Servidor(adreca)) return Copiar_Base_PostgreSQL(adreca, desti);
  Copiar_Fitxer_SQLite(adreca, desti);
}

void Esborrar_Base_Dades(const std::string& adreca) {
  if (Es_De_Servidor(adreca)) return Esborrar_Base_PostgreSQL(adreca);
  for (const char* companyia : {"", "-journal", "-edicions"}) std::filesystem::remove(adreca + companyia);
}

std::string Text_SQL(std::string_view valor) {
  if (valor.find('\'') != std::string_view::npos || valor.find('\0') != std::string_view::npos) {
    constexpr std::size_t prou = 60;  // of a text that a box can show
    Llancar_Error(errors::sentencia, "Text_SQL",
                  "'" + std::string(valor.substr(0, valor.find('\0')).substr(0, prou)) + "'");
  }
  return "'" + std::string(valor) + "'";
}

std::string Codi_SQL(std::string_view valor) {
  std::string doblat;
  for (const char lletra : valor) doblat += lletra == '\'' ? std::string("''") : std::string(1, lletra);
  return "'" + doblat + "'";
}
