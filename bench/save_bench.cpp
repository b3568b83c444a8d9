// What the user waits for when something is saved, on a disk that takes 10 ms a sync: the time, and the count of syncs.
// The baseline is one synced write of a record. Usage: save_bench [--large] [RECPRA_DAT]
#include <chrono>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bench/measured.h"
#include "bench/table.h"
#include "runtime/whole_io.h"
#include "tests/kit/collection.h"
#include "tests/kit/films.h"
#include "tests/kit/passing_disk.h"
#include "tests/safety/steps.h"
#include "tools/film_generator.h"

namespace {

constexpr int Rounds = 5;
constexpr int Films = 3200;
constexpr std::chrono::milliseconds SyncTime(10);

// As a memory stick or an old drive.
class SlowDisk final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  int Sync(int handle) override {
    Wait();
    return PassingDisk::Sync(handle);
  }
  int SyncFolder(const std::string& name) override {
    Wait();
    return PassingDisk::SyncFolder(name);
  }
  int Syncs = 0;

 private:
  void Wait() {
    ++Syncs;
    std::this_thread::sleep_for(SyncTime);
  }
};

struct Cost {
  double Seconds;
  int Syncs;
};

// A collection in use: its safety folder has all its files.
class User {
 public:
  explicit User(const std::string& folder) : real_(folder), disk_(real_), started_(disk_) {}

  Cost Do(const safety::Step& step) {
    const int before = disk_.Syncs;
    const double seconds = bench::Timed([&] { step(started_.Program); });
    if (started_.Program.Stopped()) throw *started_.Program.Stopped();
    return {seconds, disk_.Syncs - before};
  }
  double WriteARecord() {
    runtime::OpenFile file(disk_, "plain", runtime::Disk::Mode::Create);
    return bench::Timed([&] {
      file.Write(kit::FilmBytes(1, 1), 0);
      file.Sync();
    });
  }

 private:
  runtime::RealDisk real_;
  SlowDisk disk_;
  safety::StartedProgram started_;
};

// Types a new film up to its last field, which saves it and sorts.
safety::Step AutomaticFlow(int slot, int version) {
  return [slot, version](Program& program) {
    frmPage1& screen = program.RecordScreen;
    program.Deliver([&] { screen.UserClick(screen.cmdNew); });
    program.Deliver([&] { kit::TypeFilm(screen, slot, version); });
    program.Deliver([&] { screen.txtRatings_LostFocus(); });
  };
}

}  // namespace

int main(int argc, char** argv) {
  const kit::Collection collection;
  const std::string folder = collection.Folder().string();
  tools::GenerateFilms(bench::Films(argc, argv).Source, folder + "/Recpra.Dat", Films);
  int slot = Films;
  {
    User user(folder);
    for (const char* setting : {"AutoSave", "AutoSort"}) user.Do(safety::WriteSmallFile(setting, "YES"));
    user.Do(safety::EditFilm(1, 1));
    user.Do(safety::SortFilms());
  }
  User user(folder);
  int version = 1;
  const std::vector<std::pair<std::string, std::function<safety::Step()>>> steps = {
      {"a saved edit", [&] { return safety::EditFilm(1, ++version); }},
      {"a saved new film", [&] { return safety::NewFilm(++slot, 1); }},
      {"a saved setting", [&] { return safety::WriteSmallFile("Last", std::to_string(++version)); }},
      {"a sort run", [&] { return safety::SortFilms(); }},
      {"a new film, saved and sorted automatically", [&] { return AutomaticFlow(++slot, 1); }},
  };
  std::vector<bench::Contestant> contestants = {[&] { return user.WriteARecord(); }};
  std::vector<int> syncs(steps.size());
  for (std::size_t at = 0; at < steps.size(); ++at) {
    contestants.emplace_back([&, at] {
      const Cost cost = user.Do(steps[at].second());
      syncs[at] = cost.Syncs;
      return cost.Seconds;
    });
  }
  const std::vector<double> seconds = bench::Race(Rounds, contestants);
  for (std::size_t at = 0; at < steps.size(); ++at)
    bench::PrintSeconds({steps[at].first + ": " + std::to_string(syncs[at]) + " syncs of 10 ms", seconds[at + 1],
                         "one synced write of a record", seconds[0]});
}
