// One entry to a field search.
#pragma once

#include <cstdint>
#include <string_view>

#include "find/field_search.h"
#include "find/film_filter.h"
#include "screen/frmPage1.h"

namespace find {

// The stars behind the first, and where the hit in each is kept.
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

class Search {
 public:
  Search(frmPage1& window, const FieldSearch& search) : window_(window), search_(search) {}
  // Shows the next film that hits, or says that there is none and resets the screen.
  void Run();

 private:
  bool KillsNext() const;
  bool LooksAtStars() const;
  bool MustEqual() const;
  bool Resumes();
  bool TitleResumes();
  bool AskText();
  void Scan();
  FilmFilter MakeFilter() const;
  std::string_view Ahead();
  bool PassOver(const FilmFilter& filter, std::int64_t last);
  std::int64_t PositionIn(FilmField field) const;
  bool Hits();
  bool StarHits();
  void HeadHit();
  std::string_view NameOfStarHit() const;
  void Close();

  frmPage1& window_;
  const FieldSearch& search_;
};

}  // namespace find
