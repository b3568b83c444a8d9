// A temporary collection as a first start finds it: the delivered files and no film.
#pragma once

#include "tests/kit/fresh_folder.h"

namespace kit {

class Collection {
 public:
  Collection();

  const std::filesystem::path& Folder() const { return folder_.Path(); }

 private:
  FreshFolder folder_;
};

}  // namespace kit
