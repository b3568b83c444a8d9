// What is wrong in single films.
#pragma once

#include <map>
#include <utility>

#include "companion/finding.h"
#include "companion/reading.h"
#include "sort/include.h"

namespace companion {

class FilmChecks {
 public:
  // Weights: of the sort. Findings: where each is added.
  FilmChecks(const sort::Weights& weights, Findings& findings);
  // Call it in the order of the records, for free ones too.
  void Look(const NumberedFilm& film);

 private:
  void LookAtFree(const NumberedFilm& film);
  void LookAtTitle(const NumberedFilm& film);
  void LookAtDouble(const NumberedFilm& film);
  // Removes the control characters from clean.
  void LookAtBytes(const NumberedFilm& film, store::FilmField field, store::FilmRecord& clean);

  const sort::IncludeFilter is_sorted_;
  Findings& findings_;
  std::map<std::pair<std::string, std::string>, std::int64_t> seen_;  // title and year: the first record
};

}  // namespace companion
