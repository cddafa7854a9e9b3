#include "tests/eines/talls/Proces.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <system_error>

namespace talls {

namespace {

struct Tub {
  int lectura = -1;
  int escriptura = -1;
};

Tub Nou_Tub() {
  int extrems[2];
  if (pipe2(extrems, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
  return {extrems[0], extrems[1]};
}

[[noreturn]] void Convertir_Se(const std::string& programa, std::vector<std::string> arguments, int entrada,
                               int sortida) {
  dup2(entrada, STDIN_FILENO);
  dup2(sortida, STDOUT_FILENO);
  arguments.insert(arguments.begin(), programa);
  std::vector<char*> punters;
  punters.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) punters.push_back(argument.data());
  punters.push_back(nullptr);
  execv(programa.c_str(), punters.data());
  _exit(127);
}

}  // namespace

Proces::Proces(const std::string& programa, const std::vector<std::string>& arguments) {
  const std::string cami = std::filesystem::read_symlink("/proc/self/exe").replace_filename(programa);
  const Tub cap_a_ell = Nou_Tub();
  const Tub cap_a_nosaltres = Nou_Tub();
  std::signal(SIGPIPE, SIG_IGN);
  pid_ = fork();
  if (pid_ < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (pid_ == 0) Convertir_Se(cami, arguments, cap_a_ell.lectura, cap_a_nosaltres.escriptura);
  close(cap_a_ell.lectura);
  close(cap_a_nosaltres.escriptura);
  entrada_ = cap_a_ell.escriptura;
  sortida_ = cap_a_nosaltres.lectura;
}

Proces::~Proces() {
  Matar();
  close(entrada_);
  close(sortida_);
}

void Proces::Escriure(const std::string& linia) const {
  const std::string sencera = linia + '\n';
  const ssize_t escrits = write(entrada_, sencera.data(), sencera.size());
  if (escrits < 0 && errno != EPIPE) throw std::system_error(errno, std::generic_category(), "write");
}

std::optional<std::string> Proces::Llegir_Linia(Moment fins) {
  for (;;) {
    const std::size_t final = rebut_.find('\n');
    if (final != std::string::npos) {
      std::string linia = rebut_.substr(0, final);
      rebut_.erase(0, final + 1);
      return linia;
    }
    const auto queda = std::chrono::ceil<std::chrono::milliseconds>(fins - std::chrono::steady_clock::now()).count();
    pollfd que{sortida_, POLLIN, 0};
    if (poll(&que, 1, static_cast<int>(std::max<std::int64_t>(queda, 0))) <= 0) return std::nullopt;
    char bloc[4096];
    const ssize_t llegits = read(sortida_, bloc, sizeof bloc);
    if (llegits <= 0) return std::nullopt;
    rebut_.append(bloc, static_cast<std::size_t>(llegits));
  }
}

bool Proces::Matar() {
  if (pid_ < 0) return false;
  kill(pid_, SIGKILL);
  int estat = 0;
  waitpid(pid_, &estat, 0);
  pid_ = -1;
  return WIFSIGNALED(estat) && WTERMSIG(estat) == SIGKILL;
}

}  // namespace talls
