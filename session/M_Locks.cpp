#include "session/M_Locks.h"

#include "core/M_Funcions_Comuns.h"
#include "documents/Documents.h"

namespace {

void Obrir_Transaccio() {
  if (sessio.Transaccio_Oberta) return;
  sessio.Connexio_Comuna.BeginTrans();
  sessio.Transaccio_Oberta = true;
}

void Tancar_Transaccio() {
  sessio.Connexio_Comuna.CommitTrans();
  sessio.Transaccio_Oberta = false;
}

void Afegir_Lock(const std::string& document, const std::string& empresa, const std::string& numero) {
  Recordset rs("LOCKS", sessio.Connexio_Comuna, Bloqueig::Pessimista);
  Obrir_Transaccio();
  rs.AddNew();
  rs.Set("DOCUMENT_LCK", document);
  rs.Set("EMPRESA_LCK", empresa);
  rs.Set("NUMERO_LCK", numero);
  rs.Set("EQUIP_LCK", sessio.Equip_Actual);
  rs.Update();
  Tancar_Transaccio();
}

void Treure_Lock(const std::string& document, const std::string& empresa, const std::string& numero) {
  Recordset rs("SELECT * FROM LOCKS WHERE DOCUMENT_LCK = " + Text_SQL(document) +
                   " AND EMPRESA_LCK = " + Text_SQL(empresa) + " AND NUMERO_LCK = " + Text_SQL(numero),
               sessio.Connexio_Comuna, Bloqueig::Pessimista);
  if (rs.RecordCount() == 0) return;
  Obrir_Transaccio();
  rs.Delete();
  Tancar_Transaccio();
}

// Whatever goes wrong counts as a document in use: the key of LOCKS refusing a second row is the usual case.
template <typename Canvi>
bool Ha_Anat_Be(Canvi canvi) {
  try {
    canvi();
    return true;
  } catch (const Error_Brollador&) {
    Desfer_Transaccio();
    return false;
  }
}

}  // namespace

bool Bloquejar_Document(const std::string& document, const std::string& empresa, const std::string& numero) {
  return Ha_Anat_Be([&] { Afegir_Lock(document, empresa, numero); });
}

bool Desbloquejar_Document(const std::string& document, const std::string& empresa, const std::string& numero) {
  return Ha_Anat_Be([&] { Treure_Lock(document, empresa, numero); });
}

void Netejar_Locks_Equip() {
  sessio.Connexio_Comuna.Execute("DELETE * FROM LOCKS WHERE EQUIP_LCK = " + Text_SQL(sessio.Equip_Actual));
}

void Bloquejar_Per_Tipus(const std::string& document, const std::string& numero) {
  const Tipus_Document* tipus = Tipus_De_Bloqueig(document);
  if (!tipus) return;
  if (!Bloquejar_Document(document, sessio.Empresa_Actual, numero)) {
    throw Error_Brollador(errors::refusat, std::string(tipus->formulari),
                          Missatge("Document en ús!", "Documento en uso!", "Document is locked!"));
  }
  sessio.Bloquejos.insert(document);
}

bool Te_Bloqueig(const std::string& document) {
  return sessio.Bloquejos.contains(document);
}

void Alliberar_Per_Tipus(const std::string& document, const std::string& numero) {
  if (sessio.Bloquejos.erase(document) > 0) Desbloquejar_Document(document, sessio.Empresa_Actual, numero);
}
