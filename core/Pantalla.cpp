#include "core/Pantalla.h"

#include <stdexcept>
#include <utility>

#include "core/M_Funcions_Comuns.h"

namespace {

bool Hi_Ha_Escrit() {
  return sessio.Connexio_Comuna.Te_Canvis() || sessio.Connexio_Local.Te_Canvis();
}

bool Es_Pregunta(int estil) {
  return (estil & 0x0F) != estil::simple;
}

}  // namespace

void Exigir_Res_Escrit(std::string_view que) {
  if (Hi_Ha_Escrit()) throw std::logic_error("opened inside a transaction: " + std::string(que));
}

Resposta Pantalla::Caixa(const std::string& text, int estil, const std::string& titol) {
  if (Es_Pregunta(estil)) {
    Exigir_Res_Escrit(text);
  } else if (Hi_Ha_Escrit()) {
    pendents_.push_back({text, estil, titol});
    return Resposta::Ok;
  }
  Mostrar_Pendents();
  ::Alliberar_Entrada();
  return Obrir_Caixa(text, estil, titol);
}

void Pantalla::Mostrar_Pendents() {
  if (Hi_Ha_Escrit()) return;
  for (const Missatge_Pendent& missatge : std::exchange(pendents_, {})) {
    ::Alliberar_Entrada();
    Obrir_Caixa(missatge.text, missatge.estil, missatge.titol);
  }
}

std::string Pantalla::Triar_Empresa(const std::string& actual, int idioma) {
  Exigir_Res_Escrit("Triar_Empresa");
  return Obrir_Tria_Empresa(actual, idioma);
}
