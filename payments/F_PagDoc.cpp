#include "payments/F_PagDoc.h"

#include <QHBoxLayout>
#include <QLabel>
#include <string_view>

#include "core/M_Funcions_Comuns.h"
#include "core/M_Mestres.h"
#include "core/dades/Numeros.h"
#include "core/dades/Transaccio.h"
#include "core/formularis/Formularis_Oberts.h"
#include "core/formularis/Text_Qt.h"
#include "masters/F_Referencies.h"
#include "payments/M_Flags.h"
#include "payments/M_Pagaments.h"

namespace {

const Descripcio_Referencia& Pagaments() {
  static const Descripcio_Referencia pagaments = {
      .formulari = u"F_PAGDOC",
      .titol = u"Pagaments",
      .graella = u"G_PagDoc",
      .sentencia = [] { return SQL_Pagaments_Document(sessio.Pag_Document, sessio.Pag_Numero); },
      .columnes = {{.camp = "ID_PAG", .amplada = 1500, .titol = "Codi", .a_la_dreta = true, .fixa = true},
                   {.camp = "DOCUMENT_PAG", .amplada = 0, .titol = "Document", .fixa = true},
                   {.camp = "NUMALB_PAG", .amplada = 0, .titol = "Número", .fixa = true},
                   {.camp = "EMPRESA_PAG", .amplada = 0, .titol = "Empresa", .fixa = true},
                   {.camp = "CLIENT_PAG", .amplada = 0, .titol = "Client", .fixa = true},
                   {"PAGAMENT_PAG", 4000, "Forma Pagament"},
                   {"DATA_PAG", 1500, "Data", true},
                   {"IMPORT_PAG", 2000, "Import", true, "0.00"}},
      .boto_esborrar = u"B_EsborrarPag",
      .esborrar = [](const Recordset& fila) { Esborrar_Pagament(fila["ID_PAG"].Enter()); },
      .desplegables = {Desplegable_Formes_De_Pagament("PAGAMENT_PAG")}};
  return pagaments;
}

QLabel* Posar_Etiqueta(QHBoxLayout* fila, const char16_t* nom) {
  auto* etiqueta = new QLabel;
  etiqueta->setObjectName(QString::fromUtf16(nom));
  fila->addWidget(etiqueta);
  return etiqueta;
}

void Mostrar_Euros(QLabel* etiqueta, const char* que, double euros) {
  etiqueta->setText(Text_Qt(que + Format_Numero(euros, "0.00")));
}

}  // namespace

F_PagDoc::F_PagDoc() : Taula_Referencia(Pagaments()) {
  constexpr int sota_la_graella = 1;
  constexpr int separacio = 24;
  auto* resum = new QHBoxLayout;
  resum->setSpacing(separacio);
  import_ = Posar_Etiqueta(resum, u"L_IMPORT_DOCPAG");
  pagaments_ = Posar_Etiqueta(resum, u"L_PAGAMENTS_DOCPAG");
  pendents_ = Posar_Etiqueta(resum, u"L_PENDENTS_DOCPAG");
  resum->insertStretch(0);
  static_cast<QVBoxLayout*>(layout())->insertLayout(sota_la_graella, resum);
}

// The rows and what they add up to come on one trip.
void F_PagDoc::Carregar() {
  Transaccio viatge(sessio.Connexio_Comuna);
  sessio.Connexio_Comuna.Demanar(SQL_Total_Pagaments(sessio.Pag_Document, sessio.Pag_Numero));
  Taula_Referencia::Carregar();
  Resum();
  viatge.Confirmar();
}

void F_PagDoc::Resum() {
  pagat_ = Total_Pagaments_Document(sessio.Pag_Document, sessio.Pag_Numero);
  Mostrar_Euros(import_, "Total Doc: ", sessio.Pag_Total);
  Mostrar_Euros(pagaments_, "Total Pag: ", pagat_);
  Mostrar_Euros(pendents_, "Pend. Pag: ", Arrodonir(sessio.Pag_Total - pagat_, 2));
}

// Whatever column a row begins with, it is a payment of this document.
void F_PagDoc::Fila_Nova(Recordset& fila, const char* /*camp*/) {
  if (!fila["DOCUMENT_PAG"].Es_Nul()) return;
  fila.Set("DOCUMENT_PAG", sessio.Pag_Document);
  fila.Set("NUMALB_PAG", std::int64_t{sessio.Pag_Numero});
  fila.Set("EMPRESA_PAG", sessio.Empresa_Actual);
  if (!sessio.Pag_Client.empty()) fila.Set("CLIENT_PAG", sessio.Pag_Client);
  if (fila["DATA_PAG"].Es_Nul()) fila.Set("DATA_PAG", Avui());
  if (fila["IMPORT_PAG"].Es_Nul()) fila.Set("IMPORT_PAG", 0.0);
}

// More than the document's total may be paid, once the user says so.
bool F_PagDoc::Per_Desar(const Recordset& fila, const char* camp) {
  const bool nova = fila.EditMode() == Edicio::Alta && std::string_view(camp) == "IMPORT_PAG";
  if (!nova || !Supera_El_Total(Nul_A_Defecte(fila["IMPORT_PAG"]).Doble(), pagat_, sessio.Pag_Total)) return true;
  return sessio.pantalla->Caixa("Els pagaments superen l'import total del document. Segur d'inserir-lo?",
                                estil::si_no) == Resposta::Si;
}

// The first payment of a document is what fixes the flags of its chain. A chain that is not as it should be is told of;
// the payment stays.
void F_PagDoc::Files_Canviades() {
  Resum();
  Propagar_Flag_Pagaments(sessio.Pag_Document, sessio.Pag_Numero);
}

void F_PagDoc::Descarregar() {
  if (!Graella_Llista()->Desar_Fila()) Graella_Llista()->Descartar_Fila();
  if (Recordset_Llista()->RecordCount() > 0 && Graella_Llista()->Permet_Canvis())
    Guardar_Event([] { Propagar_Flag_Pagaments(sessio.Pag_Document, sessio.Pag_Numero); });
  Taula_Referencia::Descarregar();
}

void Registrar_Formularis_Pagaments() {
  Registrar_Formulari(QStringLiteral("F_PAGDOC"), [] { return new F_PagDoc; });
}
