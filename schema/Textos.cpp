#include "schema/Textos.h"

#include "schema/Fitxers_Encastats.h"

namespace {

constexpr std::string_view carpeta = "textos/";
constexpr std::string_view extensio = ".tsv";

std::array<std::string, 5> Partir_Linia(std::string_view linia) {
  std::array<std::string, 5> camps;
  for (auto& camp : camps) {
    const std::size_t fi = linia.find('\t');
    camp = linia.substr(0, fi);
    if (fi == std::string_view::npos) break;
    linia.remove_prefix(fi + 1);
  }
  return camps;
}

void Llegir_Fitxer(const std::string& objecte, std::string_view text, std::vector<Text_De_Control>& textos) {
  bool capcalera = true;
  while (!text.empty()) {
    const std::size_t fi = std::min(text.find('\n'), text.size());
    const std::string_view linia = text.substr(0, fi);
    text.remove_prefix(std::min(fi + 1, text.size()));
    if (!capcalera && !linia.empty()) {
      const auto camps = Partir_Linia(linia);
      textos.push_back({objecte, camps[0], camps[1], {camps[2], camps[3], camps[4]}});
    }
    capcalera = false;
  }
}

}  // namespace

const std::vector<Text_De_Control>& Textos_De_Pantalles() {
  static const std::vector<Text_De_Control> textos = [] {
    std::vector<Text_De_Control> llegits;
    for (const auto& [nom, text] : Fitxers_Encastats()) {
      if (!nom.starts_with(carpeta) || !nom.ends_with(extensio)) continue;
      const auto objecte = nom.substr(carpeta.size(), nom.size() - carpeta.size() - extensio.size());
      Llegir_Fitxer(std::string(objecte), text, llegits);
    }
    return llegits;
  }();
  return textos;
}
