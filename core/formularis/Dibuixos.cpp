#include "core/formularis/Dibuixos.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// The drawings travel in a library: the program has to ask for them by name.
static void Obrir_Dibuixos() {
  Q_INIT_RESOURCE(dibuixos);
}

namespace {

struct Fitxer_Dibuix {
  Dibuix dibuix;
  const char* fitxer;
  const char* tema;  // its name in the themes of desktops
};

constexpr Fitxer_Dibuix dibuixos[] = {
    {Dibuix::Nou, "nou", "document-new"},
    {Dibuix::Esborrar, "esborrar", "edit-delete"},
    {Dibuix::Sortir, "sortir", "window-close"},
    {Dibuix::Imprimir, "imprimir", "document-print"},
    {Dibuix::Desar, "desar", "document-save"},
    {Dibuix::Amunt, "amunt", "go-up"},
    {Dibuix::Avall, "avall", "go-down"},
    {Dibuix::Primera, "primera", "go-first"},
    {Dibuix::Anterior, "anterior", "go-previous"},
    {Dibuix::Seguent, "seguent", "go-next"},
    {Dibuix::Darrera, "darrera", "go-last"},
    {Dibuix::Cercar, "cercar", "edit-find"},
    {Dibuix::Ampliar, "ampliar", "zoom-in"},
    {Dibuix::Reduir, "reduir", "zoom-out"},
    {Dibuix::Mida_Real, "mida_real", "zoom-original"},
    {Dibuix::Amplada, "amplada", "zoom-fit-width"},
    {Dibuix::Tot_El_Full, "full", "zoom-fit-best"},
    {Dibuix::Netejar, "netejar", "edit-clear"},
    {Dibuix::Calcular, "calcular", "accessories-calculator"},
    {Dibuix::Correu, "correu", "mail-send"},
    {Dibuix::Llista, "llista", "view-list-details"},
};

// The ink that the drawings are made with; another one takes its place.
constexpr const char* tinta_del_fitxer = "#2f4558";
const QColor vermell(0xA8, 0x32, 0x32);
const QColor vermell_clar(0xE5, 0x73, 0x73);

QByteArray Llegir(const QString& nom) {
  Obrir_Dibuixos();
  QFile fitxer(QStringLiteral(":/dibuixos/") + nom + QStringLiteral(".svg"));
  if (!fitxer.open(QIODevice::ReadOnly)) qFatal("no drawing %s", qUtf8Printable(nom));
  return fitxer.readAll();
}

// Sharp at every scale of the display.
QIcon Pintar(const QByteArray& svg, std::initializer_list<int> costats) {
  QSvgRenderer dibuixant(svg);
  QIcon icona;
  for (const int costat : costats) {
    QPixmap quadre(costat, costat);
    quadre.fill(Qt::transparent);
    QPainter pintor(&quadre);
    dibuixant.render(&pintor);
    pintor.end();
    icona.addPixmap(quadre);
  }
  return icona;
}

QColor Tinta(Dibuix dibuix) {
  constexpr int mig = 128;
  QColor lletra = QApplication::palette().color(QPalette::ButtonText);
  if (dibuix != Dibuix::Esborrar) return lletra;
  return lletra.lightness() < mig ? vermell : vermell_clar;
}

}  // namespace

QIcon Icona(Dibuix dibuix) {
  for (const Fitxer_Dibuix& que : dibuixos) {
    if (que.dibuix != dibuix) continue;
    QIcon del_tema = QIcon::fromTheme(QString::fromLatin1(que.tema));
    if (!del_tema.isNull()) return del_tema;
    QByteArray svg = Llegir(QString::fromLatin1(que.fitxer));
    svg.replace(tinta_del_fitxer, Tinta(dibuix).name().toLatin1());
    return Pintar(svg, {16, 24, 32, 48});
  }
  return {};
}

// A spring: jets of water over a basin.
QIcon Icona_Programa() {
  return Pintar(Llegir(QStringLiteral("programa")), {16, 32, 64, 128, 256});
}

void Dibuixar(QPushButton* boto, Dibuix dibuix) {
  boto->setIcon(Icona(dibuix));
}
