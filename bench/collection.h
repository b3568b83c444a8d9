// A folder as a first start finds it, for measurements.
#pragma once

#include <filesystem>

namespace bench {

// Below the system's folder for temporary files; gone with the object.
class Collection {
 public:
  // Holds the delivered files and no film.
  explicit Collection(const std::string& name);
  Collection(const Collection&) = delete;
  Collection& operator=(const Collection&) = delete;
  ~Collection();

  const std::filesystem::path& Folder() const { return folder_; }

 private:
  std::filesystem::path folder_;
};

}  // namespace bench
