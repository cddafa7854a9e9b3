// The least that a program with a window and a menu costs: what the start of ours is held against.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

#include "bench/Primera_Pintura.h"

int main(int argc, char** argv) {
  QApplication aplicacio(argc, argv);
  QMainWindow finestra;
  finestra.setObjectName(QStringLiteral("finestra"));
  QMenu* menu = finestra.menuBar()->addMenu(QStringLiteral("&Fitxer"));
  menu->addAction(QStringLiteral("&Sortir"));
  finestra.resize(1024, 700);
  const Primera_Pintura pintura("finestra");
  finestra.show();
  return QApplication::exec();
}
