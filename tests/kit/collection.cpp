// The sample is in a folder of its own and stays out.
#include "tests/kit/collection.h"

#include "tests/kit/source_tree.h"

namespace kit {

Collection::Collection() {
  for (const auto& entry : std::filesystem::directory_iterator(DeliveredFolder())) {
    if (entry.is_regular_file()) std::filesystem::copy(entry.path(), folder_.Path());
  }
}

}  // namespace kit
