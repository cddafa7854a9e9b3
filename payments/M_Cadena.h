// The chain of orders, delivery notes and invoices around some documents of the current company: who is linked with
// whom, which of them carry the payment flag and which hold payments. It is read a level at a time, however wide the
// level, so that a chain costs few trips to a server; what is written through it is known to it at once. Reads
// ALBARALIN, COMANDACAP, ALBARACAP, FACTURACAP, PAGAMENTS.
#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

// A document that may carry payments, by its letter: P order, A delivery note, F invoice.
struct Document_Pagable {
  char lletra;
  std::int64_t numero;
  auto operator<=>(const Document_Pagable&) const = default;
};

// What a letter stands for.
struct Nivell_Pagable {
  char lletra;
  std::string_view formulari;
  std::string_view taula;  // of the heads
  std::string_view sufix;  // of its columns
};
const Nivell_Pagable& Nivell_De(char lletra);  // raises 13 for any other letter

class Cadena {
 public:
  // Reads everything that is connected with these documents.
  explicit Cadena(const std::vector<Document_Pagable>& des_de);

  // Documents of a letter that are linked straight with this one, by their numbers: the notes of an order or of an
  // invoice, the orders of a note, the invoice of a note.
  const std::vector<std::int64_t>& Enllacats(const Document_Pagable& document, char lletra) const;
  bool Flag(const Document_Pagable& document) const;  // false for a document that is not there
  bool Te_Pagaments(const Document_Pagable& document) const;

  // A line of the note serves the order from now on. Both belong to what was read.
  void Enllacar(std::int64_t albara, std::int64_t comanda);
  // What the head holds from now on. True when it held something else.
  bool Apuntar_Flag(const Document_Pagable& document, bool flag);

 private:
  struct Estat {
    std::int64_t flag = null_flag;
    bool pagaments = false;
  };
  static constexpr std::int64_t null_flag = 1;  // neither -1 nor 0: writing either changes it
  using Nivell = std::map<char, std::vector<std::int64_t>>;
  void Llegir(const Nivell& nivell, Nivell& seguent);
  void Relacionar(const Document_Pagable& un, const Document_Pagable& altre, Nivell& seguent);

  std::map<Document_Pagable, Estat> documents_;
  std::map<std::pair<Document_Pagable, char>, std::vector<std::int64_t>> enllacos_;
};
