// The session: one set of process-wide values, read from anywhere, each written by few.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>

#include "core/Pantalla.h"
#include "core/dades/Connexio.h"
#include "core/dades/Error_Brollador.h"
#include "core/dades/Recordset.h"

struct Sessio {
  // Paths, set at start-up.
  std::string Dir_Dades;
  std::string Fitxer_Ini;
  std::string Dir_Copia;
  std::string Fitxer_Locals;
  std::string Dir_Temp;     // with its closing slash
  std::string Fitxer_Comu;  // address of the shared database; Llegir_Ini

  Connexio Connexio_Comuna;
  Connexio Connexio_Local;
  // One on Connexio_Comuna.
  bool Transaccio_Oberta() const { return Connexio_Comuna.En_Transaccio(); }

  std::string Equip_Actual;
  std::map<std::string, std::string> Parametres;  // keys compared as bytes

  std::string Usuari_Actual;
  std::string Nom_Usuari;
  std::int16_t Idioma_Usuari = 0;
  std::int16_t Idioma_Actual = 0;  // 0 Catalan, 1 Spanish, 2 English
  std::string Empresa_Actual;
  std::string Nom_Empresa;

  std::string P_Clients = "X";
  std::string P_Proveidors = "X";
  std::string P_Articles = "X";
  std::string P_Usuaris = "X";
  std::string P_CP = "X";
  std::string P_Venciments = "X";
  std::string P_Pressupostos = "X";
  std::string P_Comandes = "X";
  std::string P_Albarans = "X";
  std::string P_Factures = "X";
  std::int16_t Dies_Avis_Aniversaris = 0;

  std::string Crida_Mestre;
  std::string Crida_Document;
  std::string Formulari_Actiu;              // the list that F_Cerca works on
  Recordset* Recordset_Cerca = nullptr;     // its recordset
  std::set<Recordset*> Recordsets_Informe;  // of pickers and reports that outlive the form that opened them
  std::string Pag_Document;                 // letter of the document whose payments F_PagDoc shows: A, P or F
  std::int32_t Pag_Numero = 0;              // its number
  std::string Pag_Client;                   // who pays
  double Pag_Total = 0;                     // euros, as the document stood when its payments were opened
  std::int32_t Posicio_Guardada = 0;
  bool Nomes_Pendents = false;      // the last search button asked for pending documents only
  bool Error_Mostrat = false;       // the failure under way has been shown
  bool Entrada_Bloquejada = false;  // the system's input is blocked

  // The documents and the rows that the editors are to open.
  Valor Numero_Pressupost;
  Valor Numero_Comanda;
  Valor Numero_Albara;
  Valor Numero_Factura;
  Valor Numero_AlbCompra;
  Valor Numero_AlbMag;
  std::string Codi_Usuari;
  std::string Nif_Client;
  std::string Nif_Proveidor;
  std::string Codi_Article;
  std::string Nif_Empresa;

  std::set<std::string, std::less<>> Bloquejos;  // codes of LOCKS whose form, on this terminal, holds a lock

  Port_Pantalla pantalla;  // set before any rule runs
};

extern Sessio sessio;
