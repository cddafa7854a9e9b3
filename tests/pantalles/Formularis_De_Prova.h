// The main window with small forms under the names of the system's own, for the services around forms.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QVBoxLayout>

#include "core/formularis/Formularis_Oberts.h"
#include "core/menes/Llista.h"
#include "shell/F_Principal.h"
#include "tests/pantalles/Base_Pantalles.h"

// Any form: fields can be put on it before or after it is shown.
class Formulari_De_Prova : public Formulari {
 public:
  explicit Formulari_De_Prova(const QString& nom) : Formulari(nom), columna_(new QVBoxLayout(this)) {
    setWindowTitle(nom);
  }
  template <class Control>
  Control* Posar(const char* nom) {
    auto* control = new Control(this);
    control->setObjectName(QString::fromUtf8(nom));
    columna_->addWidget(control);
    return control;
  }

 private:
  QVBoxLayout* columna_;
};

// A list over a statement, with the columns of it that are shown.
class Llista_De_Prova : public Llista {
 public:
  Llista_De_Prova(const QString& nom, std::string sentencia, const std::vector<Columna_Graella>& columnes)
      : Llista(nom), sentencia_(std::move(sentencia)) {
    auto* columna = new QVBoxLayout(this);
    auto* graella = new Graella(this);
    graella->setObjectName(QStringLiteral("G_Prova"));
    columna->addWidget(graella);
    setWindowTitle(nom);
    Muntar(graella, columnes);
  }
  void Preparar_Requery() override { ++preparacions; }

  int preparacions = 0;
  int obertes = 0;  // rows opened by a double click

 protected:
  std::string Sentencia() const override { return sentencia_; }
  void Obrir_Fila() override { ++obertes; }

 private:
  std::string sentencia_;
};

class Amb_Principal : public Base_Pantalles {
 protected:
  Amb_Principal() {
    sessio.Connexio_Local.Execute("DELETE * FROM TEXTS");  // these forms have words of their own
    principal.show();
  }
  ~Amb_Principal() override {
    Descarregar_Tots();
    Assentar();
  }
  // What waits to be done or deleted.
  static void Assentar() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  static void Registrar(const char* nom) {
    const QString text = QString::fromLatin1(nom);
    Registrar_Formulari(text, [text] { return new Formulari_De_Prova(text); });
  }
  static void Registrar_Llista(const char* nom, const std::string& sentencia,
                               const std::vector<Columna_Graella>& columnes) {
    const QString text = QString::fromLatin1(nom);
    Registrar_Formulari(text, [=] { return new Llista_De_Prova(text, sentencia, columnes); });
  }
  template <class Tipus = Formulari>
  static Tipus* Obert(const char* nom) {
    return dynamic_cast<Tipus*>(Formulari_De_Nom(QString::fromLatin1(nom)));
  }
  template <class Tipus = Formulari>
  static Tipus* Obrir_I_Tenir(const char* nom) {
    Obrir(QString::fromLatin1(nom));
    return Obert<Tipus>(nom);
  }
  static bool Habilitat(const char* nom) { return Obert(nom)->isEnabled(); }
  static void Tancar(const char* nom) {
    Descarregar_Formulari(QString::fromLatin1(nom));
    Assentar();
  }

  F_Principal principal;
};
