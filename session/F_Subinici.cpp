#include "session/F_Subinici.h"

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Focus_Camps.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Serveis.h"
#include "core/formularis/Teclat.h"
#include "session/M_Locks.h"
#include "session/M_Usuaris.h"
#include "ui_F_Subinici.h"

namespace {

// The steps after a login, once user, language and company are known.
void Obrir_Sessio() {
  Habilitar_Menus(true);
  Traduir_Formulari(QStringLiteral("F_PRINCIPAL"));
  Actualitzar_Menu_Sessio();
  Carregar_Drets(sessio.Usuari_Actual);
  Netejar_Locks_Equip();
  if (serveis.despres_d_entrar) serveis.despres_d_entrar();
}

}  // namespace

F_Subinici::F_Subinici() : Formulari(QStringLiteral("F_Subinici")), ui_(std::make_unique<Ui::F_Subinici>()) {
  ui_->setupUi(this);
  connect(ui_->B_Inici, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Iniciar(); }); });
}

F_Subinici::~F_Subinici() = default;

void F_Subinici::Activar() {
  Posar_Focus(ui_->T_USUARI);
}

void F_Subinici::Iniciar() {
  if (!Iniciar_Sessio(ui_->T_USUARI->text().toStdString(), ui_->T_CONSTRASENYA->text().toStdString()))
    return Rebutjar();
  ha_entrat_ = true;
  Descarregar_Formulari(Nom());
  Obrir_Sessio();
}

// The form stays as it is, text included, and the focus goes on as after Enter.
void F_Subinici::Rebutjar() {
  sessio.pantalla->Caixa(Missatge("Incorrecte !!!", "¡¡¡ Incorrecto !!!", "Incorrect !!!"), estil::simple,
                         Missatge("Usuari", "Usuario", "User"));
  Premer_Tab(*this);
  if (auto* camp = qobject_cast<QLineEdit*>(focusWidget())) camp->selectAll();
}
