#include "core/formularis/Crides.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>

#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Finestra_Principal.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"

namespace {

std::span<const Crida> crides;

bool Es(const QString& nom, const char16_t* esperat) {
  return nom.toUpper() == QStringView(esperat);
}

// What the row gives to the targets of a call.
struct Valor_Per {
  QWidget* control;
  const Desti_Crida* desti;
  Valor valor;
  std::string nom;
};

QString Text_Per(const Valor_Per& que) {
  if (que.desti->conversio != nullptr) return QString::fromStdString(que.desti->conversio(que.valor));
  return QString::fromStdString(que.valor.Text());
}

// True when the control did not show it yet.
bool Escriure(const Valor_Per& que) {
  const QString text = Text_Per(que);
  if (auto* numeric = qobject_cast<Camp_Numeric*>(que.control); numeric != nullptr && que.valor.Es_Doble()) {
    numeric->Numero(que.valor.Doble());
    return true;
  }
  if (auto* camp = qobject_cast<QLineEdit*>(que.control)) {
    if (camp->text() == text) return false;
    camp->setText(text);
    return true;
  }
  if (auto* etiqueta = qobject_cast<QLabel*>(que.control)) etiqueta->setText(text);
  return false;
}

// Typed into the first field, which is left. What the row says about it stands over what the form looked up by itself
// (two places share a postal code): then the field is entered and left again, for the form to save them together.
void Escriure_I_Deixar(const std::vector<Valor_Per>& valors) {
  QWidget* camp = valors.front().control;
  Entrar_Al_Camp(camp);
  Escriure(valors.front());
  Deixar_Camp(camp);
  bool canviats = false;
  for (const Valor_Per& que : valors) canviats = Escriure(que) || canviats;
  if (!canviats) return;
  Entrar_Al_Camp(camp);
  Deixar_Camp(camp);
}

void Posar(Mena_Crida mena, const std::vector<Valor_Per>& valors) {
  if (mena == Mena_Crida::Camp) return Escriure_I_Deixar(valors);
  for (const Valor_Per& que : valors) {
    if (auto* combo = qobject_cast<Combo_Codi*>(que.control)) {
      combo->Triar(que.valor.Text(), que.nom);
    } else {
      Escriure(que);
    }
  }
}

std::vector<Valor_Per> Llegir_Fila(const Crida& crida, const Formulari& formulari, const Graella& graella) {
  std::vector<Valor_Per> valors;
  for (const Desti_Crida& desti : crida.destins) {
    QWidget* control = formulari.Cercar_Control(QString::fromUtf16(desti.control));
    if (control == nullptr) continue;
    const std::string nom = *desti.columna_nom == '\0' ? std::string() : graella.Valor_Actual(desti.columna_nom).Text();
    valors.push_back({control, &desti, graella.Valor_Actual(desti.columna), nom});
  }
  return valors;
}

// A field that was taken away or closed meanwhile leaves the focus where the form has put it.
void Portar_El_Focus(const Formulari& formulari, QWidget* camp) {
  if (auto* finestra = qobject_cast<QMdiSubWindow*>(formulari.parentWidget())) {
    Finestra_Principal::Unica()->Portar_Al_Davant(finestra);
  }
  if (camp->isVisibleTo(&formulari) && camp->isEnabled()) Posar_Focus(camp);
}

QWidget* Camp_Que_Crida(const Crida& crida, const Formulari& formulari) {
  const bool de_codi = crida.mena == Mena_Crida::Camp || crida.mena == Mena_Crida::Combo;
  return de_codi ? formulari.Cercar_Control(QString::fromUtf16(crida.destins.front().control)) : nullptr;
}

QString Codi_Al_Camp(const QWidget* camp) {
  if (const auto* combo = qobject_cast<const Combo_Codi*>(camp)) return QString::fromStdString(combo->Codi());
  const auto* text = qobject_cast<const QLineEdit*>(camp);
  return text == nullptr ? QString() : text->text();
}

// On the row that the field names, if there is one.
void Situar(const Crida& crida) {
  Formulari* llista = Formulari_De_Nom(QString::fromUtf16(crida.llista));
  const Formulari* formulari = Formulari_De_Nom(QString::fromUtf16(crida.formulari));
  Graella* graella = llista == nullptr ? nullptr : llista->Graella_Llista();
  if (graella == nullptr || formulari == nullptr) return;
  graella->De_Triar(true);
  const QString codi = Codi_Al_Camp(Camp_Que_Crida(crida, *formulari));
  if (!codi.isEmpty()) graella->Anar_Al_Valor(QString::fromUtf8(crida.destins.front().columna), codi);
}

// F4 or Alt+Down in the field opens its list, as its button does. The field is not left: what was typed waits there.
class Tecles_De_Llista : public QObject {
 public:
  Tecles_De_Llista(QObject* camp, const QAbstractButton& boto, const Crida& crida)
      : QObject(camp), boto_(boto), crida_(crida) {}

