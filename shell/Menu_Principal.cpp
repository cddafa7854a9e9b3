#include "shell/Menu_Principal.h"

#include <QMdiSubWindow>
#include <vector>

#include "core/M_Funcions_Comuns.h"
#include "core/controls/Focus_Camps.h"
#include "core/controls/Refus.h"
#include "core/formularis/Formulari.h"
#include "core/formularis/Formularis_Oberts.h"
#include "session/Canvi_Idioma.h"
#include "session/M_Empresa.h"
#include "session/M_Usuaris.h"
#include "shell/Aplicacio.h"
#include "shell/F_Cerca.h"
#include "shell/F_Principal.h"
#include "shell/Imprimir_Formulari.h"

namespace {

void Canviar_Usuari() {
  if (!Descarregar_Tots()) return;
  Habilitar_Menus(false);
  Mostrar_Formulari(QStringLiteral("F_SUBINICI"));
  Traduir_Formulari(QStringLiteral("F_SUBINICI"));
}

void Canviar_Empresa() {
  if (Descarregar_Tots()) Demanar_Empresa();
}

void Tancar_Del_Davant() {
  if (const Formulari* davant = F_Principal::Unica()->Del_Davant()) Descarregar_Formulari(davant->Nom());
}

void Imprimir_Del_Davant() {
  Imprimir_Formulari(F_Principal::Unica()->Del_Davant());
}

void Cercar_Al_Davant() {
  Obrir_Cerca(F_Principal::Unica()->Del_Davant());
}

// A language is no form's: the field in front is left first, and one that refuses what it holds keeps nobody from the
// change. What has been refused already is not refused again.
void Deixar_El_Camp_Sense_Esperar() {
  const Formulari* davant = F_Principal::Unica()->Del_Davant();
  const QWidget* camp = davant == nullptr ? nullptr : davant->focusWidget();
  if (camp != nullptr && Refus_De(camp).isEmpty()) Deixar_El_Camp_De(davant);
}

// The click has ticked its entry already: whatever becomes of the change, the ticks tell the language of the session.
template <std::int16_t idioma>
void Parlar() {
  Deixar_El_Camp_Sense_Esperar();
  try {
    Canviar_Idioma(idioma);
  } catch (...) {
    Actualitzar_Menu_Sessio();
    throw;
  }
}

constexpr const char16_t* submenu = u"";  // in place of a form
constexpr const char16_t* ratlla = u"-";

// The screens of every day have a figure: documents in the order of their menu, then articles and who buys and sells.
const Entrada_Menu entrades[] = {
    {u"M_Mestres", nullptr, u"&Mestres", submenu},
    {u"M_Empresa", u"M_Mestres", u"&Empreses", u"F_EMPRESESM"},
    {u"M_Usuaris", u"M_Mestres", u"&Usuaris", u"F_USUARISM"},
    {u"M_Guio1", u"M_Mestres", ratlla},
    {u"M_Marques", u"M_Mestres", u"&Marques", u"F_MARQUESM"},
    {u"M_Families", u"M_Mestres", u"&Famílies", u"F_FAMILIESM"},
    {u"M_Subfamilies", u"M_Mestres", u"Su&bFamílies", u"F_SUBFAMILIESM"},
    {u"M_Articles_C", u"M_Mestres", u"&Articles", u"F_ARTICLESSELC", nullptr, "Ctrl+8"},
    {u"M_Guio2", u"M_Mestres", ratlla},
    {u"M_Magatzems", u"M_Mestres", u"Ma&gatzems", u"F_MAGATZEMSM"},
    {u"M_Stocks", u"M_Mestres", u"E&xistències", u"F_STOCKSM"},
    {u"M_Moviments", u"M_Mestres", u"M&oviments", u"F_MOVIMENTSS"},
    {u"M_Guio3", u"M_Mestres", ratlla},
    {u"M_Clients", u"M_Mestres", u"&Clients", u"F_CLIENTSM", nullptr, "Ctrl+9"},
    {u"M_Proveidors", u"M_Mestres", u"&Proveïdors", u"F_PROVEIDORSM", nullptr, "Ctrl+0"},
    {u"M_Guio4", u"M_Mestres", ratlla},
    {u"M_CP", u"M_Mestres", u"Codis Pos&tals", u"F_CPM"},
    {u"M_IVA", u"M_Mestres", u"Tipus d'&IVA", u"F_IVASM"},
    {u"M_FormesPagament", u"M_Mestres", u"Formes &de Pagament", u"F_FORMESPAGAMENTM"},
    {u"M_Venciments", u"M_Mestres", u"&Venciments", u"F_VENCIMENTSM"},
    {u"M_Guio5", u"M_Mestres", ratlla},
    {u"M_Exit", u"M_Mestres", u"&Sortir", nullptr, [] { Acabar_Aplicacio(); }, "Ctrl+Q"},
    {u"M_Gestio", nullptr, u"&Gestió", submenu},
    {u"M_Pressupostos", u"M_Gestio", u"&Pressupostos", u"F_PRESSUPOSTOSS", nullptr, "Ctrl+1"},
    {u"M_Comandes", u"M_Gestio", u"&Comandes", u"F_COMANDESS", nullptr, "Ctrl+2"},
    {u"M_Albarans", u"M_Gestio", u"&Albarans", u"F_ALBARANSS", nullptr, "Ctrl+3"},
    {u"M_Factures", u"M_Gestio", u"&Factures", u"F_FACTURESS", nullptr, "Ctrl+4"},
    {u"M_Guio6", u"M_Gestio", ratlla},
    {u"M_AlbMag", u"M_Gestio", u"Albarans entre &magatzems", u"F_ALBMAGS", nullptr, "Ctrl+5"},
    {u"M_Compres", u"M_Gestio", u"Alba&rans de Compres", u"F_ALBCOMPRESS", nullptr, "Ctrl+6"},
    {u"M_Guio7", u"M_Gestio", ratlla},
    {u"M_Cartera", u"M_Gestio", u"Car&tera", u"F_PAGAMENTSS", nullptr, "Ctrl+7"},
    {u"M_Forms", nullptr, u"&Formularis", submenu},
    {u"M_PrintScreen", u"M_Forms", u"&Imprimir Formulari", nullptr, Imprimir_Del_Davant, "Ctrl+P"},
    {u"M_CloseForm", u"M_Forms", u"&Tancar Formulari", nullptr, Tancar_Del_Davant, "Ctrl+W"},
    {u"M_Guio8", u"M_Forms", ratlla},
    {u"M_Search", u"M_Forms", u"&Cercar", nullptr, Cercar_Al_Davant, "Ctrl+F"},
    {u"M_Languages", nullptr, u"&Idiomes", submenu},
    {u"M_Catalan", u"M_Languages", u"&Català", nullptr, Parlar<0>, "", true},
    {u"M_Spanish", u"M_Languages", u"C&astellà", nullptr, Parlar<1>, "", true},
    {u"M_English", u"M_Languages", u"A&nglès", nullptr, Parlar<2>, "", true},
    {u"M_Windows", nullptr, u"Fi&nestres", submenu},
    {u"M_Help", nullptr, u"&Ajuda", u"F_HELP", nullptr, "F1"},
    {u"M_CanviUsuari", nullptr, u"Canviar d'&usuari", nullptr, Canviar_Usuari},
    {u"M_Sel_Empresa", nullptr, u"Canviar d'&Empresa", nullptr, Canviar_Empresa},
    {u"M_COPIA", nullptr, u"&Còpia"},
};

// What opens a form, or works on the one in front, waits for a field that refuses what it holds. Closing leaves the
// field by itself.
bool Espera_El_Camp(const Entrada_Menu& entrada) {
  return entrada.formulari != nullptr || entrada.accio == Imprimir_Del_Davant || entrada.accio == Cercar_Al_Davant;
}

QString Paraules(const char* catala, const char* castella, const char* angles) {
  return QString::fromStdString(Missatge(catala, castella, angles));
}

}  // namespace

