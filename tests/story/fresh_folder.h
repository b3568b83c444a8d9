// A new, empty folder among this machine's temporary ones, removed with everything in it at the end of its life.
#pragma once

#include <filesystem>

namespace story {

class FreshFolder {
 public:
  // Keep: it stays when its life ends. Throws std::filesystem::filesystem_error where it cannot be made.
  explicit FreshFolder(bool keep = false);
  FreshFolder(const FreshFolder&) = delete;
  FreshFolder& operator=(const FreshFolder&) = delete;
  ~FreshFolder();

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
  bool keep_;
};

}  // namespace story
