#include "core/dades/Connexio.h"

#include "core/dades/Error_Brollador.h"
#include "core/dades/Motor.h"
#include "core/dades/Parametres_Sentencia.h"

namespace {

bool Es_PostgreSQL(const std::string& adreca) {
  return adreca.starts_with("postgresql://");
}

[[noreturn]] void Motor_Desconegut(const std::string& adreca) {
  throw Error_Brollador(errors::general, "Connexio", "this build has no engine for " + adreca);
}

}  // namespace

Connexio::Connexio() = default;
Connexio::~Connexio() = default;

void Connexio::Open(const std::string& adreca, int espera) {
  // An empty path would be a database of the engine's own making, gone at the end.
  if (adreca.empty()) throw Error_Brollador(errors::general, "Connexio", "unable to open database file (14)");
  if (Es_PostgreSQL(adreca)) Motor_Desconegut(adreca);
  motor_ = Obrir_Motor_SQLite(adreca, espera);
  adreca_ = adreca;
}

void Connexio::Close() {
  motor_.reset();
}

Motor& Connexio::motor() {
  if (!motor_) throw Error_Brollador(errors::general, "Connexio", "the connection is closed");
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

const Cataleg& Connexio::Taules() const {
  if (!motor_) throw Error_Brollador(errors::general, "Connexio", "the connection is closed");
  return motor_->Taules();
}

std::string Connexio::Comprovar_Integritat() {
  return motor().Comprovar_Integritat();
}

void Crear_Base_Dades(const std::string& adreca) {
  if (Es_PostgreSQL(adreca)) Motor_Desconegut(adreca);
  Crear_Fitxer_SQLite(adreca);
}

std::string Text_SQL(std::string_view valor) {
  if (valor.find('\'') != std::string_view::npos) {
    Llancar_Error(errors::sentencia, "Text_SQL", "'" + std::string(valor) + "'");
  }
  return "'" + std::string(valor) + "'";
}
