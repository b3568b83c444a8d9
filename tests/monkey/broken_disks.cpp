// Each overrides the one call in which it is broken.
#include "tests/monkey/broken_disks.h"

#include <stdexcept>

#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/passing_disk.h"

namespace monkey {
namespace {

const std::string Master(store::MasterFileName);
const std::string Journal = ".reelora/journal";
const std::string History = ".reelora/history";

// A write to any slot but the first also changes the first.
class ForeignSlot final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    if (NameOf(handle) == Master && offset >= store::RecordLength) PassingDisk::WriteAt(handle, "!", 1, 0);
    return PassingDisk::WriteAt(handle, source, count, offset);
  }
};

class LostLineEnd final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    std::string bytes(source, count);
    if (NameOf(handle) == Master && bytes.ends_with("\r\n")) bytes.replace(count - 2, 2, "\n\r");
    return PassingDisk::WriteAt(handle, bytes.data(), count, offset);
  }
};

class LostHistory final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    if (NameOf(handle) == History) return static_cast<std::int64_t>(count);
    return PassingDisk::WriteAt(handle, source, count, offset);
  }
};

class LostDoneMark final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    if (NameOf(handle) == Journal && count == 8) return static_cast<std::int64_t>(count);
    return PassingDisk::WriteAt(handle, source, count, offset);
  }
};

class LostDraft final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int Rename(const std::string& from, const std::string& to) override {
    return to == ".reelora/draft" ? Remove(from) : PassingDisk::Rename(from, to);
  }
};

class StrayFile final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int Rename(const std::string& from, const std::string& to) override {
    Below().Close(Below().Open("stray", Mode::Create));
    return PassingDisk::Rename(from, to);
  }
};

class Throwing final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int SyncFolder(const std::string&) override { throw std::runtime_error("thrown by a disk"); }
};

// A failure that the program does not expect of a small collection.
class OutOfMemory final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int SyncFolder(const std::string&) override { return -ENOMEM; }
};

template <typename Disk>
std::unique_ptr<runtime::Disk> Over(runtime::Disk& below) {
  return std::make_unique<Disk>(below);
}

}  // namespace

const std::vector<BrokenDisk>& BrokenDisks() {
  static const std::vector<BrokenDisk> disks = {
      {"ForeignSlot", Over<ForeignSlot>, "slot "},
      {"LostLineEnd", Over<LostLineEnd>, "slot "},
      {"LostHistory", Over<LostHistory>, "the film of slot "},
      {"LostDoneMark", Over<LostDoneMark>, "the block of the journal is not marked done"},
      {"LostDraft", Over<LostDraft>, "what was typed is in no draft"},
      {"StrayFile", Over<StrayFile>, "stray was changed"},
      {"Throwing", Over<Throwing>, "an exception has left the program: thrown by a disk", true},
      {"OutOfMemory", Over<OutOfMemory>, "the program stops: Out of memory", true},
  };
  return disks;
}

}  // namespace monkey
