// The five valued documents on paper: one report, and here in one table what tells one from another.
#pragma once

#include <cstddef>
#include <span>

#include "documents/Documents.h"

enum class Destinatari { Client, Proveidor };

// A column of the lines and the one of the work table that it goes to, by their role words.
struct Columna_Impresa {
  std::string_view linia;
  std::string_view impressio;
};

// A text of the company at the foot of the last page: L_<nom>_EMP, with a title L_<nom> beside it or without.
struct Linia_De_Peu {
  std::string_view nom;
  std::size_t dada;  // its place in Dades_Empresa
  const char* titol = nullptr;
};

struct Descripcio_Impressio {
  std::string_view formulari;                 // of its kind: F_ALBARA
  const char* informe;                        // DR_ALBARA_VALORAT
  const char* titol;                          // Catalan, before the number
  Taula_Document taula;                       // local work table
  std::span<const Columna_Impresa> columnes;  // what is copied into it
  Destinatari destinatari;
  bool logo;                 // with the comment; the company's block follows P_Posicio_Top
  std::string_view telefon;  // between the company's address and its telephone
  std::span<const Linia_De_Peu> peus;
  bool firmes;       // places to sign
  bool codi_client;  // shown when P_Codi_Client_Visible says so
  bool venciments;   // due dates
  std::string_view prefix_pdf;

  const Tipus_Document& Tipus() const;  // raises 80004005 when this program has no such kind
  // The column of the lines that fills this one of the work table; empty: none does.
  std::string_view Linia_De(std::string_view impressio) const;
};

std::span<const Descripcio_Impressio> Informes_De_Documents();
// Raises 80004005 for a kind that is not printed.
const Descripcio_Impressio& Informe_De(const Tipus_Document& tipus);
