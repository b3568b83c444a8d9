// Reads overwritten films and restores one.
//
// `.reelora/history` contains entries of one length, the newest last: a head of local time and slot, as in
// "2026-11-21 05:30:00 0000007 ", and the record. A slot of eight or nine digits also takes the blanks around it.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/files.h"
#include "store/film_record.h"

namespace store {

// The file's name in the safety folder.
inline constexpr std::string_view HistoryFile = "history";
inline constexpr int HistoryHeadLength = 28;

// The head of an entry, always of that length: years outside 0 to 9999 become the first or last moment of these. "Bad
// record number" for a slot of more than nine digits.
std::string HistoryHead(std::chrono::local_seconds when, std::int64_t slot);

// Appends the old record, padded with blanks if it is cut off, if it is a film (its title is not blank) and the new one
// differs. Synced on return; true if the file was empty and may be new.
bool KeepOverwritten(runtime::Disk& disk, std::int64_t slot, std::string_view old_record, std::string_view new_record);

struct KeptFilm {
  std::int64_t Number = 0;  // of its entry in the history, from 1
  std::string When;         // local time at which it was overwritten: "2026-11-21 05:30:00"
  std::int64_t Slot = 0;    // of the master file, from 1
  FilmRecord Film;
};

// How many entries there are, unfinished ones included.
std::int64_t CountHistory(runtime::Disk& disk);
// Visits those after that number, the oldest first, without unfinished entries; none if there is no history. Any other
// failure of its file is thrown.
void EachKeptFilm(runtime::Disk& disk, std::int64_t after, const std::function<void(const KeptFilm&)>& visit);
std::vector<KeptFilm> ReadHistory(runtime::Disk& disk, std::int64_t after = 0);
// The entry of that number; nothing if there is none or if it is unfinished.
std::optional<KeptFilm> ReadKeptFilm(runtime::Disk& disk, std::int64_t number);

// Writes the film into its slot again, as safely as a save: the slot's present film goes to the history. Number 1 may
// have the master file open. "Bad record number" if the master file has no such slot, "File not found" if there is
// none.
void PutBack(runtime::Files& files, const KeptFilm& kept);

}  // namespace store
