// The master file: one record of 649 bytes for each film, whose number never changes.
#pragma once

#include <cstdint>
#include <string_view>

#include "runtime/files.h"
#include "store/film_record.h"

namespace store {

inline constexpr std::string_view MasterFileName = "Recpra.Dat";

// Opens it under that number, created empty if missing. From then on each overwritten film goes to the history.
void OpenMaster(runtime::Files& files, int number);
// Target is unchanged past the end of the file.
void ReadRecord(runtime::Files& files, int number, std::int64_t record, FilmRecord& target);
void WriteRecord(runtime::Files& files, int number, std::int64_t record, const FilmRecord& source);
// The length of the file in records, rounded, at least 1.
std::int32_t CountRecords(runtime::Files& files);
// The first slot whose title is blank, from that one on; the one after the last if there is none.
std::int64_t FirstFreeSlot(runtime::Files& files, int number, std::int64_t from);

}  // namespace store
