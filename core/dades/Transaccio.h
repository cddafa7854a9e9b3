// A transaction on either connection, told once: it begins with the object, stays with Confirmar and is rolled back by
// the destructor. Transactions do not nest: one made while another is open belongs to it, and stands or falls with it.
#pragma once

#include <functional>
#include <memory>

class Connexio;

class Transaccio {
 public:
  explicit Transaccio(Connexio& connexio);
  ~Transaccio();
  Transaccio(const Transaccio&) = delete;
  Transaccio& operator=(const Transaccio&) = delete;

  // Commits when this one began it. Raises `general` when it is gone, or when what belonged to it was left without
  // confirming: then nothing of it is kept.
  void Confirmar();

  // Commits the one that is open, whoever began it, and says so to its owner, who has nothing left to confirm.
  static void Confirmar_Oberta(Connexio& connexio);
  // Rolls back the one that is open, whoever began it; its owner cannot confirm it any more. Never raises: an engine
  // out of reach took its transaction with it.
  static void Desfer_Oberta(Connexio& connexio) noexcept;

  enum class Fi { Oberta, Confirmada, Desfeta };
  // What all that belong to one transaction know of it.
  struct Estat {
    Fi fi = Fi::Oberta;
    bool condemnada = false;  // a part of it failed
  };
  // The one that is open, to be asked later what became of it; null without any.
  static std::shared_ptr<const Estat> Oberta(const Connexio& connexio);

 private:
  friend class Connexio;
  Connexio& connexio_;
  std::shared_ptr<Estat> estat_;
  bool propia_;
  bool confirmada_ = false;
};

// Runs a piece of work in a transaction: one of its own, or the one that is open. When the server gives up one of two
// transactions that wait for each other, a work with a transaction of its own is undone and done again from its start,
// after `abans_de_repetir`; otherwise the error goes up to whoever began. No work may show a box after its first write.
void En_Transaccio(Connexio& connexio, const std::function<void()>& feina,
                   const std::function<void()>& abans_de_repetir = {});
