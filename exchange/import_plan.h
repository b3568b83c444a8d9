// Where the films of a file go in a collection.
#pragma once

#include <cstdint>
#include <vector>

#include "exchange/film_of_row.h"
#include "store/film_record.h"

namespace exchange {

// What to do with a film whose title and year the collection had before the import.
enum class Doubles { Skip, Update, Add };

enum class Action {
  Add,
  Update,
  Same,    // it is there already
  Skip,    // a double that differs
  NoRoom,  // past the last record that a collection can have
};

struct Step {
  Action What = Action::Add;
  std::int64_t Slot = 0;    // of the collection, from 1; of the film that is there for Same and Skip
  std::size_t Film = 0;     // its place in the list
  store::FilmRecord Bytes;  // the new content of the slot
};

// The screen counts keys in 16 bits.
inline constexpr std::int64_t MostSlots = 32'767;

// One step for each film, in their order. slots: of the collection, from 1. New films take free slots first, the lowest
// first, then those after the last. But if the collection has no films, those of an export keep their numbers.
// Importing the same file again makes no Add or Update.
std::vector<Step> PlanImport(const std::vector<store::FilmRecord>& slots, const std::vector<ReadFilm>& films,
                             Doubles doubles);

}  // namespace exchange
