// Payments of documents. Reads PAGAMENTS.
#pragma once

#include <cstdint>
#include <string>

// Does the document ("P" order, "A" delivery note, "F" invoice) of the current company hold payments.
bool Tenir_Pagaments(const std::string& document, std::int64_t numalb);
