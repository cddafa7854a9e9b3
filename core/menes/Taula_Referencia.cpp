#include "core/menes/Taula_Referencia.h"

#include <QMouseEvent>

#include "core/M_Funcions_Comuns.h"
#include "core/dades/Transaccio.h"
#include "core/formularis/Serveis.h"

Taula_Referencia::Taula_Referencia(const Descripcio_Referencia& descripcio)
    : Llista(QString::fromUtf16(descripcio.formulari)), descripcio_(descripcio) {
  Construir({descripcio.titol, descripcio.graella, nullptr, {descripcio.boto_esborrar, u"&Eliminar"}},
            descripcio.columnes);
  Graella* graella = Graella_Llista();
  graella->viewport()->installEventFilter(this);
  graella->Passos({.nova = [this](const char* camp) { Fila_Nova(rs_, camp); },
                   .per_desar = [this](const char* camp) { return Per_Desar(rs_, camp); },
                   .desada = [this] { Files_Canviades(); }});
}

// The codes of its columns come on the way of its rows: what is asked for in one transaction travels together.
void Taula_Referencia::Carregar() {
  if (descripcio_.desplegables.empty()) return Llista::Carregar();
  Transaccio viatge(Base());
  for (const Desplegable_Referencia& desplegable : descripcio_.desplegables) Base().Demanar(desplegable.sentencia);
  Llista::Carregar();
  for (const Desplegable_Referencia& desplegable : descripcio_.desplegables) Omplir(desplegable);
  viatge.Confirmar();
}

void Taula_Referencia::Omplir(const Desplegable_Referencia& desplegable) {
  const auto titol = [](const char* const(&paraules)[3]) {
    return QString::fromStdString(Missatge(paraules[0], paraules[1], paraules[2]));
  };
  std::vector<Opcio_Graella> opcions;
  for (Recordset rs(desplegable.sentencia, Base()); !rs.Eof(); rs.MoveNext())
    opcions.push_back({QString::fromStdString(rs[0].Text()), QString::fromStdString(rs[1].Text())});
  Graella_Llista()->Desplegable(QString::fromUtf8(desplegable.camp), opcions,
                                {titol(desplegable.titols_codi), titol(desplegable.titols_text)});
}

// The row in edit is written first; one that is refused is given up, since nobody is kept in a form.
void Taula_Referencia::Descarregar() {
  if (!Graella_Llista()->Desar_Fila()) Graella_Llista()->Descartar_Fila();
  Llista::Descarregar();
}

void Taula_Referencia::Esborrar_Fila() {
  if (Graella_Llista()->En_Edicio() || Graella_Llista()->Fila_Actual() < 0) return;
  Esborrar_Retinguda();
  Requerir();
  Files_Canviades();
}

// Held while it is asked for: a row that another terminal edits is not deleted, nor edited while the question stands.
void Taula_Referencia::Esborrar_Retinguda() {
  rs_.Edit();
  try {
    descripcio_.esborrar(rs_);
  } catch (...) {
    rs_.CancelUpdate();
    throw;
  }
  rs_.CancelUpdate();
}

bool Taula_Referencia::eventFilter(QObject* objecte, QEvent* event) {
  const bool dreta = descripcio_.cerca_amb_la_dreta && event->type() == QEvent::MouseButtonPress &&
                     static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
  if (!dreta) return Llista::eventFilter(objecte, event);
  const QPoint lloc = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
  if (Graella_Llista()->Desar_Fila() && serveis.obrir_cerca) Guardar_Event([&] { serveis.obrir_cerca(this, lloc); });
  return true;
}

// By the code of its current row.
QString Taula_Referencia::Que_Mostra() const {
  const Valor codi = rs_.State() && rs_.RecordCount() > 0 && !rs_.Eof() && !rs_.Bof() ? rs_[0] : Valor();
  return codi.Es_Nul() ? windowTitle() : windowTitle() + u' ' + QString::fromStdString(codi.Text());
}

bool Taula_Referencia::Tot_Desat() const {
  return !findChild<Graella*>()->En_Edicio();
}
