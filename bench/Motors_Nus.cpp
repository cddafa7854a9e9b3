#include "bench/Motors_Nus.h"

#include <cstdlib>
#include <filesystem>

#include "tests/regles/Installacio_Prova.h"

std::vector<Figura> Mesurar_Als_Dos(void (*sembrar)(),
                                    std::vector<Figura> (*al_fitxer)(Base_Nua& base, const std::string& on),
                                    std::vector<Figura> (*al_servidor)(Base_Nua_PG& base, const std::string& on)) {
  std::vector<Figura> figures;
  {
    const Installacio_Prova installacio;
    sembrar();
    const std::string copia = installacio.Dir_Dades() + "/nua.db";
    std::filesystem::copy_file(sessio.Fitxer_Comu, copia);
    Base_Nua base(copia);
    figures = al_fitxer(base, "");
  }
  setenv("BROLLADOR_MOTOR", "postgres", 1);
  {
    const Installacio_Prova installacio;
    sembrar();
    Tancar_Connexions();
    const Base_Servidor copia(installacio.Base()->Nom());
    Obrir_Connexions();
    Base_Nua_PG base(copia.Adreca());
    for (auto& figura : al_servidor(base, "server: ")) figures.push_back(std::move(figura));
  }
  setenv("BROLLADOR_MOTOR", "sqlite", 1);
  return figures;
}
