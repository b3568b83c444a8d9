// What is wrong in single films.
#pragma once

#include <map>
#include <utility>

#include "companion/limited_findings.h"
#include "companion/reading.h"
#include "sort/include.h"

namespace companion {

class FilmChecks {
 public:
  // Weights: of the sort. Findings: where each is added.
  FilmChecks(const sort::Weights& weights, Findings& findings);
  // Call it in the order of the records, for free ones too.
  void Look(const NumberedFilm& film);
  // Call it after the last record.
  void End() { findings_.AddRest(); }

 private:
  void LookAtFree(const NumberedFilm& film);
  void LookAtTitle(const NumberedFilm& film);
  void LookAtArticle(const NumberedFilm& film, std::string_view title);
  void LookAtDouble(const NumberedFilm& film);
  // Remove the control characters from clean.
  void LookAtBytes(const NumberedFilm& film, store::FilmField field, store::FilmRecord& clean);
  void LookAtControls(const NumberedFilm& film, store::FilmField field, store::FilmRecord& clean);

  const sort::IncludeFilter is_sorted_;
  LimitedFindings findings_;
  std::map<std::pair<std::string, std::string>, std::int64_t> seen_;  // title and year: the first record
};

}  // namespace companion
