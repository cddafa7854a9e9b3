#include "output/informe/Impressora.h"

#include <QPageRanges>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Text_Qt.h"
#include "output/informe/Aparell.h"
#include "output/informe/Informe.h"
#include "output/informe/Treballs.h"

Impressora_Recordada Impressora_Proposada(const QStringList& disponibles, const QString& per_defecto) {
  Impressora_Recordada proposada = Darrera_Impressora();
  if (!disponibles.contains(proposada.nom)) proposada.nom = per_defecto;
  return proposada;
}

void Preparar_Impressora(const Pagines& pagines, QPrinter& impressora) {
  impressora.setFullPage(true);
  impressora.setPageLayout(Full_A4(pagines));
  impressora.setDocName(pagines.titol);
}

std::vector<int> Pagines_Demanades(const Pagines& pagines, const QPrinter& impressora) {
  std::vector<int> demanades = Totes_Les_Pagines(pagines);
  const QPageRanges trams = impressora.pageRanges();
  if (impressora.printRange() == QPrinter::PageRange && !trams.isEmpty())
    std::erase_if(demanades, [&](int pagina) { return !trams.contains(pagina); });
  if (impressora.pageOrder() == QPrinter::LastPageFirst) std::reverse(demanades.begin(), demanades.end());
  return demanades;
}

void Enviar_A_Impressora(const Pagines& pagines, QPrinter& impressora) {
  if (!Pintar_A(impressora, pagines, Pagines_Demanades(pagines, impressora)))
    Llancar_No_Escrit(impressora.printerName());
}

QString Impressora_I_Copies() {
  const auto proposada =
      Impressora_Proposada(QPrinterInfo::availablePrinterNames(), QPrinterInfo::defaultPrinterName());
  if (proposada.nom.isEmpty()) return {};
  const QString copies = proposada.copies == 1
                             ? Text_Qt(Missatge("1 còpia", "1 copia", "1 copy"))
                             : Text_Qt(Missatge("%1 còpies", "%1 copias", "%1 copies")).arg(proposada.copies);
  return proposada.nom + QStringLiteral(", ") + copies;
}

bool Hi_Ha_Impressora() {
  return Treballs_A_Fitxers() || !QPrinterInfo::availablePrinterNames().isEmpty();
}

QString Motiu_Sense_Impressora() {
  return Text_Qt(Missatge("Aquest ordinador no té cap impressora", "Este ordenador no tiene ninguna impresora",
                          "This computer has no printer"));
}

bool Demanar_Impressora(const Pagines& pagines, QWidget* pare) {
  if (Treballs_A_Fitxers()) return Fer_Treball(pagines, Demanar_Copies_Treball());
  QPrinter impressora(QPrinter::HighResolution);
  const auto proposada =
      Impressora_Proposada(QPrinterInfo::availablePrinterNames(), QPrinterInfo::defaultPrinterName());
  if (!proposada.nom.isEmpty()) impressora.setPrinterName(proposada.nom);
  Preparar_Impressora(pagines, impressora);
  impressora.setCopyCount(proposada.copies);
  QPrintDialog dialeg(&impressora, pare);
  dialeg.setMinMax(1, static_cast<int>(pagines.pagines.size()));
  if (dialeg.exec() != QDialog::Accepted) return false;
  Enviar_A_Impressora(pagines, impressora);
  Recordar_Impressora({.nom = impressora.printerName(), .copies = impressora.copyCount()});
  return true;
}
