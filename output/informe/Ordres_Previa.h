// What can be done in the preview: its buttons with their words, keys and drawings.
#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>
#include <array>
#include <span>

#include "core/formularis/Dibuixos.h"

enum class Que_Fa {
  Imprimir,
  Desar,
  Primera_Pagina,
  Pagina_Anterior,
  Pagina_Seguent,
  Darrera_Pagina,
  Reduir,
  Ampliar,
  Mida_Real,
  Amplada,
  Pagina_Sencera,
  Tancar
};

struct Ordre_Previa {
  Que_Fa que;
  const char* nom;                     // of its button
  std::array<const char*, 3> paraula;  // Catalan, Spanish, English
  QList<QKeySequence> tecles;
  Dibuix dibuix;
  bool amb_text = false;
  bool es_mode = false;  // stays pressed while it holds
  bool acaba_grup = false;

  QString Text() const;
  QString Ajuda() const;  // what it does, and its key
};

// In the order of the bar.
std::span<const Ordre_Previa> Ordres_De_La_Previa();
