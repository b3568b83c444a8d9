// The advice counts for whole pages, so the first one begins inside the array.
#include "runtime/large_array.h"

#include <sys/mman.h>
#include <unistd.h>

namespace runtime {
namespace {

// An array of less gains nothing.
constexpr std::size_t Large = 4 * 1024 * 1024;

}  // namespace

void PreferLargePages(void* memory, std::size_t bytes) {
  if (bytes < Large) return;
  void* first = memory;
  if (std::align(static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)), Large / 2, first, bytes))
    static_cast<void>(::madvise(first, bytes, MADV_HUGEPAGE));
}

}  // namespace runtime
