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

// The films in the bytes of a master file, free records left out.
std::vector<NumberedFilm> FilmsIn(std::string_view master);

// Whether films with the same record number, director and year belong together although their titles differ.
enum class NewTitles { Paired, Apart };

// Pairs films with the same record number and title, then those with the same title and year, then those with a new
// title. In the order of `here`; films that are only in `there` come last.
std::vector<FilmPair> Paired(const std::vector<NumberedFilm>& here, const std::vector<NumberedFilm>& there,
                             NewTitles new_titles);

// "Alien (1979)".
std::string NameOf(const NumberedFilm& film);

}  // namespace companion
