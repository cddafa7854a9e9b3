#include "core/dades/Recordset.h"

#include <algorithm>
#include <utility>

#include "core/dades/Connexio.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Filtre.h"
#include "core/dades/Motor.h"
#include "core/dades/Parametres_Sentencia.h"
#include "core/dades/Text.h"

namespace {

struct Canvi {
  int camp;
  Valor valor;
};

// A set's statement on its way to the engine.
struct Lectura {
  Motor::Traduccio_Guardada& guardada;
  std::string sql;
  std::vector<Valor> parametres;
  std::int64_t retinguda;  // the transaction that holds its rows; 0: none
};

Lectura Preparar_Lectura(Motor& motor, const std::string& font, Bloqueig bloqueig, std::string_view taula_unica) {
  const bool nom_de_taula = font.find(' ') == std::string::npos;
  Sentencia_Escanejada escanejada = Escanejar(nom_de_taula ? "SELECT * FROM " + font : font);
  std::string_view editable;
  if (bloqueig != Bloqueig::Lectura) editable = taula_unica.empty() ? std::string_view("*") : taula_unica;
  Motor::Traduccio_Guardada& guardada = motor.Traduccio(escanejada.forma, editable);
  Ordenar_Entre(guardada.traduida.entre, escanejada.literals);
  const std::int64_t retinguda = guardada.traduida.retencio.empty() ? 0 : motor.Transaccio_Que_Reten();
  std::string sql = guardada.traduida.text + (retinguda == 0 ? std::string() : guardada.traduida.retencio);
  return {guardada, std::move(sql), std::move(escanejada.literals), retinguda};
}

}  // namespace

struct Recordset::Interior {
  std::string font;
  Connexio* connexio = nullptr;
  Bloqueig bloqueig = Bloqueig::Lectura;
  std::string taula_unica;
  bool obert = false;

  std::shared_ptr<const std::vector<Camp>> descrits = std::make_shared<std::vector<Camp>>();
  Files_Memoria files;
  std::string taula_editable;  // empty: the set cannot be written
  std::size_t columna_clau = 0;
  std::int64_t retingudes = 0;  // the transaction in which nobody else can change the rows; 0: none

  std::string text_filtre;
  std::vector<Condicio_Filtre> filtre;
  std::vector<std::size_t> visibles;  // rows that the filter lets through; not used without a filter

  std::int64_t posicio = 0;  // among the visible rows; -1 before the first, the count past the last

  Edicio edicio = Edicio::Cap;
  std::vector<Canvi> canvis;
  bool retinguda = false;

  Motor& motor() const { return connexio->motor(); }

  std::int64_t Quantes() const {
    return static_cast<std::int64_t>(text_filtre.empty() ? files.Files() : visibles.size());
  }

  std::size_t Fila(std::int64_t visible) const {
    const auto index = static_cast<std::size_t>(visible);
    return text_filtre.empty() ? index : visibles[index];
  }

  bool Sobre_Una_Fila() const { return posicio >= 0 && posicio < Quantes(); }

  void Exigir_Obert() const {
    if (!obert) Llancar_Falla(Falla::Sense_Fila, "Recordset");
  }

  std::size_t Fila_Actual() const {
    Exigir_Obert();
    if (!Sobre_Una_Fila()) Llancar_Falla(Falla::Sense_Fila, "Recordset");
    return Fila(posicio);
  }

  const Valor* Canvi_De(int camp) const {
    for (const auto& canvi : canvis) {
      if (canvi.camp == camp) return &canvi.valor;
    }
    return nullptr;
  }

  Valor Clau(std::size_t fila) const { return files.Valor_De(fila, columna_clau, Tipus_Columna::Llarg); }

