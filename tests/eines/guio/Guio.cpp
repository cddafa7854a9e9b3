#include "tests/eines/guio/Guio.h"

#include <QFile>
#include <algorithm>

#include "tests/eines/guio/Lector.h"
#include "tests/eines/guio/Llegir_Expect.h"

namespace {

enum class Final { Cap, Text, Text_O_Res };

// What follows a command: some words, and a last argument that runs to the end of the line.
struct Forma {
  const char* ordre;
  std::vector<const char*> mots;
  Final final;
  const char* nom_final;
  bool de_terminal;
  QStringList valors = {};  // that the last argument may have; empty: any
};

const std::vector<Forma>& Formes() {
  static const std::vector<Forma> formes = {
      {"data", {}, Final::Text, "FILE", false},
      {"parameter", {"NAME"}, Final::Text_O_Res, "VALUE", false},
      {"ini", {}, Final::Text_O_Res, "TEXT", false},
      {"today", {}, Final::Text, "DD/MM/YYYY", false},
      {"start", {}, Final::Cap, "", false},
      {"login", {"USER"}, Final::Text_O_Res, "PASSWORD", true},
      {"company", {}, Final::Text, "NIF", true},
      {"answer", {}, Final::Text, "OK|Cancel|Yes|No", true, {"OK", "Cancel", "Yes", "No"}},
      {"menu", {}, Final::Text, "ENTRY", true},
      {"focus", {}, Final::Text, "FORM.CONTROL", true},
      {"type", {"FORM.CONTROL"}, Final::Text_O_Res, "TEXT", true},
      {"enter", {"FORM.CONTROL"}, Final::Text_O_Res, "TEXT", true},
      {"key", {}, Final::Text, "NAME", true},
      {"press", {}, Final::Text, "FORM.BUTTON", true},
      {"check", {"FORM.BOX"}, Final::Text, "on|off", true, {"on", "off"}},
      {"option", {"FORM.OPT"}, Final::Text, "N", true},
      {"tab", {"FORM.SST"}, Final::Text, "N", true},
      {"pick", {"FORM.COMBO"}, Final::Text, "TEXT", true},
      {"date", {"FORM.PICKER"}, Final::Text, "DD/MM/YYYY|none", true},
      {"row", {"FORM.GRID"}, Final::Text, "N", true},
      {"rows", {"FORM.GRID"}, Final::Text, "N", true},
      {"doubleclick", {"FORM.GRID"}, Final::Text, "N", true},
      {"header", {"FORM.GRID"}, Final::Text, "FIELD", true},
      {"cell", {"FORM.GRID", "N", "FIELD"}, Final::Text_O_Res, "TEXT", true},
      {"leave_row", {}, Final::Text, "FORM.GRID", true},
      {"close", {}, Final::Text, "FORM", true},
      {"picture", {}, Final::Text, "NAME.png", true},
      {"terminal", {}, Final::Text, "N", false},
      {"kill", {}, Final::Cap, "", false},
      {"folder", {"Temp"}, Final::Text, "missing", false, {"missing"}},
      {"server", {}, Final::Text, "away|back|cut", false, {"away", "back", "cut"}},
  };
  return formes;
}

void Comprovar_Valor(const Forma& forma, const QString& valor) {
  if (!forma.valors.isEmpty() && !forma.valors.contains(valor))
    throw Error_Guio(QStringLiteral("%1 is none of %2").arg(valor, forma.valors.join(u'|')));
}

Ordre Llegir_Amb_Forma(const Forma& forma, Lector& lector) {
  Ordre ordre;
  ordre.mots << QString::fromUtf8(forma.ordre);
  ordre.de_terminal = forma.de_terminal;
  for (const char* nom : forma.mots) ordre.mots << lector.Mot(nom);
  if (forma.final == Final::Cap) {
    lector.Final();
    return ordre;
  }
  if (forma.final == Final::Text && lector.Buit())
    throw Error_Guio(QStringLiteral("%1 is missing").arg(QString::fromUtf8(forma.nom_final)));
  ordre.mots << lector.Resta();
  Comprovar_Valor(forma, ordre.mots.last());
  return ordre;
}

// What the next print dialog is answered: as many copies, none at all; or that the script goes on in its window.
QStringList Llegir_Resposta_Impressio(Lector& lector) {
  const QString que = lector.Mot("OK|Cancel|window|copies N");
  if (que != QLatin1String("copies")) {
    lector.Final();
    if (que == QLatin1String("OK")) return {QStringLiteral("answer_print"), QStringLiteral("1")};
    if (que == QLatin1String("Cancel")) return {QStringLiteral("answer_print"), QStringLiteral("0")};
    if (que == QLatin1String("window")) return {QStringLiteral("answer_print"), QStringLiteral("-1")};
    throw Error_Guio(QStringLiteral("%1 is none of OK|Cancel|window|copies N").arg(que));
  }
  const QString quantes = lector.Resta();
  if (quantes.toInt() < 1) throw Error_Guio(QStringLiteral("%1 is no number of copies").arg(quantes));
  return {QStringLiteral("answer_print"), quantes};
}

// Two commands for two terminals, on one line.
Ordre Llegir_Together(Lector& lector) {
  const QString totes = lector.Resta_Tal_Qual();
  const qsizetype punt = Primer_Fora_De_Cometes(totes, QStringLiteral(" ; "));
  if (punt < 0) throw Error_Guio(QStringLiteral("two commands with \" ; \" between them are wanted"));
  Ordre ordre;
  ordre.mots << QStringLiteral("together");
  for (const QString& part : {totes.left(punt), totes.mid(punt + 3)}) {
    ordre.juntes.push_back(Llegir_Ordre(part));
    if (!ordre.juntes.back().de_terminal)
      throw Error_Guio(QStringLiteral("%1 is no command of a terminal").arg(ordre.juntes.back().mots.first()));
  }
  return ordre;
}

bool Comprova_Res(const Ordre& ordre) {
  return ordre.Es_Comprovacio() || std::any_of(ordre.juntes.begin(), ordre.juntes.end(), Comprova_Res);
}

QStringList Linies(const QString& fitxer) {
  QFile entrada(fitxer);
  if (!entrada.open(QIODevice::ReadOnly)) throw Error_Guio(entrada.errorString(), 1);
  QString text = QString::fromUtf8(entrada.readAll());
  text.remove(QChar::ByteOrderMark);
  return text.split(u'\n');
}

}  // namespace

