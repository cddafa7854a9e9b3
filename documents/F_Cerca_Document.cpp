#include "documents/F_Cerca_Document.h"

#include <QPushButton>

#include "core/controls/Camps.h"
#include "core/controls/Controls.h"
#include "core/dades/Numeros.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Control_Interface.h"
#include "masters/M_Clients.h"

void Cerca_Document::Muntar(const QString& paraula, const QString& llista, QPushButton* tots, QPushButton* pendents) {
  const auto numeric = [this](const QString& nom) { return Control_De_Nom<Camp_Numeric>(nom); };
  llista_ = llista;
  numero_entre_ = numeric(QStringLiteral("TXT_%1_ENTRE").arg(paraula));
  numero_y_ = numeric(QStringLiteral("TXT_%1_Y").arg(paraula));
  import_entre_ = numeric(QStringLiteral("TXT_IMPORT_ENTRE"));
  import_y_ = numeric(QStringLiteral("TXT_IMPORT_Y"));
  data_entre_ = Control_De_Nom<Selector_Data>(QStringLiteral("DT_DATA_ENTRE"));
  data_y_ = Control_De_Nom<Selector_Data>(QStringLiteral("DT_DATA_Y"));
  client_ = Control_De_Nom<Combo_Codi>(QStringLiteral("CMB_CLIENT"));
  article_ = Control_De_Nom<QLineEdit>(QStringLiteral("TXT_ARTICLE"));
  article_desc_ = Control_De_Nom<QLineEdit>(QStringLiteral("TXT_ARTICLE_DESC"));
  for (Camp_Numeric* camp : {import_entre_, import_y_}) camp->Mascara("#,##0.00");
  for (Camp_Numeric* camp : {numero_entre_, numero_y_, import_entre_, import_y_}) {
    En_Sortir(camp, [camp] {
      if (!camp->Es_Numeric()) Retenir_Focus(camp);
    });
  }
  auto* netejar = Control_De_Nom<QPushButton>(QStringLiteral("B_NETEJAR"));
  auto* sortir = Control_De_Nom<QPushButton>(QStringLiteral("B_Exit"));
  Dibuixar(netejar, Dibuix::Netejar);
  Dibuixar(sortir, Dibuix::Sortir);
  connect(netejar, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Netejar(); }); });
  connect(sortir, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
  Dibuixar(tots, Dibuix::Llista);
  connect(tots, &QPushButton::clicked, this, [this] { Obrir_Llista(false); });
  if (pendents == nullptr) return;
  Dibuixar(pendents, Dibuix::Cercar);
  connect(pendents, &QPushButton::clicked, this, [this] { Obrir_Llista(true); });
}

void Cerca_Document::Carregar() {
  client_->Omplir(SQL_Combo_Clients(), sessio.Connexio_Comuna, "NIF_CLI", "RAO_SOCIAL_CLI");
  Netejar();
}

void Cerca_Document::Activar() {
  Posar_Focus(numero_entre_);
}

void Cerca_Document::Netejar() {
  const Criteris_Cerca criteris = Criteris_Per_Defecte();
  numero_entre_->setText(QString::fromStdString(criteris.numero_entre));
  numero_y_->setText(QString::fromStdString(criteris.numero_y));
  data_entre_->Data(criteris.data_entre);
  data_y_->Data(criteris.data_y);
  client_->Posar({}, {});
  import_entre_->Numero(criteris.import_entre);
  import_y_->Numero(criteris.import_y);
  article_->setText(QString::fromStdString(criteris.article));
  article_desc_->setText(QString::fromStdString(criteris.article_desc));
}

Criteris_Cerca Cerca_Document::Criteris() const {
  return {.numero_entre = numero_entre_->text().toStdString(),
          .numero_y = numero_y_->text().toStdString(),
          .data_entre = data_entre_->Data(),
          .data_y = data_y_->Data(),
          .client = client_->Codi(),
          .import_entre = import_entre_->Numero(),
          .import_y = import_y_->Numero(),
          .article = article_->text().toStdString(),
          .article_desc = article_desc_->text().toStdString()};
}

void Cerca_Document::Obrir_Llista(bool nomes_pendents) {
  sessio.Nomes_Pendents = nomes_pendents;
  Obrir(llista_);
}
