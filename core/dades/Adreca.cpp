#include "core/dades/Adreca.h"

#include <libpq-fe.h>

#include <map>
#include <memory>

#include "core/dades/Error_Brollador.h"

namespace {

constexpr std::string_view separador = "://";

// What the address sets, by the library's names.
std::map<std::string, std::string> Parts_De(const std::string& adreca) {
  char* paraules = nullptr;
  const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> opcions(PQconninfoParse(adreca.c_str(), &paraules),
                                                                             PQconninfoFree);
  PQfreemem(paraules);  // they repeat the address
  if (!opcions) {
    Llancar_Falla(Falla::Adreca_Dolenta, "PostgreSQL");
  }
  std::map<std::string, std::string> parts;
  for (const PQconninfoOption* opcio = opcions.get(); opcio->keyword != nullptr; ++opcio) {
    if (opcio->val != nullptr && *opcio->val != '\0') parts[opcio->keyword] = opcio->val;
  }
  return parts;
}

std::string Per_Cents(std::string_view text) {
  constexpr std::string_view xifres = "0123456789ABCDEF";
  std::string codificat;
  for (const char c : text) {
    const auto octet = static_cast<unsigned char>(c);
    codificat.append(1, '%').append(1, xifres[octet >> 4]).append(1, xifres[octet & 0xF]);
  }
  return codificat;
}

void Tapar(std::string& text, const std::string& que) {
  constexpr std::string_view tapat = "***";
  if (que.empty()) return;
  for (std::size_t i = text.find(que); i != std::string::npos; i = text.find(que, i + tapat.size())) {
    text.replace(i, que.size(), tapat);
  }
}

// The password as it is written in the address, where letters may stand by their numbers.
std::string Contrasenya_Escrita(const std::string& adreca) {
  const std::size_t inici = adreca.find(separador) + separador.size();
  const std::size_t fi = adreca.substr(0, adreca.find_first_of("/?", inici)).rfind('@');
  const std::size_t punts = adreca.find(':', inici);
  return fi == std::string::npos || punts >= fi ? std::string() : adreca.substr(punts + 1, fi - punts - 1);
}

}  // namespace

bool Es_De_Servidor(const std::string& adreca) {
  return adreca.starts_with("postgresql://") || adreca.starts_with("postgres://");
}

void Exigir_Adreca(const std::string& adreca) {
  if (Es_De_Servidor(adreca)) {
    Parts_De(adreca);
    return;
  }
  const std::size_t on = adreca.find(separador);
  if (on == std::string::npos || adreca.find('/') < on) return;
  Llancar_Falla(Falla::Adreca_Desconeguda, "Connexio", Adreca_Per_Mostrar(adreca));
}

std::string Base_De_Adreca(const std::string& adreca) {
  return Parts_De(adreca)["dbname"];
}

// Of two names the library takes the later one. Whether the address asks something already is the library's to say: a
// password may hold a question mark.
std::string Amb_Base(const std::string& adreca, const std::string& base) {
  std::string altra = adreca + "?dbname=" + Per_Cents(base);
  try {
    if (Base_De_Adreca(altra) == base) return altra;
  } catch (const Error_Brollador&) {
    return adreca + "&dbname=" + Per_Cents(base);
  }
  return adreca + "&dbname=" + Per_Cents(base);
}

bool Te_Contrasenya(const std::string& adreca) {
  if (!Es_De_Servidor(adreca)) return false;
  const auto parts = Parts_De(adreca);
  return parts.contains("password") || parts.contains("sslpassword");
}

std::string Sense_Contrasenya(std::string text, const std::string& adreca) {
  if (!Te_Contrasenya(adreca)) return text;
  auto parts = Parts_De(adreca);
  for (const std::string& secret : {adreca, parts["password"], parts["sslpassword"], Contrasenya_Escrita(adreca)}) {
    Tapar(text, secret);
  }
  return text;
}

std::string Adreca_Per_Mostrar(const std::string& adreca) {
  if (!Es_De_Servidor(adreca)) {
    const std::size_t on = adreca.find(separador);
    const bool cami = on == std::string::npos || adreca.find('/') < on;
    return cami ? adreca : adreca.substr(0, on) + std::string(separador) + "...";
  }
  std::map<std::string, std::string> parts;
  try {
    parts = Parts_De(adreca);
  } catch (const Error_Brollador&) {
    return "postgresql://...";
  }
  const bool carpeta = parts["host"].starts_with('/');  // of a socket
  return "postgresql://" + (parts["user"].empty() ? "" : parts["user"] + "@") + (carpeta ? "" : parts["host"]) +
         (parts["port"].empty() ? "" : ":" + parts["port"]) + "/" + parts["dbname"] +
         (carpeta ? "?host=" + parts["host"] : "");
}
