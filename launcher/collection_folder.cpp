#include "launcher/collection_folder.h"

#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <system_error>

#include "runtime/disk.h"
#include "store/master_file.h"
#include "store/sort_pass.h"

namespace launcher {

namespace fs = std::filesystem;

bool IsCollection(const std::string& folder) {
  std::error_code none;
  return std::ranges::any_of(
      std::initializer_list<std::string_view>{store::MasterFileName, runtime::SafetyFolder, store::WeightsFile},
      [&](std::string_view name) { return fs::exists(fs::path(folder) / name, none); });
}

bool IsEmpty(const std::string& folder) {
  std::error_code none;
  return fs::is_empty(folder, none) && !none;
}

}  // namespace launcher
