// Reading, writing and keeping drafts.
#include "store/draft.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "runtime/checksum.h"
#include "runtime/whole_io.h"
#include "store/article.h"
#include "store/master_file.h"

namespace store {
namespace {

constexpr std::string_view Mark = "REELDRF1";
constexpr std::string_view FirstName = "draft";
constexpr std::size_t TitleWidth = 64;
constexpr std::int64_t LastSlot = std::numeric_limits<std::int32_t>::max();  // as far as the screen counts
constexpr int MasterNo = 1;

struct DraftHead {
  std::array<char, 8> Mark;
  std::int64_t Slot;
  std::int64_t IsNew;
  std::int64_t TitleLength;
  std::array<char, TitleWidth> Title;
};

constexpr std::size_t BodyLength = sizeof(DraftHead) + 2 * RecordLength;
constexpr std::size_t DraftLength = BodyLength + sizeof(std::uint64_t);

std::string DraftName(int number) {
  std::string name(FirstName);
  if (number > 1) name += std::to_string(number);
  return name;
}

std::string Bytes(const Draft& draft) {
  DraftHead head{};
  Mark.copy(head.Mark.data(), Mark.size());
  head.Slot = draft.Slot;
  head.IsNew = draft.IsNew ? 1 : 0;
  head.TitleLength = static_cast<std::int64_t>(draft.Title.copy(head.Title.data(), TitleWidth));
  std::string bytes(reinterpret_cast<const char*>(&head), sizeof head);
  bytes.append(draft.Before.Bytes.data(), RecordLength).append(draft.Film.Bytes.data(), RecordLength);
  std::uint64_t sum = runtime::Checksum(bytes);
  return bytes.append(reinterpret_cast<const char*>(&sum), sizeof sum);
}

std::optional<Draft> Parsed(std::string_view bytes) {
  std::uint64_t sum = 0;
  std::memcpy(&sum, bytes.data() + BodyLength, sizeof sum);
  DraftHead head{};
  std::memcpy(&head, bytes.data(), sizeof head);
  bool intact = sum == runtime::Checksum(bytes.substr(0, BodyLength)) && bytes.starts_with(Mark) && head.Slot >= 1 &&
                head.Slot <= LastSlot && head.TitleLength >= 0 &&
                head.TitleLength <= static_cast<std::int64_t>(TitleWidth);
  if (!intact) return std::nullopt;
  Draft draft;
  draft.Slot = head.Slot;
  draft.IsNew = head.IsNew != 0;
  draft.Title.assign(head.Title.data(), static_cast<std::size_t>(head.TitleLength));
  bytes.copy(draft.Before.Bytes.data(), RecordLength, sizeof head);
  bytes.copy(draft.Film.Bytes.data(), RecordLength, sizeof head + RecordLength);
  return draft;
}

// The master file, open for one piece of work.
class OpenedMaster {
 public:
  explicit OpenedMaster(runtime::Files& files) : files_(files) { OpenMaster(files, MasterNo); }
  ~OpenedMaster() { files_.Close(MasterNo); }
  OpenedMaster(const OpenedMaster&) = delete;
  OpenedMaster& operator=(const OpenedMaster&) = delete;

  // The last may be cut off.
  std::int64_t Slots() { return (files_.Length(MasterNo) + RecordLength - 1) / RecordLength; }
  FilmRecord Read(std::int64_t slot) {
    FilmRecord film;
    ReadRecord(files_, MasterNo, slot, film);
    return film;
  }
  void Write(std::int64_t slot, const FilmRecord& film) { WriteRecord(files_, MasterNo, slot, film); }

 private:
  runtime::Files& files_;
};

bool HasTitle(const FilmRecord& film) {
  return film.Get(FilmField::Title).find_first_not_of(' ') != std::string_view::npos;
}

bool MayTakeItsSlot(const Draft& draft, const FilmRecord& there) {
  return !HasTitle(there) || (!draft.IsNew && there.Get(FilmField::Title) == draft.Before.Get(FilmField::Title));
}

// A file of more slots is damaged, and a search through it could take hours.
constexpr std::int64_t MostSearched = 1'000'000;

// A slot that holds the very film is one that a stop kept from being told.
std::int64_t SlotFor(OpenedMaster& master, const Draft& draft, const FilmRecord& film) {
  std::int64_t slots = master.Slots();
  if (draft.Slot <= slots + 1 && MayTakeItsSlot(draft, master.Read(draft.Slot))) return draft.Slot;
  const std::int64_t first = slots > MostSearched ? slots : 1;
  for (std::int64_t slot = first; slot <= slots; ++slot) {
    FilmRecord there = master.Read(slot);
    if (!HasTitle(there) || there.Bytes == film.Bytes) return slot;
  }
  return slots + 1;
}

}  // namespace

FilmRecord ToSave(const Draft& draft) {
  FilmRecord film = draft.Film;
  MoveArticle(film, draft.Title, TitleEndOf(film));
  return film;
}

bool IsBlank(const FilmRecord& film) {
  auto end = film.Bytes.begin() + RowOf(FilmField::Tail).Offset;
  return std::all_of(film.Bytes.begin(), end, [](char byte) { return byte == ' '; });
}

void WriteDraft(runtime::Disk& disk, const std::string& name, const Draft& draft) {
  runtime::ReplaceUnsynced(disk, name, Bytes(draft));
}

std::optional<Draft> ReadDraft(runtime::Disk& disk, const std::string& name) {
  try {
    runtime::OpenFile file(disk, runtime::InSafetyFolder(name), runtime::Disk::Mode::Read);
    if (file.Length() != static_cast<std::int64_t>(DraftLength)) return std::nullopt;
    std::string bytes(DraftLength, '\0');
    if (file.Read(bytes.data(), bytes.size(), 0) != bytes.size()) return std::nullopt;
    return Parsed(bytes);
  } catch (const runtime::Failure& failure) {
    if (failure.Name == runtime::FileNotFound) return std::nullopt;
    throw;
  }
}

void RemoveDraft(runtime::Disk& disk, const std::string& name) {
  runtime::Discard(disk, runtime::InSafetyFolder(name));
}

std::vector<std::string> DraftNames(runtime::Disk& disk) {
  std::vector<std::string> names = disk.List(std::string(runtime::SafetyFolder));
  std::erase_if(names, [](const std::string& name) {
    return !name.starts_with(FirstName) || name.find_first_not_of("0123456789", FirstName.size()) != std::string::npos;
  });
  return names;
}

std::string FreeDraftName(runtime::Disk& disk) {
  for (int number = 1;; ++number) {
    std::string name = DraftName(number);
    try {
      if (!ReadDraft(disk, name)) return name;
    } catch (const runtime::Failure&) {
      if (number == 1000) throw;  // not one of so many can be read: the disk is at fault
    }
  }
}

bool IsSaved(runtime::Files& files, const Draft& draft) {
  OpenedMaster master(files);
  return master.Read(draft.Slot).Bytes == ToSave(draft).Bytes;
}

void KeepDraft(runtime::Files& files, const Draft& draft) {
  OpenedMaster master(files);
  FilmRecord film = ToSave(draft);
  master.Write(SlotFor(master, draft, film), film);
}

}  // namespace store
