// The journal block, the write in place, and the recovery.
#include "runtime/record_journal.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace runtime {
namespace {

constexpr std::string_view Mark = "REELORA1";
constexpr std::size_t NameWidth = 32;

// The part of the block before the two images.
struct BlockHead {
  std::array<char, 8> Mark;
  std::array<char, NameWidth> Name;
  std::int64_t Slot;
  std::int64_t LengthBefore;
  std::int64_t RecordLength;
};

struct Block {
  BlockHead Head;
  std::string OldImage;  // zeros past the old end of the file
  std::string NewImage;
};

// In bytes. A slot further past the end is a corrupt number.
constexpr std::int64_t WidestGap = std::int64_t{1} << 30;

std::string JournalName() { return InSafetyFolder("journal"); }

std::uint64_t Checksum(std::string_view bytes) {
  std::uint64_t sum = 0xCBF29CE484222325;
  for (char byte : bytes) sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  return sum;
}

std::array<char, NameWidth> NameOf(std::string_view file) {
  std::array<char, NameWidth> name{};
  file.copy(name.data(), name.size());
  return name;
}

std::string Bytes(const Block& block) {
  std::string bytes(reinterpret_cast<const char*>(&block.Head), sizeof block.Head);
  bytes += block.OldImage + block.NewImage;
  std::uint64_t sum = Checksum(bytes);
  bytes.append(reinterpret_cast<const char*>(&sum), sizeof sum);
  return bytes;
}

// The journal block, if it is intact and for this file.
std::optional<Block> ReadBlock(Disk& disk, std::string_view file_name, int record_length) {
  std::string bytes(sizeof(BlockHead) + 2 * record_length + sizeof(std::uint64_t), '\0');
  try {
    OpenFile journal(disk, JournalName(), Disk::Mode::Read);
    if (journal.Read(bytes.data(), bytes.size(), 0) != bytes.size()) return std::nullopt;
  } catch (const Failure& failure) {
    if (failure.Name == FileNotFound) return std::nullopt;
    throw;
  }
  std::string_view body(bytes.data(), bytes.size() - sizeof(std::uint64_t));
  std::uint64_t sum = 0;
  std::memcpy(&sum, bytes.data() + body.size(), sizeof sum);
  Block block;
  std::memcpy(&block.Head, bytes.data(), sizeof block.Head);
  block.OldImage = body.substr(sizeof block.Head, record_length);
  block.NewImage = body.substr(sizeof block.Head + record_length, record_length);
  bool ours = sum == Checksum(body) && Mark.compare({block.Head.Mark.data(), Mark.size()}) == 0 &&
              block.Head.Name == NameOf(file_name);
  return ours ? std::optional(block) : std::nullopt;
}

// The bytes of the file that a write changes: from the end of the file or from the slot, whichever comes first.
struct Stretch {
  std::int64_t From;
  std::int64_t LengthBefore, LengthAfter;  // of the file
  std::string Old;                         // zeros past the old end
  std::string New;                         // blanks between the end of the file and the slot
};

Stretch StretchOf(const Block& block) {
  std::int64_t before = block.Head.LengthBefore;
  std::int64_t offset = (block.Head.Slot - 1) * block.Head.RecordLength;
  std::size_t gap = offset > before ? static_cast<std::size_t>(offset - before) : 0;
  return {std::min(offset, before), before, std::max(before, offset + block.Head.RecordLength),
          std::string(gap, '\0') + block.OldImage, std::string(gap, ' ') + block.NewImage};
}

// Whether every byte comes from one of the two.
bool IsMixture(std::string_view found, std::string_view one, std::string_view other) {
  for (std::size_t index = 0; index < found.size(); ++index) {
    if (found[index] != one[index] && found[index] != other[index]) return false;
  }
  return true;
}

void TakeBack(const OpenFile& file, const Stretch& stretch) {
  auto held = static_cast<std::size_t>(stretch.LengthBefore - stretch.From);
  file.Write(std::string_view(stretch.Old).substr(0, held), stretch.From);
  if (stretch.LengthAfter > stretch.LengthBefore) file.Truncate(stretch.LengthBefore);
}

// Also after a failed sync: it is unknown which bytes reached the disk.
void TryToTakeBack(const OpenFile& file, const Stretch& stretch) {
  try {
    TakeBack(file, stretch);
  } catch (const Failure&) {
    return;  // the first failure is the one to report; the journal has both images for the next start
  }
}

}  // namespace

void RecordJournal::Write(const OpenFile& file, std::int64_t slot, std::string_view record, BeforeOverwrite before) {
  std::int64_t offset = (slot - 1) * static_cast<std::int64_t>(record.size());
  Block block{{}, std::string(record.size(), '\0'), std::string(record)};
  block.Head.LengthBefore = file.Length();
  if (offset - block.Head.LengthBefore > WidestGap) throw Failure{BadRecordNumber, file.Name()};
  std::size_t held = file.Read(block.OldImage.data(), record.size(), offset);
  Mark.copy(block.Head.Mark.data(), Mark.size());
  block.Head.Name = NameOf(file.Name());
  block.Head.Slot = slot;
  block.Head.RecordLength = static_cast<std::int64_t>(record.size());

  MakeSafetyFolder(disk_);
  if (before) before(disk_, slot, std::string_view(block.OldImage).substr(0, held), record);
  WriteBlock(Bytes(block));
  Stretch stretch = StretchOf(block);
  try {
    file.Write(stretch.New, stretch.From);
    file.Sync();
  } catch (const Failure&) {
    TryToTakeBack(file, stretch);
    throw;
  }
}

void RecordJournal::WriteBlock(const std::string& block) {
  OpenFile journal(disk_, JournalName(), Disk::Mode::Create);
  journal.Write(block, 0);
  journal.Sync();
  // Even if the files existed: a run that was killed may not have synced the folders.
  if (!folders_synced_) SyncFolders(disk_, journal.Name());
  folders_synced_ = true;
}

void RecordJournal::Recover(const OpenFile& file, int record_length) {
  folders_synced_ = false;
  std::optional<Block> block = ReadBlock(disk_, file.Name(), record_length);
  if (!block) return;
  Stretch stretch = StretchOf(*block);
  std::int64_t length = file.Length();
  if (length < stretch.LengthBefore) return;
  std::string found(stretch.New.size(), '\0');
  found.resize(file.Read(found.data(), found.size(), stretch.From));
  if (!IsMixture(found, stretch.Old, stretch.New)) return;

  bool grew = length > stretch.LengthBefore;
  bool is_old = !grew && stretch.Old.starts_with(found);
  if (length < stretch.LengthAfter && !is_old) TakeBack(file, stretch);
  if (length == stretch.LengthAfter && !is_old && found != stretch.New) file.Write(stretch.New, stretch.From);
  // Even a complete record may be only in the cache, and the next write overwrites this block.
  file.Sync();
}

}  // namespace runtime
