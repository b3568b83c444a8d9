// Any zipped file of Tellico, by its name in memory: minizip opens files.
#include <sys/mman.h>
#include <unistd.h>

#include "tests/fuzz/import_kit.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const int memory = memfd_create("zip", 0);
  fuzz::Require(ftruncate(memory, 0) == 0, "the file can be emptied");
  fuzz::Require(pwrite(memory, data, size, 0) == static_cast<ssize_t>(size), "the file can be written");
  const exchange::ImportFile file("/proc/self/fd/" + std::to_string(memory));
  if (file.Wrong()) return 0;
  const exchange::FilmsOfFile films = fuzz::ReadAll(*exchange::FormatOf("tellico"), file.Source());
  fuzz::RequireSecondImportChangesNothing(films, exchange::Doubles::Skip);
  return 0;
}
