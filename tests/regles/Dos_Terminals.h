// The same work at two terminals at once, each a process with a connection of its own.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include "tests/regles/Base.h"

template <class Base>
class A_Dos_Terminals : public Base {
 protected:
  static constexpr int vegades = 40;

  // The same number of times at each of them; `feina` hears which of the two it works for, and how often it has worked.
  void Alhora(const std::function<void(bool primer, int vegada)>& feina) {
    const std::string adreca = sessio.Connexio_Comuna.Adreca();
    sessio.Connexio_Comuna.Close();
    const auto treballar = [&](bool primer) {
      try {
        sessio.Connexio_Comuna.Open(adreca);
        for (int i = 0; i < vegades; ++i) feina(primer, i);
        return 0;
      } catch (const std::exception& error) {
        fprintf(stderr, "%s\n", error.what());
        for (const Caixa_Vista& caixa : this->pantalla.caixes) fprintf(stderr, "%s\n", caixa.text.c_str());
        return 1;
      }
    };
    const pid_t altre = fork();
    if (altre == 0) _exit(treballar(false));
    const int resultat = treballar(true);
    int resultat_altre = -1;
    waitpid(altre, &resultat_altre, 0);
    EXPECT_EQ(resultat, 0);
    EXPECT_EQ(resultat_altre, 0);
  }
};
