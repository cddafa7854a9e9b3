// The detail of a line: its figures in fields, outside the grid of its document, and what the kind does with a line
// (accepting it, serving it...). Which document, the session's tag says when it is opened; the controls carry the
// suffix of proposals whatever the kind. Leaving a figure recalculates the others; closing it by any way writes the
// line.
#pragma once

#include <QPointer>
#include <memory>
#include <vector>

#include "core/formularis/Dibuixos.h"
#include "core/formularis/Formulari.h"
#include "documents/F_Editor_Document.h"
#include "documents/F_Preus_Linia.h"

class QLineEdit;
class QPlainTextEdit;

struct Descripcio_Detall {
  const std::vector<Camp_De_Preu>& preus;
};

class Detall_Linia : public Formulari {
  Q_OBJECT
 public:
  explicit Detall_Linia(const Descripcio_Detall& descripcio);
  ~Detall_Linia() override;

  void Carregar() override;
  void Activar() override;
  bool Desar_En_Tancar() override;
  void Descarregar() override;
  QString Que_Mostra() const override;
  QString Per_Que_No(const QWidget& control) const override;

 protected:
  // After setupUi: finds the controls and connects them.
  void Muntar();
  void keyPressEvent(QKeyEvent* event) override;

 private:
  const Resultat_Linia& Xifres() const { return linia_->Linia().contingut.xifres; }
  void Connectar_Camps();
  void Connectar_Boto(const char16_t* nom, Dibuix dibuix, const Accio_De_Linia* Passos_Detall::*accio);
  void Mostrar();
  void Mostrar_Camps();
  void Mostrar_Xifres();
  void Mostrar_IVA();
  void Mostrar_Lligats();
  void Aplicar_Estat();
  void Recalcular(Mode_Calcul mode);
  void Deixar_Unitats();
  void Deixar_Marge();
  void Deixar_IVA();
  QWidget* Camp_Refusat() const;
  void Fer(const Accio_De_Linia& accio);
  void Recuperar(bool conflicte);

  const Descripcio_Detall& descripcio_;
  QPointer<Editor_Document> editor_;
  std::unique_ptr<Linia_Oberta> linia_;
  std::unique_ptr<Preus_Linia> preus_;
  Recordset lligats_;
  QPlainTextEdit* text_ = nullptr;
  Camp_Numeric* unitats_ = nullptr;
  Camp_Numeric* marge_ = nullptr;
  Camp_Numeric* dte_article_ = nullptr;
  Camp_Numeric* import_net_ = nullptr;
  QLineEdit* iva_ = nullptr;
  Graella* graella_lligats_ = nullptr;
  QString unitats_mostrades_;  // the line may have more decimals than are shown
  QString marge_mostrat_;
  bool vista_ = false;    // it has been in front
  bool perduda_ = false;  // another terminal deleted the line
};
