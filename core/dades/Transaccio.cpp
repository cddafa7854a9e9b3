#include "core/dades/Transaccio.h"

#include "core/dades/Connexio.h"
#include "core/dades/Error_Brollador.h"

Transaccio::Transaccio(Connexio& connexio) : connexio_(connexio), propia_(!connexio.En_Transaccio()) {
  if (propia_) {
    connexio_.BeginTrans();
    connexio_.transaccio_ = std::make_shared<Estat>();
  }
  estat_ = connexio_.transaccio_;
}

Transaccio::~Transaccio() {
  if (confirmada_ || estat_->fi != Fi::Oberta) return;
  if (propia_) {
    Desfer_Oberta(connexio_);
  } else {
    estat_->condemnada = true;
  }
}

void Transaccio::Confirmar() {
  const bool desfeta = estat_->fi == Fi::Desfeta || (propia_ && estat_->condemnada);
  if (desfeta) Llancar_Falla(Falla::Transaccio_Desfeta, "Transaccio");
  if (propia_ && estat_->fi == Fi::Oberta) Confirmar_Oberta(connexio_);
  confirmada_ = true;
}

std::shared_ptr<const Transaccio::Estat> Transaccio::Oberta(const Connexio& connexio) {
  return connexio.transaccio_;
}

void Transaccio::Confirmar_Oberta(Connexio& connexio) {
  if (!connexio.En_Transaccio()) return;
  const std::shared_ptr<Estat> estat = connexio.transaccio_;
  connexio.CommitTrans();
  estat->fi = Fi::Confirmada;
  connexio.transaccio_.reset();
}

void Transaccio::Desfer_Oberta(Connexio& connexio) noexcept {
  if (const std::shared_ptr<Estat> estat = std::move(connexio.transaccio_)) estat->fi = Fi::Desfeta;
  connexio.transaccio_.reset();
  if (!connexio.En_Transaccio()) return;
  try {
    connexio.RollbackTrans();
  } catch (const Error_Brollador&) {
    // The engine is out of reach, and its transaction went with it. The error that brought us here is under way.
  }
}

void En_Transaccio(Connexio& connexio, const std::function<void()>& feina,
                   const std::function<void()>& abans_de_repetir) {
  const bool propia = !connexio.En_Transaccio();
  for (;;) {
    try {
      Transaccio transaccio(connexio);
      feina();
      return transaccio.Confirmar();
    } catch (const Error_Brollador& error) {
      if (!propia || error.Motiu() != Falla::Interbloqueig) throw;
    }
    if (abans_de_repetir) abans_de_repetir();
  }
}
