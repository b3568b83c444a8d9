// The films that were overwritten, as the history keeps them, and the way back.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/files.h"
#include "store/film_record.h"

namespace store {

struct KeptFilm {
  std::int64_t Number = 0;  // of its entry in the history, from 1
  std::string When;         // local time at which it was overwritten: "2026-11-21 05:30:00"
  std::int64_t Slot = 0;    // of the master file, from 1
  FilmRecord Film;
};

// The oldest first; an entry that was never finished is passed over. None where there is no history; another failure of
// its file is thrown.
std::vector<KeptFilm> ReadHistory(runtime::Disk& disk);

// Writes the film into its slot again, as safely as a save: what stands there goes to the history. "Bad record number"
// where the master file has no such slot, "File not found" where there is none.
void PutBack(runtime::Files& files, const KeptFilm& kept);

}  // namespace store
