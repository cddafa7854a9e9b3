#include "tests/eines/guio/Llegir_Expect.h"

#include "tests/eines/guio/Lector.h"

namespace {

const QStringList estats_formulari = {"open", "closed", "enabled", "disabled"};
const QStringList estats_control = {"enabled", "disabled", "visible", "hidden", "focused", "selected"};
const QStringList estats_cella = {"readonly", "editable"};
const QStringList estats_menu = {"enabled", "disabled", "hidden", "checked", "unchecked"};

QString Un_De(const QString& mot, const QStringList& valors) {
  if (!valors.contains(mot)) throw Error_Guio(QStringLiteral("%1 is none of %2").arg(mot, valors.join(u'|')));
  return mot;
}

QString Numero(const QString& mot) {
  bool be = false;
  mot.toLongLong(&be);
  if (!be) throw Error_Guio(QStringLiteral("%1 is no number").arg(mot));
  return mot;
}

// The last argument, which must be there.
QString Text(Lector& lector, const char* nom) {
  if (lector.Buit()) throw Error_Guio(QStringLiteral("%1 is missing").arg(QString::fromUtf8(nom)));
  return lector.Resta();
}

// `= TEXT`, whose text may be empty.
QString Igual(Lector& lector) {
  if (!lector.Treure(QStringLiteral("="))) throw Error_Guio(QStringLiteral("\"=\" is missing"));
  return lector.Resta();
}

QStringList Missatge(Lector& lector) {
  const QString que = Un_De(lector.Mot("=|~|title|style"), {"=", "~", "title", "style"});
  if (que == QLatin1String("title")) return {que, Igual(lector)};
  if (que == QLatin1String("style")) return {que, Numero(Igual(lector))};
  return {que, que == QLatin1String("~") ? Text(lector, "PART") : lector.Resta()};
}

// The statement may hold "=" itself: what is expected stands behind the last one.
QStringList Base_De_Dades(Lector& lector) {
  const bool files = lector.Treure(QStringLiteral("rows"));
  const QString tot = lector.Resta_Tal_Qual() + u' ';
  const QString igual = QStringLiteral(" = ");
  const qsizetype on = Ultim_Fora_De_Cometes(tot, igual);
  if (on < 0) throw Error_Guio(QStringLiteral("\"=\" and what is expected are missing"));
  const QString sentencia = tot.left(on).trimmed();
  const QString esperat = tot.mid(on + igual.size()).trimmed();
  if (sentencia.isEmpty()) throw Error_Guio(QStringLiteral("SELECT is missing"));
  return {files ? QStringLiteral("rows") : QStringLiteral("value"), Entre_Cometes(sentencia).value_or(sentencia),
          files ? Numero(esperat) : esperat};
}

QStringList Paper(Lector& lector) {
  const QString que = Un_De(lector.Mot("~|!~|pages"), {"~", "!~", "pages"});
  return {que, que == QLatin1String("pages") ? Numero(lector.Resta()) : Text(lector, "PART")};
}

// `TEXT = A | B`: the text may be of several words between quotes.
QStringList Fila_Impresa(Lector& lector) {
  const QString comenca = lector.Mot("TEXT");
  return {QStringLiteral("row"), comenca, Igual(lector)};
}

QStringList Impres(Lector& lector) {
  if (lector.Treure(QStringLiteral("nothing"))) {
    lector.Final();
    return {QStringLiteral("nothing")};
  }
  if (lector.Treure(QStringLiteral("jobs"))) return {QStringLiteral("jobs"), Numero(lector.Resta())};
  if (lector.Treure(QStringLiteral("row"))) return Fila_Impresa(lector);
  return Paper(lector);
}

QStringList Estat_O_Text(Lector& lector, const QStringList& estats) {
  if (lector.Treure(QStringLiteral("="))) return {QStringLiteral("="), lector.Resta()};
  return {QStringLiteral("state"), Un_De(Text(lector, "state"), estats)};
}

QStringList Formulari(Lector& lector) {
  if (lector.Treure(QStringLiteral("caption"))) return {QStringLiteral("caption"), Igual(lector)};
  return {QStringLiteral("state"), Un_De(Text(lector, "state"), estats_formulari)};
}

QStringList Fila_Graella(Lector& lector) {
  const QString fila = lector.Mot("N");
  if (lector.Treure(QStringLiteral("style"))) return {fila, QStringLiteral("style"), Text(lector, "NAME")};
  const QString camp = lector.Mot("FIELD");
  for (const QString& estat : estats_cella) {
    if (!lector.Treure(estat)) continue;
    lector.Final();
    return {fila, camp, estat};
  }
  return {fila, camp, QStringLiteral("="), Igual(lector)};
}

Ordre Mirar(const QStringList& mots, bool de_terminal) {
  Ordre ordre;
  ordre.mots = QStringList{"expect"} + mots;
  ordre.de_terminal = de_terminal;
  return ordre;
}

// A control or a grid: what follows the address tells them apart.
Ordre Control(const QString& adreca, Lector& lector) {
  Lector copia = lector;
  const QString mot = copia.Mot("what is expected");
  if (mot == QLatin1String("rows")) return Mirar({"grid", adreca, "rows", Numero(copia.Resta())}, true);
  if (mot == QLatin1String("columns")) return Mirar({"grid", adreca, "columns", Igual(copia)}, true);
  if (!mot.isEmpty() && mot[0].isDigit()) {
    Numero(mot);
    return Mirar(QStringList{"grid", adreca} + Fila_Graella(lector), true);
  }
  return Mirar(QStringList{"control", adreca} + Estat_O_Text(lector, estats_control), true);
}

// What is looked at by the first word, when it is neither a form nor a control.
struct Mirada {
  const char* mot;
  bool de_terminal;
  QStringList (*llegir)(Lector&);
};

const Mirada mirades[] = {
    {"message", false, Missatge},
    {"shared", false, Base_De_Dades},
    {"local", false, Base_De_Dades},
    {"file", false,
     [](Lector& l) {
       const QString nom = l.Mot("NAME");
       return QStringList{nom, Un_De(Text(l, "exists|missing"), {"exists", "missing"})};
     }},
    {"pdf", false,
     [](Lector& l) {
       const QString nom = l.Mot("NAME");
       return QStringList{nom} + Paper(l);
     }},
    {"printed", false, Impres},
    {"mail", false,
     [](Lector& l) {
       const QString a = l.Mot("TO");
       return QStringList{a, Text(l, "FILE")};
     }},
    {"sheet", false,
     [](Lector& l) {
       const QString cella = l.Mot("CELL");
       return QStringList{cella, Igual(l)};
     }},
    {"shown", true,
     [](Lector& l) {
       const QString etiqueta = l.Mot("FORM.LABEL");
       Un_De(l.Mot("~"), {"~"});
       return QStringList{etiqueta, Text(l, "PART")};
     }},
    {"clipboard", true, [](Lector& l) { return QStringList{Igual(l)}; }},
    {"menu", true,
     [](Lector& l) {
       const QString entrada = l.Mot("ENTRY");
       return QStringList{entrada} + Estat_O_Text(l, estats_menu);
     }},
    {"ended", false,
     [](Lector& l) {
       l.Final();
       return QStringList{};
     }},
};

}  // namespace

Ordre Llegir_Expect(Lector& lector) {
  const QString mot = lector.Mot("what is expected");
  if (mot == QLatin1String("no")) {
    if (!lector.Treure(QStringLiteral("message"))) throw Error_Guio(QStringLiteral("\"message\" is missing"));
    lector.Final();
    return Mirar({"no_message"}, false);
  }
  for (const Mirada& mirada : mirades) {
    if (mot != QLatin1String(mirada.mot)) continue;
    return Mirar(QStringList{mot} + mirada.llegir(lector), mirada.de_terminal);
  }
  if (mot.contains(u'.')) return Control(mot, lector);
  return Mirar(QStringList{"form", mot} + Formulari(lector), true);
}
