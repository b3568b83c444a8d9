// Numbered files, 1 to 5, as the handlers use them. A call that fails throws a Failure that names the cause and the
// file. The number then keeps its file, except that Close frees it.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/disk.h"
#include "runtime/failure.h"
#include "runtime/record_journal.h"

namespace runtime {

class Files {
 public:
  explicit Files(runtime::Disk& disk);
  ~Files();
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  // "File already open" if the number is in use. Random: created empty if missing; record_length in bytes; before:
  // called at each Put.
  void OpenRandom(int number, std::string_view name, int record_length, BeforeOverwrite before = nullptr);
  // "File not found" if it is missing. Only its first megabyte is read.
  void OpenInput(int number, std::string_view name);
  // Replaces the old file when it is closed. What is written is kept in memory until then.
  void OpenOutput(int number, std::string_view name);
  // Does nothing if the number is not open.
  void Close(int number);
  bool IsOpen(int number) const;
  bool IsOpen(int number, std::string_view name) const;

  // Reads record N (from 1, otherwise "Bad record number") into target, which has the record length. A record cut off
  // by the end of the file is padded with blanks; past the end target is unchanged and false is returned.
  bool Get(int number, std::int64_t record, char* target);
  // A view of the read-ahead buffer from that record on: at least the record if it is whole, empty past the end. Valid
  // until the next call.
  std::string_view Peek(int number, std::int64_t record);
  // A record past the end extends the file; blanks fill the gap.
  void Put(int number, std::int64_t record, const char* source);
  // By Put, so far.
  std::int64_t RecordsWritten() const { return records_written_; }
  // The next line of a file open for input, without leading blanks; "Input past end of file" after the last.
  std::string ReadItem(int number);
  // Writes the line and CR LF to a file open for output.
  void WriteLine(int number, std::string_view line);

  // In bytes; by number, or by name ("File not found" if it is missing).
  std::int64_t Length(int number);
  std::int64_t Length(std::string_view name);

  runtime::Disk& Disk() { return disk_; }
  // Call when the named file was replaced as a whole: numbers that have it open then read the new content.
  void Replaced(std::string_view name);
  // Runs the call; the files that it replaces, by Close or by other means, share the syncs of the two folders, which
  // come last. A stop before leaves each file old or new.
  void ReplaceTogether(const std::function<void()>& call);

 private:
  struct NumberedFile;
  NumberedFile& At(int number);
  std::unique_ptr<NumberedFile>& Free(int number, std::string_view name);

  runtime::Disk& disk_;
  RecordJournal journal_;
  std::int64_t records_written_ = 0;
  bool together_ = false;
  std::array<std::unique_ptr<NumberedFile>, 5> files_;
};

}  // namespace runtime
