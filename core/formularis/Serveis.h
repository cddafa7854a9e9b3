// What the toolkit and the screens of a lower room need of the rooms above them. The shell fills it at start; what
// nobody filled does nothing.
#pragma once

#include <QPoint>
#include <functional>
#include <string>

class Formulari;

struct Serveis_De_Dalt {
  std::function<std::string(const std::string& cp)> localitat_de_cp;       // empty: none
  std::function<std::string(const std::string& actual)> triar_empresa;     // the NIF picked, or empty
  std::function<void(Formulari* llista, const QPoint& lloc)> obrir_cerca;  // the search form over a list
  std::function<void()> despres_d_entrar;                                  // once user and company are known
};

extern Serveis_De_Dalt serveis;
