#include "session/Selector_Empresa.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "core/M_Funcions_Comuns.h"
#include "core/formularis/Aparenca.h"

namespace {
QString Paraula(const char* catala, const char* castella, const char* angles) {
  return QString::fromStdString(Missatge(catala, castella, angles));
}
}  // namespace

Selector_Empresa::Selector_Empresa(const std::string& actual)
    : empreses_(Empreses_Actives()), llista_(new QTableWidget(static_cast<int>(empreses_.size()), 2, this)) {
  setObjectName(QStringLiteral("F_Selector_Empresa"));
  setWindowTitle(Paraula("Tria una empresa", "Elija una empresa", "Choose a company"));
  resize(620, 360);
  llista_->setObjectName(QStringLiteral("G_Empreses"));
  llista_->setHorizontalHeaderLabels({Paraula("Codi", "Código", "Code"), Paraula("Empresa", "Empresa", "Company")});
  Vestir_Taula(*llista_);
  llista_->setColumnWidth(0, 130);
  int fila = 0;
  for (const auto& empresa : empreses_) {
    llista_->setItem(fila, 0, new QTableWidgetItem(QString::fromStdString(empresa.nif)));
    llista_->setItem(fila, 1, new QTableWidgetItem(QString::fromStdString(empresa.nom)));
    if (empresa.nif == actual || fila == 0) llista_->setCurrentCell(fila, 1);  // letters typed look for a name
    ++fila;
  }
  auto* botons = new QDialogButtonBox(this);
  QPushButton* accepta = botons->addButton(Paraula("D'&acord", "&Aceptar", "&OK"), QDialogButtonBox::AcceptRole);
  accepta->setDefault(true);
  accepta->setEnabled(!empreses_.empty());
  botons->addButton(Paraula("&Cancel·lar", "&Cancelar", "&Cancel"), QDialogButtonBox::RejectRole);
  auto* columna = new QVBoxLayout(this);
  columna->addWidget(llista_);
  columna->addWidget(botons);
  connect(botons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(botons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(llista_, &QTableWidget::cellDoubleClicked, this, &QDialog::accept);
  llista_->setFocus();
}

std::string Selector_Empresa::Triar() {
  if (exec() != Accepted || llista_->currentRow() < 0) return {};
  return empreses_[static_cast<std::size_t>(llista_->currentRow())].nif;
}
