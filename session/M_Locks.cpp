#include "session/M_Locks.h"

#include <map>

#include "core/M_Funcions_Comuns.h"

namespace {

std::map<std::string, std::string>& Formularis() {
  static std::map<std::string, std::string> formularis;
  return formularis;
}

// Asked for at once, and not with the commit: a connection that was cut before is made anew.
void Afegir_Lock(const std::string& document, const std::string& empresa, const std::string& numero) {
  sessio.Connexio_Comuna.Execute("INSERT INTO LOCKS (DOCUMENT_LCK, EMPRESA_LCK, NUMERO_LCK, EQUIP_LCK) VALUES(" +
                                 Text_SQL(document) + ", " + Text_SQL(empresa) + ", " + Text_SQL(numero) + ", " +
                                 Text_SQL(sessio.Equip_Actual) + ")");
}

void Treure_Lock(const std::string& document, const std::string& empresa, const std::string& numero) {
  sessio.Connexio_Comuna.Execute_Despres("DELETE * FROM LOCKS WHERE DOCUMENT_LCK = " + Text_SQL(document) +
                                         " AND EMPRESA_LCK = " + Text_SQL(empresa) +
                                         " AND NUMERO_LCK = " + Text_SQL(numero));
}

// Whatever goes wrong counts as a document in use: the key of LOCKS refusing a second row is the usual case. In a
// transaction that somebody else began, the row is one more of its writes, and a refusal is none.
template <typename Canvi>
bool Ha_Anat_Be(Canvi canvi) {
  try {
    canvi();
    return true;
  } catch (const Error_Brollador&) {
    return false;
  }
}

}  // namespace

bool Bloquejar_Document(const std::string& document, const std::string& empresa, const std::string& numero) {
  return Ha_Anat_Be([&] {
    if (sessio.Transaccio_Oberta()) return Afegir_Lock(document, empresa, numero);
    Transaccio transaccio(sessio.Connexio_Comuna);
    Afegir_Lock(document, empresa, numero);
    transaccio.Confirmar();
  });
}

bool Desbloquejar_Document(const std::string& document, const std::string& empresa, const std::string& numero) {
  return Ha_Anat_Be([&] {
    if (sessio.Transaccio_Oberta()) return Treure_Lock(document, empresa, numero);
    Transaccio transaccio(sessio.Connexio_Comuna);
    Treure_Lock(document, empresa, numero);
    transaccio.Confirmar();
  });
}

void Netejar_Locks_Equip() {
  sessio.Connexio_Comuna.Execute("DELETE * FROM LOCKS WHERE EQUIP_LCK = " + Text_SQL(sessio.Equip_Actual));
}

void Registrar_Bloqueig(const std::string& document, const std::string& formulari) {
  Formularis()[document] = formulari;
}

void Bloquejar_Per_Tipus(const std::string& document, const std::string& numero) {
  const auto formulari = Formularis().find(document);
  if (formulari == Formularis().end()) return;
  if (!Bloquejar_Document(document, sessio.Empresa_Actual, numero)) {
    throw Error_Brollador(errors::refusat, formulari->second,
                          Missatge("Document en ús!", "Documento en uso!", "Document is locked!"));
  }
  sessio.Bloquejos.insert(document);
}

void Alliberar_Per_Tipus(const std::string& document, const std::string& numero) {
  if (sessio.Bloquejos.erase(document) > 0) Desbloquejar_Document(document, sessio.Empresa_Actual, numero);
}
