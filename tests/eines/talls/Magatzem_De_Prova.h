// The little company that the kill test works in: articles with stock, two orders to serve, some delivery notes.
#pragma once

#include <string>
#include <vector>

#include "core/Sessio.h"

namespace talls {

constexpr const char* empresa = "B00000000";
// Notes that are only invoiced and freed, of three lines each, stand behind those that are worked on.
constexpr int primera_per_facturar = 101;
constexpr int ultima_per_facturar = 104;
constexpr int linies_per_facturar = 3;
// A proposal whose lines, one of each article, are accepted, served, taken back and discarded.
constexpr int pressupost = 1;
constexpr int notes = 6;              // delivery notes, from 1
constexpr int comandes = 2;           // orders, from 1; a line of each article
constexpr double estoc_inicial = 40;  // units of each article that keeps stock

struct Article_Prova {
  const char* codi;
  const char* iva;
  double preu;
  bool porta_stock;
};
const std::vector<Article_Prova>& Articles();

// The data folder of a terminal and the address of what all share.
struct Lloc {
  std::string carpeta;
  std::string comuna;
};
// On a base installation there.
void Crear_Magatzem(const Lloc& lloc);

// Answers every question with OK and keeps what errors it was shown.
class Pantalla_Muda : public Pantalla {
 public:
  Resposta Obrir_Caixa(const std::string& text, int estil, const std::string& titol) override;
  bool Formulari_Carregat(std::string_view) const override { return false; }
  Document_Obert* Document(std::string_view) override { return nullptr; }
  void Processar_Events() override {}
  void Esperar(std::int32_t) override {}
  void Bloquejar_Entrada() override {}
  void Alliberar_Entrada() override {}
  std::string Obrir_Tria_Empresa(const std::string&, int) override { return {}; }
  void Menu_Habilitat(std::string_view, bool) override {}
  void Menu_Visible(std::string_view, bool) override {}
  void Menu_Marcat(std::string_view, bool) override {}
  void Menu_Text(std::string_view, const std::string&) override {}

  std::vector<std::string> caixes;
};

// The session of a user at work on the installation, as after a login.
void Obrir_Sessio(const Lloc& lloc, Pantalla& pantalla);

}  // namespace talls
