#include "output/informe/Disposicio.h"

#include <algorithm>
#include <map>

namespace {

constexpr double minim_text = 0.72;  // smaller than that a name is cut instead
constexpr double minim_xifra = 0.4;  // a figure that is cut is worth nothing
constexpr double separacio = 113;    // 2 mm: of a wider gap, what is more is not worth keeping when things move

// A control on its way to its place. Its section ends with one more, empty and as wide as the page.
struct Peca {
  Control_Disposat disposat;
  QRectF disseny;
  bool buida = false;    // nothing of it is drawn, and its room goes with it
  double desplacat = 0;  // how far it moved, down
  double arrossega = 0;  // how far its lower side did
};

bool Es_De_Text(Mena_Control mena) {
  return mena != Mena_Control::Ratlla && mena != Mena_Control::Imatge;
}

Peca Mesurar(const Estat_Control& estat, int maxim) {
  const Control_Informe& c = *estat.control;
  Peca peca{.disposat = {.estat = &estat, .lloc = estat.lloc, .linies = {}, .lletra = {}}, .disseny = estat.lloc};
  if (!Es_De_Text(c.mena)) return peca;
  if (c.ajust == Ajust::Encongir) {
    const auto linia = Linia_De(estat.text, estat);
    peca.disposat.linies = {linia.text};
    peca.disposat.lletra = linia.lletra;
    return peca;
  }
  peca.disposat.lletra = Lletra(c.lletra);
  if (!estat.text.trimmed().isEmpty()) {
    peca.disposat.linies = Partir_En_Linies(estat.text, c.lletra, estat.lloc.width(), maxim);
  }
  peca.buida = peca.disposat.linies.isEmpty();
  const double alcada = static_cast<double>(peca.disposat.linies.size()) * Pas_De_Linia(c.lletra);
  peca.disposat.lloc.setHeight(std::max<double>(peca.buida ? 0 : estat.lloc.height(), alcada));
  return peca;
}

bool Es_Damunt(const Peca& a, const Peca& b) {
  const bool comparteixen = a.disseny.left() < b.disseny.right() && b.disseny.left() < a.disseny.right();
  return comparteixen && a.disseny.bottom() <= b.disseny.top();
}

// How far down (or up) a control goes. Only what stands right above counts: what is higher has moved that already.
double Desplacament(const std::vector<Peca>& peces, std::size_t quina) {
  std::vector<const Peca*> damunt;
  for (std::size_t i = 0; i < quina; ++i) {
    if (Es_Damunt(peces[i], peces[quina])) damunt.push_back(&peces[i]);
  }
  double minim = std::numeric_limits<double>::lowest();  // lower than this it would touch one of them
  double pujada = 0;
  for (const Peca* peca : damunt) {
    if (std::any_of(damunt.begin(), damunt.end(), [&](const Peca* altra) { return Es_Damunt(*peca, *altra); }))
      continue;
    const double buit = peces[quina].disseny.top() - peca->disseny.bottom();
    const double mogut = peca->arrossega - (peca->buida ? std::min(buit, separacio) : 0);
    minim = std::max(minim, peca->buida ? mogut : mogut - std::max(0.0, buit - separacio));
    pujada = std::min(pujada, mogut);
  }
  return damunt.empty() ? 0 : std::max(minim, pujada);
}

std::vector<Peca> Peces_De(const std::vector<Estat_Control>& estats, Seccio seccio, double alcada, int maxim) {
  std::vector<Peca> peces;
  for (const auto& estat : estats) {
    if (estat.control->seccio != seccio) continue;
    peces.push_back(Mesurar(estat, maxim));
    Peca& peca = peces.back();
    if (!estat.visible) peca.buida = true;
    if (peca.buida) peca.disposat.lloc.setHeight(0);
  }
  peces.push_back({.disposat = {}, .disseny = {0, alcada, 1e6, 0}});
  std::stable_sort(peces.begin(), peces.end(),
                   [](const Peca& a, const Peca& b) { return a.disseny.top() < b.disseny.top(); });
  return peces;
}

}  // namespace

Linia_Encongida Linia_De(const QString& text, const Estat_Control& estat) {
  const Control_Informe& c = *estat.control;
  return Encongir(text, c.lletra, estat.lloc.width(), c.costat == Costat::Dreta ? minim_xifra : minim_text);
}

Seccio_Disposada Disposar(const std::vector<Estat_Control>& estats, Seccio seccio, double alcada, int maxim) {
  auto peces = Peces_De(estats, seccio, alcada, maxim);
  std::map<QString, double> desplacats;
  Seccio_Disposada disposada{.controls = {}, .alcada = alcada};
  for (std::size_t i = 0; i < peces.size(); ++i) {
    Peca& peca = peces[i];
    const Estat_Control* estat = peca.disposat.estat;
    peca.desplacat = Desplacament(peces, i);
    if (estat == nullptr) {
      disposada.alcada += peca.desplacat;
      continue;
    }
    if (const auto valor = desplacats.find(estat->control->titol_de); valor != desplacats.end()) {
      peca.desplacat = valor->second;
    }
    if (estat->dalt) peca.desplacat = std::max(peca.desplacat, *estat->dalt - peca.disseny.top());
    desplacats[estat->control->nom] = peca.desplacat;
    peca.disposat.lloc.moveTop(peca.disseny.top() + peca.desplacat);
    peca.arrossega = peca.disposat.lloc.bottom() - peca.disseny.bottom();
    if (!peca.buida) disposada.controls.push_back(peca.disposat);
  }
  return disposada;
}
