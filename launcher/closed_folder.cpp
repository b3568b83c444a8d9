#include "launcher/closed_folder.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace launcher {
namespace {

namespace fs = std::filesystem;

bool IsDenied(const fs::path& path, int access) {
  struct stat status {};
  const bool is_file = ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
  return !is_file && ::faccessat(AT_FDCWD, path.c_str(), access, AT_EACCESS) != 0 && errno == EACCES;
}

// The first folder on the way that denies it; "" for none. What a folder has in it is reached with its permission to be
// searched; only the last folder must be listed, too.
fs::path ClosedOne(const fs::path& folder) {
  fs::path here;
  for (const fs::path& part : folder) {
    here /= part;
    if (IsDenied(here, here == folder ? R_OK | X_OK : X_OK)) return here;
  }
  return {};
}

// A link on the way may lead into a folder whose owner cannot be seen.
std::string OwnerOf(const struct stat* status) {
  if (!status) return "another user";
  const passwd* account = ::getpwuid(status->st_uid);
  return account ? "the user " + std::string(account->pw_name)
                 : "the user with the number " + std::to_string(status->st_uid);
}

// The end of a sentence that begins with the folder, and what to do.
std::string BelongsTo(const fs::path& closed) {
  struct stat status {};
  const bool seen = ::stat(closed.c_str(), &status) == 0;
  if (seen && status.st_uid == ::geteuid())
    return " belongs to you, but you have no permission to read it. Give your user account that permission.";
  return " belongs to " + OwnerOf(seen ? &status : nullptr) +
         ", and you have no permission to read it. Ask that user for permission, or choose another folder.";
}

}  // namespace

std::string WhyClosed(const std::string& folder) {
  const fs::path closed = ClosedOne(folder);
  if (closed.empty()) return "";
  const std::string start = "The folder " + folder + " cannot be opened. ";
  if (closed == folder) return start + "It" + BelongsTo(closed);
  return start + "The folder " + closed.string() + ", which it is in," + BelongsTo(closed);
}

}  // namespace launcher
