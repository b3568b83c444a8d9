// Files by number, 1 to 5, as the handlers know them. A failing call throws the Failure that names it and leaves the
// files as they were.
#pragma once

#include <array>
#include <cstdint>
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

  // "File already open" where the number is in use. Random: made empty when missing; record_length in bytes.
  void OpenRandom(int number, std::string_view name, int record_length);
  // "File not found" where it is missing.
  void OpenInput(int number, std::string_view name);
  // Takes the old file's place when it is closed.
  void OpenOutput(int number, std::string_view name);
  // Nothing on a number that is not open.
  void Close(int number);
  bool IsOpen(int number) const;

  // Record from 1, "Bad record number" below. Past the end nothing is delivered; of a record that the file ends in,
  // what is there is delivered and the rest reads as blanks. Tells whether anything was delivered. Target of the record
  // length.
  bool Get(int number, std::int64_t record, char* target);
  // The bytes from a record on as far as they have been read ahead, at least that record where it is whole, none behind
  // the end: for a look in passing. They stand until the next call.
  std::string_view Peek(int number, std::int64_t record);
  // Past the end the file is extended with blanks up to the record.
  void Put(int number, std::int64_t record, const char* source);
  // The next line of a file open for input, leading blanks dropped; "Input past end of file" where none is left.
  std::string ReadItem(int number);
  // The line and CR LF to a file open for output.
  void WriteLine(int number, std::string_view line);

  // In bytes; by number, or by name ("File not found" where it is missing).
  std::int64_t Length(int number);
  std::int64_t Length(std::string_view name);

  runtime::Disk& Disk() { return disk_; }
  // The named file was replaced as a whole: numbers that have it open read the new contents.
  void Replaced(std::string_view name);

 private:
  struct NumberedFile;
  NumberedFile& At(int number);
  std::unique_ptr<NumberedFile>& Free(int number, std::string_view name);

  runtime::Disk& disk_;
  RecordJournal journal_;
  std::array<std::unique_ptr<NumberedFile>, 5> files_;
};

}  // namespace runtime
