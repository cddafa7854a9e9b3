#include "sales/F_Facturar.h"

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Controls.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Graella.h"
#include "core/formularis/Aparenca.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Text_Qt.h"
#include "documents/F_Cerca_Document.h"
#include "output/Imprimir.h"
#include "sales/M_Albarans.h"
#include "sales/M_Consultes_Venda.h"
#include "sales/M_Factures.h"
#include "sales/M_Tipus_Venda.h"
#include "ui_F_Facturar.h"

namespace {

constexpr int impressio_per_dialeg = 0;

// The numbers of the rows that are selected in the list, or of those that the finder has left in it. None: all of the
// list.
std::vector<std::int64_t> Numeros_Triats() {
  Formulari* llista = Formulari_De_Nom(QStringLiteral("F_ALBARANSM"));
  if (llista == nullptr) return {};
  const Recordset& rs = *llista->Recordset_Llista();
  std::vector<std::int64_t> files = llista->Graella_Llista()->Files_Seleccionades();
  const bool trobades = files.empty() && !rs.Filter().empty();
  for (std::int64_t fila = 0; trobades && fila < rs.RecordCount(); ++fila) files.push_back(fila);
  std::vector<std::int64_t> numeros;
  numeros.reserve(files.size() + 1);
  const int camp = rs.Index_Camp("NUMALB_AC");
  for (const std::int64_t fila : files) numeros.push_back(rs.Valor_De_Fila(fila, camp).Enter());
  if (trobades && numeros.empty()) numeros.push_back(0);  // which no note has
  return numeros;
}

std::string Que_Es_Factura() {
  const std::vector<std::int64_t> numeros = Numeros_Triats();
  if (!numeros.empty()) {
    return Missatge("Albarans seleccionats: ", "Albaranes seleccionados: ", "Selected delivery notes: ") +
           std::to_string(numeros.size());
  }
  Formulari* llista = Formulari_De_Nom(QStringLiteral("F_ALBARANSM"));
  return Missatge("Cap de seleccionat, es facturen tots els de la llista: ",
                  "Ninguno seleccionado, se facturan todos los de la lista: ",
                  "None selected, all of the list are invoiced: ") +
         std::to_string(llista == nullptr ? 0 : llista->Recordset_Llista()->RecordCount());
}

std::string Albarans_De_La_Llista() {
  return Consulta_Albarans(Valors_De("F_ALBARANSS"), true) + Llista_Albarans_Seleccionats(Numeros_Triats());
}

}  // namespace

F_Facturar::F_Facturar() : Formulari(QStringLiteral("F_Facturar")), ui_(std::make_unique<Ui::F_Facturar>()) {
  ui_->setupUi(this);
  Dibuixar(ui_->B_FORAT, Dibuix::Cercar);
  Dibuixar(ui_->B_CONTINUAR, Dibuix::Calcular);
  Dibuixar(ui_->B_ANULAR, Dibuix::Sortir);
  connect(ui_->B_FORAT, &QPushButton::clicked, this, [this] { Guardar_Event([this] { Proposar_Forat(); }); });
  connect(ui_->B_CONTINUAR, &QPushButton::clicked, this, [this] {
    Guardar_Event([this] { Continuar(); });
    Descarregar_Formulari(Nom());
  });
  connect(ui_->B_ANULAR, &QPushButton::clicked, this, [this] { Descarregar_Formulari(Nom()); });
}

F_Facturar::~F_Facturar() = default;

void F_Facturar::Carregar() {
  ui_->TXT_FACTURA->setText(QString::number(Seguent_Factura()));
  ui_->NO_ALBARANS->setText(Text_Qt(Que_Es_Factura()));
  ui_->DT_DATA->Data(Data_Maxima_Albarans(Albarans_De_La_Llista()));
}

void F_Facturar::Activar() {
  Posar_Focus(ui_->TXT_FACTURA);
}

void F_Facturar::Proposar_Forat() {
  ui_->TXT_FACTURA->setText(QString::number(Primer_Forat_Factura()));
  Posar_Focus(ui_->TXT_FACTURA);
}

// Whatever becomes of it, the dialog closes, and the list is read again.
void F_Facturar::Continuar() {
  Dir_Que_Treballa();
  const Facturacio facturacio{.albarans = Albarans_De_La_Llista(),
                              .numero = ui_->TXT_FACTURA->text().toStdString(),
                              .data = ui_->DT_DATA->Data() ? Valor(*ui_->DT_DATA->Data()) : Valor()};
  if (!Facturar(facturacio) || facturacio.numero == proforma) return;
  if (sessio.pantalla->Caixa("Vols Imprimir la Factura que acabes de generar?", estil::si_no) != Resposta::Si) return;
  sessio.Crida_Document = "F_FACTURA;VALORAT";
  Imprimir_Document(tipus_factura, Valor(facturacio.numero).Enter(), sessio.Empresa_Actual, impressio_per_dialeg);
}

void F_Facturar::Dir_Que_Treballa() {
  ui_->NO_ALBARANS->setText(
      Text_Qt(Missatge("S'estan facturant els albarans...", "Se están facturando los albaranes...",
                       "The delivery notes are being invoiced...")));
  ui_->NO_ALBARANS->repaint();
}
