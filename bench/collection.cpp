// The folder is laid out with what ships beside the program.
#include "bench/collection.h"

namespace bench {

Collection::Collection(const std::string& name) : folder_(std::filesystem::temp_directory_path() / name) {
  std::filesystem::remove_all(folder_);
  std::filesystem::create_directories(folder_);
  for (const auto& entry : std::filesystem::directory_iterator(REELORA_DELIVERED)) {
    if (entry.is_regular_file()) std::filesystem::copy(entry.path(), folder_);
  }
}

Collection::~Collection() {
  std::error_code left_behind;
  std::filesystem::remove_all(folder_, left_behind);
}

}  // namespace bench
