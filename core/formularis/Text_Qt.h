// Texts of rules and of data, UTF-8, as the toolkit's.
#pragma once

#include <QString>
#include <string_view>

inline QString Text_Qt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
