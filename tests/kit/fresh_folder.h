// A temporary folder, deleted on destruction.
#pragma once

#include <filesystem>

namespace kit {

class FreshFolder {
 public:
  // Keep: the folder outlives the object. Throws std::filesystem::filesystem_error if it cannot be made.
  explicit FreshFolder(bool keep = false);
  FreshFolder(const FreshFolder&) = delete;
  FreshFolder& operator=(const FreshFolder&) = delete;
  ~FreshFolder();

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
  bool keep_;
};

}  // namespace kit