  void Llegir();
  void Portar(const Lectura& lectura, Files_Memoria& noves) const;
  void Prendre(const Lectura& lectura, Files_Memoria noves);
  std::shared_ptr<const std::vector<Camp>> Descriure(const std::vector<Columna_Resultat>& columnes,
                                                     const Sentencia_Traduida& traduida) const;
  const std::vector<Camp>& Camps() const { return *descrits; }
  void Filtrar();
  void Exigir_Editable() const;
  void Retenir();
  void Acabar_Edicio() noexcept;
  void Oblidar_Filtre();
  void Escriure(const std::string& sql, const std::vector<Valor>& parametres, bool si_es_lliure = false);
  std::string Si_Es_Lliure(std::vector<Valor>& parametres);
  void Desar_Canvi();
  void Desar_Alta();
  const Columna& Columna_De(const Camp& camp) const;
  Files_Memoria Inserir();
};

// Nothing of the set changes before its rows have come: when they do not, it stays as it was.
void Recordset::Interior::Llegir() {
  const Lectura lectura = Preparar_Lectura(motor(), font, bloqueig, taula_unica);
  Files_Memoria noves;
  Portar(lectura, noves);
  Prendre(lectura, std::move(noves));
}

void Recordset::Interior::Portar(const Lectura& lectura, Files_Memoria& noves) const {
  Motor::Traduccio_Guardada& guardada = lectura.guardada;
  std::vector<Columna_Resultat> columnes;
  const bool per_descriure = guardada.camps == nullptr;
  motor().Consultar(lectura.sql, lectura.parametres, noves, per_descriure ? &columnes : nullptr);
  if (per_descriure) guardada.camps = Descriure(columnes, guardada.traduida);
}

void Recordset::Interior::Prendre(const Lectura& lectura, Files_Memoria noves) {
  files = std::move(noves);
  retingudes = lectura.retinguda;
  descrits = lectura.guardada.camps;
  taula_editable = lectura.guardada.traduida.taula_editable;
  columna_clau = descrits->size();
  Filtrar();
  posicio = 0;
}

std::shared_ptr<const std::vector<Camp>> Recordset::Interior::Descriure(const std::vector<Columna_Resultat>& columnes,
                                                                        const Sentencia_Traduida& traduida) const {
  auto nous = std::make_shared<std::vector<Camp>>();
  const std::size_t visibles_al_usuari = columnes.size() - (traduida.taula_editable.empty() ? 0 : 1);
  for (std::size_t i = 0; i < visibles_al_usuari; ++i) {
    Camp camp{.nom = columnes[i].nom, .taula = columnes[i].taula, .origen = columnes[i].origen};
    const bool per_items = traduida.alies.size() == visibles_al_usuari;
    if (per_items && !traduida.alies[i].empty()) camp.nom = traduida.alies[i];
    const Taula* taula = camp.taula.empty() ? nullptr : motor().Taules().Cercar(camp.taula);
    camp.columna = taula == nullptr ? nullptr : taula->Cercar(camp.origen);
    if (camp.columna != nullptr) {
      camp.tipus = camp.columna->tipus;
    } else if (per_items && traduida.tipus_expressions[i]) {
      camp.tipus = *traduida.tipus_expressions[i];
    }
    nous->push_back(std::move(camp));
  }
  return nous;
}

void Recordset::Interior::Filtrar() {
  visibles.clear();
  if (text_filtre.empty()) return;
  for (std::size_t fila = 0; fila < files.Files(); ++fila) {
    const bool passa = std::all_of(filtre.begin(), filtre.end(), [&](const Condicio_Filtre& condicio) {
      const auto camp = static_cast<std::size_t>(condicio.camp);
      return Compleix(condicio, files.Valor_De(fila, camp, Camps()[camp].tipus));
    });
    if (passa) visibles.push_back(fila);
  }
}

void Recordset::Interior::Exigir_Editable() const {
  Exigir_Obert();
  if (bloqueig == Bloqueig::Lectura || taula_editable.empty()) {
    Llancar_Falla(Falla::No_Es_Pot_Escriure, "Recordset");
  }
}

void Recordset::Interior::Retenir() {
  if (bloqueig != Bloqueig::Pessimista || retinguda) return;
  if (!motor().Retenir(taula_editable, Clau(Fila_Actual()))) {
    Llancar_Falla(Falla::Fila_Retinguda, "Recordset");
  }
  retinguda = true;
}

