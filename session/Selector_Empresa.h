// The company chooser: a modal list of the active companies by name, the current one selected.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "session/M_Empresa.h"

class QTableWidget;

class Selector_Empresa : public QDialog {
  Q_OBJECT
 public:
  explicit Selector_Empresa(const std::string& actual);
  // The NIF of the company picked; empty when the user gave up.
  std::string Triar();

 private:
  std::vector<Empresa_Activa> empreses_;
  QTableWidget* llista_;
};
