// Any draft: what is read has a slot and a title, and is the same when written and read again; one that is kept takes
// its slot, a free one or the one behind the last, and no other film changes.
#include <algorithm>

#include "runtime/checksum.h"
#include "runtime/text.h"
#include "store/draft.h"
#include "store/master_file.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/plain_disk.h"

namespace {

constexpr std::size_t HeadLength = 96;
constexpr std::size_t TitleWidth = store::RowOf(store::FilmField::Title).Width;
const std::string DraftFile = ".reelora/draft";
const std::string Master(store::MasterFileName);

// Five bytes of title, the rest of one byte.
std::string AnyFilm(fuzz::Input& input) {
  std::string film(input.Bytes(input.Below(6)));
  film.resize(store::RecordLength, static_cast<char>(input.Byte()));
  return film;
}

std::string AnyDraft(fuzz::Input& input) {
  const std::size_t oddity = input.Below(16);
  std::string bytes = oddity == 1 ? std::string(input.Bytes(8)) : "REELDRF1";
  for (int number = 0; number < 3; ++number) {
    const std::int64_t value =
        oddity == 2 ? input.Number() : static_cast<std::int64_t>(input.Below(number == 2 ? 70 : 8));
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
  }
  bytes += input.Bytes(10);
  bytes.resize(HeadLength);
  bytes += AnyFilm(input);
  bytes += AnyFilm(input);
  const std::uint64_t sum = runtime::Checksum(bytes) + (oddity == 3 ? 1 : 0);
  bytes.append(reinterpret_cast<const char*>(&sum), sizeof sum);
  if (oddity == 4) bytes.resize(input.Below(1500), ' ');
  return bytes;
}

bool Same(const store::Draft& one, const store::Draft& other) {
  return one.Slot == other.Slot && one.IsNew == other.IsNew && one.Title == other.Title &&
         one.Before.Bytes == other.Before.Bytes && one.Film.Bytes == other.Film.Bytes;
}

bool IsFree(std::string_view slot) { return runtime::Trim(slot.substr(0, TitleWidth)).empty(); }

// At most one slot differs: one that was free, the film's own, or one behind the last.
void CheckKept(const std::string& before, const std::string& after, const store::Draft& draft) {
  const store::FilmRecord film = store::ToSave(draft);
  const std::size_t slots = (before.size() + store::RecordLength - 1) / store::RecordLength;
  fuzz::Require(after.size() <= (slots + 1) * store::RecordLength, "a film kept is in a slot or behind the last");
  bool found = false;
  for (std::size_t slot = 1; slot <= slots + 1; ++slot) {
    const std::size_t offset = (slot - 1) * store::RecordLength;
    if (offset >= after.size()) break;
    const std::string_view now = std::string_view(after).substr(offset, store::RecordLength);
    // A last slot that is cut off is filled up.
    const std::string then =
        offset < before.size() ? runtime::Fixed(std::string_view(before).substr(offset), store::RecordLength) : "";
    const bool is_film = now == std::string_view(film.Bytes.data(), film.Bytes.size());
    found = found || is_film;
    if (now == then || runtime::Fixed(now, store::RecordLength) == then) continue;
    const bool own = !draft.IsNew && draft.Slot == static_cast<std::int64_t>(slot) &&
                     then.substr(0, TitleWidth) == draft.Before.Get(store::FilmField::Title);
    fuzz::Require(is_film && (own || IsFree(then)), "a film kept takes the slot of no other");
  }
  fuzz::Require(found, "a film kept is in the master file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::string bytes = AnyDraft(input);
  std::string master;
  for (std::size_t films = input.Below(5); films > 0; --films) master += AnyFilm(input);
  if (input.Flag()) master.resize(input.Below(10000) % (master.size() + 1));
  fuzz::PlainDisk disk({{DraftFile, bytes}, {Master, master}});
  const std::optional<store::Draft> draft = store::ReadDraft(disk, "draft");
  if (!draft) return 0;
  fuzz::Require(draft->Slot >= 1 && draft->Title.size() <= 64, "a draft has a slot and a title");
  store::WriteDraft(disk, "draft2", *draft);
  const std::optional<store::Draft> again = store::ReadDraft(disk, "draft2");
  fuzz::Require(again && Same(*again, *draft), "a draft written and read again is the same");
  fuzz::Require(store::FreeDraftName(disk) == "draft3" && store::DraftNames(disk).size() == 2, "drafts are told apart");

  runtime::Files files(disk);
  static_cast<void>(store::IsSaved(files, *draft));
  fuzz::Require(disk.Content(Master) == master, "looking for a film writes nothing");
  store::KeepDraft(files, *draft);
  CheckKept(master, disk.Content(Master), *draft);
  return 0;
}