// The edit is over before the lock of its row is released. One that cannot be released went with its connection.
void Recordset::Interior::Acabar_Edicio() noexcept {
  edicio = Edicio::Cap;
  canvis.clear();
  if (!std::exchange(retinguda, false) || !connexio->Es_Oberta()) return;
  try {
    motor().Deixar_Anar(taula_editable, Clau(Fila(posicio)));
  } catch (const std::exception&) {
    return;
  }
}

void Recordset::Interior::Oblidar_Filtre() {
  text_filtre.clear();
  filtre.clear();
  visibles.clear();
}

const Columna& Recordset::Interior::Columna_De(const Camp& camp) const {
  if (camp.columna == nullptr || !Iguals_Plegats(camp.taula, taula_editable)) {
    Llancar_Falla(Falla::No_Es_Pot_Escriure, "Recordset", camp.nom);
  }
  return *camp.columna;
}

// A pessimistic write of a row that was not held before takes the hold on its way, where the engine can; else first.
std::string Recordset::Interior::Si_Es_Lliure(std::vector<Valor>& parametres) {
  if (bloqueig != Bloqueig::Pessimista || retinguda) return {};
  std::string condicio = motor().Condicio_Lliure(static_cast<int>(parametres.size()) + 1);
  if (condicio.empty()) {
    Retenir();
  } else {
    parametres.emplace_back(Empremta_Fila(taula_editable, Clau(Fila_Actual())));
  }
  return condicio;
}

// A write of the current row. One that is held is there for certain: nobody waits for the answer. `si_es_lliure`: the
// write itself asks whether another terminal has the row in edit, and which of the two it was has to be told
// afterwards.
void Recordset::Interior::Escriure(const std::string& sql, const std::vector<Valor>& parametres, bool si_es_lliure) {
  const bool segura = retingudes != 0 && retingudes == motor().Transaccio_Que_Reten() && !si_es_lliure;
  if (segura) return motor().Executar_Despres(sql, parametres);
  if (motor().Executar(sql, parametres) != 0) return;
  if (si_es_lliure) Retenir();
  Llancar_Error(errors::concurrencia, "Recordset");
}

// UPDATE of the row by its hidden key, if its columns still hold what was read.
void Recordset::Interior::Desar_Canvi() {
  if (canvis.empty()) return;
  const std::size_t fila = Fila_Actual();
  std::string posar;
  std::vector<Valor> parametres;
  const auto marcador = [&] { return motor().Trets().marcador + std::to_string(parametres.size()); };
  for (const auto& canvi : canvis) {
    parametres.push_back(canvi.valor);
    posar += (posar.empty() ? "\"" : ", \"") + Columna_De(Camps()[static_cast<std::size_t>(canvi.camp)]).nom +
             "\" = " + marcador();
  }
  parametres.push_back(Clau(fila));
  std::string on = " WHERE " + std::string(motor().Trets().clau_oculta) + " = " + marcador();
  for (const auto& canvi : canvis) {
    const auto camp = static_cast<std::size_t>(canvi.camp);
    parametres.push_back(files.Valor_De(fila, camp, Camps()[camp].tipus));
    on += " AND " + motor().Condicio_Identica(Columna_De(Camps()[camp]), static_cast<int>(parametres.size()));
  }
  const std::string si_es_lliure = Si_Es_Lliure(parametres);
  Escriure("UPDATE \"" + taula_editable + "\" SET " + posar + on + si_es_lliure, parametres, !si_es_lliure.empty());
  for (const auto& canvi : canvis) files.Posar(fila, static_cast<std::size_t>(canvi.camp), canvi.valor);
}

Files_Memoria Recordset::Interior::Inserir() {
  std::string noms;
  std::string marcadors;
  std::vector<Valor> parametres;
  for (const auto& canvi : canvis) {
    parametres.push_back(canvi.valor);
    const char* coma = noms.empty() ? "" : ", ";
    noms += coma + ("\"" + Columna_De(Camps()[static_cast<std::size_t>(canvi.camp)]).nom + "\"");
    marcadors += coma + (motor().Trets().marcador + std::to_string(parametres.size()));
  }
  const std::string valors = noms.empty() ? " DEFAULT VALUES" : " (" + noms + ") VALUES (" + marcadors + ")";
  std::string torna;
  for (const auto& camp : Camps())
    torna += Iguals_Plegats(camp.taula, taula_editable) ? "\"" + camp.origen + "\", " : "NULL, ";
  Files_Memoria nova;
  motor().Consultar("INSERT INTO \"" + taula_editable + "\"" + valors + " RETURNING " + torna +
                        std::string(motor().Trets().clau_oculta),
                    parametres, nova, nullptr);
  return nova;
}

