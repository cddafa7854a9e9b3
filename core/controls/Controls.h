// The small controls that the forms share, over Qt's own: promoted widgets of the .ui files, which all ask for this
// file.
#pragma once

#include "core/controls/Camp_Numeric.h"
#include "core/controls/Combo_Codi.h"
#include "core/controls/Grup_Opcions.h"
#include "core/controls/Selector_Data.h"
