#include "shell/Aplicacio.h"

int main(int argc, char** argv) {
  return Executar_Brollador(argc, argv);
}
