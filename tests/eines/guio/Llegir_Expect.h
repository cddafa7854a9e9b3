// The `expect` commands of a script, brought into words: `expect`, what is looked at, and its arguments.
//
//   message =|~|title|style TEXT      no_message          ended
//   shared|local value|rows SELECT EXPECTED               file NAME exists|missing
//   pdf NAME ~|pages TEXT             printed ~|pages TEXT    printed nothing
//   mail TO FILE                      sheet CELL TEXT     clipboard TEXT
//   menu ENTRY =|state TEXT           form FORM caption|state TEXT
//   control FORM.CONTROL =|state TEXT
//   grid FORM.GRID rows N             grid FORM.GRID N style NAME      grid FORM.GRID N FIELD = TEXT
#pragma once

#include "tests/eines/guio/Guio.h"

class Lector;

Ordre Llegir_Expect(Lector& lector);
