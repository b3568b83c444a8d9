// Any file of recutils.
#include "tests/fuzz/import_kit.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::PlayImport("rec", data, size);
  return 0;
}
