#include "core/dades/Error_Brollador.h"

#include <array>

namespace {

int idioma_errors = 0;

using Tres_Llengues = std::array<const char*, 3>;  // Catalan, Spanish, English

struct Paraules_Numero {
  int numero;
  Tres_Llengues text;
};

constexpr Paraules_Numero per_numero[] = {
    {errors::desbordament, {"Desbordament", "Desbordamiento", "Overflow"}},
    {errors::divisio_per_zero, {"Divisió per zero", "División por cero", "Division by zero"}},
    {errors::tipus, {"Els tipus no coincideixen", "Los tipos no coinciden", "Type mismatch"}},
    {errors::fitxer_no_trobat, {"No s'ha trobat el fitxer", "No se ha encontrado el archivo", "File not found"}},
    {errors::camp_no_trobat, {"No hi ha aquest camp", "No existe este campo", "No such field"}},
    {errors::fitxer_existent, {"El fitxer ja existeix", "El archivo ya existe", "The file exists already"}},
    {errors::sentencia,
     {"Error de sintaxi a la sentència", "Error de sintaxis en la sentencia", "Syntax error in the statement"}},
    {errors::concurrencia,
     {"Un altre terminal ha canviat la fila", "Otro terminal ha cambiado la fila",
      "Another terminal has changed the row"}},
};

struct Paraules_Falla {
  Falla falla;
  Tres_Llengues text;
};

constexpr Paraules_Falla per_falla[] = {
    {Falla::Clau_Repetida,
     {"Ja hi ha una fila amb aquest codi", "Ya hay una fila con este código", "There is a row with this code already"}},
    {Falla::Fila_En_Us,
     {"Altres dades fan servir aquesta fila", "Otros datos utilizan esta fila", "Other data make use of this row"}},
    {Falla::Sense_Pare,
     {"No existeix la fila de què depenen aquestes dades", "No existe la fila de la que dependen estos datos",
      "The row that these data depend on does not exist"}},
    {Falla::Valor_Buit, {"Falta una dada obligatòria", "Falta un dato obligatorio", "A required value is missing"}},
    {Falla::Espera,
     {"Un altre terminal té ocupada la base de dades. Torni a provar-ho",
      "Otro terminal tiene ocupada la base de datos. Vuelva a intentarlo",
      "Another terminal keeps the database busy. Please try again"}},
    {Falla::Interbloqueig,
     {"Un altre terminal treballa alhora amb les mateixes dades. Torni a provar-ho",
      "Otro terminal trabaja a la vez con los mismos datos. Vuelva a intentarlo",
      "Another terminal is working with the same data. Please try again"}},
    {Falla::Sense_Connexio,
     {"No hi ha connexió amb la base de dades", "No hay conexión con la base de datos",
      "There is no connection with the database"}},
    {Falla::Transaccio_Desfeta,
     {"La base de dades ha desfet l'operació i no se n'ha desat res",
      "La base de datos ha deshecho la operación y no se ha guardado nada",
      "The database has undone the operation and nothing of it was saved"}},
    {Falla::Fila_Retinguda,
     {"Un altre terminal està editant la fila", "Otro terminal está editando la fila",
      "Another terminal is editing the row"}},
    {Falla::Sense_Fila, {"No hi ha cap fila actual", "No hay ninguna fila actual", "There is no current row"}},
    {Falla::No_Es_Pot_Escriure, {"No s'hi pot escriure", "No se puede escribir", "It cannot be written"}},
    {Falla::Disc_Ple,
     {"No queda lloc al disc de la base de dades", "No queda espacio en el disco de la base de datos",
      "There is no room left on the disk of the database"}},
    {Falla::Base_Malmesa,
     {"El fitxer de la base de dades està malmès", "El archivo de la base de datos está dañado",
      "The file of the database is damaged"}},
    {Falla::Disc_Que_Falla,
     {"El disc no ha llegit o no ha escrit la base de dades", "El disco no ha leído o no ha escrito la base de datos",
      "The disk did not read or did not write the database"}},
    {Falla::Adreca_Dolenta,
     {"No s'entén l'adreça del servidor", "No se entiende la dirección del servidor",
      "The address of the server cannot be understood"}},
    {Falla::Adreca_Desconeguda,
     {"No s'arriba a cap base de dades per aquesta adreça", "No se llega a ninguna base de datos por esta dirección",
      "No database is reached by this address"}},
    {Falla::Altra_Del_Motor, {"Error de la base de dades", "Error de la base de datos", "Database error"}},
};

const char* En_La_Llengua(const Tres_Llengues& text) {
  return text[static_cast<std::size_t>(idioma_errors)];
}

std::string Amb_Detall(const std::string& text, const std::string& detall) {
  return detall.empty() ? text : text + ": " + detall;
}

}  // namespace

void Posar_Idioma_Errors(int idioma) {
  idioma_errors = idioma >= 0 && idioma <= 2 ? idioma : 0;
}

std::string Descripcio_Error(int numero) {
  for (const auto& p : per_numero) {
    if (p.numero == numero) return En_La_Llengua(p.text);
  }
  return "Error " + std::to_string(numero);
}

std::string Descripcio_Falla(Falla falla) {
  for (const auto& p : per_falla) {
    if (p.falla == falla) return En_La_Llengua(p.text);
  }
  return {};
}

void Llancar_Error(int numero, const std::string& origen, const std::string& detall) {
  throw Error_Brollador(numero, origen, Amb_Detall(Descripcio_Error(numero), detall));
}

void Llancar_Falla(Falla falla, const std::string& origen, const std::string& detall) {
  throw Error_Brollador(errors::general, origen, Amb_Detall(Descripcio_Falla(falla), detall), falla);
}
