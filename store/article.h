// A leading article moves behind its title: "The Third Man" is stored as "Third Man, The".
#pragma once

#include <cstddef>
#include <string_view>

#include "store/film_record.h"

namespace store {

// The position of the first two blanks in the film's title, from 1; 0 if there are none.
std::size_t TitleEndOf(const FilmRecord& film);

// typed: the whole title, of which the film's field holds the beginning. title_end: TitleEndOf before the call.
void MoveArticle(FilmRecord& film, std::string_view typed, std::size_t title_end);

}  // namespace store
