// Any XML file of Tellico.
#include "tests/fuzz/import_kit.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::PlayImport("tellico", data, size);
  return 0;
}
