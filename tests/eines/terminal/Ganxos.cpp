#include "tests/eines/terminal/Ganxos.h"

#include <QCoreApplication>
#include <deque>

#include "core/Sessio.h"
#include "core/formularis/Pantalla_Qt.h"
#include "output/informe/Treballs.h"
#include "shell/Aplicacio.h"
#include "shell/F_Principal.h"
#include "tests/eines/guio/Error_Guio.h"
#include "tests/eines/terminal/Servidor.h"

namespace {

std::deque<Resposta> respostes;
std::deque<QString> empreses;
std::deque<int> copies;
bool engegat = false;

bool Te_Boto(int estil, Resposta resposta) {
  const bool si_no = (estil & 0x0F) == estil::si_no;
  return si_no == (resposta == Resposta::Si || resposta == Resposta::No);
}

// A question that the script did not foresee is declined, so that nothing is done behind its back.
Resposta Declinar(int estil) {
  return (estil & 0x0F) == estil::si_no ? Resposta::No : Resposta::Cancel;
}

Resposta Contestar(Servidor& servidor, const QString& text, int estil, const QString& titol) {
  servidor.Caixa(text, estil, titol);
  if ((estil & 0x0F) == estil::simple) return Resposta::Ok;
  if (respostes.empty()) {
    servidor.Fallar(QStringLiteral("nobody answers the question \"%1\"").arg(text));
    return Declinar(estil);
  }
  const Resposta resposta = respostes.front();
  respostes.pop_front();
  if (!Te_Boto(estil, resposta))
    servidor.Fallar(QStringLiteral("the question \"%1\" has no button for the answer").arg(text));
  return resposta;
}

std::string Triar(Servidor& servidor) {
  if (empreses.empty()) {
    servidor.Fallar(QStringLiteral("nobody answers the company chooser"));
    return {};
  }
  const QString nif = empreses.front();
  empreses.pop_front();
  return nif.toStdString();
}

// A print dialog that nobody foresaw prints.
int Imprimir() {
  if (copies.empty()) return 1;
  const int quantes = copies.front();
  copies.pop_front();
  return quantes;
}

}  // namespace

void Posar_Ganxos(Servidor& servidor) {
  Pantalla_Qt::Contestador = [&servidor](const QString& text, int estil, const QString& titol) {
    return Contestar(servidor, text, estil, titol);
  };
  Pantalla_Qt::Triador_Empresa = [&servidor](const std::string&, int) { return Triar(servidor); };
  Fixar_Copies_Treballs(Imprimir);
  Fixar_Carpeta_Treballs(qEnvironmentVariable("PROVA_IMPRESSIONS"));
}

void Encuar_Resposta(Resposta resposta) {
  respostes.push_back(resposta);
}
void Encuar_Copies(int quantes) {
  copies.push_back(quantes);
}
void Encuar_Empresa(const QString& nif) {
  empreses.push_back(nif);
}

void Engegar_Programa() {
  if (engegat) throw Error_Guio(QStringLiteral("the program is started already"));
  if (!Inici_Aplicacio()) return QCoreApplication::exit(EXIT_FAILURE);
  engegat = true;
  // A small display, whatever the platform says of its own.
  F_Principal::Unica()->showNormal();
  F_Principal::Unica()->resize(1366, 768);
  // All terminals of a script run on one computer under one user, which would make them the same terminal.
  sessio.Equip_Actual = "terminal " + QCoreApplication::arguments().value(1).toStdString() + "/prova";
}
