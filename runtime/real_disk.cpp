// The real disk: each call maps to one system call.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#include "runtime/disk.h"

namespace runtime {
namespace {

std::int64_t OrError(std::int64_t result) { return result < 0 ? -errno : result; }

int SyncAndClose(int handle) {
  int result = static_cast<int>(OrError(::fsync(handle)));
  ::close(handle);
  return result;
}

}  // namespace

RealDisk::RealDisk(std::string folder) : folder_(std::move(folder)) {}

std::string RealDisk::PathOf(const std::string& name) const { return name.empty() ? folder_ : folder_ + "/" + name; }

int RealDisk::Open(const std::string& name, Mode mode) {
  int flags = mode == Mode::Read ? O_RDONLY : mode == Mode::ReadWrite ? O_RDWR : O_RDWR | O_CREAT;
  int handle = static_cast<int>(OrError(::open(PathOf(name).c_str(), flags | O_CLOEXEC, 0666)));
  if (handle < 0 || mode != Mode::Read) return handle;
  struct stat status {};
  if (::fstat(handle, &status) == 0 && S_ISDIR(status.st_mode)) {
    ::close(handle);
    return -EISDIR;
  }
  return handle;
}

void RealDisk::Close(int handle) { ::close(handle); }

std::int64_t RealDisk::ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) {
  return OrError(::pread(handle, target, count, offset));
}

std::int64_t RealDisk::WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) {
  return OrError(::pwrite(handle, source, count, offset));
}

std::int64_t RealDisk::Length(int handle) {
  struct stat status {};
  return ::fstat(handle, &status) < 0 ? -errno : status.st_size;
}

int RealDisk::Truncate(int handle, std::int64_t length) {
  return static_cast<int>(OrError(::ftruncate(handle, length)));
}

int RealDisk::Sync(int handle) { return static_cast<int>(OrError(::fsync(handle))); }

int RealDisk::Rename(const std::string& from, const std::string& to) {
  return static_cast<int>(OrError(::rename(PathOf(from).c_str(), PathOf(to).c_str())));
}

int RealDisk::Remove(const std::string& name) { return static_cast<int>(OrError(::unlink(PathOf(name).c_str()))); }

int RealDisk::MakeFolder(const std::string& name) {
  struct stat status {};
  if (::stat(PathOf(name).c_str(), &status) == 0 && S_ISDIR(status.st_mode)) return 0;
  return static_cast<int>(OrError(::mkdir(PathOf(name).c_str(), 0777)));
}

int RealDisk::SyncFolder(const std::string& name) {
  int handle = static_cast<int>(OrError(::open(PathOf(name).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
  if (handle < 0) return handle;
  int result = SyncAndClose(handle);
  return result == -EINVAL ? 0 : result;  // some file systems cannot sync folders and need not
}

std::int64_t RealDisk::Modified(const std::string& name) {
  struct stat status {};
  return ::stat(PathOf(name).c_str(), &status) < 0 ? -errno : status.st_mtime;
}

std::vector<std::string> RealDisk::List(const std::string& folder) {
  std::vector<std::string> names;
  std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(PathOf(folder).c_str()), ::closedir);
  if (!listing) return names;
  while (const dirent* entry = ::readdir(listing.get())) {
    std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace runtime
