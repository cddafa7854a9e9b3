#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Formularis_Oberts.h"
#include "documents/F_Editor_Document.h"
#include "documents/M_Linies_Document.h"
#include "documents/M_Peu.h"

namespace {

constexpr int impressio_per_dialeg = 0;

}  // namespace

// A line, what it is tied to, its foot and its stock stand or fall together. False when the line may well be saved as
// it was typed, once the terminal that holds the database lets it go.
bool Editor_Document::Desar_Linia() {
  bool passatger = false;
  Guardar_Event(
      [&] {
        Bloquejar_Entrada();
        try {
          En_Transaccio(
              sessio.Connexio_Comuna,
              [this] {
                entrada_->Refer_PVP();
                Afegir_Linia(Tipus(), cap_->Oberta(), entrada_->Linia(), linies_, *this);
                llegit_ = estat_;
                llegit_->te_linies = true;
                llegit_->bloquejat = Bloquejat_Per_Linies(Tipus(), Numero(), sessio.Empresa_Actual);
              },
              [this] {
                cap_->Cancellar();
                linies_.Requery();
              });
        } catch (const Error_Brollador& error) {
          passatger = error.Es_Passatger();
          throw;
        }
        graella_linies_->Mostrar_Fila_Afegida();
        Aplicar_Estat();
        llegit_.reset();
        Alliberar_Entrada();
      },
      [this] {
        llegit_.reset();
        Cancellar_Edicions();
      });
  return !passatger;
}

void Editor_Document::Cancellar_Edicions() {
  linies_.CancelUpdate();
  cap_->Cancellar();
  Requerir_Linies();
  Refrescar_Peu();
  Posar_Import(Total_Document(Tipus(), Numero(), sessio.Empresa_Actual));
  Aplicar_Estat();
}

void Editor_Document::Requerir_Linies() {
  Requerir_Alla_Mateix(linies_);
  graella_linies_->Refrescar();
}

void Editor_Document::Esborrar_Linia_Actual() {
  if (graella_linies_->Fila_Actual() < 0 || (Tancat() && descripcio_.tancat_guarda_linies)) return;
  const auto camp = [this](const char* paper) {
    return graella_linies_->Valor_Actual(Tipus().lin.Columna(paper).c_str());
  };
  const Linia_A_Esborrar linia{.numero = static_cast<std::int16_t>(camp("LIN").Enter()),
                               .article = camp("ARTICLE").Text(),
                               .unitats = Nul_A_Defecte(camp("UNITATS")).Doble()};
  const Capcalera_Oberta cap = cap_->Oberta();
  const auto linies_esborrades = Passos_De(Tipus()).linies_esborrades;
  Transaccio transaccio(sessio.Connexio_Comuna);
  if (!Esborrar_Linia(Tipus(), cap, linia)) return;
  Requerir_Linies();
  if (graella_peu_ != nullptr) Buidar_Peu(Tipus(), Numero(), sessio.Empresa_Actual);
  Calcular_Totals(Tipus(), Numero(), sessio.Empresa_Actual, *this);
  if (linies_esborrades != nullptr) linies_esborrades(cap, *this);
  transaccio.Confirmar();
  Refrescar_Peu();
  Aplicar_Estat();
}

void Editor_Document::Desplacar_Linia(bool avall) {
  const std::int64_t fila = graella_linies_->Fila_Actual();
  if (fila < 0) return;
  const Valor linia = graella_linies_->Valor_Actual(Tipus().lin.Columna("LIN").c_str());
  if (!Moure_Linia(Tipus(), Numero(), sessio.Empresa_Actual, static_cast<std::int16_t>(linia.Enter()), avall)) return;
  linies_.Requery();
  linies_.AbsolutePosition(fila + 1 + (avall ? 1 : -1));
  graella_linies_->Refrescar();
}

void Editor_Document::Valorar() {
  Transaccio transaccio(sessio.Connexio_Comuna);
  Calcular_Totals(Tipus(), Numero(), sessio.Empresa_Actual, *this);
  transaccio.Confirmar();
}

void Editor_Document::Imprimir(const char* proposit) {
  if (Dret() != "C") Desar_Capcalera();
  sessio.Crida_Document = std::string(Tipus().formulari) + proposit;
  descripcio_.imprimir(Tipus(), Numero(), sessio.Empresa_Actual, impressio_per_dialeg);
}

// The payments screen asks the session for the document, and never this form.
void Editor_Document::Obrir_Pagaments() {
  if (!cap_->Esta_Marcada("PAGAMENT")) {
    sessio.pantalla->Caixa(descripcio_.sense_pagaments, estil::critic);
    return;
  }
  sessio.Pag_Document = Tipus().lletra_pagament;
  sessio.Pag_Numero = static_cast<std::int32_t>(Numero().Enter());
  sessio.Pag_Client = cap_->Text(descripcio_.qui->codi);
  sessio.Pag_Total = cap_->Import();
  Obrir(QStringLiteral("F_PAGDOC"));
}

Qui_Del_Document Editor_Document::Qui() const {
  if (descripcio_.qui == nullptr) return {};
  return {cap_->Text(descripcio_.qui->codi), cap_->Combo()->currentText().toStdString()};
}

std::int16_t Editor_Document::Linia_Actual() const {
  return static_cast<std::int16_t>(graella_linies_->Valor_Actual(Tipus().lin.Columna("LIN").c_str()).Enter());
}

// The detail asks the session whose line it shows. One of another document that stands open stays, and comes to the
// front.
void Editor_Document::Obrir_Detall() {
  if (linies_.RecordCount() == 0) return;
  const QString detall = QString::fromUtf16(descripcio_.detall);
  const bool oberta = Formulari_De_Nom(detall) != nullptr;
  if (!oberta) sessio.Crida_Document = Tipus().formulari;
  Formulari* formulari = Mostrar_Formulari(detall);
  if (formulari == nullptr || oberta) return;
  detall_ = formulari;
  Obrir_Formulari(detall);
}

bool Editor_Document::Desar_En_Tancar() {
  if (detall_ != nullptr) Descarregar_Formulari(detall_->Nom());
  return detall_ == nullptr || detall_->Es_Tanca();
}

void Editor_Document::Rellegir_Linies() {
  Requerir_Linies();
  Refrescar_Peu();
  Mostrar_Estat();
}

void Editor_Document::Tornar_Del_Detall() {
  torna_del_detall_ = true;
  Rellegir_Linies();
}
