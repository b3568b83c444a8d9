// Numbered files on the disk: random files read ahead a block of records, text files stay in memory until they are
// closed.
#include "runtime/files.h"

#include <algorithm>
#include <cstring>

#include "runtime/text.h"
#include "runtime/whole_io.h"

namespace runtime {
namespace {

constexpr std::size_t ReadAheadBytes = 256 * 1024;
constexpr std::int64_t LongestInput = 1024 * 1024;

}  // namespace

// Text: the content of an input file, read up to Position, or what has been written to an output file so far.
struct Files::NumberedFile {
  enum class Use { Random, Input, Output } As;
  std::string Name;
  int RecordLength = 0;
  BeforeOverwrite Before = nullptr;
  std::optional<OpenFile> Handle;
  std::string Text;
  std::size_t Position = 0;
  // What was read ahead of a random file, its length and its offset in the file. The buffer is allocated once and never
  // cleared.
  std::unique_ptr<char[]> Ahead;
  std::size_t AheadLength = 0;
  std::int64_t AheadFrom = 0;

  void Forget() { AheadLength = 0; }
  // Buffered bytes from offset: a record or more, fewer at the end of the file.
  std::string_view Fetch(std::int64_t offset);
};

std::string_view Files::NumberedFile::Fetch(std::int64_t offset) {
  auto length = static_cast<std::size_t>(RecordLength);
  std::int64_t ahead_end = AheadFrom + static_cast<std::int64_t>(AheadLength);
  if (AheadLength == 0 || offset < AheadFrom || offset + RecordLength > ahead_end) {
    bool in_sequence = AheadLength > 0 && offset >= AheadFrom && offset <= ahead_end;
    std::size_t block = std::max(length, ReadAheadBytes / length * length);
    if (!Ahead) Ahead = std::make_unique_for_overwrite<char[]>(block);
    Forget();  // a failed read may have overwritten the buffer
    AheadLength = Handle->Read(Ahead.get(), in_sequence ? block : length, offset);
    AheadFrom = offset;
  }
  return std::string_view(Ahead.get(), AheadLength).substr(static_cast<std::size_t>(offset - AheadFrom));
}

Files::Files(runtime::Disk& disk) : disk_(disk), journal_(disk) {}
Files::~Files() = default;

Files::NumberedFile& Files::At(int number) {
  if (!IsOpen(number)) throw Failure{BadFileNumber, ""};
  return *files_[number - 1];
}

std::unique_ptr<Files::NumberedFile>& Files::Free(int number, std::string_view name) {
  if (number < 1 || number > static_cast<int>(files_.size())) throw Failure{BadFileNumber, std::string(name)};
  if (files_[number - 1]) throw Failure{FileAlreadyOpen, std::string(name)};
  return files_[number - 1];
}

bool Files::IsOpen(int number) const {
  return number >= 1 && number <= static_cast<int>(files_.size()) && files_[number - 1] != nullptr;
}

bool Files::IsOpen(int number, std::string_view name) const {
  return IsOpen(number) && files_[number - 1]->Name == name;
}

void Files::OpenRandom(int number, std::string_view name, int record_length, BeforeOverwrite before) {
  auto& slot = Free(number, name);
  auto file = std::make_unique<NumberedFile>();
  file->As = NumberedFile::Use::Random;
  file->Name = name;
  file->RecordLength = record_length;
  file->Before = before;
  file->Handle.emplace(disk_, file->Name, Disk::Mode::Create);
  journal_.Recover(*file->Handle, record_length);
  slot = std::move(file);
}

void Files::OpenInput(int number, std::string_view name) {
  auto& slot = Free(number, name);
  auto file = std::make_unique<NumberedFile>();
  file->As = NumberedFile::Use::Input;
  file->Name = name;
  OpenFile handle(disk_, file->Name, Disk::Mode::Read);
  file->Text.resize(static_cast<std::size_t>(std::min(handle.Length(), LongestInput)));
  file->Text.resize(handle.Read(file->Text.data(), file->Text.size(), 0));
  slot = std::move(file);
}

void Files::OpenOutput(int number, std::string_view name) {
  auto& slot = Free(number, name);
  slot = std::make_unique<NumberedFile>();
  slot->As = NumberedFile::Use::Output;
  slot->Name = name;
}

void Files::Close(int number) {
  if (!IsOpen(number)) return;
  std::unique_ptr<NumberedFile> file = std::move(files_[number - 1]);
  if (file->As != NumberedFile::Use::Output) return;
  ReplaceFile(disk_, file->Name, file->Text);
  if (!together_) SyncFolders(disk_, file->Name);
  Replaced(file->Name);
}

std::string_view Files::Peek(int number, std::int64_t record) {
  NumberedFile& file = At(number);
  if (file.As != NumberedFile::Use::Random) throw Failure{BadFileNumber, file.Name};
  if (record < 1) throw Failure{BadRecordNumber, file.Name};
  return file.Fetch((record - 1) * file.RecordLength);
}

bool Files::Get(int number, std::int64_t record, char* target) {
  const int length = At(number).RecordLength;
  std::string_view bytes = Peek(number, record).substr(0, static_cast<std::size_t>(length));
  if (bytes.empty()) return false;
  bytes.copy(target, bytes.size());
  std::memset(target + bytes.size(), ' ', static_cast<std::size_t>(length) - bytes.size());
  return true;
}

void Files::Put(int number, std::int64_t record, const char* source) {
  NumberedFile& file = At(number);
  if (file.As != NumberedFile::Use::Random) throw Failure{BadFileNumber, file.Name};
  if (record < 1) throw Failure{BadRecordNumber, file.Name};
  file.Forget();
  journal_.Write(*file.Handle, record, {source, static_cast<std::size_t>(file.RecordLength)}, file.Before);
  ++records_written_;
}

std::string Files::ReadItem(int number) {
  NumberedFile& file = At(number);
  if (file.As != NumberedFile::Use::Input) throw Failure{BadFileNumber, file.Name};
  if (file.Position >= file.Text.size()) throw Failure{InputPastEnd, file.Name};
  std::string_view rest = std::string_view(file.Text).substr(file.Position);
  std::string_view line = rest.substr(0, rest.find('\n'));
  file.Position += line.size() + 1;
  if (line.size() < rest.size() && line.ends_with('\r')) line.remove_suffix(1);
  return std::string(TrimFront(line));
}

void Files::WriteLine(int number, std::string_view line) {
  NumberedFile& file = At(number);
  if (file.As != NumberedFile::Use::Output) throw Failure{BadFileNumber, file.Name};
  file.Text.append(line).append("\r\n");
}

std::int64_t Files::Length(int number) {
  NumberedFile& file = At(number);
  return file.Handle ? file.Handle->Length() : static_cast<std::int64_t>(file.Text.size());
}

std::int64_t Files::Length(std::string_view name) {
  return OpenFile(disk_, std::string(name), Disk::Mode::Read).Length();
}

void Files::ReplaceTogether(const std::function<void()>& call) {
  if (together_) return call();
  together_ = true;
  try {
    call();
  } catch (...) {
    together_ = false;
    throw;
  }
  together_ = false;
  SyncFolders(disk_, SafetyFolder);
}

void Files::Replaced(std::string_view name) {
  for (auto& file : files_) {
    if (!file || file->As != NumberedFile::Use::Random || file->Name != name) continue;
    OpenFile fresh(disk_, file->Name, Disk::Mode::Create);
    file->Handle.emplace(std::move(fresh));
    file->Forget();
  }
}

}  // namespace runtime
