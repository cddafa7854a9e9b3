#include "documents/F_Cerca_Document.h"

#include <QPushButton>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"

namespace {

bool Es_Dobla(Mena_Criteri mena) {
  return mena != Mena_Criteri::Codi && mena != Mena_Criteri::Conte;
}

bool Es_Import(Mena_Criteri mena) {
  return mena == Mena_Criteri::Imports || mena == Mena_Criteri::Limits;
}

void Posar_Text(QWidget* camp, const std::string& text, bool amb_mascara) {
  auto* linia = qobject_cast<QLineEdit*>(camp);
  linia->setText(QString::fromStdString(text));
  auto* numeric = qobject_cast<Camp_Numeric*>(camp);
  if (amb_mascara && numeric != nullptr) numeric->Numero(numeric->Numero());
}

std::string Text_De(QWidget* camp) {
  return qobject_cast<QLineEdit*>(camp)->text().toStdString();
}

}  // namespace

Cerca_Document::Cerca_Document(const Descripcio_Cerca& descripcio) : Formulari(QString()), descripcio_(descripcio) {}

QWidget* Cerca_Document::Camp(const Criteri& criteri, bool segon) const {
  const QString nom = QString::fromUtf8(criteri.control);
  if (!Es_Dobla(criteri.mena)) return Control_De_Nom<QWidget>(nom);
  return Control_De_Nom<QWidget>(nom + (segon ? QStringLiteral("_Y") : QStringLiteral("_ENTRE")));
}

// A field of numbers keeps the focus until it holds one.
void Cerca_Document::Muntar_Camp(const Criteri& criteri) {
  for (const bool segon : {false, true}) {
    if (segon && !Es_Dobla(criteri.mena)) return;
    auto* camp = qobject_cast<Camp_Numeric*>(Camp(criteri, segon));
    if (camp == nullptr) continue;
    if (Es_Import(criteri.mena)) camp->Mascara("#,##0.00");
    En_Sortir(camp, [camp] {
      if (!camp->Es_Numeric()) Retenir_Focus(camp);
    });
  }
}

void Cerca_Document::Muntar() {
  for (const Criteri& criteri : descripcio_.criteris) Muntar_Camp(criteri);
  const auto boto = [this](const char* nom, Dibuix dibuix) {
    auto* control = Control_De_Nom<QPushButton>(QString::fromUtf8(nom));
    Dibuixar(control, dibuix);
    return control;
  };
  connect(boto("B_NETEJAR", Dibuix::Netejar), &QPushButton::clicked, this,
          [this] { Guardar_Event([this] { Netejar(); }); });
  connect(boto("B_Exit", Dibuix::Sortir), &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
  for (const Boto_De_Cerca& que : descripcio_.botons) {
    connect(boto(que.boto, que.nomes_pendents ? Dibuix::Cercar : Dibuix::Llista), &QPushButton::clicked, this,
            [this, &que] { Obrir_Llista(que); });
  }
  for (const Boto_De_Llistat& que : descripcio_.llistats) {
    connect(boto(que.boto, Dibuix::Imprimir), &QPushButton::clicked, this,
            [this, &que] { Guardar_Event([&] { que.imprimir(Valors()); }); });
  }
}

void Cerca_Document::Carregar() {
  for (const Criteri& criteri : descripcio_.criteris) {
    if (criteri.noms == nullptr) continue;
    qobject_cast<Combo_Codi*>(Camp(criteri))
        ->Omplir(criteri.noms->sentencia(), sessio.Connexio_Comuna, criteri.noms->codi, criteri.noms->nom);
  }
  Netejar();
}

void Cerca_Document::Activar() {
  Posar_Focus(Control_De_Nom<QWidget>(QString::fromUtf8(descripcio_.primer_camp)));
}

void Cerca_Document::Posar(const Criteri& criteri, const Valor_Criteri& valor) {
  if (auto* combo = qobject_cast<Combo_Codi*>(Camp(criteri))) return combo->Posar(valor.text, {});
  if (auto* dia = qobject_cast<Selector_Data*>(Camp(criteri))) {
    dia->Data(valor.data);
    return qobject_cast<Selector_Data*>(Camp(criteri, true))->Data(valor.data_y);
  }
  Posar_Text(Camp(criteri), valor.text, Es_Import(criteri.mena));
  if (Es_Dobla(criteri.mena)) Posar_Text(Camp(criteri, true), valor.text_y, Es_Import(criteri.mena));
}

Valor_Criteri Cerca_Document::Llegir(const Criteri& criteri) const {
  if (const auto* combo = qobject_cast<Combo_Codi*>(Camp(criteri))) return {.text = combo->Codi()};
  if (const auto* dia = qobject_cast<Selector_Data*>(Camp(criteri))) {
    return {.data = dia->Data(), .data_y = qobject_cast<Selector_Data*>(Camp(criteri, true))->Data()};
  }
  if (!Es_Dobla(criteri.mena)) return {.text = Text_De(Camp(criteri))};
  return {.text = Text_De(Camp(criteri)), .text_y = Text_De(Camp(criteri, true))};
}

void Cerca_Document::Netejar() {
  const Valors_Cerca valors = Valors_Per_Defecte(descripcio_.criteris);
  for (const Criteri& criteri : descripcio_.criteris) Posar(criteri, valors.at(criteri.control));
}

Valors_Cerca Cerca_Document::Valors() const {
  Valors_Cerca valors;
  for (const Criteri& criteri : descripcio_.criteris) valors[criteri.control] = Llegir(criteri);
  return valors;
}

void Cerca_Document::Obrir_Llista(const Boto_De_Cerca& boto) {
  sessio.Nomes_Pendents = boto.nomes_pendents;
  Obrir(QString::fromUtf16(boto.llista));
}

Valors_Cerca Valors_De(const char* formulari) {
  const auto* cerca = dynamic_cast<Cerca_Document*>(Carregar_Amagat(QString::fromUtf8(formulari)));
  return cerca == nullptr ? Valors_Cerca() : cerca->Valors();
}
