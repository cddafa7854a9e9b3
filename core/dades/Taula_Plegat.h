// The frozen table of case folding. It never changes: the keys of every database in use are ordered by it.
#pragma once

#include <cstddef>
#include <cstdint>

struct Tram_Plegat {
  std::uint32_t primer;
  std::uint32_t ultim;
  std::uint32_t pas;
  std::int32_t distancia;
};

extern const Tram_Plegat trams_plegat[];
extern const std::size_t nombre_trams_plegat;
