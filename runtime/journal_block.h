// The block of `.reelora/journal`: one write of a record, noted before the slot is touched.
//
// Mark, file name, slot, length of the file before, record length, old image, new image, checksum. Once the record is
// on the disk the mark is replaced by another, and the block is done.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/whole_io.h"

namespace runtime {

struct JournalBlock {
  std::string FileName;
  std::int64_t Slot = 1;  // from 1
  std::int64_t LengthBefore = 0;
  std::string OldImage;  // zeros past the old end of the file
  std::string NewImage;

  // Of the slot, in the file.
  std::int64_t Offset() const { return (Slot - 1) * static_cast<std::int64_t>(NewImage.size()); }
  std::int64_t LengthAfter() const;
  // Where the write changes the file: from its end or from the slot, whichever comes first.
  std::int64_t From() const { return Offset() < LengthBefore ? Offset() : LengthBefore; }
};

// In bytes. A slot further past the end of the file is a corrupt number.
inline constexpr std::int64_t WidestGap = std::int64_t{1} << 30;

// The journal, created empty if missing.
OpenFile OpenJournal(Disk& disk);
// Neither syncs.
void WriteBlock(const OpenFile& journal, const JournalBlock& block);
void MarkDone(const OpenFile& journal);

struct FoundJournal {
  bool IsDone = false;
  std::optional<JournalBlock> Block;  // not done, intact, for that file, and with numbers that make sense
};
FoundJournal ReadJournal(Disk& disk, std::string_view file_name, int record_length);

}  // namespace runtime
