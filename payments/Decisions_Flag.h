// What becomes of the payment flag of a document, as tables: the first row that fits decides.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

// What the documents that are related with one answer.
enum class Resposta_Cadena : std::int16_t { Totes_Si = -1, Totes_No = 0, Cap_Document = 1, Discrepen = 2 };

struct Decisio_Flag {
  // Sets of answers; "none of them" and "there is none" are never told apart.
  unsigned primer;
  unsigned segon;
  unsigned tercer;
  std::optional<bool> flag;  // what is written
  const char* error = "";    // or what is raised
};

namespace resposta {
constexpr unsigned si = 1;
constexpr unsigned no = 2;
constexpr unsigned discrepen = 4;
constexpr unsigned qualsevol = si | no | discrepen;

constexpr unsigned Conjunt(bool una) {
  return una ? si : no;
}
constexpr unsigned Conjunt(Resposta_Cadena una) {
  if (una == Resposta_Cadena::Totes_Si) return si;
  return una == Resposta_Cadena::Discrepen ? discrepen : no;
}
}  // namespace resposta

namespace decisions {
using namespace resposta;

// An order: the flags of its invoices, those of its notes, whether it holds payments.
constexpr Decisio_Flag comanda[] = {
    {discrepen, qualsevol, qualsevol, {}, "Error: Hi ha factures marcades amb pagaments i altres no!"},
    {si, qualsevol, si, {}, "Error: La comanda té pagaments i no en pot tenir!"},
    {si, qualsevol, no, false},
    {no, discrepen, qualsevol, {}, "Error: Hi ha albarans marcats amb pagaments i altres no!"},
    {no, si, si, {}, "Error: La comanda té pagaments i no en pot tenir!"},
    {no, si, no, false},
    {no, no, qualsevol, true},
};

// A delivery note: the flag of its invoice, that of its orders (their payments, once the flag is on all of them), its
// own flag. An order is asked whether it holds payments, a note for its flag: the difference is meant.
constexpr Decisio_Flag albara[] = {
    {si, qualsevol, si, {}, "Error: l'albarà té pagaments i no en pot tenir!"},
    {si, qualsevol, no, false},
    {no, si, si, {}, "Error: l'albarà té pagaments i no en pot tenir!"},
    {no, si, no, false},
    {no, no, qualsevol, true},
    {no, discrepen, qualsevol, {}, "Error: hi ha comandes amb pagaments i altres no!"},
};

// An invoice: its own flag, that of its notes (their payments, once the flag is on all of them), that of their orders.
constexpr Decisio_Flag factura[] = {
    {si, si, qualsevol, {}, "Error: hi ha albarans amb pagaments!"},
    {si, discrepen, qualsevol, {}, "Error: hi ha albarans amb pagaments i altres no!"},
    {si, no, si, {}, "Error: hi ha comandes amb pagaments!"},
    {si, no, discrepen, {}, "Error: hi ha comandes amb pagaments i altres no!"},
    {si, no, no, true},
    {no, si, si, {}, "Error: hi ha comandes amb pagaments!"},
    {no, si, discrepen, {}, "Error: hi ha comandes amb pagaments i altres no!"},
    {no, si, no, false},
    {no, discrepen, qualsevol, {}, "Error: hi ha albarans amb pagaments i altres no!"},
    {no, no, si, false},
    {no, no, discrepen, {}, "Error: hi ha comandes amb pagaments i altres no!"},
    {no, no, no, true},
};
}  // namespace decisions
