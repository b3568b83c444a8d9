// How a record is written so that a stop at any moment leaves the old record or the new one: a block in the journal
// (journal_block.h) is written and synced before the slot is touched; the next write overwrites it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "runtime/journal_block.h"
#include "runtime/whole_io.h"

namespace runtime {

// Called before a slot is written: what it contains (shorter if the file ends in it, empty past the end) and the record
// to come. What the function writes to the safety folder must be synced when it returns. Returns whether it may have
// made a file, whose name is then made durable before the slot is written.
using BeforeOverwrite = bool (*)(Disk& disk, std::int64_t slot, std::string_view old_record,
                                 std::string_view new_record);

class RecordJournal {
 public:
  explicit RecordJournal(Disk& disk) : disk_(disk) {}

  // Writes the record, from 1, into its slot, after a call of `before` if there is one. Blanks fill a gap between the
  // end of the file and the slot; "Bad record number" if that is over a gigabyte. "Path/File access error" if the
  // file's name now leads to another file, or to none. Returns when the record is on the disk; after a failure the old
  // record is written back as far as the disk allows.
  void Write(const OpenFile& file, std::int64_t slot, std::string_view record, BeforeOverwrite before = nullptr);
  // Call after opening: completes or undoes an interrupted write of ours and leaves everything else alone.
  void Recover(const OpenFile& file, int record_length);

 private:
  Disk& disk_;
  // Whether the names of the safety folder and of its files are durable. A block that is done says so for earlier runs.
  bool folders_synced_ = false;
};

// A file as Recover would leave it, for those who only read: a torn record is read whole, and an append that stopped
// short is not there. Nothing is written. It looks into the journal once, so make one for each pass. Throws as Recover
// does if the journal cannot be read. The file must outlive it.
class SettledFile {
 public:
  SettledFile(Disk& disk, const OpenFile& file, int record_length);

  std::int64_t Length() const;
  // As of an OpenFile.
  std::size_t Read(char* target, std::size_t count, std::int64_t offset) const;

 private:
  const OpenFile& file_;
  std::optional<JournalBlock> torn_;  // a write that Recover would complete or undo
  bool completed_ = false;
};

}  // namespace runtime
