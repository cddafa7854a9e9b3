#include "tests/eines/guio/Execucio.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstdio>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Dates.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Numeros.h"
#include "tests/eines/guio/Comparar.h"

namespace {

QString Text_Error(const Error_Brollador& error) {
  return QStringLiteral("%1 - %2").arg(error.Numero()).arg(QString::fromStdString(error.Descripcio()));
}

void Exigir(const Desacord& desacord) {
  if (desacord) throw Error_Guio(*desacord);
}

}  // namespace

Execucio::Execucio(const Guio& guio, const Opcions_Execucio& opcions)
    : guio_(guio), opcions_(opcions), installacio_(opcions.base, opcions.guardar) {}

int Execucio::Executar() {
  Deixar_Anar_Rellotge();
  for (const Ordre& ordre : guio_.ordres) {
    try {
      Executar(ordre);
    } catch (const Error_Brollador& error) {
      throw Error_Guio(QStringLiteral("%1: %2").arg(ordre.text, Text_Error(error)), ordre.linia);
    } catch (const Error_Guio& error) {
      throw Error_Guio(QStringLiteral("%1: %2").arg(ordre.text, error.Text()), ordre.linia);
    }
  }
  return comprovacions_;
}

void Execucio::Executar(const Ordre& ordre) {
  if (opcions_.explicar) {
    for (const QString& comentari : ordre.comentaris) std::printf("%s\n", qUtf8Printable(comentari));
    std::fflush(stdout);
  }
  if (!ordre.juntes.empty()) {
    Executar_Juntes(ordre);
  } else if (ordre.de_terminal) {
    Enviar_I_Esperar(ordre);
  } else {
    Executar_Aqui(ordre);
  }
  if (ordre.Es_Comprovacio()) ++comprovacions_;
}

void Execucio::Executar_Aqui(const Ordre& ordre) {
  static const std::map<QString, void (Execucio::*)(const QStringList&)> rutines = {
      {"run", &Execucio::Run},
      {"data", &Execucio::Data},
      {"parameter", &Execucio::Parameter},
      {"ini", &Execucio::Ini},
      {"today", &Execucio::Today},
      {"start", &Execucio::Start},
      {"terminal", &Execucio::Canviar_Terminal},
      {"kill", &Execucio::Kill},
      {"server", &Execucio::Servidor},
      {"folder", &Execucio::Folder},
      {"expect", &Execucio::Comprovar},
  };
  (this->*rutines.at(ordre.mots.first()))(ordre.mots);
}

Terminal& Execucio::Actual() {
  return installacio_.De_Numero(terminal_);
}

Terminal& Execucio::En_Marxa(int numero) {
  Terminal& terminal = installacio_.De_Numero(numero);
  if (terminal.Engegat()) return terminal;
  terminal.Engegar();
  if (!avui_.isEmpty()) {
    terminal.Enviar({QStringLiteral("today"), avui_});
    terminal.Esperar();
  }
  return terminal;
}

// Where a picture goes is known here, and not to the terminal.
QStringList Execucio::Mots_Per_Terminal(const Ordre& ordre) const {
  if (ordre.mots.first() != QLatin1String("picture")) return ordre.mots;
  const QString carpeta = opcions_.imatges.isEmpty() ? Carpeta() : opcions_.imatges;
  return {ordre.mots.first(), QDir(carpeta).absoluteFilePath(ordre.mots.last())};
}

void Execucio::Enviar_I_Esperar(const Ordre& ordre) {
  static const QStringList abans_de_start = {"company", "answer", "answer_print"};
  // No form is open where no program runs.
  static const QStringList cap_programa = {"state", "closed"};
  if (!Actual().Engegat() && ordre.mots.mid(3) == cap_programa) return;
  Terminal& terminal = abans_de_start.contains(ordre.mots.first()) ? En_Marxa(terminal_) : Actual();
  terminal.Enviar(Mots_Per_Terminal(ordre));
  terminal.Esperar();
}

// Both are waited for, also when the first of them fails, so that no answer is left behind.
void Execucio::Executar_Juntes(const Ordre& ordre) {
  for (int i : {0, 1})
    installacio_.De_Numero(i + 1).Enviar(Mots_Per_Terminal(ordre.juntes[static_cast<std::size_t>(i)]));
  QStringList errors;
  for (int i : {0, 1}) {
    try {
      installacio_.De_Numero(i + 1).Esperar();
    } catch (const Error_Guio& error) {
      errors << QStringLiteral("terminal %1: %2").arg(i + 1).arg(error.Text());
    }
    if (ordre.juntes[static_cast<std::size_t>(i)].Es_Comprovacio()) ++comprovacions_;
  }
  if (!errors.isEmpty()) throw Error_Guio(errors.join(QStringLiteral("; ")));
}

Connexio& Execucio::Base(const QString& quina) {
  return quina == QLatin1String("shared") ? installacio_.Comuna() : installacio_.Local(terminal_);
}

