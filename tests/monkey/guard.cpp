// The folder is compared with what it was after the last event; a disk without a change costs nothing.
#include "tests/monkey/guard.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "runtime/whole_io.h"
#include "screen/record_boxes.h"
#include "store/draft.h"
#include "store/history.h"
#include "store/master_file.h"
#include "tests/monkey/complaints.h"

namespace monkey {
namespace {

const std::string MasterName(store::MasterFileName);
const std::string JournalName = runtime::InSafetyFolder("journal");
const std::string HistoryName = runtime::InSafetyFolder(store::HistoryFile);
const std::string DraftBegin = runtime::InSafetyFolder("draft");

constexpr auto Length = static_cast<std::size_t>(store::RecordLength);
constexpr auto TitleWidth = static_cast<std::size_t>(store::RowOf(store::FilmField::Title).Width);

const std::string& ContentOf(const kit::Folder& folder, const std::string& name) {
  static const std::string None;
  auto found = folder.find(name);
  return found == folder.end() ? None : found->second;
}

std::optional<std::string> FileIn(const kit::Folder& folder, const std::string& name) {
  auto found = folder.find(name);
  return found == folder.end() ? std::nullopt : std::optional(found->second);
}

// The first slot in which the two differ; 0 if they are equal.
std::int64_t FirstDifferentSlot(const std::string& before, const std::string& after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  auto [one, other] =
      std::mismatch(before.begin(), before.begin() + static_cast<std::ptrdiff_t>(shorter), after.begin());
  auto at = static_cast<std::size_t>(one - before.begin());
  if (at == shorter && before.size() == after.size()) return 0;
  return static_cast<std::int64_t>(at / Length) + 1;
}

// The boxes as a save takes them.
store::FilmRecord BoxesOf(const frmPage1& screen) {
  store::FilmRecord film;
  for (const screen::RecordBox& row : screen::RecordBoxes) film.Set(row.Field, (screen.*row.Box).Text());
  film.Set(store::FilmField::Tail, "\r\n");
  return film;
}

std::int64_t CurrentSlot(const frmPage1& screen) { return screen.CurrentRecNo < 1 ? 1 : screen.CurrentRecNo; }

std::optional<store::Draft> DraftIn(const std::string& bytes) {
  kit::MemoryDisk disk(kit::Folder{{DraftBegin, bytes}});
  return store::ReadDraft(disk, "draft");
}

std::vector<store::Draft> DraftsIn(const kit::Folder& folder) {
  std::vector<store::Draft> drafts;
  for (auto file = folder.lower_bound(DraftBegin); file != folder.end() && file->first.starts_with(DraftBegin);
       ++file) {
    if (std::optional<store::Draft> draft = DraftIn(file->second)) drafts.push_back(*draft);
  }
  return drafts;
}

// A start that keeps drafts writes whole films, each into a slot that the later start may look up.
std::string KeptDraftComplaint(const std::vector<store::Draft>& drafts, const std::string& before,
                               const std::string& after) {
  std::set<std::string> films;
  for (const store::Draft& draft : drafts) films.emplace(store::ToSave(draft).Bytes.data(), Length);
  if (after.size() < before.size()) return "the start made the master file shorter";
  for (std::int64_t slot = 1; !RecordIn(after, slot).empty(); ++slot) {
    const std::string record = RecordIn(after, slot);
    if (record != RecordIn(before, slot) && !films.contains(record))
      return SlotText(slot) + " was changed by the start and is no draft";
  }
  return "";
}

// A record that was overwritten: it was no film, or the history has it.
bool IsKept(const std::string& record, const std::string& history) {
  return record.substr(0, TitleWidth).find_first_not_of(' ') == std::string::npos ||
         history.find(record) != std::string::npos;
}

// A click that leaves the last field saves there, and its own handler may save again at another record.
bool AreTwoSaves(const std::set<std::int64_t>& slots, const std::string& before, const std::string& after,
                 const std::string& history, bool disturbed) {
  for (std::int64_t first : slots) {
    const std::size_t offset = static_cast<std::size_t>(first - 1) * Length;
    if (offset + Length > before.size() || after.size() < before.size()) continue;
    std::string between = before;
    between.replace(offset, Length, after, offset, Length);
    for (std::int64_t second : slots) {
      if (IsKept(RecordIn(before, first), history) && IsKept(RecordIn(before, second), history) &&
          SlotComplaint(before, between, first, disturbed).empty() &&
          SlotComplaint(between, after, second, disturbed).empty())
        return true;
    }
  }
  return false;
}

bool IsSame(const store::FilmRecord& one, const store::FilmRecord& other) { return one.Bytes == other.Bytes; }

}  // namespace

// Two folders, and what may have come between them.
struct Guard::Change {
  const kit::Folder& Before;
  const kit::Folder& After;
  Passed By;
  bool Disturbed;
};

Guard::Guard(const kit::MemoryDisk& disk) : disk_(disk), moments_(disk.Moments()), last_(disk.Content()) {}

void Guard::NoteSlot(const Program& program) { slots_.insert(CurrentSlot(program.RecordScreen)); }

void Guard::Before(const Program& program) {
  NoteSlot(program);
  boxes_.reset();
  if (!program.HasOpenFilm()) return;
  boxes_ = BoxesOf(program.RecordScreen);
  open_slot_ = CurrentSlot(program.RecordScreen);
}

std::string Guard::After(const Program& program, Passed passed, bool disturbed) {
  if (passed == Passed::Event) NoteSlot(program);
  std::string complaint;
  if (disk_.Moments() != moments_) {
    kit::Folder found = disk_.Content();
    const Change change = {last_, found, passed, disturbed};
    complaint = Compare(change);
    if (complaint.empty()) complaint = DraftComplaint(change, program);
    last_ = std::move(found);
    moments_ = disk_.Moments();
  }
  if (complaint.empty() && !disturbed && passed == Passed::Event) complaint = TypingComplaint(program);
  slots_.clear();
  boxes_.reset();
  return complaint;
}

std::string Guard::TypingComplaint(const Program& program) const {
  if (!boxes_ || !program.HasOpenFilm() || CurrentSlot(program.RecordScreen) != open_slot_) return "";
  const store::FilmRecord boxes = BoxesOf(program.RecordScreen);
  if (IsSame(boxes, *boxes_)) return "";
  const std::vector<store::Draft> drafts = DraftsIn(last_);
  bool is_kept =
      std::any_of(drafts.begin(), drafts.end(), [&](const auto& draft) { return IsSame(draft.Film, boxes); });
  return is_kept ? "" : "what was typed is in no draft";
}

std::string Guard::Compare(const Change& change) const {
  std::string complaint = MasterComplaint(change);
  std::set<std::string> names;
  for (const kit::Folder* folder : {&change.Before, &change.After}) {
    for (const auto& [name, content] : *folder) names.insert(name);
  }
  for (const std::string& name : names) {
    if (!complaint.empty()) return complaint;
    const std::optional<std::string> before = FileIn(change.Before, name), after = FileIn(change.After, name);
    if (before == after || name == MasterName || name == HistoryName) continue;
    if (name.starts_with(DraftBegin) && !name.ends_with(runtime::AsideEnding)) continue;
    if (name != JournalName) {
      complaint = OtherFileComplaint(name, after, change.Disturbed);
    } else if (!change.Disturbed && change.By == Passed::Event &&
               !HasSameBlock(before.value_or(""), after.value_or(""))) {
      complaint = JournalComplaint(after.value_or(""), slots_, ContentOf(change.After, MasterName));
    }
  }
  return complaint;
}

std::string Guard::MasterComplaint(const Change& change) const {
  const std::string &before = ContentOf(change.Before, MasterName), &after = ContentOf(change.After, MasterName);
  const std::string &history = ContentOf(change.Before, HistoryName), &longer = ContentOf(change.After, HistoryName);
  if (change.Before.contains(MasterName) && !change.After.contains(MasterName)) return "the master file was removed";
  if (change.By == Passed::DraftStart) return KeptDraftComplaint(DraftsIn(change.Before), before, after);
  if (before == after) return HistoryComplaint(history, longer, std::nullopt, before, after, change.Disturbed);
  std::string complaint = SlotText(FirstDifferentSlot(before, after)) + " was changed";
  for (std::int64_t slot : slots_) {
    std::string other = SlotComplaint(before, after, slot, change.Disturbed);
    if (other.empty()) return HistoryComplaint(history, longer, slot, before, after, change.Disturbed);
    complaint += "; as a write to " + SlotText(slot) + ": " + other;
  }
  return change.By == Passed::Event && AreTwoSaves(slots_, before, after, longer, change.Disturbed) ? "" : complaint;
}

std::string Guard::DraftComplaint(const Change& change, const Program& program) const {
  for (auto file = change.After.lower_bound(DraftBegin);
       file != change.After.end() && file->first.starts_with(DraftBegin); ++file) {
    auto before = change.Before.find(file->first);
    if (before != change.Before.end() && before->second == file->second) continue;
    if (file->first.ends_with(".new")) continue;
    std::optional<store::Draft> draft = DraftIn(file->second);
    if (!draft) return file->first + " was written and is no draft";
    if (change.Disturbed || !program.HasOpenFilm() || change.By != Passed::Event) continue;
    if (!IsSame(draft->Film, BoxesOf(program.RecordScreen))) return file->first + " does not hold what is in the boxes";
    if (!slots_.contains(draft->Slot)) return file->first + " names " + SlotText(draft->Slot);
  }
  return "";
}

}  // namespace monkey
