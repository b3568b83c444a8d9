// The sort's own passes, the plain read, and GNU sort.
#include "bench/sort_contestants.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

#include "runtime/whole_io.h"
#include "sort/operation.h"
#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/unsynced_disk.h"

namespace bench {
namespace {

using runtime::Disk;
using runtime::OpenFile;

constexpr std::string_view LinesFile = "lines";

struct Pass {
  std::string_view Output;
  std::string_view Statement;
};
// clang-format off
constexpr Pass Passes[] = {
  { "Titlepra.Dat", "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(1,40,C,GT,\"000000\") Record(649)" },
  { "DVDpra.Dat",   "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"D\") Record(649) " },
  { "Laserpra.Dat", "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"L\") Record(649) " },
  { "VHSpra.Dat",   "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"V\") Record(649) " },
};
// clang-format on

// Old outputs are removed first: some file systems write a replacing file out at once, which is a sync too.
void RemoveOutputs(Disk& disk) {
  for (const Pass& pass : Passes) disk.Remove(std::string(pass.Output));
}

void ReadAll(const OpenFile& file) {
  std::string block(128 * 1024, '\0');
  std::int64_t offset = 0;
  while (std::size_t length = file.Read(block.data(), block.size(), offset))
    offset += static_cast<std::int64_t>(length);
}

void WriteAll(Disk& disk, const std::string& name, std::int64_t length, const std::string& block) {
  OpenFile file(disk, name, Disk::Mode::Create);
  for (std::int64_t offset = 0; offset < length; offset += static_cast<std::int64_t>(block.size())) {
    auto rest = static_cast<std::size_t>(length - offset);
    file.Write(std::string_view(block).substr(0, rest), offset);
  }
  file.Sync();
}

// A folder's disk, with its syncs or without.
class Folder {
 public:
  Folder(const std::string& path, bool synced) : real_(path), unsynced_(real_), synced_(synced) {}
  Disk& Files() { return synced_ ? static_cast<Disk&>(real_) : unsynced_; }

 private:
  runtime::RealDisk real_;
  kit::UnsyncedDisk unsynced_;
  bool synced_;
};

}  // namespace

double ReadMaster(const std::string& path) {
  Folder folder(path, false);
  OpenFile master(folder.Files(), std::string(store::MasterFileName), Disk::Mode::Read);
  return Timed([&] { ReadAll(master); });
}

double SortFloor(const std::string& path, bool synced) {
  Folder folder(path, synced);
  Disk& disk = folder.Files();
  std::vector<std::int64_t> lengths;
  for (const Pass& pass : Passes)
    lengths.push_back(OpenFile(disk, std::string(pass.Output), Disk::Mode::Read).Length());
  RemoveOutputs(disk);
  const std::string block(256 * 1024, 'x');
  return Timed([&] {
    for (std::size_t pass = 0; pass < lengths.size(); ++pass) {
      ReadAll(OpenFile(disk, std::string(store::MasterFileName), Disk::Mode::Read));
      WriteAll(disk, std::string(Passes[pass].Output), lengths[pass], block);
    }
  });
}

double SortPasses(const std::string& path, bool synced) {
  Folder folder(path, synced);
  RemoveOutputs(folder.Files());
  return Timed([&] {
    sort::Sorter sorter(folder.Files());
    for (std::size_t number = 0; number < std::size(Passes); ++number) {
      const Pass& pass = Passes[number];
      const std::string_view next = number + 1 < std::size(Passes) ? Passes[number + 1].Statement : "";
      sort::Result result = sorter.Sort(store::MasterFileName, pass.Output, pass.Statement, next);
      if (result.Status != sort::Status::Done) throw std::runtime_error("the sort has failed");
    }
  });
}

void PrepareLines(const std::string& folder) {
  runtime::RealDisk disk(folder);
  OpenFile master(disk, std::string(store::MasterFileName), Disk::Mode::Read);
  OpenFile lines(disk, std::string(LinesFile), Disk::Mode::Create);
  lines.Truncate(0);
  std::vector<store::FilmRecord> films(4096);
  std::string text;
  std::int64_t number = 0;
  std::int64_t offset = 0;
  while (std::size_t length = master.Read(films.front().Bytes.data(), films.size() * store::RecordLength,
                                          number * store::RecordLength)) {
    text.clear();
    for (std::size_t film = 0; film < length / store::RecordLength; ++film) {
      std::array<char, 24> digits{};
      std::snprintf(digits.data(), digits.size(), "%07lld\n", static_cast<long long>(++number));
      text.append(films[film].Get(store::FilmField::Title)).append(digits.data());
    }
    lines.Write(text, offset);
    offset += static_cast<std::int64_t>(text.size());
  }
}

double SortLines(const std::string& folder) {
  std::string command = "cd '" + folder + "' && LC_ALL=C exec sort -f --parallel=2 -o sorted " + std::string(LinesFile);
  int status = 0;
  double seconds = Timed([&] { status = std::system(command.c_str()); });
  if (status != 0) throw std::runtime_error("GNU sort has failed");
  return seconds;
}

}  // namespace bench
