#include "documents/F_Detall_Linia.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Refus.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Text_Qt.h"
#include "masters/M_IVAs.h"

namespace {

constexpr const char* dos_decimals = "#,##0.00";
constexpr const char* cinc_decimals = "#,##0.00000";
constexpr QRgb fons_obert = 0xFFFFFF;
constexpr QRgb fons_fixat = 0xC0FFFF;
constexpr QRgb tinta = 0x000000;  // on both, whatever the colours of the desktop are

// Fields that a line that is fixed closes; the prices are those of the description.
constexpr const char16_t* camps_de_xifres[] = {u"TXT_IVA_ART", u"B_IVA", u"TXT_UNITATS_PL", u"TXT_MARGE_PL"};

void Pintar_Fons(QWidget* camp, bool obert) {
  QPalette paleta = camp->palette();
  for (const auto grup : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    paleta.setColor(grup, QPalette::Base, QColor(obert ? fons_obert : fons_fixat));
    paleta.setColor(grup, QPalette::Text, QColor(tinta));
  }
  camp->setPalette(paleta);
}

}  // namespace

Detall_Linia::Detall_Linia(const Descripcio_Detall& descripcio) : Formulari(QString()), descripcio_(descripcio) {}

Detall_Linia::~Detall_Linia() = default;

