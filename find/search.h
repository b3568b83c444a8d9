// One run of a field search.
#pragma once

#include <cstdint>
#include <string_view>

#include "find/field_search.h"
#include "find/film_filter.h"

namespace find {

// Stars 2 to 6, and where the position of the text in each is stored.
struct StarRow {
  FilmField Field;
  screen::Number16 State::*Hit;
};
// clang-format off
inline constexpr StarRow LaterStars[] = {
  { FilmField::Star2, &State::StarHit2 },
  { FilmField::Star3, &State::StarHit3 },
  { FilmField::Star4, &State::StarHit4 },
  { FilmField::Star5, &State::StarHit5 },
  { FilmField::Star6, &State::StarHit6 },
};
// clang-format on

void ClearStarHits(frmPage1& window);

class Search {
 public:
  Search(frmPage1& window, const FieldSearch& search) : window_(window), search_(search) {}
  // Shows the next film that matches, or reports that there is none and resets the screen.
  void Run();

 private:
  bool DisablesNext() const;
  bool SearchesStars() const;
  bool MustEqual() const;
  bool Resumes();
  bool TitleResumes();
  bool AskText();
  void Scan();
  FilmFilter MakeFilter() const;
  std::string_view ReadAhead();
  bool SkipNonMatches(const FilmFilter& filter, std::int64_t last);
  std::int64_t PositionIn(FilmField field) const;
  bool Hits();
  bool StarHits();
  void ShowHitHeading();
  std::string_view NameOfStarHit() const;
  void ReportEnd();

  frmPage1& window_;
  const FieldSearch& search_;
};

}  // namespace find