void Execucio::Executar_Sentencia(const QString& base, const QString& sentencia) {
  Base(base).Execute(sentencia.toStdString());
}

void Execucio::Run(const QStringList& mots) {
  Executar_Sentencia(mots[1], mots[2]);
}

void Execucio::Data(const QStringList& mots) {
  const QString cami = QFileInfo(guio_.fitxer).dir().absoluteFilePath(mots[1]);
  QFile fitxer(cami);
  if (!fitxer.open(QIODevice::ReadOnly)) throw Error_Guio(QStringLiteral("%1: %2").arg(cami, fitxer.errorString()));
  int numero = 0;
  for (const QString& linia : QString::fromUtf8(fitxer.readAll()).split(u'\n')) {
    ++numero;
    if (linia.trimmed().isEmpty() || linia.startsWith(u'#')) continue;
    try {
      const QStringList sentencia = Llegir_Sentencia(linia);
      Executar_Sentencia(sentencia[0], sentencia[1]);
    } catch (const Error_Brollador& error) {
      throw Error_Guio(QStringLiteral("line %1: %2").arg(numero).arg(Text_Error(error)));
    } catch (const Error_Guio& error) {
      throw Error_Guio(QStringLiteral("line %1: %2").arg(numero).arg(error.Text()));
    }
  }
}

void Execucio::Parameter(const QStringList& mots) {
  installacio_.Local(terminal_).Execute("INSERT INTO CONFIGURACIO (Parametre, Valor) VALUES (" +
                                        Text_SQL(mots[1].toStdString()) + ", " + Text_SQL(mots[2].toStdString()) + ")");
}

void Execucio::Ini(const QStringList& mots) {
  QFile fitxer(Actual().Dades() + QStringLiteral("/Brollador.ini"));
  if (mots[1] == QLatin1String("missing")) {
    if (!fitxer.remove()) throw Error_Guio(fitxer.errorString());
    return;
  }
  QString text = mots[1];
  text.replace(QLatin1String("{shared}"), installacio_.Adreca_Comuna());
  if (!fitxer.open(QIODevice::WriteOnly) || fitxer.write(text.toUtf8()) < 0) throw Error_Guio(fitxer.errorString());
}

// The clock of the terminals, of this process's own statements and of the server.
void Execucio::Today(const QStringList& mots) {
  avui_ = mots[1];
  const auto dia = Data_De_Text(avui_.toStdString());
  if (!dia) throw Error_Guio(QStringLiteral("%1 is no date").arg(avui_));
  Fixar_Avui(*dia);
  if (Proves_Al_Servidor()) installacio_.Al_Servidor().Fixar_Avui(Data_Desada(*dia));
  for (const auto& [numero, terminal] : installacio_.Terminals()) {
    if (!terminal->Engegat()) continue;
    terminal->Enviar(mots);
    terminal->Esperar();
  }
}

// Ends well at the login form, and at the start-up error box, behind which the program ends.
void Execucio::Start(const QStringList& mots) {
  Terminal& terminal = En_Marxa(terminal_);
  const std::size_t caixes = terminal.caixes.size();
  terminal.Enviar(mots);
  terminal.Esperar();
  if (!terminal.Engegat() && terminal.caixes.size() == caixes)
    throw Error_Guio(QStringLiteral("the program ended without a word"));
}

void Execucio::Canviar_Terminal(const QStringList& mots) {
  bool be = false;
  const int numero = mots[1].toInt(&be);
  if (!be || numero < 1) throw Error_Guio(QStringLiteral("%1 is no terminal").arg(mots[1]));
  terminal_ = numero;
  Actual();
}

void Execucio::Kill(const QStringList&) {
  if (!Actual().Engegat()) throw Error_Guio(QStringLiteral("the terminal is not running"));
  Actual().Matar();
}

void Execucio::Servidor(const QStringList& mots) {
  const Base_Servidor& base = installacio_.Al_Servidor();
  if (mots[1] == QLatin1String("away")) return base.Marxar();
  if (mots[1] == QLatin1String("back")) return base.Tornar();
  base.Tallar();
}

void Execucio::Folder(const QStringList&) {
  QDir carpeta(Actual().Temporals());
  if (carpeta.exists() && !carpeta.removeRecursively())
    throw Error_Guio(QStringLiteral("%1 cannot be removed").arg(carpeta.path()));
}

void Execucio::Comprovar(const QStringList& mots) {
  static const std::map<QString, void (Execucio::*)(const QStringList&)> rutines = {
      {"message", &Execucio::Comprovar_Missatge}, {"no_message", &Execucio::Comprovar_Cap_Missatge},
      {"shared", &Execucio::Comprovar_Base},      {"local", &Execucio::Comprovar_Base},
      {"file", &Execucio::Comprovar_Fitxer},      {"pdf", &Execucio::Comprovar_PDF},
      {"printed", &Execucio::Comprovar_Impres},   {"mail", &Execucio::Comprovar_Correu},
      {"sheet", &Execucio::Comprovar_Full},       {"ended", &Execucio::Comprovar_Acabat},
  };
  (this->*rutines.at(mots[1]))(mots.mid(1));
}