void Detall_Linia::Muntar() {
  text_ = Control_De_Nom<QPlainTextEdit>(QStringLiteral("TXT_DESCRIPCIO_PL"));
  unitats_ = Control_De_Nom<Camp_Numeric>(QStringLiteral("TXT_UNITATS_PL"));
  unitats_->Mascara(dos_decimals);
  marge_ = Control_De_Nom<Camp_Numeric>(QStringLiteral("TXT_MARGE_PL"));
  marge_->Mascara(dos_decimals);
  dte_article_ = Control_De_Nom<Camp_Numeric>(QStringLiteral("TXT_DTE_ART"));
  dte_article_->Mascara(cinc_decimals);
  import_net_ = Control_De_Nom<Camp_Numeric>(QStringLiteral("TXT_IMPORT_NET_PL"));
  import_net_->Mascara(dos_decimals);
  iva_ = Control_De_Nom<QLineEdit>(QStringLiteral("TXT_IVA_ART"));
  preus_ = std::make_unique<Preus_Linia>(Preus_Linia::Lloc{this, "PL"}, descripcio_.preus,
                                         [this](const Camp_De_Preu& quin) { Recalcular(quin.mode); });
  graella_lligats_ = Control_De_Nom<Graella>(QStringLiteral("G_LLIGATS"));
  graella_lligats_->Permetre_Ordre(false);
  graella_lligats_->Columnes({{.camp = "DOCUMENT", .amplada = 1800, .titol = "Document", .creix = true},
                              {"NUMERO", 1200, "Número", true},
                              {"DATA", 1300, "Data"},
                              {"UNITATS", 1300, "Unitats", true, dos_decimals}});
  Connectar_Camps();
  Connectar_Boto(u"B_ACCEPTAR", Dibuix::Desar, &Passos_Detall::acceptar);
  Connectar_Boto(u"B_DESCARTAR", Dibuix::Netejar, &Passos_Detall::descartar);
  auto* sortir = Control_De_Nom<QPushButton>(QStringLiteral("B_Exit"));
  Dibuixar(sortir, Dibuix::Sortir);
  connect(sortir, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

void Detall_Linia::Connectar_Camps() {
  En_Sortir(unitats_, [this] { Deixar_Unitats(); });
  En_Sortir(marge_, [this] { Deixar_Marge(); });
  En_Sortir(iva_, [this] { Deixar_IVA(); });
  En_Sortir(text_, [this] { linia_->Descripcio(text_->toPlainText().toStdString()); });
}

// A button of a kind that does nothing with it is not there.
void Detall_Linia::Connectar_Boto(const char16_t* nom, Dibuix dibuix, const Accio_De_Linia* Passos_Detall::*accio) {
  auto* boto = findChild<QPushButton*>(QString::fromUtf16(nom));
  if (boto == nullptr) return;
  Dibuixar(boto, dibuix);
  connect(boto, &QPushButton::clicked, this,
          [this, accio] { Guardar_Event([this, accio] { Fer(*(linia_->Passos().*accio)); }); });
}

void Detall_Linia::Carregar() {
  editor_ = dynamic_cast<Editor_Document*>(Formulari_De_Nom(Text_Qt(sessio.Crida_Document)));
  if (editor_ == nullptr) Llancar_Error(errors::concurrencia, sessio.Crida_Document);
  linia_ =
      std::make_unique<Linia_Oberta>(editor_->Tipus(), editor_->Capcalera(), editor_->Qui(), editor_->Linia_Actual());
  const auto mostrar = [this](const char16_t* nom, bool visible) {
    if (QWidget* boto = Cercar_Control(QString::fromUtf16(nom))) boto->setVisible(visible);
  };
  mostrar(u"B_ACCEPTAR", linia_->Passos().acceptar != nullptr);
  mostrar(u"B_DESCARTAR", linia_->Passos().descartar != nullptr);
  Mostrar();
}

void Detall_Linia::Mostrar() {
  const Linia_Detall& linia = linia_->Linia();
  Control_De_Nom<QLineEdit>(QStringLiteral("TXT_LIN_PL"))->setText(QString::number(linia.lin));
  Control_De_Nom<QLineEdit>(QStringLiteral("TXT_ARTICLE_PL"))->setText(Text_Qt(linia.contingut.article));
  Control_De_Nom<QCheckBox>(QStringLiteral("CHK_IVA_PC"))->setChecked(linia.cap.iva);
  Control_De_Nom<QCheckBox>(QStringLiteral("CHK_RE_PC"))->setChecked(linia.cap.re);
  if (linia_->Descompte_Article()) {
    dte_article_->Numero(*linia_->Descompte_Article());
  } else {
    dte_article_->clear();
  }
  Mostrar_Camps();
  Mostrar_Lligats();
  Aplicar_Estat();
}

// What can be typed.
void Detall_Linia::Mostrar_Camps() {
  text_->setPlainText(Text_Qt(linia_->Linia().contingut.descripcio));
  iva_->setText(Text_Qt(linia_->Codi_IVA()));
  Mostrar_IVA();
  Mostrar_Xifres();
}

void Detall_Linia::Mostrar_Xifres() {
  unitats_->Numero(Xifres().unitats);
  unitats_mostrades_ = unitats_->text();
  preus_->Mostrar(Xifres());
  marge_->Numero(Xifres().marge);
  marge_mostrat_ = marge_->text();
  import_net_->Numero(Xifres().import_net);
}

void Detall_Linia::Mostrar_IVA() {
  Control_De_Nom<QLabel>(QStringLiteral("NO_DESC_IVA"))->setText(Text_Qt(Descripcio_Iva(iva_->text().toStdString())));
}

void Detall_Linia::Mostrar_Lligats() {
  const std::string sentencia = linia_->SQL_Lligats();
  if (!sentencia.empty()) {
    lligats_.Open(sentencia, sessio.Connexio_Comuna);
    graella_lligats_->Lligar(&lligats_);
  }
  const bool n_hi_ha = !sentencia.empty() && lligats_.RecordCount() > 0;
  graella_lligats_->setVisible(n_hi_ha);
  Control_De_Nom<QLabel>(QStringLiteral("L_LLIGATS"))->setVisible(n_hi_ha);
}

// A line that is fixed takes no figure; a text of its own is only for the article that has none.
void Detall_Linia::Aplicar_Estat() {
  const bool obert = !linia_->Fixada() && !editor_->Nomes_Es_Mira();
  for (const char16_t* nom : camps_de_xifres) {
    if (QWidget* camp = Cercar_Control(QString::fromUtf16(nom))) camp->setEnabled(obert);
  }
  preus_->Habilitar(obert);
  const bool te_text = obert && linia_->Linia().contingut.article == "VAR";
  text_->setEnabled(te_text);
  Pintar_Fons(text_, te_text);
  Pintar_Fons(unitats_, obert);
  for (const char16_t* nom : {u"B_ACCEPTAR", u"B_DESCARTAR"}) {
    if (QWidget* boto = Cercar_Control(QString::fromUtf16(nom))) boto->setEnabled(!editor_->Nomes_Es_Mira());
  }
}

void Detall_Linia::Activar() {
  if (vista_) return;
  vista_ = true;
  Camp_Numeric* preu = preus_->Camp(&Linia_Entrada::preu_unitari);
  Posar_Focus(preu->isEnabled() ? static_cast<QWidget*>(preu) : Cercar_Control(QStringLiteral("B_Exit")));
}

// What stands in the fields, for the calculation.
void Detall_Linia::Recalcular(Mode_Calcul mode) {
  Linia_Entrada escrita;
  escrita.unitats = unitats_->text() == unitats_mostrades_ ? Xifres().unitats : unitats_->Numero();
  escrita.dte_article = dte_article_->Numero();
  escrita.iva_article = iva_->text().toStdString();
  preus_->Llegir(escrita);
  linia_->Recalcular(std::move(escrita), mode);
  Mostrar_Xifres();
}

void Detall_Linia::Deixar_Unitats() {
  if (!unitats_->Es_Numeric()) return Retenir_Focus(unitats_);
  Guardar_Event([this] { Recalcular(Mode_Calcul::Unitats); });
}

void Detall_Linia::Deixar_Marge() {
  if (!marge_->Es_Numeric()) return Retenir_Focus(marge_);
  if (marge_->text() != marge_mostrat_) linia_->Marge(marge_->Numero());
}

// Another type: its code stays in the field when there is no such type, to be typed again.
void Detall_Linia::Deixar_IVA() {
  if (iva_->text().toStdString() == linia_->Codi_IVA()) return;
  Guardar_Event(
      [this] {
        linia_->Buidar_Peu_Per_IVA();
        Mostrar_IVA();
        Recalcular(Mode_Calcul::Iva);
      },
      [this] { Retenir_Focus(iva_); });
}

// A field that holds what the line has not taken.
QWidget* Detall_Linia::Camp_Refusat() const {
  for (Camp_Numeric* camp : findChildren<Camp_Numeric*>()) {
    if (!Refus_De(camp).isEmpty()) return camp;
  }
  return iva_->text().toStdString() == linia_->Codi_IVA() ? nullptr : iva_;
}

// Yes or no, the detail closes; it stays when the act fails.
void Detall_Linia::Fer(const Accio_De_Linia& accio) {
  if (QWidget* refusat = Camp_Refusat()) return Retenir_Focus(refusat);
  if (Confirmar(accio.pregunta, {})) accio.fer(linia_->Linia());
  Descarregar_Formulari(Nom());
}

bool Detall_Linia::Desar_En_Tancar() {
  if (!linia_ || editor_ == nullptr || editor_->Nomes_Es_Mira()) return true;
  const bool te_canvis = linia_->Te_Canvis();
  bool desada = false;
  bool conflicte = false;
  Guardar_Event(
      [&] {
        try {
          linia_->Desar(*editor_);
          desada = true;
        } catch (const Error_Brollador& error) {
          conflicte = error.Numero() == errors::concurrencia;
          throw;
        }
      },
      [&] { Recuperar(conflicte); });
  return desada || perduda_ || !te_canvis;
}

// Nothing was written. A line that another terminal changed is shown as it stands.
void Detall_Linia::Recuperar(bool conflicte) {
  linia_->Refer_Peu(*editor_);
  perduda_ = conflicte && !linia_->Rellegir();
  editor_->Cancellar_Edicions();
  if (conflicte && !perduda_) Mostrar();
}

void Detall_Linia::Descarregar() {
  graella_lligats_->Lligar(nullptr);
  lligats_.Close();
  if (editor_ != nullptr && !editor_->Es_Tanca()) editor_->Tornar_Del_Detall();
}

QString Detall_Linia::Que_Mostra() const {
  return windowTitle() + u' ' + QString::number(linia_->Linia().lin);
}

QString Detall_Linia::Per_Que_No(const QWidget& /*control*/) const {
  if (!linia_->Fixada()) return {};
  return Text_Qt(Missatge("La línia ja està acceptada, servida o facturada",
                          "La línea ya está aceptada, servida o facturada",
                          "The line is accepted, served or invoiced already"));
}

// Esc gives the field back what the line has.
void Detall_Linia::keyPressEvent(QKeyEvent* event) {
  QWidget* camp = focusWidget();
  const bool s_hi_escriu = qobject_cast<QLineEdit*>(camp) != nullptr || camp == text_;
  if (event->key() != Qt::Key_Escape || !s_hi_escriu) return Formulari::keyPressEvent(event);
  Mostrar_Camps();
  Posar_Focus(camp);
}
