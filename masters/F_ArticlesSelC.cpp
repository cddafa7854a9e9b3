#include "masters/F_ArticlesSelC.h"

#include "core/controls/Controls.h"
#include "core/dades/Transaccio.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"
#include "ui_F_ArticlesSelC.h"

namespace {

struct Combo {
  Combo_Codi* Ui::F_ArticlesSelC::*combo;
  const char* sentencia;
  const char* codi;
  const char* descripcio;
};
constexpr Combo combos[] = {
    {&Ui::F_ArticlesSelC::CMB_FAMILIA,
     "SELECT DESCRIPCIO_FAM, CODI_FAM FROM FAMILIES WHERE DESCRIPCIO_FAM <> '' ORDER BY DESCRIPCIO_FAM", "CODI_FAM",
     "DESCRIPCIO_FAM"},
    {&Ui::F_ArticlesSelC::CMB_SUBFAMILIA,
     "SELECT DESCRIPCIO_SUBF, CODI_SUBF FROM SUBFAMILIES WHERE DESCRIPCIO_SUBF <> '' ORDER BY DESCRIPCIO_SUBF",
     "CODI_SUBF", "DESCRIPCIO_SUBF"},
    {&Ui::F_ArticlesSelC::CMB_MARCA,
     "SELECT DESCRIPCIO_MAR, CODI_MAR FROM MARQUES WHERE DESCRIPCIO_MAR <> '' ORDER BY DESCRIPCIO_MAR", "CODI_MAR",
     "DESCRIPCIO_MAR"},
};

}  // namespace

F_ArticlesSelC::F_ArticlesSelC()
    : Formulari(QStringLiteral("F_ArticlesSelC")), ui_(std::make_unique<Ui::F_ArticlesSelC>()) {
  ui_->setupUi(this);
  Dibuixar(ui_->B_ARTICLES, Dibuix::Llista);
  Dibuixar(ui_->B_NETEJAR, Dibuix::Netejar);
  Dibuixar(ui_->B_EXIT, Dibuix::Sortir);
  connect(ui_->B_ARTICLES, &QPushButton::clicked, this, [] { Obrir(QStringLiteral("F_ARTICLESMC")); });
  connect(ui_->B_NETEJAR, &QPushButton::clicked, this, [this] { Netejar(); });
  connect(ui_->B_EXIT, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

F_ArticlesSelC::~F_ArticlesSelC() = default;

void F_ArticlesSelC::Carregar() {
  Connexio& base = sessio.Connexio_Comuna;
  Transaccio viatge(base);  // what is asked for in one transaction travels together
  for (const Combo& combo : combos) base.Demanar(combo.sentencia);
  for (const Combo& combo : combos) {
    Combo_Codi* criteri = (*ui_).*combo.combo;
    criteri->Text_Estrany_Es_Cap();
    criteri->Omplir(combo.sentencia, base, combo.codi, combo.descripcio);
  }
  viatge.Confirmar();
  ui_->CMB_FAMILIA->setFocus();
}

void F_ArticlesSelC::Netejar() {
  for (const Combo& combo : combos) ((*ui_).*combo.combo)->Posar({}, {});
  ui_->TXT_CODI->clear();
  ui_->TXT_DESCRIPCIO->clear();
  ui_->CHK_ULTIM_COST->setChecked(false);
  ui_->CMB_FAMILIA->setFocus();
}

Criteris_Articles F_ArticlesSelC::Criteris() const {
  return {.familia = ui_->CMB_FAMILIA->Codi(),
          .subfamilia = ui_->CMB_SUBFAMILIA->Codi(),
          .marca = ui_->CMB_MARCA->Codi(),
          .codi = ui_->TXT_CODI->text().toStdString(),
          .descripcio = ui_->TXT_DESCRIPCIO->text().toStdString(),
          .actiu = "",
          .ultim_cost = ui_->CHK_ULTIM_COST->isChecked()};
}
