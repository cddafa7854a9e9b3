#include "output/informe/Ordres_Previa.h"

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Text_Qt.h"

QString Ordre_Previa::Text() const {
  return Text_Qt(Missatge(paraula[0], paraula[1], paraula[2]));
}

QString Ordre_Previa::Ajuda() const {
  return Text() + QStringLiteral(" (") + tecles.constFirst().toString(QKeySequence::NativeText) + u')';
}

std::span<const Ordre_Previa> Ordres_De_La_Previa() {
  using enum Que_Fa;
  static const Ordre_Previa ordres[] = {
      {.que = Imprimir,
       .nom = "B_IMPRIMIR",
       .paraula = {"Imprimir", "Imprimir", "Print"},
       .tecles = {Qt::CTRL | Qt::Key_P},
       .dibuix = Dibuix::Imprimir,
       .amb_text = true},
      {.que = Desar,
       .nom = "B_PDF",
       .paraula = {"Desar com a PDF", "Guardar como PDF", "Save as PDF"},
       .tecles = {Qt::CTRL | Qt::Key_S},
       .dibuix = Dibuix::Desar,
       .amb_text = true,
       .acaba_grup = true},
      {.que = Primera_Pagina,
       .nom = "B_PRIMERA",
       .paraula = {"Primera pàgina", "Primera página", "First page"},
       .tecles = {Qt::Key_Home, Qt::CTRL | Qt::Key_Home},
       .dibuix = Dibuix::Primera},
      {.que = Pagina_Anterior,
       .nom = "B_ANTERIOR",
       .paraula = {"Pàgina anterior", "Página anterior", "Previous page"},
       .tecles = {Qt::Key_PageUp},
       .dibuix = Dibuix::Anterior},
      {.que = Pagina_Seguent,
       .nom = "B_SEGUENT",
       .paraula = {"Pàgina següent", "Página siguiente", "Next page"},
       .tecles = {Qt::Key_PageDown},
       .dibuix = Dibuix::Seguent},
      {.que = Darrera_Pagina,
       .nom = "B_DARRERA",
       .paraula = {"Darrera pàgina", "Última página", "Last page"},
       .tecles = {Qt::Key_End, Qt::CTRL | Qt::Key_End},
       .dibuix = Dibuix::Darrera,
       .acaba_grup = true},
      {.que = Reduir,
       .nom = "B_REDUIR",
       .paraula = {"Més petit", "Más pequeño", "Smaller"},
       .tecles = {Qt::CTRL | Qt::Key_Minus},
       .dibuix = Dibuix::Reduir},
      {.que = Ampliar,
       .nom = "B_AMPLIAR",
       .paraula = {"Més gran", "Más grande", "Larger"},
       .tecles = {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
       .dibuix = Dibuix::Ampliar},
      {.que = Mida_Real,
       .nom = "B_MIDA_REAL",
       .paraula = {"Mida del paper, 100 %", "Tamaño del papel, 100 %", "Size of the paper, 100 %"},
       .tecles = {Qt::CTRL | Qt::Key_0},
       .dibuix = Dibuix::Mida_Real},
      {.que = Amplada,
       .nom = "B_AMPLADA",
       .paraula = {"Tota l'amplada", "Todo el ancho", "Fit to width"},
       .tecles = {Qt::CTRL | Qt::Key_1},
       .dibuix = Dibuix::Amplada,
       .es_mode = true},
      {.que = Pagina_Sencera,
       .nom = "B_PAGINA_SENCERA",
       .paraula = {"Pàgina sencera", "Página entera", "Whole page"},
       .tecles = {Qt::CTRL | Qt::Key_2},
       .dibuix = Dibuix::Tot_El_Full,
       .es_mode = true,
       .acaba_grup = true},
      {.que = Tancar,
       .nom = "B_EXIT",
       .paraula = {"Tancar", "Cerrar", "Close"},
       .tecles = {Qt::Key_Escape},
       .dibuix = Dibuix::Sortir,
       .amb_text = true},
  };
  return ordres;
}
