#include <cstdio>
#include <string_view>

#include "shell/Aplicacio.h"

namespace {

constexpr const char* ajuda =
    "brollador [--help | --version]\n"
    "\n"
    "Opens the terminal of this user: the data folder is ~/.local/share/brollador (below XDG_DATA_HOME when that is\n"
    "set). brollador-install makes it.\n";

}  // namespace

// What needs no display is answered before one is looked for.
int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view paraula = argv[i];
    const bool versio = paraula == "--version";
    if (!versio && paraula != "--help" && paraula != "-h") continue;
    std::fputs(versio ? nom_i_versio : ajuda, stdout);
    if (versio) std::fputc('\n', stdout);
    return 0;
  }
  return Executar_Brollador(argc, argv);
}