void Recordset::Interior::Desar_Alta() {
  const Files_Memoria nova = Inserir();
  if (files.Files() == 0) retingudes = motor().Transaccio_Que_Reten();
  files.Afegir_Fila_Buida();
  files.Copiar_Fila(files.Files() - 1, nova, 0);
  if (!text_filtre.empty()) visibles.push_back(files.Files() - 1);
  posicio = Quantes() - 1;
}

Recordset::Recordset() : d_(std::make_unique<Interior>()) {}

Recordset::Recordset(std::string_view font, Connexio& connexio, Bloqueig bloqueig) : Recordset() {
  Open(font, connexio, bloqueig);
}

Recordset::~Recordset() {
  Close();
}

void Recordset::Unique_Table(std::string taula) {
  d_->taula_unica = std::move(taula);
}

void Recordset::Open(std::string_view font, Connexio& connexio, Bloqueig bloqueig) {
  if (d_->obert) Close();
  d_->font = font;
  d_->connexio = &connexio;
  d_->bloqueig = bloqueig;
  d_->Oblidar_Filtre();
  d_->Llegir();
  d_->obert = true;
  Registrar_Recordset(*this);
}

void Recordset::Reopen(std::string_view font) {
  d_->Exigir_Obert();
  CancelUpdate();
  Files_Memoria noves;
  const Lectura lectura = Preparar_Lectura(d_->motor(), std::string(font), d_->bloqueig, d_->taula_unica);
  d_->Portar(lectura, noves);
  Desregistrar_Recordset(*this);
  d_->font = font;
  Registrar_Recordset(*this);
  d_->Oblidar_Filtre();
  d_->Prendre(lectura, std::move(noves));
}

void Recordset::Requery() {
  d_->Exigir_Obert();
  CancelUpdate();
  d_->Llegir();
}

void Recordset::Close() noexcept {
  if (!d_->obert) return;
  CancelUpdate();
  Desregistrar_Recordset(*this);
  d_->obert = false;
  d_->files.Buidar(0);
  d_->Oblidar_Filtre();
}

bool Recordset::State() const {
  return d_->obert;
}
const std::string& Recordset::Source() const {
  return d_->font;
}

std::int64_t Recordset::RecordCount() const {
  d_->Exigir_Obert();
  return d_->Quantes();
}

bool Recordset::Eof() const {
  return RecordCount() == 0 || d_->posicio >= RecordCount();
}
bool Recordset::Bof() const {
  return RecordCount() == 0 || d_->posicio < 0;
}
void Recordset::MoveFirst() {
  Move_Des_Del_Primer(0);
}
void Recordset::MoveLast() {
  Move_Des_Del_Primer(RecordCount() - 1);
}
void Recordset::MoveNext() {
  Move(1);
}
void Recordset::Move(std::int64_t files) {
  Move_Des_Del_Primer(d_->posicio + files);
}

// Leaving a row in edit saves it.
void Recordset::Move_Des_Del_Primer(std::int64_t files) {
  d_->Exigir_Obert();
  if (d_->edicio != Edicio::Cap) Update();
  const std::int64_t quantes = d_->Quantes();
  if (quantes == 0) Llancar_Falla(Falla::Sense_Fila, "Recordset");
  d_->posicio = std::clamp<std::int64_t>(files, -1, quantes);
}

std::int64_t Recordset::AbsolutePosition() const {
  if (RecordCount() == 0) return -1;
  if (d_->posicio < 0) return posicio_inici;
  return Eof() ? posicio_final : d_->posicio + 1;
}

void Recordset::AbsolutePosition(std::int64_t posicio) {
  Move_Des_Del_Primer(posicio - 1);
}

const std::vector<Camp>& Recordset::Fields() const {
  return d_->Camps();
}

