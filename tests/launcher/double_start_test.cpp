// Two starts on one collection at the same moment, as by two clicks: one of them, and only one, gets the collection.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "runtime/folder_lock.h"
#include "tests/launcher/opening_test.h"

namespace launcher {
namespace {

struct Pipe {
  Pipe() { static_cast<void>(!::pipe(Ends.data())); }
  ~Pipe() {
    for (int end : Ends) ::close(end);
  }
  std::array<int, 2> Ends{-1, -1};
};

char Read(const Pipe& pipe) {
  char byte = '?';
  return ::read(pipe.Ends[0], &byte, 1) == 1 ? byte : '?';
}

void Write(const Pipe& pipe, char byte) { static_cast<void>(!::write(pipe.Ends[1], &byte, 1)); }

// What the two commands do, one after the other: `reelora` prepares the collection, `reelora-prima` locks it and keeps
// it. Reports O as the owner, N if it is open already, F if it was refused.
[[noreturn]] void StartOnce(LauncherHome& home, const Pipe& go, const Pipe& report, const Pipe& end) {
  Read(go);
  std::optional<Opened> opened = home.OpenFolder("films");
  if (!opened || !home.User.Told.empty() || !opened->Notice.empty()) {
    Write(report, 'F');
    ::_exit(1);
  }
  runtime::FolderLock lock(opened->Folder);
  Write(report, lock.Held() ? 'O' : 'N');
  if (lock.Held()) Read(end);
  ::_exit(0);
}

// The reports of both, in their order.
std::string RaceTwo(LauncherHome& home) {
  Pipe go, report, end;
  std::array<pid_t, 2> starts{};
  for (pid_t& start : starts) {
    start = ::fork();
    if (start == 0) StartOnce(home, go, report, end);
  }
  for (std::size_t start = 0; start < starts.size(); ++start) Write(go, 'g');
  std::string reports{Read(report), Read(report)};
  for (std::size_t start = 0; start < starts.size(); ++start) Write(end, 'e');
  for (pid_t start : starts) ::waitpid(start, nullptr, 0);
  std::ranges::sort(reports);
  return reports;
}

TEST(DoubleStart, OfAThousandEachHasOneOwner) {
  for (int race = 0; race < 1000; ++race) {
    LauncherHome home;
    // Every other one is a new collection, the others have films to copy.
    if (race % 2 == 1) Put(home.Home / "films/Recpra.Dat", "films");
    ASSERT_EQ(RaceTwo(home), "NO") << "race " << race;
    if (race % 100 == 0) home.ExpectComplete(home.Home / "films");
  }
}

}  // namespace
}  // namespace launcher
