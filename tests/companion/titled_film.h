// A film of which only the title matters.
#pragma once

#include <string_view>

#include "store/film_record.h"

namespace companion {

inline store::FilmRecord TitledFilm(std::string_view title) {
  store::FilmRecord film;
  film.Set(store::FilmField::Title, title);
  film.Set(store::FilmField::Tail, "\r\n");
  return film;
}

}  // namespace companion
