// The texts of the schema folder that travel inside the programs: name and contents.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

// "comuna.sql", "textos/F_ALBARA.tsv"..., by name
const std::vector<std::pair<std::string_view, std::string_view>>& Fitxers_Encastats();
std::string_view Fitxer_Encastat(std::string_view nom);  // raises 53 when there is none
// A digest of what a local database is made from: its definitions and the texts.
std::string_view Empremta_Local();
