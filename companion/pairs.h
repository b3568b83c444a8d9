// Which films of two collections belong together.
#pragma once

#include <string_view>
#include <vector>

#include "companion/reading.h"

namespace companion {

// One of the two may be missing. Same: no field differs.
struct FilmPair {
  const NumberedFilm* Here = nullptr;
  const NumberedFilm* There = nullptr;

  bool IsSame() const;
};

// The films of the bytes of a master file, free records left out.
std::vector<NumberedFilm> FilmsIn(std::string_view master);

// Whether films of one record, director and year belong together though their titles differ.
enum class NewTitles { Paired, Apart };

// Pairs the films of one record that have the same title, then those that have the same title and year, then those with
// a new title. In the order of here, what is only there at the end.
std::vector<FilmPair> Paired(const std::vector<NumberedFilm>& here, const std::vector<NumberedFilm>& there,
                             NewTitles new_titles);

// "Alien (1979)".
std::string NameOf(const NumberedFilm& film);

}  // namespace companion
