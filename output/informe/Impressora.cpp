#include "output/informe/Impressora.h"

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

void Enviar_A_Impressora(const Pagines& pagines, QPrinter& impressora) {
  const int darrera = static_cast<int>(pagines.pagines.size()) - 1;
  const bool tram = impressora.printRange() == QPrinter::PageRange && impressora.fromPage() > 0;
  const int ultima = tram ? std::min(impressora.toPage() - 1, darrera) : darrera;
  const int primera = tram ? std::min(impressora.fromPage() - 1, ultima) : 0;
  if (!Pintar_A(impressora, pagines, primera, ultima)) Llancar_No_Escrit(impressora.printerName());
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
