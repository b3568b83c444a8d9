// How a record is written so that a stop at any moment leaves the old record or the new one.
//
// `.reelora/journal` holds one block: mark, file name, slot, record length, length of the file before, old image, new
// image, checksum. It is written and synced before the slot is touched; the next write takes its place.
// `.reelora/history` keeps the old image of every film that is overwritten: date, time, slot, record; entries of a
// fixed length, the newest last.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/whole_io.h"

namespace runtime {

// A slot whose first bytes are blank to this width holds no film: its old image is not kept.
inline constexpr int HistoryKeyWidth = 40;
// Its file in the safety folder.
inline constexpr std::string_view HistoryFile = "history";
// "2026-11-21 05:30:00 0000007 " before the record.
inline constexpr int HistoryHeadLength = 28;

class RecordJournal {
 public:
  explicit RecordJournal(Disk& disk) : disk_(disk) {}

  // Writes the record, from 1, at its slot; past the end of the file blanks go before it, "Bad record number" where
  // those would be more than a gigabyte. It returns when the record is on the disk; on a failure the old record is put
  // back as far as the disk allows.
  void Write(const OpenFile& file, std::int64_t slot, std::string_view record);
  // To be called when the file has been opened: finishes or takes back a write of ours that was cut short; leaves
  // everything else as it is.
  void Recover(const OpenFile& file, int record_length);

 private:
  // The block is in the journal, the film, where one goes, in the history, both on the disk.
  void Prepare(const std::string& block, std::int64_t slot, std::string_view film);
  Disk& disk_;
  bool folders_synced_ = false;
};

}  // namespace runtime
