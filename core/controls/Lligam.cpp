#include "core/controls/Lligam.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/dades/Connexio.h"
#include "core/dades/Nombre_Escrit.h"
#include "core/formularis/Formulari.h"

Valor Llegir_Escrit(const QString& text, Tipus_Columna tipus, const QString& on) {
  if (text.isEmpty()) return {};
  if (tipus == Tipus_Columna::Codi) Text_SQL(text.toStdString());  // statements name it
  if (tipus == Tipus_Columna::Codi || tipus == Tipus_Columna::Text) return text.toStdString();
  if (tipus == Tipus_Columna::Data || tipus == Tipus_Columna::Data_Hora) {
    if (const auto dia = Dia_Escrit(text)) return *dia;
  } else if (const auto nombre = Nombre_Escrit(text.toStdString())) {
    return tipus == Tipus_Columna::Doble ? Valor(*nombre) : Valor(Valor(*nombre).Enter());
  }
  constexpr int prou = 40;  // of a text that a box can show
  Llancar_Error(errors::tipus, on.toStdString(), text.left(prou).toStdString());
}

bool Lligam::Es_De_Text() const {
  return qobject_cast<QLineEdit*>(control_) != nullptr || qobject_cast<QPlainTextEdit*>(control_) != nullptr;
}

void Lligam::Mostrar() {
  const Valor valor = (*fila_)[columna_];
  const QString text = QString::fromStdString(valor.Text());
  if (auto* numeric = qobject_cast<Camp_Numeric*>(control_); numeric != nullptr && !valor.Es_Nul()) {
    numeric->Numero(valor.Doble());
  } else if (auto* camp = qobject_cast<QLineEdit*>(control_)) {
    camp->setText(text);
    camp->setCursorPosition(0);
  } else if (auto* notes = qobject_cast<QPlainTextEdit*>(control_)) {
    notes->setPlainText(text);
  } else if (auto* casella = qobject_cast<QCheckBox*>(control_)) {
    casella->setChecked(!valor.Es_Nul() && valor.Boolea());
  } else if (auto* data = qobject_cast<Selector_Data*>(control_)) {
    data->Data(valor.Es_Nul() ? std::nullopt : std::optional(valor.Data()));
  } else if (auto* combo = qobject_cast<Combo_Codi*>(control_)) {
    combo->Posar(valor.Text());
  }
  Recordar();
}

QString Lligam::Estat() const {
  if (const auto* camp = qobject_cast<QLineEdit*>(control_)) return camp->text();
  if (const auto* notes = qobject_cast<QPlainTextEdit*>(control_)) return notes->toPlainText();
  if (const auto* casella = qobject_cast<QCheckBox*>(control_)) return casella->isChecked() ? QString(u'x') : QString();
  if (const auto* data = qobject_cast<Selector_Data*>(control_)) return data->Text();
  if (const auto* combo = qobject_cast<Combo_Codi*>(control_)) return QString::fromStdString(combo->Codi());
  return {};
}

bool Lligam::Canviat() const {
  return Estat() != mostrat_;
}

void Lligam::Recordar() {
  mostrat_ = Estat();
  de_regla_.reset();
}

void Lligam::Posat_Per_Una_Regla() {
  de_regla_ = Estat();
}

bool Lligam::Canviat_Per_L_Usuari() const {
  return Canviat() && Estat() != de_regla_;
}

Valor Lligam::Escrit() const {
  if (const auto* casella = qobject_cast<QCheckBox*>(control_)) return casella->isChecked();
  if (const auto* data = qobject_cast<Selector_Data*>(control_)) return data->Data() ? Valor(*data->Data()) : Valor();
  if (qobject_cast<Camp_Numeric*>(control_) != nullptr && Estat().trimmed().isEmpty()) return 0;
  return Llegir_Escrit(Estat(), tipus_, control_->objectName());
}

void Lligam::Posar() const {
  fila_->Set(columna_, Escrit());
}

void Lligam::En_Canviar(const std::function<void()>& rutina) const {
  if (auto* casella = qobject_cast<QCheckBox*>(control_)) {
    QObject::connect(casella, &QCheckBox::clicked, casella, rutina);
  } else if (auto* data = qobject_cast<Selector_Data*>(control_)) {
    QObject::connect(data, &Selector_Data::Canviada, data, rutina);
  } else if (auto* combo = qobject_cast<Combo_Codi*>(control_)) {
    QObject::connect(combo, &Combo_Codi::Triat, combo, rutina);
  } else {
    En_Sortir(control_, rutina);
  }
}

std::vector<Lligam> Lligams_De(const Formulari& formulari, Recordset& rs) {
  std::vector<Lligam> lligams;
  for (const Camp& camp : rs.Fields()) {
    for (const auto* paper : {"TXT_", "CHK_", "DT_", "CMB_"}) {
      QWidget* control = formulari.Cercar_Control(QString::fromStdString(paper + camp.nom));
      if (control != nullptr) lligams.emplace_back(control, rs, camp);
    }
  }
  return lligams;
}
