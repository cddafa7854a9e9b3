#include "core/dades/Retencio_Fitxer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "core/dades/Errors_Motor.h"

Retencio_Fitxer::~Retencio_Fitxer() {
  if (fitxer_ >= 0) close(fitxer_);
}

bool Retencio_Fitxer::Retenir(std::int64_t fila) {
  if (fitxer_ < 0) Obrir();
  return Pany(fila, F_WRLCK);
}

void Retencio_Fitxer::Deixar_Anar(std::int64_t fila) {
  if (fitxer_ >= 0) Pany(fila, F_UNLCK);
}

// Another account may be making the file right now, and not have given it its mode yet.
void Retencio_Fitxer::Obrir() {
  constexpr int intents = 10;
  constexpr useconds_t pausa = 10000;
  for (int i = 0; i < intents && fitxer_ < 0; ++i) {
    if (i > 0) usleep(pausa);
    fitxer_ = open(cami_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (fitxer_ < 0 && errno != EACCES) break;
  }
  if (fitxer_ < 0) {
    const std::string paraules = cami_ + ": " + std::strerror(errno);
    Llancar_Error_Motor(Falla::No_Es_Pot_Escriure, "Retencio_Fitxer", paraules);
  }
  Com_La_Base();
}

// Gives back the rights that this account's umask took away. Only the file's owner can.
void Retencio_Fitxer::Com_La_Base() const {
  constexpr mode_t llegir_i_escriure = 0666;
  struct stat base {};
  struct stat propi {};
  if (stat(base_.c_str(), &base) != 0 || fstat(fitxer_, &propi) != 0) return;
  if (propi.st_uid != geteuid() && geteuid() != 0) return;
  const uid_t amo = geteuid() == 0 ? base.st_uid : propi.st_uid;
  const bool seu = propi.st_gid == base.st_gid && propi.st_uid == amo;
  const bool del_grup = seu || fchown(fitxer_, amo, base.st_gid) == 0;
  fchmod(fitxer_, base.st_mode & (del_grup ? llegir_i_escriure : llegir_i_escriure & ~S_IRWXG));
}

bool Retencio_Fitxer::Pany(std::int64_t fila, short tipus) {
  struct flock pany {};
  pany.l_type = tipus;
  pany.l_whence = SEEK_SET;
  pany.l_start = fila;
  pany.l_len = 1;
  if (fcntl(fitxer_, F_OFD_SETLK, &pany) == 0) return true;
  if (errno == EAGAIN || errno == EACCES) return false;
  Llancar_Error_Motor(Falla::Altra_Del_Motor, "Retencio_Fitxer", cami_ + ": " + std::strerror(errno));
}
