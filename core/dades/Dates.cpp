#include "core/dades/Dates.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace {

// Reads `mida` digits at a place; -1 when they are not digits.
int Llegir_Xifres(std::string_view text, std::size_t lloc, std::size_t mida) {
  int valor = 0;
  for (std::size_t i = lloc; i < lloc + mida; ++i) {
    if (text[i] < '0' || text[i] > '9') return -1;
    valor = valor * 10 + (text[i] - '0');
  }
  return valor;
}

}  // namespace

bool Es_Data(const Data_Hora& data) {
  if (data.any < 100 || data.any > 9999 || data.mes < 1 || data.dia < 1) return false;
  const std::chrono::year_month_day dia{std::chrono::year(data.any),
                                        std::chrono::month(static_cast<unsigned>(data.mes)),
                                        std::chrono::day(static_cast<unsigned>(data.dia))};
  return dia.ok();
}

Data_Hora Data_Serial(int any, int mes, int dia) {
  const int mesos = any * 12 + (mes - 1);
  const int any_real = mesos >= 0 ? mesos / 12 : (mesos - 11) / 12;
  const std::chrono::year_month_day primer{std::chrono::year(any_real),
                                           std::chrono::month(static_cast<unsigned>(mesos - any_real * 12 + 1)),
                                           std::chrono::day(1)};
  const std::chrono::year_month_day final{std::chrono::sys_days(primer) + std::chrono::days(dia - 1)};
  return {.any = static_cast<int>(final.year()),
          .mes = static_cast<int>(static_cast<unsigned>(final.month())),
          .dia = static_cast<int>(static_cast<unsigned>(final.day()))};
}

std::string Data_Desada(const Data_Hora& data) {
  std::array<char, 40> text{};
  if (data.hora == 0 && data.minut == 0 && data.segon == 0) {
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", data.any, data.mes, data.dia);
  } else {
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", data.any, data.mes, data.dia, data.hora,
                  data.minut, data.segon);
  }
  return text.data();
}

std::optional<Data_Hora> Llegir_Data_Desada(std::string_view text) {
  if ((text.size() != 10 && text.size() != 19) || text[4] != '-' || text[7] != '-') return std::nullopt;
  Data_Hora data{.any = Llegir_Xifres(text, 0, 4), .mes = Llegir_Xifres(text, 5, 2), .dia = Llegir_Xifres(text, 8, 2)};
  if (text.size() == 19) {
    if (text[10] != ' ' || text[13] != ':' || text[16] != ':') return std::nullopt;
    data.hora = Llegir_Xifres(text, 11, 2);
    data.minut = Llegir_Xifres(text, 14, 2);
    data.segon = Llegir_Xifres(text, 17, 2);
    if (data.hora < 0 || data.hora > 23 || data.minut < 0 || data.minut > 59 || data.segon < 0) return std::nullopt;
  }
  if (!Es_Data(data)) return std::nullopt;
  return data;
}

namespace {

std::function<Data_Hora()> rellotge_fixat;

Data_Hora Rellotge_De_La_Maquina() {
  const std::time_t ara = std::time(nullptr);
  std::tm local{};
  localtime_r(&ara, &local);
  return {.any = local.tm_year + 1900,
          .mes = local.tm_mon + 1,
          .dia = local.tm_mday,
          .hora = local.tm_hour,
          .minut = local.tm_min,
          .segon = local.tm_sec};
}

}  // namespace

Data_Hora Rellotge_Local() {
  return rellotge_fixat ? rellotge_fixat() : Rellotge_De_La_Maquina();
}

void Fixar_Rellotge_Local(std::function<Data_Hora()> rellotge) {
  rellotge_fixat = std::move(rellotge);
}
