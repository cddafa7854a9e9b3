// The entries of the main menu: what each one opens or does, and its key. The main window builds its menu from this
// table and the help lists its keys.
#pragma once

#include <QString>
#include <span>
#include <vector>

struct Entrada_Menu {
  const char16_t* nom;
  const char16_t* menu;   // the submenu that holds it; null: the bar itself
  const char16_t* titol;  // Catalan, as TEXTS finds it
  const char16_t* formulari = nullptr;
  void (*accio)() = nullptr;
  const char* drecera = "";  // works wherever the focus is, as long as its menu can be used
  bool marcable = false;
};

std::span<const Entrada_Menu> Entrades_De_Menu();

bool Es_Submenu(const Entrada_Menu& entrada);
bool Es_Ratlla(const Entrada_Menu& entrada);
// False for an entry that waits for a screen that this program does not have: it stays disabled.
bool Te_Feina(const Entrada_Menu& entrada);
void Fer(const Entrada_Menu& entrada);

// A key that works on every screen, and what it does in the language of the session.
struct Tecla_General {
  const char* tecla;
  QString que_fa;
};
std::vector<Tecla_General> Tecles_Generals();
