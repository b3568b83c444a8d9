// Opening, reading, writing and counting.
#include "store/master_file.h"

#include <algorithm>

#include "runtime/checked_int.h"
#include "store/history.h"

namespace store {

void OpenMaster(runtime::Files& files, int number) {
  files.OpenRandom(number, MasterFileName, RecordLength, KeepOverwritten);
}

void ReadRecord(runtime::Files& files, int number, std::int64_t record, FilmRecord& target) {
  files.Get(number, record, target.Bytes.data());
}

void WriteRecord(runtime::Files& files, int number, std::int64_t record, const FilmRecord& source) {
  files.Put(number, record, source.Bytes.data());
}

std::int32_t CountRecords(runtime::Files& files) {
  double quotient = static_cast<double>(files.Length(MasterFileName)) / RecordLength;
  return std::max(runtime::RoundToInt32(quotient), 1);
}

// The last record may be cut off.
std::int64_t FirstFreeSlot(runtime::Files& files, int number, std::int64_t from) {
  const std::int64_t slots = (files.Length(number) + RecordLength - 1) / RecordLength;
  for (std::int64_t slot = from; slot <= slots; ++slot) {
    FilmRecord film;
    ReadRecord(files, number, slot, film);
    if (film.Get(FilmField::Title).find_first_not_of(' ') == std::string_view::npos) return slot;
  }
  return std::max(from, slots + 1);
}

}  // namespace store
