#include "core/dades/Retencio_Fitxer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "core/dades/Error_Brollador.h"

Retencio_Fitxer::~Retencio_Fitxer() {
  if (fitxer_ >= 0) close(fitxer_);
}

bool Retencio_Fitxer::Retenir(std::int64_t fila) {
  if (fitxer_ < 0) fitxer_ = open(cami_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
  if (fitxer_ < 0) throw Error_Brollador(errors::general, "Retencio_Fitxer", cami_ + ": " + std::strerror(errno));
  return Pany(fila, F_WRLCK);
}

void Retencio_Fitxer::Deixar_Anar(std::int64_t fila) {
  if (fitxer_ >= 0) Pany(fila, F_UNLCK);
}

bool Retencio_Fitxer::Pany(std::int64_t fila, short tipus) {
  struct flock pany {};
  pany.l_type = tipus;
  pany.l_whence = SEEK_SET;
  pany.l_start = fila;
  pany.l_len = 1;
  if (fcntl(fitxer_, F_OFD_SETLK, &pany) == 0) return true;
  if (errno == EAGAIN || errno == EACCES) return false;
  throw Error_Brollador(errors::general, "Retencio_Fitxer", cami_ + ": " + std::strerror(errno));
}
