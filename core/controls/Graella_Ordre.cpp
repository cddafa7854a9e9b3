#include <QHeaderView>

#include "core/controls/Fila_Recordada.h"
#include "core/controls/Graella.h"
#include "core/controls/Model_Recordset.h"
#include "core/dades/Dialecte.h"

namespace {

struct Ordre_De_Files {
  QString camp;  // empty: none
  Qt::SortOrder sentit = Qt::AscendingOrder;
};

// What a statement is ordered by in the first place.
Ordre_De_Files Ordre_De(const std::string& sentencia) {
  constexpr QStringView mots = u"ORDER BY";
  const QString ordre = QString::fromStdString(sentencia.substr(Sense_Ordre(sentencia).size())).simplified();
  if (!ordre.startsWith(mots, Qt::CaseInsensitive)) return {};
  const QStringList primer = ordre.mid(mots.size()).section(u',', 0, 0).split(u' ', Qt::SkipEmptyParts);
  const bool descendent = primer.value(1).compare(QLatin1String("DESC"), Qt::CaseInsensitive) == 0;
  return {primer.value(0).section(u'.', -1), descendent ? Qt::DescendingOrder : Qt::AscendingOrder};
}

}  // namespace

void Graella::Ordenar_Per(const QString& camp) {
  Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State() || !Desar_Fila()) return;
  const Fila_Recordada fila(*rs);
  rs->Reopen(Sense_Ordre(rs->Source()) + " ORDER BY " + camp.toStdString());
  fila.Tornar_Hi();
  Lligar(rs);
}

void Graella::Permetre_Ordre(bool permes) {
  horizontalHeader()->setSectionsClickable(permes);
  horizontalHeader()->setSortIndicatorShown(permes);
}

int Graella::Columna_De_L_Ordre() const {
  const Recordset* rs = model_->Lligat();
  if (rs == nullptr || !rs->State()) return -1;
  const int columna = model_->Columna_De(Ordre_De(rs->Source()).camp);
  return columna < 0 || isColumnHidden(columna) ? -1 : columna;
}

void Graella::Mostrar_Ordre() {
  const int columna = Columna_De_L_Ordre();
  horizontalHeader()->setSortIndicator(columna,
                                       columna < 0 ? Qt::AscendingOrder : Ordre_De(model_->Lligat()->Source()).sentit);
}
