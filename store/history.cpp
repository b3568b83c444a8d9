// Appending, reading and restoring entries.
#include "store/history.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include "runtime/clock.h"
#include "runtime/text.h"
#include "store/master_file.h"

namespace store {
namespace {

constexpr std::size_t StampWidth = 19;
constexpr std::size_t SlotWidth = HistoryHeadLength - StampWidth;  // blanks included
constexpr std::size_t EntryLength = HistoryHeadLength + RecordLength;

// A file cannot have more.
constexpr std::int64_t LastNumber = INT64_MAX / static_cast<std::int64_t>(EntryLength);

constexpr int MasterNo = 1;

std::string HistoryName() { return runtime::InSafetyFolder(HistoryFile); }

bool IsFilm(std::string_view record) {
  const FilmFieldRow& title = RowOf(FilmField::Title);
  return record.substr(0, title.Width).find_first_not_of(' ') != std::string_view::npos;
}

// Digits that name a slot; slots count from 1.
bool IsSlot(std::string_view text) {
  bool number = std::all_of(text.begin(), text.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
  return number && text.find_first_not_of('0') != std::string_view::npos;
}

// Nothing if there is none.
std::optional<runtime::OpenFile> OpenHistory(runtime::Disk& disk) {
  try {
    return runtime::OpenFile(disk, HistoryName(), runtime::Disk::Mode::Read);
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
  }
  return std::nullopt;
}

// False past the end, or if the file ends in it.
bool ReadEntry(const runtime::OpenFile& history, std::int64_t number, std::string& entry) {
  entry.resize(EntryLength);
  return history.Read(entry.data(), entry.size(), (number - 1) * static_cast<std::int64_t>(EntryLength)) == EntryLength;
}

// Nothing if it was never finished.
std::optional<KeptFilm> Parsed(std::string_view entry, std::int64_t number) {
  std::string_view slot = runtime::Trim(entry.substr(StampWidth, SlotWidth));
  if (!IsSlot(slot)) return std::nullopt;
  KeptFilm kept;
  kept.Number = number;
  kept.When = entry.substr(0, StampWidth);
  kept.Slot = static_cast<std::int64_t>(runtime::NumericValue(slot));
  entry.copy(kept.Film.Bytes.data(), RecordLength, HistoryHeadLength);
  return kept;
}

}  // namespace

std::string HistoryHead(std::chrono::local_seconds when, std::int64_t slot) {
  using namespace std::chrono;
  constexpr local_seconds First = local_days(year(0) / January / 1);
  constexpr local_seconds Last = local_days(year(10000) / January / 1) - seconds(1);
  std::array<char, 32> digits{};
  auto length =
      static_cast<std::size_t>(std::snprintf(digits.data(), digits.size(), "%07lld", static_cast<long long>(slot)));
  if (length > SlotWidth) throw runtime::Failure{runtime::BadRecordNumber, std::string(MasterFileName)};
  std::string field = (length < SlotWidth ? " " : "") + std::string(digits.data());
  return runtime::StampText(std::clamp(when, First, Last)) + runtime::Fixed(field, SlotWidth);
}

bool KeepOverwritten(runtime::Disk& disk, std::int64_t slot, std::string_view old_record, std::string_view new_record) {
  if (old_record == new_record || !IsFilm(old_record)) return false;
  runtime::OpenFile history(disk, HistoryName(), runtime::Disk::Mode::Create);
  std::string entry = HistoryHead(runtime::LocalTime(), slot) + runtime::Fixed(old_record, RecordLength);
  auto size = static_cast<std::int64_t>(entry.size());
  const std::int64_t length = history.Length();
  history.Write(entry, length / size * size);  // a truncated entry is overwritten by the next
  history.Sync();
  return length == 0;
}

std::int64_t CountHistory(runtime::Disk& disk) {
  std::optional<runtime::OpenFile> history = OpenHistory(disk);
  return history ? history->Length() / static_cast<std::int64_t>(EntryLength) : 0;
}

void EachKeptFilm(runtime::Disk& disk, std::int64_t after, const std::function<void(const KeptFilm&)>& visit) {
  std::optional<runtime::OpenFile> history = OpenHistory(disk);
  if (!history) return;
  std::string entry;
  for (std::int64_t number = after + 1; ReadEntry(*history, number, entry); ++number) {
    if (std::optional<KeptFilm> kept = Parsed(entry, number)) visit(*kept);
  }
}

std::vector<KeptFilm> ReadHistory(runtime::Disk& disk, std::int64_t after) {
  std::vector<KeptFilm> films;
  EachKeptFilm(disk, after, [&](const KeptFilm& kept) { films.push_back(kept); });
  return films;
}

std::optional<KeptFilm> ReadKeptFilm(runtime::Disk& disk, std::int64_t number) {
  std::optional<runtime::OpenFile> history = OpenHistory(disk);
  std::string entry;
  if (!history || number < 1 || number > LastNumber || !ReadEntry(*history, number, entry)) return std::nullopt;
  return Parsed(entry, number);
}

void PutBack(runtime::Files& files, const KeptFilm& kept) {
  if ((kept.Slot - 1) * RecordLength >= files.Length(MasterFileName))
    throw runtime::Failure{runtime::BadRecordNumber, std::string(MasterFileName)};
  bool was_open = files.IsOpen(MasterNo);
  if (!was_open) OpenMaster(files, MasterNo);
  WriteRecord(files, MasterNo, kept.Slot, kept.Film);
  if (!was_open) files.Close(MasterNo);
}

}  // namespace store
