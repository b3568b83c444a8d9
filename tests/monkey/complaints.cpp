// The layouts are those of docs/safety.md and docs/file_formats.md.
#include "tests/monkey/complaints.h"

#include <algorithm>
#include <vector>

#include "runtime/journal_block.h"
#include "runtime/text.h"
#include "store/history.h"
#include "store/key_file.h"
#include "store/master_file.h"
#include "tests/kit/memory_disk.h"

namespace monkey {
namespace {

constexpr auto Length = static_cast<std::size_t>(store::RecordLength);
constexpr std::size_t EntryLength = store::HistoryHeadLength + Length;
constexpr std::size_t StampWidth = 19, SlotWidth = store::HistoryHeadLength - StampWidth;  // of an entry's head
constexpr std::string_view OpenMark = "REELORA1", DoneMark = "REELDONE";

// Whole files of one line; only these and the key files are written besides films.
constexpr std::string_view LineFiles[] = {"AutoSave",    "AutoSort", "BGColor",  "txtBGColor", "txtForColor",
                                          "tagForColor", "Titlepra", "Laserpra", "VHSpra",     "DVDpra",
                                          "Last",        "Fo",       "Fo1"};
constexpr std::string_view KeyFiles[] = {store::TitleKeys.Name, store::DVDKeys.Name, store::LaserKeys.Name,
                                         store::VHSKeys.Name};

// All but "Out of memory", which no small collection explains.
constexpr std::string_view FailureNames[] = {
    runtime::Overflow,      runtime::FileNotFound,    runtime::InputPastEnd, runtime::BadRecordNumber,
    runtime::BadFileNumber, runtime::FileAlreadyOpen, runtime::TypeMismatch, runtime::DiskFull,
    runtime::DeviceError,   runtime::PathError,       runtime::PrinterError,
};

template <typename Names>
bool IsOneOf(const Names& names, std::string_view name) {
  return std::find(std::begin(names), std::end(names), name) != std::end(names);
}

bool IsFilm(std::string_view record) {
  return record.substr(0, store::KeyTitleWidth).find_first_not_of(' ') != std::string_view::npos;
}

}  // namespace

std::string SlotText(std::int64_t slot) { return "slot " + std::to_string(slot); }

std::string RecordIn(const std::string& master, std::int64_t slot) {
  const std::size_t offset = static_cast<std::size_t>(slot - 1) * Length;
  return offset >= master.size() ? "" : runtime::Fixed(master.substr(offset, Length), Length);
}

std::string SlotComplaint(const std::string& before, const std::string& after, std::int64_t slot, bool disturbed) {
  const std::size_t offset = static_cast<std::size_t>(slot - 1) * Length, end = offset + Length;
  if (after.size() != std::max(before.size(), end))
    return "a length of " + std::to_string(after.size()) + " bytes after a write to " + SlotText(slot);
  const std::size_t kept = std::min(offset, before.size());
  if (after.compare(0, kept, before, 0, kept) != 0) return "bytes before " + SlotText(slot) + " were changed";
  if (before.size() > end && after.compare(end, std::string::npos, before, end) != 0)
    return "bytes after " + SlotText(slot) + " were changed";
  if (before.size() < offset && after.find_first_not_of(' ', before.size()) < offset)
    return "the gap before " + SlotText(slot) + " is not blank";
  const std::string record = after.substr(offset, Length);
  if (record.ends_with("\r\n") || (disturbed && record.find_first_not_of(' ') == std::string::npos)) return "";
  return SlotText(slot) + " has no line end";
}

std::string HistoryComplaint(const std::string& before, const std::string& after, std::optional<std::int64_t> slot,
                             const std::string& master_before, const std::string& master_after, bool disturbed) {
  // A stop leaves part of an entry, which the next one overwrites.
  const std::size_t whole = before.size() / EntryLength * EntryLength;
  if (after.compare(0, whole, before, 0, whole) != 0) return "an older entry of the history was changed";
  if (!disturbed && after != before && after.size() % EntryLength != 0) return "the history has part of an entry";
  std::vector<std::string> entries;
  for (std::size_t at = whole; at + EntryLength <= after.size(); at += EntryLength)
    entries.push_back(after.substr(at, EntryLength));
  const std::string old_film = slot ? RecordIn(master_before, *slot) : "";
  const bool is_lost = slot && IsFilm(old_film) && old_film != RecordIn(master_after, *slot);
  if (is_lost && entries.empty()) return "the film of " + SlotText(*slot) + " is not in the history";
  if (entries.empty() || disturbed) return "";
  if (!slot) return "an entry of the history for a slot that was not written";
  for (const std::string& entry : entries) {
    auto number = runtime::Trim(std::string_view(entry).substr(StampWidth, SlotWidth));
    if (static_cast<std::int64_t>(runtime::NumericValue(number)) != *slot)
      return "an entry of the history for another slot than " + SlotText(*slot);
  }
  if (is_lost && entries.front().substr(store::HistoryHeadLength) != old_film)
    return "the entry of the history is not the film of " + SlotText(*slot);
  return "";
}

std::string JournalComplaint(const std::string& journal, const std::set<std::int64_t>& slots,
                             const std::string& master) {
  if (!journal.starts_with(DoneMark)) return "the block of the journal is not marked done";
  kit::MemoryDisk disk(
      kit::Folder{{runtime::InSafetyFolder("journal"), std::string(OpenMark) + journal.substr(OpenMark.size())}});
  const runtime::FoundJournal found = runtime::ReadJournal(disk, store::MasterFileName, store::RecordLength);
  if (!found.Block) return "the block of the journal is not intact";
  if (!slots.contains(found.Block->Slot)) return "the journal names " + SlotText(found.Block->Slot);
  if (RecordIn(master, found.Block->Slot) != found.Block->NewImage)
    return "the journal has another record than " + SlotText(found.Block->Slot);
  return "";
}

bool HasSameBlock(std::string_view one, std::string_view other) {
  return one.size() == other.size() && other.size() > DoneMark.size() &&
         one.substr(DoneMark.size()) == other.substr(DoneMark.size());
}

std::string NameComplaint(const runtime::Failure& failure) {
  if (IsOneOf(FailureNames, failure.Name)) return "";
  return "the program stops: " + std::string(failure.Name) + ", " + failure.File;
}

std::string OtherFileComplaint(const std::string& name, const std::optional<std::string>& content, bool disturbed) {
  if (name.ends_with(".new")) return content && !disturbed ? name + " was left over" : "";
  const bool is_keys = IsOneOf(KeyFiles, name);
  if (!is_keys && !IsOneOf(LineFiles, name)) return name + " was changed, and no handler writes it";
  if (!content) return name + " was removed";
  if (is_keys && content->size() % store::KeyLength != 0) return name + " has a part of a key";
  if (!is_keys && !content->ends_with("\r\n")) return name + " has a line without its end";
  return "";
}

}  // namespace monkey
