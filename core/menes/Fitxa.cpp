#include "core/menes/Fitxa.h"

#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Focus_Camps.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Serveis.h"

Fitxa::Fitxa(const QString& nom, std::string taula) : Formulari(nom), taula_(std::move(taula)) {}

void Fitxa::Exigir(const QWidget* camp, Exigencia exigencia) {
  exigencies_[camp] = std::move(exigencia);
}

void Fitxa::Exigir_Lliure(QLineEdit* camp, bool (*existeix)(const std::string&), void (*avis)()) {
  const auto admet = [this, camp, existeix] {
    const QString propi = QString::fromStdString(rs_[camp->objectName().mid(4).toStdString()].Text());
    return camp->text().compare(propi, Qt::CaseInsensitive) == 0 || !existeix(camp->text().toStdString());
  };
  Exigir(camp, {admet, avis});
}

void Fitxa::En_Deixar(QWidget* camp, std::function<void()> rutina) {
  en_deixar_[camp].push_back(std::move(rutina));
}

void Fitxa::Descriure(QLineEdit* codi, QLineEdit* descripcio, const Referencia& referencia) {
  descripcions_.push_back({codi, descripcio, referencia, {}, {}});
}

void Fitxa::Seguir_CP(QLineEdit* cp, QLineEdit* localitat) {
  auto recordat = std::make_shared<QString>();
  En_Entrar(cp, [cp, recordat] { *recordat = cp->text(); });
  En_Deixar(cp, [cp, localitat, recordat] {
    if (cp->text().isEmpty()) {
      localitat->clear();
    } else if (cp->text() != *recordat || localitat->text().isEmpty()) {
      const auto& localitat_de = serveis.localitat_de_cp;
      localitat->setText(localitat_de ? QString::fromStdString(localitat_de(cp->text().toStdString())) : QString());
    }
  });
}

void Fitxa::Boto_Sortir(QPushButton* boto) {
  Dibuixar(boto, Dibuix::Sortir);
  connect(boto, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

// Optimistic: every field is saved when it is left, so that no edit lasts.
void Fitxa::Afegir_Fila(Recordset& fila, const std::string& taula, std::function<std::string()> sentencia,
                        std::function<void()> assegurar) {
  fila.Unique_Table(taula);
  files_.push_back({&fila, std::move(sentencia), std::move(assegurar)});
  Obrir_Fila(files_.back());
  for (Lligam& camp : Lligams_De(*this, fila)) camps_.push_back(std::move(camp));
}

void Fitxa::Obrir_Fila(const Fila& fila) {
  if (fila.assegurar) fila.assegurar();
  if (fila.rs->State()) return fila.rs->Reopen(fila.sentencia());
  fila.rs->Open(fila.sentencia(), sessio.Connexio_Comuna, Bloqueig::Optimista);
}

// Raises 80040E38 when the row is there no more.
void Fitxa::Carregar() {
  Afegir_Fila(rs_, taula_, [this] { return Sentencia(); });
  if (rs_.RecordCount() == 0) Llancar_Error(errors::concurrencia, Nom().toStdString());
  Abans_De_Mostrar();
  Mostrar_Fila();
  for (Lligam& camp : camps_) camp.En_Canviar([this, &camp] { Deixar(camp); });
  for (Descripcio& descripcio : descripcions_) {
    En_Sortir(descripcio.text, [this, &descripcio] { Guardar_Event([&] { Buscar_Codi(descripcio); }); });
  }
}

void Fitxa::Mostrar_Fila() {
  for (Lligam& camp : camps_) camp.Mostrar();
  Mostrar_Descripcions();
  Mostrar_Altres();
}

// A code is looked up when it is another one, or when its field was left.
void Fitxa::Mostrar_Descripcions() {
  for (Descripcio& descripcio : descripcions_) {
    const QString codi = descripcio.codi->text();
    if (codi == descripcio.descrit && !codi.isNull()) continue;
    descripcio.descripcio =
        codi.isEmpty() ? QString() : QString::fromStdString(Descripcio_De(descripcio.referencia, codi.toStdString()));
    descripcio.descrit = codi;
    descripcio.text->setText(descripcio.descripcio);
    descripcio.text->setCursorPosition(0);
    descripcio.text->setModified(false);
  }
}

// The first time, the first field that can be typed in.
void Fitxa::Activar() {
  if (std::exchange(vista_, true)) return;
  for (QWidget* control = nextInFocusChain(); control != this; control = control->nextInFocusChain()) {
    if (Camp_De_Control(control) != nullptr && control->isEnabled()) return Posar_Focus(control);
  }
}

Lligam* Fitxa::Camp_De_Control(const QWidget* control) {
  const auto camp =
      std::find_if(camps_.begin(), camps_.end(), [&](const Lligam& que) { return que.Control() == control; });
  return camp == camps_.end() ? nullptr : &*camp;
}

// By its key, the first column of its table.
QString Fitxa::Que_Mostra() const {
  if (!rs_.State() || rs_.RecordCount() == 0) return {};
  return windowTitle() + u' ' + QString::fromStdString(rs_[0].Text());
}

// The row that the session names by now: the fields of the old one have been left.
void Fitxa::Tornar_A_Obrir() {
  for (const Fila& fila : files_) {
    Obrir_Fila(fila);
    if (rs_.RecordCount() > 0) continue;
    Descarregar_Formulari(Nom());
    Llancar_Error(errors::concurrencia, Nom().toStdString());
  }
  Mostrar_Fila();
  Aplicar_Drets();
  vista_ = false;
}
