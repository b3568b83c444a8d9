// Any zip in place of a copy: what is read has names of a collection and is no larger than allowed, and zipped again it
// is read again.
#include "companion/copies.h"
#include "tests/fuzz/fuzzing.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t Most = 4096;
  const std::string_view zip(reinterpret_cast<const char*>(data), size);
  const std::optional<companion::FilesByName> files = companion::Unzipped(zip, companion::BelongsToCollection, Most);
  if (!files) return 0;
  std::size_t total = 0;
  for (const auto& [name, bytes] : *files) {
    fuzz::Require(companion::BelongsToCollection(name), "only files of a collection are read");
    total += bytes.size();
  }
  fuzz::Require(total <= Most, "no more is read than allowed");
  if (files->empty()) return 0;
  const std::optional<std::string> again = companion::Zipped(*files);
  fuzz::Require(again && companion::Unzipped(*again, companion::BelongsToCollection, Most) == files,
                "what is zipped is read again");
  return 0;
}