std::span<const Entrada_Menu> Entrades_De_Menu() {
  return entrades;
}

bool Es_Submenu(const Entrada_Menu& entrada) {
  return entrada.formulari == submenu;
}

bool Es_Ratlla(const Entrada_Menu& entrada) {
  return entrada.titol == ratlla;
}

bool Te_Feina(const Entrada_Menu& entrada) {
  if (entrada.accio != nullptr || Es_Submenu(entrada)) return true;
  return entrada.formulari != nullptr && Hi_Ha_Fabrica(QString::fromUtf16(entrada.formulari));
}

void Fer(const Entrada_Menu& entrada) {
  if (Espera_El_Camp(entrada) && !Deixar_El_Camp_De(F_Principal::Unica()->Del_Davant())) return;
  if (entrada.accio == nullptr) return Obrir(QString::fromUtf16(entrada.formulari));
  Formulari::Guardar_Event(entrada.accio);
}

std::vector<Tecla_General> Tecles_Generals() {
  return {
      {"F10", Paraules("El menú", "El menú", "The menu")},
      {"Enter", Paraules("El camp següent; en una llista, obre la fila",
                         "El campo siguiente; en una lista, abre la fila", "The next field; in a list, opens the row")},
      {"Esc", Paraules("Torna el camp a com estava", "Devuelve el campo a como estaba", "The field as it was")},
      {"F4", Paraules("La llista del camp", "La lista del campo", "The list of the field")},
      {"F2", Paraules("Edita la cel·la", "Edita la celda", "Edits the cell")},
      {"Ctrl+Shift+Up", Paraules("Puja la línia del document", "Sube la línea del documento", "The line one place up")},
      {"Ctrl+Shift+Down",
       Paraules("Baixa la línia del document", "Baja la línea del documento", "The line one place down")},
      {"Ctrl+C", Paraules("Copia les files triades", "Copia las filas elegidas", "Copies the selected rows")},
      {"Ctrl+Shift+C", Paraules("Copia la cel·la", "Copia la celda", "Copies the cell")},
  };
}
