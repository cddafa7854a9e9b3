#include "core/dades/Registre_Errors.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "core/dades/Dates.h"
#include "core/dades/Error_Brollador.h"

namespace {

constexpr off_t mida_maxima = off_t{256} * 1024;
constexpr int fitxers_vells = 3;
constexpr std::size_t linia_maxima = 2000;

std::string& Cami() {
  static std::string cami;
  return cami;
}

std::string Moment() {
  const Data_Hora ara = Rellotge_Local();
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", ara.any, ara.mes, ara.dia, ara.hora,
                ara.minut, ara.segon);
  return text.data();
}

void Fer_Lloc(const std::string& cami) {
  struct stat estat {};
  if (stat(cami.c_str(), &estat) != 0 || estat.st_size < mida_maxima) return;
  std::error_code passat_per_alt;
  for (int i = fitxers_vells; i > 1; --i) {
    std::filesystem::rename(cami + "." + std::to_string(i - 1), cami + "." + std::to_string(i), passat_per_alt);
  }
  std::filesystem::rename(cami, cami + ".1", passat_per_alt);
}

void Escriure(std::string linia) {
  const std::string& cami = Cami();
  std::replace_if(
      linia.begin(), linia.end(), [](unsigned char c) { return c < ' '; }, ' ');
  if (linia.size() > linia_maxima) linia.resize(linia_maxima);
  linia += '\n';
  Fer_Lloc(cami);
  const int fitxer = open(cami.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (fitxer < 0) return;
  [[maybe_unused]] const ssize_t escrits = write(fitxer, linia.data(), linia.size());
  close(fitxer);
}

}  // namespace

void Obrir_Registre_Errors(std::string cami) {
  Cami() = std::move(cami);
}

void Apuntar_Error(int numero, std::string_view origen, std::string_view paraules) noexcept {
  if (Cami().empty()) return;
  try {
    std::string linia = Moment() + "  " + std::to_string(numero) + "  ";
    linia.append(origen).append("  ").append(paraules);
    Escriure(std::move(linia));
  } catch (const std::exception&) {
    return;
  }
}

void Apuntar_Error(const Error_Brollador& error) noexcept {
  if (Cami().empty() || error.Motiu() != Falla::Cap) return;
  try {
    const bool nostre = error.Numero() != errors::general;
    Apuntar_Error(error.Numero(), error.Origen(), nostre ? Descripcio_Error(error.Numero()) : error.Descripcio());
  } catch (const std::exception&) {
    return;
  }
}
