// An entry: "2026-11-21 05:30:00 0000007 " and the record.
#include "store/history.h"

#include <algorithm>

#include "runtime/text.h"
#include "store/master_file.h"

namespace store {
namespace {

constexpr std::size_t StampWidth = 19;
constexpr std::size_t SlotAt = 20;
constexpr std::size_t SlotWidth = 7;
constexpr std::size_t EntryLength = runtime::HistoryHeadLength + RecordLength;

constexpr int MasterNo = 1;

// Digits that name a slot; slots count from 1.
bool IsSlot(std::string_view text) {
  bool number = std::all_of(text.begin(), text.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
  return number && text.find_first_not_of('0') != std::string_view::npos;
}

}  // namespace

std::vector<KeptFilm> ReadHistory(runtime::Disk& disk) {
  std::vector<KeptFilm> films;
  try {
    runtime::OpenFile history(disk, runtime::InSafetyFolder(runtime::HistoryFile), runtime::Disk::Mode::Read);
    std::string entry(EntryLength, '\0');
    for (std::int64_t number = 1;; ++number) {
      if (history.Read(entry.data(), entry.size(), (number - 1) * static_cast<std::int64_t>(EntryLength)) < EntryLength)
        return films;
      std::string_view slot = std::string_view(entry).substr(SlotAt, SlotWidth);
      if (!IsSlot(slot)) continue;
      KeptFilm& kept = films.emplace_back();
      kept.Number = number;
      kept.When = entry.substr(0, StampWidth);
      kept.Slot = static_cast<std::int64_t>(runtime::NumericValue(slot));
      entry.copy(kept.Film.Bytes.data(), RecordLength, runtime::HistoryHeadLength);
    }
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
  }
  return films;
}

void PutBack(runtime::Files& files, const KeptFilm& kept) {
  if (kept.Slot > files.Length(MasterFileName) / RecordLength)
    throw runtime::Failure{runtime::BadRecordNumber, std::string(MasterFileName)};
  OpenMaster(files, MasterNo);
  WriteRecord(files, MasterNo, kept.Slot, kept.Film);
  files.Close(MasterNo);
}

}  // namespace store