int Recordset::Index_Camp(std::string_view nom) const {
  for (std::size_t i = 0; i < d_->Camps().size(); ++i) {
    if (Iguals_Plegats(d_->Camps()[i].nom, nom)) return static_cast<int>(i);
  }
  Llancar_Error(errors::camp_no_trobat, "Recordset", std::string(nom));
}

Valor Recordset::operator[](std::string_view nom) const {
  return (*this)[Index_Camp(nom)];
}

Valor Recordset::operator[](int camp) const {
  if (const Valor* canvi = d_->Canvi_De(camp)) return *canvi;
  if (d_->edicio == Edicio::Alta) return {};
  const auto columna = static_cast<std::size_t>(camp);
  return d_->files.Valor_De(d_->Fila_Actual(), columna, d_->Camps().at(columna).tipus);
}

Valor Recordset::Valor_De_Fila(std::int64_t fila, int camp) const {
  if (fila < 0 || fila >= RecordCount()) return {};
  const auto columna = static_cast<std::size_t>(camp);
  return d_->files.Valor_De(d_->Fila(fila), columna, d_->Camps().at(columna).tipus);
}

void Recordset::Filter(std::string_view condicio) {
  d_->Exigir_Obert();
  CancelUpdate();
  auto filtre = Llegir_Filtre(condicio, [this](std::string_view nom) { return Index_Camp(nom); });
  d_->filtre = std::move(filtre);
  d_->text_filtre = d_->filtre.empty() ? std::string() : std::string(condicio);
  d_->Filtrar();
  d_->posicio = 0;
}

const std::string& Recordset::Filter() const {
  return d_->text_filtre;
}

void Recordset::AddNew() {
  d_->Exigir_Editable();
  if (d_->edicio != Edicio::Cap) Update();
  d_->edicio = Edicio::Alta;
}

void Recordset::Edit() {
  d_->Exigir_Editable();
  if (d_->edicio != Edicio::Cap) return;
  d_->Fila_Actual();
  d_->Retenir();
  d_->edicio = Edicio::Canvi;
}

void Recordset::Set(std::string_view nom, const Valor& valor) {
  d_->Exigir_Editable();
  const int camp = Index_Camp(nom);
  Valor convertit = Convertir_A_Columna(valor, d_->Columna_De(d_->Camps()[static_cast<std::size_t>(camp)]).tipus);
  if (d_->edicio == Edicio::Cap) {
    d_->Fila_Actual();
    d_->edicio = Edicio::Canvi;
  }
  std::erase_if(d_->canvis, [camp](const Canvi& canvi) { return canvi.camp == camp; });
  d_->canvis.push_back({camp, std::move(convertit)});
}

// The edit stays pending when it fails: the caller cancels it or tries again.
void Recordset::Update() {
  d_->Exigir_Obert();
  if (d_->edicio == Edicio::Canvi) d_->Desar_Canvi();
  if (d_->edicio == Edicio::Alta) d_->Desar_Alta();
  d_->Acabar_Edicio();
}

void Recordset::CancelUpdate() noexcept {
  d_->Acabar_Edicio();
}

void Recordset::Delete() {
  d_->Exigir_Editable();
  CancelUpdate();
  const std::size_t fila = d_->Fila_Actual();
  const std::string sql = "DELETE FROM \"" + d_->taula_editable + "\" WHERE " +
                          std::string(d_->motor().Trets().clau_oculta) + " = " + d_->motor().Trets().marcador + "1";
  d_->Escriure(sql, {d_->Clau(fila)});
  d_->files.Esborrar_Fila(fila);
  d_->Filtrar();
  d_->posicio = std::min(d_->posicio, d_->Quantes() - 1);
}

Edicio Recordset::EditMode() const {
  return d_->edicio;
}
bool Recordset::Te_Canvis() const {
  return !d_->canvis.empty();
}

void Connexio::Demanar(std::string_view font, Bloqueig bloqueig) {
  const Lectura lectura = Preparar_Lectura(motor(), std::string(font), bloqueig, {});
  motor().Demanar(lectura.sql, lectura.parametres);
}
