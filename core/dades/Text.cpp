#include "core/dades/Text.h"

#include <unicode/ucol.h>

#include <algorithm>
#include <cstdint>
#include <memory>

#include "core/dades/Error_Brollador.h"
#include "core/dades/Taula_Plegat.h"

namespace {

// Reads one code point and moves on; a byte that is no UTF-8 stands for itself above every character.
std::uint32_t Llegir_Caracter(const char*& p, const char* fi) {
  const auto octet = [&](const char* q) { return static_cast<unsigned char>(*q); };
  const std::uint32_t primer = octet(p++);
  if (primer < 0x80) return primer;
  const int mida = primer >= 0xF0 ? 3 : primer >= 0xE0 ? 2 : primer >= 0xC0 ? 1 : 0;
  if (mida == 0 || fi - p < mida) return 0x110000 + primer;
  std::uint32_t codi = primer & (0x3FU >> mida);
  for (int i = 0; i < mida; ++i) {
    if ((octet(p + i) & 0xC0) != 0x80) return 0x110000 + primer;
    codi = (codi << 6) | (octet(p + i) & 0x3FU);
  }
  p += mida;
  return codi;
}

std::uint32_t Plegar_Caracter(std::uint32_t codi) {
  if (codi < 0x80) return codi >= 'A' && codi <= 'Z' ? codi + 32 : codi;
  const auto* fi = trams_plegat + nombre_trams_plegat;
  const auto* tram =
      std::upper_bound(trams_plegat, fi, codi, [](std::uint32_t c, const Tram_Plegat& t) { return c < t.primer; });
  if (tram == trams_plegat) return codi;
  --tram;
  if (codi > tram->ultim || (codi - tram->primer) % tram->pas != 0) return codi;
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(codi) + tram->distancia);
}

struct Tancar_Collador {
  void operator()(UCollator* collador) const { ucol_close(collador); }
};

UCollator* Collador_Catala() {
  static const std::unique_ptr<UCollator, Tancar_Collador> collador = [] {
    UErrorCode estat = U_ZERO_ERROR;
    std::unique_ptr<UCollator, Tancar_Collador> obert(ucol_open("ca", &estat));
    if (U_FAILURE(estat)) throw Error_Brollador(errors::general, "ICU", u_errorName(estat));
    return obert;
  }();
  return collador.get();
}

}  // namespace

void Afegir_Caracter(std::string& text, std::uint32_t codi) {
  const auto posar = [&](std::uint32_t octet) { text.push_back(static_cast<char>(octet)); };
  if (codi >= 0x110000) return posar(codi - 0x110000);  // a byte that was no UTF-8
  if (codi < 0x80) return posar(codi);
  if (codi < 0x800) return posar(0xC0 | (codi >> 6)), posar(0x80 | (codi & 0x3F));
  if (codi < 0x10000) {
    return posar(0xE0 | (codi >> 12)), posar(0x80 | ((codi >> 6) & 0x3F)), posar(0x80 | (codi & 0x3F));
  }
  posar(0xF0 | (codi >> 18));
  posar(0x80 | ((codi >> 12) & 0x3F));
  posar(0x80 | ((codi >> 6) & 0x3F));
  posar(0x80 | (codi & 0x3F));
}

std::string Plegar(std::string_view text) {
  std::string plegat;
  plegat.reserve(text.size());
  const char* p = text.data();
  const char* fi = p + text.size();
  while (p < fi) Afegir_Caracter(plegat, Plegar_Caracter(Llegir_Caracter(p, fi)));
  return plegat;
}

int Comparar_Plegats(std::string_view a, std::string_view b) {
  const char* p = a.data();
  const char* q = b.data();
  const char* fi_p = p + a.size();
  const char* fi_q = q + b.size();
  while (p < fi_p && q < fi_q) {
    if (*p == *q && static_cast<unsigned char>(*p) < 0x80) {
      ++p, ++q;
      continue;
    }
    const std::uint32_t c = Plegar_Caracter(Llegir_Caracter(p, fi_p));
    const std::uint32_t d = Plegar_Caracter(Llegir_Caracter(q, fi_q));
    if (c != d) return c < d ? -1 : 1;
  }
  return static_cast<int>(p < fi_p) - static_cast<int>(q < fi_q);
}

bool Iguals_Plegats(std::string_view a, std::string_view b) {
  return Comparar_Plegats(a, b) == 0;
}

bool Coincideix(std::string_view patro, std::string_view text) {
  const char* p = patro.data();
  const char* fi_p = p + patro.size();
  const char* t = text.data();
  const char* fi_t = t + text.size();
  const char* p_despres = nullptr;  // pattern after the last %, where a failed match goes on
  const char* t_des_de = nullptr;   // text that this % has not swallowed yet
  while (t < fi_t) {
    if (p < fi_p && *p == '%') {
      p_despres = ++p;
      t_des_de = t;
      continue;
    }
    const char* p_seguent = p;
    const char* t_seguent = t;
    const std::uint32_t del_text = Llegir_Caracter(t_seguent, fi_t);
    if (p < fi_p) {
      const std::uint32_t del_patro = Llegir_Caracter(p_seguent, fi_p);
      if (del_patro == '_' || Plegar_Caracter(del_patro) == Plegar_Caracter(del_text)) {
        p = p_seguent;
        t = t_seguent;
        continue;
      }
    }
    if (p_despres == nullptr) return false;
    Llegir_Caracter(t_des_de, fi_t);
    p = p_despres;
    t = t_des_de;
  }
  while (p < fi_p && *p == '%') ++p;
  return p == fi_p;
}

int Comparar_Catala(std::string_view a, std::string_view b) {
  UErrorCode estat = U_ZERO_ERROR;
  const auto ordre = ucol_strcollUTF8(Collador_Catala(), a.data(), static_cast<std::int32_t>(a.size()), b.data(),
                                      static_cast<std::int32_t>(b.size()), &estat);
  if (ordre != UCOL_EQUAL) return ordre;
  return a.compare(b);
}
