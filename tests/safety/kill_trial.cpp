// The child reports each finished save through a pipe. Nothing is synced: a kill loses nothing that the system has
// cached.
#include "tests/safety/kill_trial.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
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
constexpr int LongestMicroseconds = 300;

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
    fs::create_directory(trial_);
    for (const auto& [name, bytes] : content) {
      if (name == Master) {
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

[[noreturn]] void SaveUntilKilled(const fs::path& folder, const RepeatedAction& action, int slot,
                                  const DiskWrapper& wrapper, int told) {
  runtime::RealDisk real(folder.string());
  kit::UnsyncedDisk unsynced(real);
  auto wrapped = Wrapped(unsynced, wrapper);
  StartedProgram started(*wrapped);
  const char mark = '+';
  bool heard = ::write(told, &mark, 1) == 1;
  for (int time = 1; heard && !started.Program.Stopped(); ++time) {
    action.Do(slot, time)(started.Program);
    heard = ::write(told, &mark, 1) == 1;
  }
  ::_exit(1);
}

void Spin(std::chrono::microseconds length) {
  auto end = std::chrono::steady_clock::now() + length;
  while (std::chrono::steady_clock::now() < end) {
  }
}

// Runs the program in the folder and kills it; returns how many saves it reported.
int KillOnce(const fs::path& folder, const RepeatedAction& action, int slot, const DiskWrapper& wrapper,
             std::chrono::microseconds after) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) {
    ::close(ends[0]);
    SaveUntilKilled(folder, action, slot, wrapper, ends[1]);
  }
  ::close(ends[1]);
  char started = 0;
  bool saves = ::read(ends[0], &started, 1) == 1;
  Spin(after);
  ::kill(child, SIGKILL);
  int status = 0;
  ::waitpid(child, &status, 0);
  int finished = 0;
  std::array<char, 4096> marks{};
  for (ssize_t part = 0; (part = ::read(ends[0], marks.data(), marks.size())) > 0;) finished += static_cast<int>(part);
  ::close(ends[0]);
  if (!saves || !WIFSIGNALED(status)) throw std::runtime_error(action.Name + ": the program ended by itself");
  return finished;
}

// Starts the program again and checks the files that the action changes.
std::string ComplaintOf(const fs::path& folder, const std::vector<kit::Folder>& allowed, const DiskWrapper& wrapper) {
  runtime::RealDisk real(folder.string());
  kit::UnsyncedDisk unsynced(real);
  auto wrapped = Wrapped(unsynced, wrapper);
  StartedProgram started(*wrapped);
  if (started.Program.Stopped()) return "the start stops: " + std::string(started.Program.Stopped()->Name);
  for (const kit::Folder& files : allowed) {
    if (std::all_of(files.begin(), files.end(),
                    [&](const auto& file) { return ReadFile(folder / file.first) == file.second; }))
      return "";
  }
  return "a mixture, or a save is missing";
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
    std::chrono::microseconds after(random() % LongestMicroseconds);
    int finished = KillOnce(folder, action, slot, wrapper, after);
    ++count.Trials;
    count.Straddling += Straddles(slot) ? 1 : 0;
    count.Finished += finished;
    std::string complaint = ComplaintOf(folder, action.Allowed(slot, finished), wrapper);
    if (!complaint.empty())
      count.Complaints.push_back("slot " + std::to_string(slot) + " after " + std::to_string(finished) +
                                 " saves: " + complaint);
  }
  return count;
}

}  // namespace safety
