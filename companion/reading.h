// The films of a collection, read-only: nothing is locked, recovered or created. A save that was cut off is read as a
// start of the program would leave it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "companion/verb.h"
#include "exchange/films.h"
#include "runtime/record_journal.h"
#include "runtime/whole_io.h"
#include "store/film_record.h"

namespace companion {

struct NumberedFilm {
  std::int64_t Number = 0;  // of its record, from 1
  store::FilmRecord Film;
};

using exchange::HasTitle;

// A longer history is refused: no collector overwrites so many films, and listing it could take hours.
inline constexpr std::int64_t LongestHistory = 1'000'000;

class Reading {
 public:
  // Of the invocation's collection. "File not found" if it has no master file.
  explicit Reading(const Invocation& invocation) : Reading(invocation.MakeDisk(invocation.Folder)) {}
  explicit Reading(std::unique_ptr<runtime::Disk> disk);

  runtime::Disk& Disk() const { return *disk_; }
  std::int64_t Length() const { return Settled().Length(); }
  runtime::FileTime Modified() const { return master_.Modified(); }
  // Records; the last may be cut off.
  std::int64_t Slots() const;
  // Blanks past the end.
  store::FilmRecord At(std::int64_t slot) const;
  // Visits every record in order, free ones too. If there are more than MaxSlots, visits none and returns false: no
  // collector has so many films, and a damaged file may claim any length.
  bool EachSlot(const std::function<void(const NumberedFilm&)>& visit) const;

  static constexpr std::int64_t MaxSlots = 1'000'000;

 private:
  runtime::SettledFile Settled() const { return {*disk_, master_, store::RecordLength}; }

  std::unique_ptr<runtime::Disk> disk_;
  runtime::OpenFile master_;
};

// Says that the master file has too many records; returns Found.
int RefuseLength(const Reading& reading, Output& output);

}  // namespace companion