QStringList Llegir_Sentencia(const QString& linia) {
  Lector lector(linia);
  const QString base = lector.Mot("shared|local");
  if (base != QLatin1String("shared") && base != QLatin1String("local"))
    throw Error_Guio(QStringLiteral("%1 is none of shared|local").arg(base));
  if (lector.Buit()) throw Error_Guio(QStringLiteral("STATEMENT is missing"));
  return {base, lector.Resta()};
}

Ordre Llegir_Ordre(const QString& linia) {
  Lector lector(linia);
  const QString nom = lector.Mot("COMMAND");
  Ordre ordre;
  if (nom == QLatin1String("expect")) {
    ordre = Llegir_Expect(lector);
  } else if (nom == QLatin1String("together")) {
    ordre = Llegir_Together(lector);
  } else if (nom == QLatin1String("answer") && lector.Treure(QStringLiteral("print"))) {
    ordre.mots = Llegir_Resposta_Impressio(lector);
    ordre.de_terminal = true;
  } else if (nom == QLatin1String("run")) {
    ordre.mots = QStringList{nom} + Llegir_Sentencia(lector.Resta_Tal_Qual());
  } else {
    const auto& formes = Formes();
    const auto forma =
        std::find_if(formes.begin(), formes.end(), [&](const Forma& f) { return nom == QLatin1String(f.ordre); });
    if (forma == formes.end()) throw Error_Guio(QStringLiteral("there is no such command"));
    ordre = Llegir_Amb_Forma(*forma, lector);
  }
  ordre.text = linia.trimmed();
  return ordre;
}

Guio Llegir_Guio(const QString& fitxer) {
  Guio guio{fitxer, {}};
  QStringList comentaris;
  int numero = 0;
  for (const QString& linia : Linies(fitxer)) {
    ++numero;
    if (linia.startsWith(u'#')) comentaris << linia.mid(1).trimmed();
    if (linia.trimmed().isEmpty() || linia.startsWith(u'#')) continue;
    try {
      guio.ordres.push_back(Llegir_Ordre(linia));
      guio.ordres.back().linia = numero;
      guio.ordres.back().comentaris = std::exchange(comentaris, {});
    } catch (const Error_Guio& error) {
      throw Error_Guio(QStringLiteral("%1: %2").arg(linia.trimmed(), error.Text()), numero);
    }
  }
  if (std::none_of(guio.ordres.begin(), guio.ordres.end(), Comprova_Res))
    throw Error_Guio(QStringLiteral("end of the script: it checks nothing, there is no expect"),
                     guio.ordres.empty() ? 1 : guio.ordres.back().linia);
  return guio;
}
