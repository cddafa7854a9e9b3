#include "output/informe/Files_Informe.h"

#include <cmath>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Numeros.h"

namespace {

// Sums of amounts are amounts again: what doubles add in their last digits is taken off.
double Com_A_Import(double suma) {
  constexpr int decimals = 5;
  constexpr double prou_petit = 1e9;  // larger ones have no such digits
  return std::abs(suma) < prou_petit ? Arrodonir(suma, decimals) : suma;
}

double Suma_De(const Font_Informe& files, const Control_Informe& control) {
  const int columna = Columna_De(files, control);
  double suma = 0;
  for (std::int64_t i = 0; i < files.Files(); ++i) {
    const Valor valor = files.Cella(i, columna);
    if (!valor.Es_Nul()) suma += valor.Doble();
  }
  return Com_A_Import(suma);
}

}  // namespace

int Columna_De(const Font_Informe& files, const Control_Informe& control) {
  const QString prefix = control.mena == Mena_Control::Suma ? QStringLiteral("SUMA_") : QStringLiteral("TXT_");
  return files.Columna(QString(control.nom).remove(prefix).toStdString());
}

QString Text_De_Camp(const Valor& valor, const std::string& mascara) {
  const bool nombre = valor.Es_Doble() || valor.Es_Enter();
  return QString::fromStdString(nombre && !mascara.empty() ? Format_Numero(valor.Doble(), mascara) : valor.Text());
}

std::vector<Estat_Control> Amb_Sumes(const Cos_Informe& cos) {
  auto estats = cos.informe.Controls();
  for (auto& estat : estats) {
    if (estat.control->mena != Mena_Control::Suma) continue;
    estat.text = Text_De_Camp(Suma_De(cos.files, *estat.control), estat.mascara);
  }
  return estats;
}
