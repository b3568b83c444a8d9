// The films that the program overwrites with others or with blanks, and how one is put back into its record.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "app/program.h"
#include "store/history.h"

class OverwrittenFilms {
 public:
  explicit OverwrittenFilms(Program& program);

  // The films that were lost since the last call: the record holds another title now, or none. None until the history
  // can be read.
  std::vector<store::KeptFilm> TakeLost();
  // Writes the film into its record again; the film that is there goes to the history. The record screen shows the film
  // if it shows that record and none is open for typing.
  void PutBack(const store::KeptFilm& kept);

 private:
  Program& program_;
  std::int64_t records_written_ = 0;
  std::optional<std::int64_t> entries_;  // of the history, seen so far; nothing while it cannot be read
};
