// Which forms stand behind which: disabled while a form is open, requeried when it closes if it may have changed what
// they show.
#pragma once

#include <QString>
#include <span>
#include <vector>

// How the parent of a form is known.
enum class Mena_Pare {
  Fix,
  Creat,              // loaded by whoever opens the form, when it is not there
  Per_Crida,          // the document that Crida_Document names
  Per_Tipus_Pagament  // the document that Pag_Document, a letter, stands for
};

struct Pare {
  const char16_t* formulari;
  const char16_t* pare;
  bool requerir = false;
  Mena_Pare mena = Mena_Pare::Fix;
  const char* clau = "";  // what the session has to hold, when it tells the parent
};

// The tables, handed over by the shell, which knows every form.
void Fixar_Pares(std::span<const Pare> taula, std::span<const char16_t* const> sense);
std::span<const Pare> Taula_De_Pares();
std::span<const char16_t* const> Formularis_Sense_Pares();

// The forms that the services know: those with parents and those without. F_PRINCIPAL, F_SUBINICI and F_STATUS are
// none of them.
bool Es_Del_Sistema(const QString& majuscules);

// The parents of a form as the session stands now.
std::vector<const Pare*> Pares_De(const QString& majuscules);
