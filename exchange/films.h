// Where films come from: those of a collection, read in one pass without taking its lock.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "runtime/disk.h"
#include "store/film_record.h"

namespace exchange {

using Visit = std::function<void(std::int64_t number, const store::FilmRecord& film)>;
// Calls the visitor with each film and its record number, ascending. May be run more than once.
using Films = std::function<void(const Visit& visit)>;

bool HasTitle(const store::FilmRecord& film);

// Those of the master file: its slots that have a title. A last one that is cut off is padded with blanks; a save that
// was cut off is read as a start of the program would leave it. The disk must outlive the result. Calling it throws the
// Failure of the file, "File not found" included.
Films FilmsOf(runtime::Disk& disk);
// Every slot, including the free ones; none if there is no master file.
std::vector<store::FilmRecord> ReadSlots(runtime::Disk& disk);

// From the settings of the collection, as red, green and blue.
struct Colours {
  std::uint32_t Background = 0x0000FF;
  std::uint32_t Box = 0xFFFFFF;
  std::uint32_t Text = 0x0000FF;
  std::uint32_t Tag = 0xFFFF00;
};
// One that cannot be read keeps the delivered colour.
Colours ReadColours(runtime::Disk& disk);

struct Collection {
  Films Each;
  Colours Look;
  std::string When;  // in words
};

}  // namespace exchange
