// The process counts its finished saves in memory that it shares with its parent, and is killed by a timer of the
// system, so that one processor is enough. Nothing is synced: a kill loses nothing that the system has
// cached.
#include "tests/safety/kill_trial.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/unsynced_disk.h"
#include "tests/safety/steps.h"

namespace safety {
namespace {

namespace fs = std::filesystem;

const std::string Master(store::MasterFileName);

// In memory, if this machine has a file system there.
fs::path ScratchFolder() {
  fs::path memory = "/dev/shm";
  fs::path parent = ::access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path();
  return parent / ("reelora_kills_" + std::to_string(::getpid()));
}

void WriteFile(const fs::path& path, const std::string& content) {
  std::ofstream file(path, std::ios::binary);
  file << content;
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path.string());
}

std::string ReadFile(const fs::path& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

// A scratch folder that is laid out anew for each trial.
class TrialFolder {
 public:
  TrialFolder() : home_(ScratchFolder()), trial_(home_ / "trial") {
    fs::remove_all(home_);
    fs::create_directories(home_ / "small");
    for (const auto& [name, content] : kit::FolderOfFilms(0)) WriteFile(home_ / "small" / name, content);
  }
  ~TrialFolder() { fs::remove_all(home_); }
  TrialFolder(const TrialFolder&) = delete;
  TrialFolder& operator=(const TrialFolder&) = delete;

  // The small files are links: the program replaces them and never writes into them.
  const fs::path& LayOut(const kit::Folder& content) {
    fs::remove_all(trial_);
    fs::create_directories(trial_ / Drive);
    for (const auto& [name, bytes] : content) {
      if (!fs::exists(home_ / "small" / name) || name == Master) {
        WriteFile(trial_ / name, bytes);
      } else {
        fs::create_hard_link(home_ / "small" / name, trial_ / name);
      }
    }
    return trial_;
  }

 private:
  fs::path home_, trial_;
};

// Shared with the process that is killed.
class SharedCount {
 public:
  SharedCount()
      : count_(static_cast<std::atomic<int>*>(
            ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0))) {
    if (count_ == MAP_FAILED) throw std::runtime_error("no shared memory");
  }
  ~SharedCount() { ::munmap(count_, sizeof *count_); }
  SharedCount(const SharedCount&) = delete;
  SharedCount& operator=(const SharedCount&) = delete;
  std::atomic<int>& operator*() { return *count_; }

 private:
  std::atomic<int>* count_;
};

// The system kills this process after that time, whatever it is doing then.
void BeKilledAfter(std::chrono::nanoseconds time) {
  sigevent kill{};
  kill.sigev_notify = SIGEV_SIGNAL;
  kill.sigev_signo = SIGKILL;
  timer_t timer{};
  const itimerspec once = {{0, 0}, {0, static_cast<long>(time.count()) + 1}};
  if (::timer_create(CLOCK_MONOTONIC, &kill, &timer) != 0 || ::timer_settime(timer, 0, &once, nullptr) != 0) ::_exit(2);
}

[[noreturn]] void SaveUntilKilled(const fs::path& folder, const RepeatedAction& action, int slot,
                                  const DiskWrapper& wrapper, std::chrono::nanoseconds after,
                                  std::atomic<int>& finished) {
  runtime::RealDisk real(folder.string());
  kit::UnsyncedDisk unsynced(real);
  auto wrapped = Wrapped(unsynced, wrapper);
  StartedProgram started(*wrapped);
  if (action.Prepare) action.Prepare(started.Program, slot);
  BeKilledAfter(after);
  try {
    for (int time = 1; !started.Program.Stopped(); ++time) {
      action.Do(slot, time)(started.Program);
      if (!started.Program.Stopped()) finished = time;
    }
  } catch (const Refused&) {
  }
  ::_exit(1);
}

// Runs the program in the folder until it is killed; returns how many repetitions it has acknowledged.
int KillOnce(const fs::path& folder, const RepeatedAction& action, int slot, const DiskWrapper& wrapper,
             std::chrono::nanoseconds after) {
  static SharedCount finished;
  *finished = 0;
  pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) SaveUntilKilled(folder, action, slot, wrapper, after, *finished);
  int status = 0;
  if (::waitpid(child, &status, 0) != child || !WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL)
    throw std::runtime_error(action.Name + ": the program ended by itself");
  return *finished;
}

// What is wrong with the first file that is in none of these states.
std::string MixtureIn(const fs::path& folder, const std::vector<kit::Folder>& allowed) {
  for (const auto& file : allowed.front()) {
    const std::string& name = file.first;
    const std::string found = ReadFile(folder / name);
    if (std::none_of(allowed.begin(), allowed.end(), [&](const kit::Folder& files) { return files.at(name) == found; }))
      return name + " is a mixture, or a save is missing";
  }
  return "";
}

// Starts the program again and checks the files that the action changes.
std::string ComplaintOf(const fs::path& folder, const RepeatedAction& action, int slot, int finished,
                        const DiskWrapper& wrapper) {
  runtime::RealDisk real(folder.string());
  kit::UnsyncedDisk unsynced(real);
  auto wrapped = Wrapped(unsynced, wrapper);
  StartedProgram started(*wrapped, action.RestartsAt);
  if (started.Program.Stopped()) return "the start stops: " + std::string(started.Program.Stopped()->Name);
  std::vector<kit::Folder> allowed = {action.After(slot, finished), action.After(slot, finished + 1)};
  if (action.Between) allowed.push_back(action.Between(slot, finished));
  std::string complaint = MixtureIn(folder, allowed);
  return complaint.empty() && action.Next ? action.Next(started.Program) : complaint;
}

}  // namespace

bool Straddles(int slot) {
  constexpr int PageBytes = 4096;
  return (slot - 1) * store::RecordLength / PageBytes != (slot * store::RecordLength - 1) / PageBytes;
}

KillCount KillAtRandom(const RepeatedAction& action, int trials, unsigned seed, const DiskWrapper& wrapper,
                       bool until_complaint) {
  std::mt19937 random(seed);
  TrialFolder trial_folder;
  KillCount count;
  while (count.Trials < trials && !(until_complaint && !count.Complaints.empty())) {
    int slot = 0;
    do {
      slot = FirstSlotTried + static_cast<int>(random() % (LastSlotTried - FirstSlotTried + 1));
    } while (Straddles(slot) != (count.Trials % 2 == 0));
    const fs::path& folder = trial_folder.LayOut(action.Before(slot));
    const std::chrono::nanoseconds longest = action.Longest;
    const std::chrono::nanoseconds after(random() % longest.count());
    int finished = KillOnce(folder, action, slot, wrapper, after);
    ++count.Trials;
    count.Straddling += Straddles(slot) ? 1 : 0;
    count.Finished += finished;
    std::string complaint = ComplaintOf(folder, action, slot, finished, wrapper);
    if (!complaint.empty())
      count.Complaints.push_back("slot " + std::to_string(slot) + " after " + std::to_string(finished) +
                                 " saves: " + complaint);
  }
  return count;
}

}  // namespace safety
