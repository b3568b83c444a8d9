// The files as strings, and the zeros behind them.
#include "tests/fuzz/plain_disk.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace fuzz {

PlainDisk::PlainDisk(const kit::Folder& content) {
  for (const auto& [name, bytes] : content)
    files_[name] = std::make_shared<File>(File{bytes, static_cast<std::int64_t>(bytes.size())});
}

std::string PlainDisk::Content(const std::string& name) const {
  auto found = files_.find(name);
  return found == files_.end() ? "" : found->second->Bytes;
}

kit::Folder PlainDisk::Content() const {
  kit::Folder content;
  for (const auto& [name, file] : files_) content[name] = file->Bytes;
  return content;
}

void PlainDisk::SetLength(const std::string& name, std::int64_t length) { files_.at(name)->Length = length; }

int PlainDisk::Called() {
  if (allowed_ == 0) throw TooManyCalls{};
  --allowed_;
  return 0;
}

int PlainDisk::Open(const std::string& name, Mode mode) {
  Called();
  auto found = files_.find(name);
  if (found != files_.end() && mode == Mode::CreateNew) return -EEXIST;
  if (found == files_.end()) {
    if (mode != Mode::Create && mode != Mode::CreateNew) return -ENOENT;
    found = files_.emplace(name, std::make_shared<File>()).first;
    ++changes_;
  }
  handles_.push_back(found->second);
  return static_cast<int>(handles_.size()) - 1;
}

std::int64_t PlainDisk::ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) {
  const std::scoped_lock lock(mutex_);
  Called();
  const File& file = At(handle);
  const std::int64_t size = std::clamp<std::int64_t>(file.Length - offset, 0, static_cast<std::int64_t>(count));
  const std::int64_t held = std::clamp<std::int64_t>(std::ssize(file.Bytes) - offset, 0, size);
  if (held > 0) std::memcpy(target, file.Bytes.data() + offset, static_cast<std::size_t>(held));
  if (size > held) std::memset(target + held, 0, static_cast<std::size_t>(size - held));
  return size;
}

std::int64_t PlainDisk::WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) {
  const std::scoped_lock lock(mutex_);
  Called();
  ++changes_;
  File& file = At(handle);
  const auto from = static_cast<std::size_t>(offset);
  if (file.Bytes.size() < from + count) file.Bytes.resize(from + count);
  file.Bytes.replace(from, count, source, count);
  file.Length = std::max(file.Length, std::ssize(file.Bytes));
  return static_cast<std::int64_t>(count);
}

std::int64_t PlainDisk::Length(int handle) {
  Called();
  return At(handle).Length;
}

int PlainDisk::Truncate(int handle, std::int64_t length) {
  ++changes_;
  File& file = At(handle);
  file.Length = length;
  if (length < std::ssize(file.Bytes)) file.Bytes.resize(static_cast<std::size_t>(length));
  return Called();
}

int PlainDisk::Identify(int handle, runtime::FileIdentity& identity) {
  identity = {1, reinterpret_cast<std::uintptr_t>(&At(handle))};
  return Called();
}

int PlainDisk::Rename(const std::string& from, const std::string& to) {
  auto found = files_.find(from);
  if (found == files_.end()) return -ENOENT;
  ++changes_;
  files_[to] = found->second;
  files_.erase(from);
  return Called();
}

int PlainDisk::Remove(const std::string& name) {
  if (files_.erase(name) == 0) return -ENOENT;
  ++changes_;
  return Called();
}

std::vector<std::string> PlainDisk::List(const std::string& folder) {
  Called();
  std::vector<std::string> names;
  for (const auto& [name, file] : files_) {
    if (kit::FolderOf(name) == folder) names.push_back(folder.empty() ? name : name.substr(folder.size() + 1));
  }
  return names;
}

}  // namespace fuzz
