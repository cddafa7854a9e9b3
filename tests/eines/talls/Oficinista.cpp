#include "tests/eines/talls/Oficinista.h"

#include <stdexcept>

#include "core/dades/Numeros.h"
#include "tests/eines/talls/Magatzem_De_Prova.h"

namespace talls {

namespace {

using namespace std::chrono_literals;

// A command as the terminal takes it; none of our words needs an escape.
std::string Ordre(std::initializer_list<std::string> mots) {
  std::string text;
  for (const std::string& mot : mots) text += (text.empty() ? "[\"" : ",\"") + mot + '"';
  return text + "]";
}

}  // namespace

Oficinista::Oficinista(std::mt19937& atzar) : atzar_(atzar), terminal_("prova_terminal", {"1"}) {
  Fer_O_Fallar(Ordre({"today", "15/03/2011"}));
  Fer_O_Fallar(Ordre({"start"}));
  Fer_O_Fallar(Ordre({"login", "ADMIN", ""}));
  Fer_O_Fallar(Ordre({"menu", "M_Albarans"}));
  Fer_O_Fallar(Ordre({"press", "F_AlbaransS.B_Albarans"}));
  Fer_O_Fallar(Ordre({"doubleclick", "F_AlbaransM.G_AlbM", std::to_string(Qualsevol(1, notes))}));
  Fer_O_Fallar(Ordre({"expect", "form", "F_Albara", "state", "open"}));
}

void Oficinista::Treballar(Moment fins) {
  while (Afegir(fins) && (Qualsevol(0, 3) == 0 || Pagar(fins)) && (Qualsevol(0, 3) == 0 || Esborrar(fins))) {
  }
}

bool Oficinista::Fer(const std::string& ordre, Moment fins) {
  terminal_.Escriure(ordre);
  for (;;) {
    const auto linia = terminal_.Llegir_Linia(fins);
    if (!linia) return false;
    resposta_ = *linia;
    if (!resposta_.starts_with("{\"caixa\"")) return true;
  }
}

void Oficinista::Fer_O_Fallar(const std::string& ordre) {
  if (!Fer(ordre, std::chrono::steady_clock::now() + 60s)) throw std::runtime_error(ordre + ": no answer");
  if (resposta_.starts_with("{\"error\"")) throw std::runtime_error(ordre + ": " + resposta_);
}

bool Oficinista::Afegir(Moment fins) {
  const Article_Prova& article =
      Articles()[static_cast<std::size_t>(Qualsevol(0, static_cast<int>(Articles().size()) - 1))];
  return Fer(Ordre({"enter", "F_Albara.TXT_ARTICLE_AL", article.codi}), fins) &&
         Fer(Ordre({"enter", "F_Albara.TXT_PREU_UNITARI_AL", Text_Numero(article.preu)}), fins) &&
         Fer(Ordre({"enter", "F_Albara.TXT_UNITATS_AL", Text_Numero(Qualsevol(1, 12) / 2.0)}), fins);
}

// Where no line is left there is nothing to delete, which the terminal says and which is no failure.
bool Oficinista::Esborrar(Moment fins) {
  if (!Fer(Ordre({"row", "F_Albara.G_ALBLIN", "1"}), fins)) return false;
  if (resposta_.starts_with("{\"error\"")) return true;
  return Fer(Ordre({"answer", "OK"}), fins) && Fer(Ordre({"press", "F_Albara.B_EsborrarLinia"}), fins);
}

// A note whose orders are paid has no payments: the terminal says so, and the commands that follow fail.
bool Oficinista::Pagar(Moment fins) {
  if (!Fer(Ordre({"press", "F_Albara.B_Pagaments"}), fins)) return false;
  return Fer(Ordre({"cell", "F_PagDoc.G_PagDoc", "new", "PAGAMENT_PAG", "Efectiu"}), fins) &&
         Fer(Ordre({"cell", "F_PagDoc.G_PagDoc", "new", "IMPORT_PAG", "0,01"}), fins) &&
         Fer(Ordre({"press", "F_PagDoc.B_Exit"}), fins);
}

int Oficinista::Qualsevol(int des_de, int fins_a) {
  return std::uniform_int_distribution(des_de, fins_a)(atzar_);
}

}  // namespace talls
