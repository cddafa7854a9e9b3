#include "core/dades/Error_Brollador.h"

#include <array>

namespace {

int idioma_errors = 0;

struct Paraules {
  int numero;
  std::array<const char*, 3> text;  // Catalan, Spanish, English
};

constexpr Paraules paraules[] = {
    {errors::desbordament, {"Desbordament", "Desbordamiento", "Overflow"}},
    {errors::divisio_per_zero, {"Divisió per zero", "División por cero", "Division by zero"}},
    {errors::tipus, {"Els tipus no coincideixen", "Los tipos no coinciden", "Type mismatch"}},
    {errors::fitxer_no_trobat, {"No s'ha trobat el fitxer", "No se ha encontrado el archivo", "File not found"}},
    {errors::fila_retinguda,
     {"Un altre terminal està editant la fila", "Otro terminal está editando la fila",
      "Another terminal is editing the row"}},
    {errors::camp_no_trobat, {"No hi ha aquest camp", "No existe este campo", "No such field"}},
    {errors::fitxer_existent, {"El fitxer ja existeix", "El archivo ya existe", "The file exists already"}},
    {errors::sentencia,
     {"Error de sintaxi a la sentència", "Error de sintaxis en la sentencia", "Syntax error in the statement"}},
    {errors::concurrencia,
     {"Un altre terminal ha canviat la fila", "Otro terminal ha cambiado la fila",
      "Another terminal has changed the row"}},
};

}  // namespace

void Posar_Idioma_Errors(int idioma) {
  idioma_errors = idioma >= 0 && idioma <= 2 ? idioma : 0;
}

std::string Descripcio_Error(int numero) {
  for (const auto& p : paraules) {
    if (p.numero == numero) return p.text[static_cast<std::size_t>(idioma_errors)];
  }
  return "Error " + std::to_string(numero);
}

void Llancar_Error(int numero, const std::string& origen, const std::string& detall) {
  throw Error_Brollador(numero, origen, Descripcio_Error(numero) + (detall.empty() ? "" : ": " + detall));
}