 protected:
  bool eventFilter(QObject* objecte, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !boto_.isEnabled()) return QObject::eventFilter(objecte, event);
    const auto& tecla = static_cast<const QKeyEvent&>(*event);
    const bool l_obre = (tecla.key() == Qt::Key_F4 && tecla.modifiers() == Qt::NoModifier) ||
                        (tecla.key() == Qt::Key_Down && tecla.modifiers() == Qt::AltModifier);
    if (!l_obre) return QObject::eventFilter(objecte, event);
    Cridar(crida_);
    return true;
  }

 private:
  const QAbstractButton& boto_;
  const Crida& crida_;
};

}  // namespace

void Fixar_Crides(std::span<const Crida> taula) {
  crides = taula;
}

std::span<const Crida> Taula_De_Crides() {
  return crides;
}

const Crida* Crida_Pendent(const QString& llista) {
  for (const Crida& crida : crides) {
    const bool es_seva = Es(llista, crida.llista) && sessio.*crida.variable == crida.etiqueta;
    if (es_seva && crida.mena != Mena_Crida::Sense_Retorn) {
      return Formulari_De_Nom(QString::fromUtf16(crida.formulari)) == nullptr ? nullptr : &crida;
    }
  }
  return nullptr;
}

bool Tornar_Fila(Formulari& llista) {
  const Crida* crida = Crida_Pendent(llista.Nom());
  const Graella* graella = llista.Graella_Llista();
  if (crida == nullptr || graella == nullptr || graella->Fila_Actual() < 0) return false;
  const Formulari* formulari = Formulari_De_Nom(QString::fromUtf16(crida->formulari));
  const auto valors = Llegir_Fila(*crida, *formulari, *graella);
  if (valors.empty()) return false;
  Posar(crida->mena, valors);
  Descarregar_Formulari(QStringLiteral("F_CERCA"));
  Descarregar_Formulari(llista.Nom());
  Portar_El_Focus(*formulari, valors.front().control);
  return true;
}

void Cridar(const Crida& crida) {
  sessio.*crida.variable = crida.etiqueta;
  Obrir(QString::fromUtf16(crida.llista));
  Formulari::Guardar_Event([&] { Situar(crida); });
}

void Connectar_Crides(Formulari& formulari) {
  for (const Crida& crida : crides) {
    if (crida.boto == nullptr || !Es(formulari.Nom(), crida.formulari)) continue;
    auto* boto = qobject_cast<QAbstractButton*>(formulari.Cercar_Control(QString::fromUtf16(crida.boto)));
    if (boto == nullptr) continue;
    formulari.Boto_De_Pantalla(boto->objectName(), QString::fromUtf16(crida.llista));
    QObject::connect(boto, &QAbstractButton::clicked, &formulari, [&crida] { Cridar(crida); });
    auto* camp = qobject_cast<QLineEdit*>(Camp_Que_Crida(crida, formulari));
    if (camp != nullptr) camp->installEventFilter(new Tecles_De_Llista(camp, *boto, crida));
  }
}

void Oblidar_Crida(const QString& llista) {
  for (const Crida& crida : crides) {
    if (Es(llista, crida.llista) && sessio.*crida.variable == crida.etiqueta) (sessio.*crida.variable).clear();
  }
}