void Execucio::Comprovar_Missatge(const QStringList& mots) {
  if (mots[1] == QLatin1String("title") || mots[1] == QLatin1String("style")) {
    const auto ultima = ultimes_.find(terminal_);
    if (ultima == ultimes_.end()) throw Error_Guio(QStringLiteral("no message has been checked off"));
    const QString vist =
        mots[1] == QLatin1String("title") ? ultima->second.titol : QString::number(ultima->second.estil);
    if (vist != mots[2]) throw Error_Guio(vist);
    return;
  }
  auto& caixes = Actual().caixes;
  if (caixes.empty()) throw Error_Guio(QStringLiteral("no message"));
  const QString text = caixes.front().text;
  if (mots[1] == QLatin1String("=") ? text != mots[2] : !text.contains(mots[2])) throw Error_Guio(text);
  ultimes_[terminal_] = caixes.front();
  caixes.pop_front();
}

void Execucio::Comprovar_Cap_Missatge(const QStringList&) {
  if (!Actual().caixes.empty()) throw Error_Guio(Actual().caixes.front().text);
}

void Execucio::Comprovar_Base(const QStringList& mots) {
  const Recordset rs(mots[2].toStdString(), Base(mots[0]));
  Exigir(mots[1] == QLatin1String("rows") ? Comparar_Files(rs, mots[3]) : Comparar_Primera_Fila(rs, mots[3]));
}

void Execucio::Comprovar_Fitxer(const QStringList& mots) {
  const bool hi_es = QFile::exists(Actual().Temporals() + mots[1]);
  if (hi_es != (mots[2] == QLatin1String("exists")))
    throw Error_Guio(hi_es ? QStringLiteral("exists") : QStringLiteral("missing"));
}

void Execucio::Comprovar_PDF(const QStringList& mots) {
  Exigir(Comparar_PDF(Actual().Temporals() + mots[1], mots[2], mots[3]));
}

void Execucio::Comprovar_Impres(const QStringList& mots) {
  const QDir carpeta(Actual().Impressions());
  const QStringList feines = carpeta.entryList(QDir::Files, QDir::Time);  // the newest first
  if (mots[1] == QLatin1String("nothing")) {
    if (!feines.isEmpty()) throw Error_Guio(QStringLiteral("%1 print jobs").arg(feines.size()));
    return;
  }
  if (mots[1] == QLatin1String("jobs")) {
    if (feines.size() != mots[2].toInt()) throw Error_Guio(QStringLiteral("%1 print jobs").arg(feines.size()));
    return;
  }
  if (feines.isEmpty()) throw Error_Guio(QStringLiteral("nothing was printed"));
  if (mots[1] == QLatin1String("row"))
    return Exigir(Comparar_Fila_De_PDF(carpeta.filePath(feines.first()), mots[2], mots[3]));
  Exigir(Comparar_PDF(carpeta.filePath(feines.first()), mots[1], mots[2]));
}

QStringList Execucio::Ultim_Obert(const QString& programa, const QString& final) {
  const QDir carpeta(Actual().Oberts());
  QStringList trobat;
  for (const QString& nom : carpeta.entryList(QDir::Files, QDir::Name)) {
    QFile fitxer(carpeta.filePath(nom));
    if (!fitxer.open(QIODevice::ReadOnly)) throw Error_Guio(fitxer.errorString());
    const QStringList linies = QString::fromUtf8(fitxer.readAll()).trimmed().split(u'\n');
    if (linies.first() == programa && linies.last().endsWith(final)) trobat = linies;
  }
  return trobat;
}

void Execucio::Comprovar_Correu(const QStringList& mots) {
  const QStringList arguments = Ultim_Obert(QStringLiteral("xdg-email"), {});
  if (arguments.isEmpty()) throw Error_Guio(QStringLiteral("no message was handed to the mail program"));
  const auto adjunt = [&](const QString& argument) { return argument == mots[2] || argument.endsWith(u'/' + mots[2]); };
  if (!arguments.contains(mots[1]) || std::none_of(arguments.begin(), arguments.end(), adjunt))
    throw Error_Guio(arguments.mid(1).join(u' '));
}

void Execucio::Comprovar_Full(const QStringList& mots) {
  const QStringList arguments = Ultim_Obert(QStringLiteral("xdg-open"), QStringLiteral(".xlsx"));
  if (arguments.isEmpty()) throw Error_Guio(QStringLiteral("no workbook was handed to the spreadsheet program"));
  Exigir(Comparar_Cella(arguments.last(), mots[1], mots[2]));
}

void Execucio::Comprovar_Acabat(const QStringList&) {
  if (!Actual().Acabat_Sol())
    throw Error_Guio(Actual().Engegat() ? QStringLiteral("the terminal is running")
                                        : QStringLiteral("the terminal did not end by itself"));
}
