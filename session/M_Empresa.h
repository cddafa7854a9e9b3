// Companies. Reads EMPRESES; writes USUARIS.EMPRESA_USU.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/Sessio.h"

// Heading of the printed documents, of the first active company: RAO_SOCIAL_EMP, NIF_EMP, ADREÇA_EMP, TELEFON_EMP,
// CP_EMP, LOCALITAT_EMP, IMATGE_EMP, COMENTARI_EMP, PRESS_PEU1_EMP, PRESS_PEU2_EMP, FACT_PEU1_EMP.
// With no active company the first is "Desconegut" and the others are empty.
std::array<std::string, 11> Dades_Empresa();
bool Empresa_Te_IVA(const std::string& empresa);
bool Empresa_Te_RE(const std::string& empresa);
std::string Nom_De_Empresa(const std::string& empresa);  // "-" when missing
bool Empresa_Existeix(const std::string& empresa);
// Makes a company current (the empty text too) and remembers it on the user's row.
void Empresa_Fixar(const std::string& empresa);
// Creates a company that charges VAT and no surcharge; returns its code. Writes EMPRESES.
std::string Nova_Empresa();
// Asks and deletes it; a company that has rows is not deleted, and a box says so.
void Esborrar_Empresa(const std::string& empresa, const std::string& rao_social);
bool Empresa_En_Us(const std::string& empresa);
// Statements of the list and of the editor.
std::string SQL_Empreses();
std::string SQL_Empresa(const std::string& empresa);

// The chooser, and its company made current; a box says so when none was chosen.
void Demanar_Empresa();

// Caption of the menu's company entry: the word for company in the session's language, and the name.
std::string Titol_Menu_Empresa();

struct Empresa_Activa {
  std::string nif;
  std::string nom;
};
std::vector<Empresa_Activa> Empreses_Actives();  // for the chooser, by name
