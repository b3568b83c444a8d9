// mkdtemp makes a folder that nobody else has.
#include "tests/kit/fresh_folder.h"

#include <stdlib.h>

#include <cerrno>
#include <string>
#include <system_error>

namespace kit {

namespace fs = std::filesystem;

FreshFolder::FreshFolder(bool keep) : keep_(keep) {
  std::string pattern = (fs::temp_directory_path() / "reelora-XXXXXX").string();
  if (!mkdtemp(pattern.data()))
    throw fs::filesystem_error("no temporary folder", pattern, std::error_code(errno, std::generic_category()));
  path_ = pattern;
}

FreshFolder::~FreshFolder() {
  std::error_code left_behind;
  if (!keep_) fs::remove_all(path_, left_behind);
}

}  // namespace kit
