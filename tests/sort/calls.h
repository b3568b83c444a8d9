// Runs the sort operation on a disk in memory.
#pragma once

#include <mutex>
#include <string>
#include <string_view>

#include "runtime/disk.h"
#include "sort/operation.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/passing_disk.h"

namespace sort {

inline constexpr std::string_view TitlesStatement =
    "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(1,40,C,GT,\"000000\") Record(649)";

Result SortOn(runtime::Disk& disk, std::string_view output, std::string_view statement, const Limits& limits = {});
// One of several sorts of the same sorter.
Result SortWith(Sorter& sorter, std::string_view output, std::string_view statement, std::string_view next = "");

// The statement of a pass, in the order of the reference's pairs; "" after the last.
std::string StatementOfPass(std::size_t pass);

// The delivered weights.
std::string DeliveredWeights();

// A folder with this master file and the delivered weights.
kit::Folder FolderWith(const std::string& master);
// The content of a file; "" if it is missing.
std::string FileOn(const kit::MemoryDisk& disk, const std::string& name);
// The names of the files in the safety folder, each with a blank after it.
std::string Leftovers(const kit::MemoryDisk& disk);

// Safe for reads, writes and syncs of several threads.
class SharedDisk final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
    std::scoped_lock lock(mutex_);
    return PassingDisk::ReadAt(handle, target, count, offset);
  }
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    std::scoped_lock lock(mutex_);
    return PassingDisk::WriteAt(handle, source, count, offset);
  }
  int Sync(int handle) override {
    std::scoped_lock lock(mutex_);
    return PassingDisk::Sync(handle);
  }

 private:
  std::mutex mutex_;
};

// Checks the four passes with these limits against the reference: each with a sorter of its own, all with one, and all
// with one that is told the next.
void ExpectAsReference(const std::string& master, const Limits& limits);

}  // namespace sort
