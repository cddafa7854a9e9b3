// Carries out the commands of one script, one after the other, on an installation of its own. What concerns windows is
// sent to the current terminal; databases, files, papers and messages are looked at here.
#pragma once

#include "tests/eines/guio/Guio.h"
#include "tests/eines/guio/Installacio.h"

struct Opcions_Execucio {
  QString base;     // Crear_Base_De_Guions
  QString imatges;  // where pictures go; empty: the folder of the script's installation
  bool guardar = false;
  bool explicar = false;  // prints the script's comments as it reaches them
};

class Execucio {
 public:
  Execucio(const Guio& guio, const Opcions_Execucio& opcions);

  // Raises Error_Guio with the line of the command that did not do what it says. Returns how many checks held.
  int Executar();
  QString Carpeta() const { return installacio_.Carpeta(); }

 private:
  void Executar(const Ordre& ordre);
  void Executar_Aqui(const Ordre& ordre);
  void Enviar_I_Esperar(const Ordre& ordre);
  void Executar_Juntes(const Ordre& ordre);
  Terminal& Actual();
  Terminal& En_Marxa(int numero);  // its process runs
  QStringList Mots_Per_Terminal(const Ordre& ordre) const;

  void Run(const QStringList& mots);
  void Data(const QStringList& mots);
  void Parameter(const QStringList& mots);
  void Ini(const QStringList& mots);
  void Today(const QStringList& mots);
  void Start(const QStringList& mots);
  void Canviar_Terminal(const QStringList& mots);
  void Kill(const QStringList& mots);
  void Servidor(const QStringList& mots);
  void Folder(const QStringList& mots);

  void Comprovar(const QStringList& mots);
  void Comprovar_Missatge(const QStringList& mots);
  void Comprovar_Cap_Missatge(const QStringList& mots);
  void Comprovar_Base(const QStringList& mots);
  void Comprovar_Fitxer(const QStringList& mots);
  void Comprovar_PDF(const QStringList& mots);
  void Comprovar_Impres(const QStringList& mots);
  void Comprovar_Correu(const QStringList& mots);
  void Comprovar_Full(const QStringList& mots);
  void Comprovar_Acabat(const QStringList& mots);

  Connexio& Base(const QString& quina);
  void Executar_Sentencia(const QString& base, const QString& sentencia);
  // The arguments of the last call of one of the desktop's openers.
  QStringList Ultim_Obert(const QString& programa, const QString& final);

  const Guio& guio_;
  Opcions_Execucio opcions_;
  Installacio installacio_;
  int terminal_ = 1;
  int comprovacions_ = 0;
  QString avui_;
  std::map<int, Caixa_Vista> ultimes_;  // the box checked off last, by terminal
};
