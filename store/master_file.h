// The master file: one record of 649 bytes for each film, at a number that never changes.
#pragma once

#include <cstdint>
#include <string_view>

#include "runtime/files.h"
#include "store/film_record.h"

namespace store {

inline constexpr std::string_view MasterFileName = "Recpra.Dat";

// Opens it under that number, made empty when missing.
void OpenMaster(runtime::Files& files, int number);
// Past the end the record keeps what it holds.
void ReadRecord(runtime::Files& files, int number, std::int64_t record, FilmRecord& target);
void WriteRecord(runtime::Files& files, int number, std::int64_t record, const FilmRecord& source);
// Records by the length of the file, a trailing half or more counted as one; at least 1.
std::int32_t CountRecords(runtime::Files& files);

}  // namespace store
