// What an import would do, or did: each film as it is stored, and what is changed on the way.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/verb.h"
#include "exchange/import.h"

namespace companion {

struct ImportReport {
  const exchange::FilmsOfFile& File;
  const std::vector<exchange::Step>& Steps;
  const std::vector<store::FilmRecord>& Slots;  // of the collection, before the import
  std::string NewFolder;                        // of a collection that is made for the import; "" if there is one
  bool Written = false;
};

void PrintImport(const ImportReport& report, std::ostream& text);
void PrintImportJson(const ImportReport& report, std::ostream& text);

// How many films have that step.
std::int64_t CountSteps(const std::vector<exchange::Step>& steps, exchange::Action what);

}  // namespace companion
