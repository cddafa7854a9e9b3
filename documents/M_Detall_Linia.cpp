#include "documents/M_Detall_Linia.h"

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"
#include "documents/M_Peu.h"
#include "masters/M_Articles.h"
#include "masters/M_IVAs.h"

namespace {

// "???" stands for the description of an article that is there no more.
std::optional<double> Descompte_De(const std::string& codi) {
  const auto dades = Dades_Article(codi);
  if (dades[article::descripcio] == "???") return std::nullopt;
  return Numero_De_Text(dades[article::descompte]);
}

}  // namespace

Linia_Oberta::Linia_Oberta(const Tipus_Document& tipus, Capcalera_Oberta cap, Qui_Del_Document qui, std::int16_t lin)
    : tipus_(tipus), linia_{.cap = std::move(cap), .qui = std::move(qui), .lin = lin, .contingut = {}} {
  fila_.Open(SQL_Linia(tipus_, {linia_.cap.numero, linia_.cap.empresa, lin}), sessio.Connexio_Comuna,
             Bloqueig::Optimista);
  if (fila_.RecordCount() == 0) Llancar_Error(errors::concurrencia, std::string(tipus_.formulari));
  Llegir();
}

const Passos_Detall& Linia_Oberta::Passos() const {
  static const Passos_Detall cap;
  return tipus_.detall == nullptr ? cap : *tipus_.detall;
}

void Linia_Oberta::Llegir() {
  en_obrir_ = Llegir_Linia(tipus_, fila_);
  linia_.contingut = en_obrir_;
  iva_canviat_ = false;
  Transaccio lectures(sessio.Connexio_Comuna);
  Demanar_Article(en_obrir_.article);
  codi_iva_ = Codi_IVA_Percentatge(en_obrir_.xifres.porc_iva);
  descompte_article_ = Descompte_De(en_obrir_.article);
  const auto fixada = Passos().fixada;
  fixada_ = fixada != nullptr && fixada(linia_, fila_);
  lectures.Confirmar();
}

std::string Linia_Oberta::SQL_Lligats() const {
  const auto lligats = Passos().lligats;
  return lligats == nullptr ? std::string() : lligats(linia_, fila_);
}

void Linia_Oberta::Recalcular(Linia_Entrada escrita, Mode_Calcul mode) {
  const Taxes_Linia taxes = Taxes_De_Linia(escrita.iva_article, linia_.cap.iva, linia_.cap.re);
  linia_.contingut.xifres = Valorar_Linia(tipus_, escrita, taxes, mode);
  codi_iva_ = std::move(escrita.iva_article);
}

void Linia_Oberta::Buidar_Peu_Per_IVA() {
  Buidar_Peu(tipus_, linia_.cap.numero, linia_.cap.empresa);
  iva_canviat_ = true;
}

// The units of before come back, and those of now go: two postings, and none when they are the same.
Apunt_Estoc Linia_Oberta::Preparar_Correccio() const {
  const double abans = en_obrir_.xifres.unitats;
  const double ara = linia_.contingut.xifres.unitats;
  if (Arrodonir(ara - abans, decimals_unitats) == 0) return {};
  return Preparar_Estoc(tipus_, linia_.cap, linia_.contingut.article, {{-1, abans}, {+1, ara}});
}

// What another terminal wrote meanwhile stays. The row is read again: it may have been written in a transaction that
// was undone.
void Linia_Oberta::Escriure() {
  if (linia_.contingut == en_obrir_) return;
  fila_.Requery();
  if (fila_.RecordCount() == 0 || Llegir_Linia(tipus_, fila_) != en_obrir_)
    Llancar_Error(errors::concurrencia, std::string(tipus_.formulari));
  Posar_Linia(tipus_, linia_.contingut, fila_);
  fila_.Update();
}

// The line goes before the stock, as in adding one: rows of others are always taken in that order.
void Linia_Oberta::Desar(Document_Obert& obert) {
  En_Transaccio(sessio.Connexio_Comuna, [&] {
    const Apunt_Estoc estoc = Preparar_Correccio();
    Escriure();
    if (estoc.demanar) estoc.demanar();
    if (iva_canviat_) Buidar_Peu(tipus_, linia_.cap.numero, linia_.cap.empresa);
    Calcular_Totals(tipus_, linia_.cap.numero, linia_.cap.empresa, obert);
    if (estoc.fer) estoc.fer();
  });
  en_obrir_ = linia_.contingut;
  iva_canviat_ = false;
}

void Linia_Oberta::Refer_Peu(Document_Obert& obert) {
  if (!iva_canviat_) return;
  En_Transaccio(sessio.Connexio_Comuna, [&] { Calcular_Totals(tipus_, linia_.cap.numero, linia_.cap.empresa, obert); });
}

bool Linia_Oberta::Rellegir() {
  fila_.Requery();
  if (fila_.RecordCount() > 0) Llegir();
  return fila_.RecordCount() > 0;
}
