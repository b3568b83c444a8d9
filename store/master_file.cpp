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

}  // namespace store
