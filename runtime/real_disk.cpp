// The real disk: each call maps to one system call.
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
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

constexpr mode_t FilePermissions = 0666;

bool IsInSafetyFolder(const std::string& name) {
  return name.starts_with(SafetyFolder) && (name.size() == SafetyFolder.size() || name[SafetyFolder.size()] == '/');
}

}  // namespace

RealDisk::RealDisk(std::string folder, Links links) : folder_(std::move(folder)), links_(links) {}

std::string RealDisk::PathOf(const std::string& name) const {
  if (name.empty()) return folder_;
  return folder_ + "/" + name;
}

bool RealDisk::IsBehindLink(const std::string& name) const {
  if (!IsInSafetyFolder(name)) return false;
  const std::string folder = PathOf(std::string(SafetyFolder));
  struct stat status {};
  return ::lstat(folder.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

// The flags that never wait, for the other end of a pipe or for a device.
int RealDisk::OpenPath(const std::string& name, int flags) const {
  flags |= O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  if (links_ == Links::Refused || IsInSafetyFolder(name)) flags |= O_NOFOLLOW;
  const std::string path = PathOf(name);
  if ((flags & O_CREAT) == 0) return static_cast<int>(OrError(::open(path.c_str(), flags)));
  const std::string like = like_.starts_with('/') ? like_ : PathOf(like_);
  struct stat model {};
  bool has_model = !like_.empty() && ::stat(like.c_str(), &model) == 0;
  mode_t permissions = has_model ? model.st_mode & FilePermissions : FilePermissions;
  int handle = static_cast<int>(OrError(::open(path.c_str(), flags, permissions)));
  // Some disks keep no permissions; the file is as good without.
  if (handle >= 0 && has_model) static_cast<void>(::fchmod(handle, permissions));
  return handle;
}

int RealDisk::Open(const std::string& name, Mode mode) {
  if (IsBehindLink(name)) return -ELOOP;
  int flags = mode == Mode::Read ? O_RDONLY : O_RDWR;
  if (mode == Mode::CreateNew) flags |= O_CREAT | O_EXCL;
  int handle = OpenPath(name, flags);
  if (handle == -ENOENT && mode == Mode::Create) handle = OpenPath(name, flags | O_CREAT);
  if (handle < 0) return handle;
  struct stat status {};
  int error = ::fstat(handle, &status) < 0 ? -errno : S_ISREG(status.st_mode) ? 0 : -EACCES;
  if (error == 0) return handle;
  ::close(handle);
  return S_ISDIR(status.st_mode) ? -EISDIR : error;
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

// Some file systems cannot do so, and where there is no room the write says so.
void RealDisk::Reserve(int handle, std::int64_t length) {
  static_cast<void>(::fallocate(handle, FALLOC_FL_KEEP_SIZE, 0, length));
}

int RealDisk::Sync(int handle) { return static_cast<int>(OrError(::fsync(handle))); }

int RealDisk::Identify(int handle, FileIdentity& identity) {
  struct stat status {};
  if (::fstat(handle, &status) < 0) return -errno;
  identity = {status.st_dev, status.st_ino};
  return 0;
}

int RealDisk::Lock(int handle) {
  const int result = static_cast<int>(OrError(::flock(handle, LOCK_EX | LOCK_NB)));
  return result == -EWOULDBLOCK || result == -EINTR ? result : 0;  // some file systems know no locks
}

int RealDisk::Modified(int handle, FileTime& time) {
  struct stat status {};
  if (::fstat(handle, &status) < 0) return -errno;
  time = {status.st_mtim.tv_sec, static_cast<std::int32_t>(status.st_mtim.tv_nsec)};
  return 0;
}

int RealDisk::SetModified(int handle, FileTime time) {
  const std::array<timespec, 2> times = {timespec{0, UTIME_OMIT}, timespec{time.Seconds, time.Nanoseconds}};
  int result = static_cast<int>(OrError(::futimens(handle, times.data())));
  return result == -EPERM || result == -EINVAL || result == -ENOSYS || result == -ENOTSUP ? 0 : result;
}

int RealDisk::Rename(const std::string& from, const std::string& to) {
  if (IsBehindLink(from) || IsBehindLink(to)) return -ELOOP;
  return static_cast<int>(OrError(::rename(PathOf(from).c_str(), PathOf(to).c_str())));
}

int RealDisk::Remove(const std::string& name) {
  if (IsBehindLink(name)) return -ELOOP;
  return static_cast<int>(OrError(::unlink(PathOf(name).c_str())));
}

// The new folder takes the permissions of the disk's own: who can write into that one can write into both.
int RealDisk::MakeFolder(const std::string& name) {
  struct stat status {};
  const std::string path = PathOf(name);
  if (::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) return 0;
  if (::mkdir(path.c_str(), 0777) < 0) return -errno;
  if (::stat(folder_.c_str(), &status) == 0) static_cast<void>(::chmod(path.c_str(), status.st_mode & 0777));
  return 0;
}

int RealDisk::RemoveFolder(const std::string& name) {
  if (IsBehindLink(name)) return -ELOOP;
  return static_cast<int>(OrError(::rmdir(PathOf(name).c_str())));
}

int RealDisk::SyncFolder(const std::string& name) {
  int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | (name.empty() ? 0 : O_NOFOLLOW);
  int handle = static_cast<int>(OrError(::open(PathOf(name).c_str(), flags)));
  if (handle < 0) return handle;
  int result = SyncAndClose(handle);
  return result == -EINVAL ? 0 : result;  // some file systems cannot sync folders and need not
}

std::vector<std::string> RealDisk::List(const std::string& folder) {
  std::vector<std::string> names;
  if (IsBehindLink(folder)) return names;
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
