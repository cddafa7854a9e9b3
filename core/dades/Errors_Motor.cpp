#include "core/dades/Errors_Motor.h"

#include <algorithm>

#include "core/dades/Registre_Errors.h"

namespace {

void Apuntar(int numero, const char* motor, const std::string& paraules, std::string_view sql) {
  std::string text = paraules;
  if (!sql.empty()) text.append("  ").append(sql);
  Apuntar_Error(numero, motor, text);
}

// Failures that an administrator has to mend, who needs the engine's words.
bool Es_Per_A_Qui_El_Cuida(Falla falla) {
  return falla == Falla::Altra_Del_Motor || falla == Falla::Disc_Ple || falla == Falla::Base_Malmesa ||
         falla == Falla::Disc_Que_Falla;
}

}  // namespace

void Llancar_Error_Motor(Falla falla, const char* motor, const std::string& paraules, std::string_view sql) {
  Apuntar(errors::general, motor, paraules, sql);
  Llancar_Falla(falla, motor, Es_Per_A_Qui_El_Cuida(falla) ? paraules : std::string());
}

void Llancar_Sentencia_Motor(const char* motor, const std::string& paraules, std::string_view sql) {
  Apuntar(errors::sentencia, motor, paraules, sql);
  throw Error_Brollador(errors::sentencia, motor, Descripcio_Error(errors::sentencia) + ": " + paraules,
                        Falla::Altra_Del_Motor);
}

void Llancar_Sense_Connexio(const char* motor, const std::string& paraules, const std::string& lloc) {
  Apuntar(errors::general, motor, paraules, {});
  Llancar_Falla(Falla::Sense_Connexio, motor, lloc);
}

Falla Falla_De_Relacio(std::string_view sql) {
  sql.remove_prefix(std::min(sql.find_first_not_of(' '), sql.size()));
  return sql.starts_with("DELETE") ? Falla::Fila_En_Us : Falla::Sense_Pare;
}
