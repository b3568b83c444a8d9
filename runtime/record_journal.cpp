// The write in place, and the recovery. A gap before a far slot is written and compared piece by piece.
#include "runtime/record_journal.h"

#include <algorithm>
#include <cerrno>
#include <span>
#include <string>
#include <utility>

namespace runtime {
namespace {

constexpr std::int64_t SectorBytes = 512;
constexpr std::int64_t PieceBytes = 128 * SectorBytes;

// Where the sector or piece of the file ends in which that offset lies.
std::int64_t EndOf(std::int64_t unit, std::int64_t offset, std::int64_t end) {
  return std::min(end, (offset / unit + 1) * unit);
}

// The content of the file from that offset on, as the block has it: the gap filled, then the image.
void Fill(std::span<char> piece, std::int64_t from, const JournalBlock& block, char gap, const std::string& image) {
  auto before = std::clamp<std::int64_t>(block.Offset() - from, 0, std::ssize(piece));
  std::fill_n(piece.begin(), before, gap);
  auto in_image = static_cast<std::size_t>(from + before - block.Offset());
  if (before < std::ssize(piece)) image.copy(piece.data() + before, piece.size() - before, in_image);
}

// Torn: each sector of the file that the write changes is wholly old or wholly new, and the file ends as the write
// found it, as it was to leave it, or in between.
enum class State { Old, New, Torn, Foreign };

State StateOf(const OpenFile& file, const JournalBlock& block) {
  const std::int64_t length = file.Length();
  if (length < block.LengthBefore || length > block.LengthAfter()) return State::Foreign;
  bool is_old = length == block.LengthBefore, is_new = length == block.LengthAfter();
  const std::int64_t slot_end = std::min(length, block.Offset() + std::ssize(block.NewImage));
  std::string found, old_piece, new_piece;
  for (std::int64_t from = block.From(); from < slot_end; from += std::ssize(found)) {
    const auto size = static_cast<std::size_t>(EndOf(PieceBytes, from, slot_end) - from);
    for (std::string* piece : {&found, &old_piece, &new_piece}) piece->resize(size);
    if (file.Read(found.data(), size, from) < size) return State::Foreign;
    Fill(old_piece, from, block, '\0', block.OldImage);
    Fill(new_piece, from, block, ' ', block.NewImage);
    for (std::int64_t at = from; at < from + std::ssize(found); at = EndOf(SectorBytes, at, slot_end)) {
      const auto place = static_cast<std::size_t>(at - from);
      const auto sector = static_cast<std::size_t>(EndOf(SectorBytes, at, slot_end) - at);
      const bool same_old = found.compare(place, sector, old_piece, place, sector) == 0;
      const bool same_new = found.compare(place, sector, new_piece, place, sector) == 0;
      if (!same_old && !same_new) return State::Foreign;
      is_old = is_old && same_old;
      is_new = is_new && same_new;
    }
  }
  return is_old ? State::Old : is_new ? State::New : State::Torn;
}

// What a torn write becomes: the new record if the file is as long as that, else the old one.
bool MayBeCompleted(const OpenFile& file, const JournalBlock& block) { return file.Length() == block.LengthAfter(); }

// Each sector in one call: one that is written twice could be found on the disk as it was in between.
void WriteNew(const OpenFile& file, const JournalBlock& block) {
  const std::int64_t end = block.Offset() + std::ssize(block.NewImage);
  std::string piece;
  for (std::int64_t from = block.From(); from < end; from += std::ssize(piece)) {
    piece.resize(static_cast<std::size_t>(EndOf(PieceBytes, from, end) - from));
    Fill(piece, from, block, ' ', block.NewImage);
    file.Write(piece, from);
  }
}

// The sector in which the file ended becomes wholly old, zeros included, before the file is cut back.
void TakeBack(const OpenFile& file, const JournalBlock& block) {
  const std::int64_t slot_end = std::min(file.Length(), block.Offset() + std::ssize(block.NewImage));
  const std::int64_t end = EndOf(SectorBytes, block.LengthBefore, slot_end);
  if (block.Offset() < block.LengthBefore && block.Offset() < end) {
    std::string old_part(static_cast<std::size_t>(end - block.Offset()), '\0');
    Fill(old_part, block.Offset(), block, '\0', block.OldImage);
    file.Write(old_part, block.Offset());
  }
  if (block.LengthAfter() > block.LengthBefore) file.Truncate(block.LengthBefore);
}

// Also after a failed sync: it is unknown which bytes reached the disk.
void TryToTakeBack(const OpenFile& file, const JournalBlock& block) {
  try {
    TakeBack(file, block);
  } catch (const Failure&) {
    return;  // the first failure is the one to report; the journal has both images for the next start
  }
}

}  // namespace

void RecordJournal::Write(const OpenFile& file, std::int64_t slot, std::string_view record, BeforeOverwrite before) {
  JournalBlock block{file.Name(), slot, file.Length(), std::string(record.size(), '\0'), std::string(record)};
  if (block.Offset() - block.LengthBefore > WidestGap) throw Failure{BadRecordNumber, file.Name()};
  const std::size_t held = file.Read(block.OldImage.data(), record.size(), block.Offset());

  MakeSafetyFolder(disk_);
  const OpenFile journal = OpenJournal(disk_);
  // Empty files may be new ones.
  if (block.LengthBefore == 0 || journal.Length() == 0) folders_synced_ = false;
  WriteBlock(journal, block);
  journal.Sync();
  if (before && before(disk_, slot, std::string_view(block.OldImage).substr(0, held), record)) folders_synced_ = false;
  if (!folders_synced_) SyncFolders(disk_, journal.Name());
  folders_synced_ = true;
  if (!HasItsName(disk_, file)) {
    MarkDone(journal);
    throw Failure{PathError, file.Name(), ESTALE};
  }
  try {
    WriteNew(file, block);
    file.Sync();
  } catch (const Failure&) {
    TryToTakeBack(file, block);
    throw;
  }
  MarkDone(journal);
}

void RecordJournal::Recover(const OpenFile& file, int record_length) {
  const FoundJournal found = ReadJournal(disk_, file.Name(), record_length);
  folders_synced_ = found.IsDone;
  if (!found.Block) return;
  const State state = StateOf(file, *found.Block);
  if (state == State::Foreign) return;
  if (state == State::Torn) {
    if (MayBeCompleted(file, *found.Block)) {
      WriteNew(file, *found.Block);
    } else {
      TakeBack(file, *found.Block);
    }
  }
  // Even a complete record may be only in the cache, and a block that is done is of no use.
  file.Sync();
  SyncFolders(disk_, file.Name());
  folders_synced_ = true;
  MarkDone(OpenJournal(disk_));
}

SettledFile::SettledFile(Disk& disk, const OpenFile& file, int record_length) : file_(file) {
  std::optional<JournalBlock> block = ReadJournal(disk, file.Name(), record_length).Block;
  if (!block || StateOf(file, *block) != State::Torn) return;
  torn_ = std::move(block);
  completed_ = MayBeCompleted(file, *torn_);
}

std::int64_t SettledFile::Length() const { return torn_ && !completed_ ? torn_->LengthBefore : file_.Length(); }

std::size_t SettledFile::Read(char* target, std::size_t count, std::int64_t offset) const {
  if (!torn_) return file_.Read(target, count, offset);
  const std::int64_t length = Length();
  const auto most = static_cast<std::size_t>(std::max<std::int64_t>(length - offset, 0));
  const std::size_t read = file_.Read(target, std::min(count, most), offset);
  const std::int64_t slot_end = torn_->Offset() + std::ssize(torn_->NewImage);
  const std::int64_t from = std::max(torn_->From(), offset);
  const std::int64_t end = std::min({length, slot_end, offset + static_cast<std::int64_t>(read)});
  if (from >= end) return read;
  const std::span<char> changed(target + (from - offset), static_cast<std::size_t>(end - from));
  if (completed_) {
    Fill(changed, from, *torn_, ' ', torn_->NewImage);
  } else {
    Fill(changed, from, *torn_, '\0', torn_->OldImage);
  }
  return read;
}

}  // namespace runtime
