// Any block in the journal above any master file: recovery does what docs/safety.md says and nothing else, does it
// once, and leaves a file that can be written.
#include <algorithm>
#include <optional>

#include "runtime/journal_block.h"
#include "runtime/record_journal.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/plain_disk.h"

namespace {

using runtime::JournalBlock;

constexpr std::size_t Sector = 512;
const std::string Master = "Recpra.Dat";
const std::string Journal = ".reelora/journal";

// What the write changes in a file of that length: the part behind `From`.
struct Images {
  std::string Old, New;
};

// The gap before the slot is zeros in the old file and blanks in the new one.
Images ImagesOf(const JournalBlock& block, std::size_t length) {
  const auto from = static_cast<std::size_t>(block.From());
  const std::size_t gap = std::min(static_cast<std::size_t>(block.Offset()), length) - from;
  Images images{std::string(gap, '\0') + block.OldImage, std::string(gap, ' ') + block.NewImage};
  for (std::string* image : {&images.Old, &images.New}) image->resize(std::min(image->size(), length - from));
  return images;
}

// The file after the recovery; nothing if it is to be left alone.
std::optional<std::string> Recovered(const std::string& found, const JournalBlock& block) {
  const auto length = static_cast<std::int64_t>(found.size());
  if (length < block.LengthBefore || length > block.LengthAfter()) return std::nullopt;
  const auto from = static_cast<std::size_t>(block.From());
  const Images images = ImagesOf(block, found.size());
  const std::size_t end = from + images.New.size();
  bool is_new = length == block.LengthAfter(), is_old = length == block.LengthBefore;
  for (std::size_t at = from, next = 0; at < end; at = next) {
    next = std::min(end, (at / Sector + 1) * Sector);
    const bool same_old = found.compare(at, next - at, images.Old, at - from, next - at) == 0;
    const bool same_new = found.compare(at, next - at, images.New, at - from, next - at) == 0;
    if (!same_old && !same_new) return std::nullopt;
    is_old = is_old && same_old;
    is_new = is_new && same_new;
  }
  if (is_old || is_new) return found;
  if (length == block.LengthAfter()) return found.substr(0, from) + images.New + found.substr(end);
  return found.substr(0, from) + images.Old.substr(0, static_cast<std::size_t>(block.LengthBefore) - from);
}

bool MakesSense(const JournalBlock& block) {
  constexpr std::int64_t Longest = std::int64_t{1} << 53;
  const auto record = static_cast<std::int64_t>(block.NewImage.size());
  return block.FileName == Master && block.LengthBefore >= 0 && block.LengthBefore <= Longest && block.Slot >= 1 &&
         block.Slot <= Longest / record && block.Offset() - block.LengthBefore <= runtime::WidestGap;
}

JournalBlock AnyBlock(fuzz::Input& input, std::size_t record) {
  const std::size_t oddity = input.Below(16);
  JournalBlock block;
  block.FileName = oddity == 1 ? "Titlepra.Dat" : Master;
  block.Slot = oddity == 2 ? input.Number() : static_cast<std::int64_t>(1 + input.Below(6));
  block.LengthBefore = oddity == 3 ? input.Number() : static_cast<std::int64_t>(input.Below(4 * record));
  if (input.Flag() && oddity != 3) block.LengthBefore -= block.LengthBefore % static_cast<std::int64_t>(record);
  for (std::string* image : {&block.OldImage, &block.NewImage}) {
    *image = input.Bytes(input.Below(8));
    image->resize(record, static_cast<char>(input.Byte()));
  }
  return block;
}

// A file in the middle of the write: some sectors are old and some new, and some bytes are of others.
std::string AnyFile(fuzz::Input& input, const JournalBlock& block) {
  const bool sane = MakesSense(block) && block.LengthBefore < 10000 && block.LengthAfter() < 10000;
  const std::int64_t before = sane ? block.LengthBefore : 0, after = sane ? block.LengthAfter() : 2000;
  const std::size_t kind = input.Below(4);
  auto length = static_cast<std::size_t>(kind < 2 ? before : after);
  if (kind > 2) length = input.Below(static_cast<std::size_t>(after) + 700);
  std::string file(length, 'f');
  if (sane && file.size() >= static_cast<std::size_t>(before)) {
    const Images images = ImagesOf(block, length);
    const auto from = static_cast<std::size_t>(block.From());
    const std::size_t mask = input.Byte();
    for (std::size_t at = 0; at < images.New.size(); ++at)
      file[from + at] = (mask >> ((from + at) / Sector % 8) & 1) != 0 ? images.New[at] : images.Old[at];
  }
  for (std::size_t edits = input.Below(3); edits > 0 && !file.empty(); --edits)
    file[input.Below(10000) % file.size()] = static_cast<char>(input.Byte());
  return file;
}

std::string Written(const JournalBlock& block) {
  fuzz::PlainDisk disk;
  runtime::WriteBlock(runtime::OpenJournal(disk), block);
  return disk.Content(Journal);
}

void Recover(fuzz::PlainDisk& disk, std::size_t record) {
  const runtime::OpenFile file(disk, Master, runtime::Disk::Mode::ReadWrite);
  runtime::RecordJournal(disk).Recover(file, static_cast<int>(record));
}

std::string Settled(fuzz::PlainDisk& disk, std::size_t record) {
  const runtime::OpenFile file(disk, Master, runtime::Disk::Mode::Read);
  const runtime::SettledFile settled(disk, file, static_cast<int>(record));
  std::string bytes(static_cast<std::size_t>(settled.Length()), '\0');
  bytes.resize(settled.Read(bytes.data(), bytes.size(), 0));
  return bytes;
}

void Write(fuzz::PlainDisk& disk, std::size_t slot, const std::string& record) {
  const runtime::OpenFile file(disk, Master, runtime::Disk::Mode::ReadWrite);
  runtime::RecordJournal(disk).Write(file, static_cast<std::int64_t>(slot), record);
}

void WriteAndCompare(fuzz::PlainDisk& disk, fuzz::Input& input, std::size_t record) {
  std::string file = disk.Content(Master);
  const std::size_t slot = 1 + input.Below(8), offset = (slot - 1) * record;
  const std::string bytes(record, static_cast<char>(input.Byte()));
  Write(disk, slot, bytes);
  if (file.size() < offset + record) file.resize(std::max(file.size(), offset), ' ');
  file.replace(offset, record, bytes);
  fuzz::Require(disk.Content(Master) == file, "a write changes its slot and the gap before it");
  Recover(disk, record);
  fuzz::Require(disk.Content(Master) == file, "a write that returned stays");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  constexpr std::size_t Lengths[] = {649, 649, 64, 1300};
  const std::size_t record = Lengths[input.Below(4)];
  const JournalBlock block = AnyBlock(input, record);
  const std::string found = AnyFile(input, block);
  const std::string written = Written(block);
  std::string journal = written;
  for (std::size_t edits = input.Below(8) == 1 ? 1 + input.Below(2) : 0; edits > 0; --edits)
    journal[input.Below(10000) % journal.size()] = static_cast<char>(input.Byte());
  if (input.Below(16) == 1) journal.resize(input.Below(10000) % journal.size());
  if (input.Below(16) == 1) journal.replace(0, 8, "REELDONE");
  fuzz::PlainDisk disk({{Master, found}, {Journal, journal}});

  const bool counts = journal == written && MakesSense(block);
  const std::optional<std::string> recovered = counts ? Recovered(found, block) : std::nullopt;
  fuzz::Require(Settled(disk, record) == recovered.value_or(found), "a reader sees what a recovery leaves");
  Recover(disk, record);
  fuzz::Require(disk.Content(Master) == recovered.value_or(found), "recovery completes, undoes or leaves alone");
  if (recovered) journal.replace(0, 8, "REELDONE");
  fuzz::Require(disk.Content(Journal) == journal, "a block that counted is done, any other is left alone");
  const std::size_t changes = disk.Changes();
  Recover(disk, record);
  fuzz::Require(recovered ? disk.Changes() == changes : disk.Content(Master) == found,
                "a second recovery does nothing");
  WriteAndCompare(disk, input, record);
  return 0;
}
