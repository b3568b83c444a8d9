// The progress lies in memory that both processes see.
#include "tests/monkey/child.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <system_error>

namespace monkey {
namespace {

// Throws std::system_error if a call of the system has failed.
int Checked(int result) {
  if (result < 0) throw std::system_error(errno, std::generic_category());
  return result;
}

class SharedProgress {
 public:
  SharedProgress()
      : memory_(mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {
    if (memory_ == MAP_FAILED) throw std::system_error(errno, std::generic_category());
  }
  SharedProgress(const SharedProgress&) = delete;
  SharedProgress& operator=(const SharedProgress&) = delete;
  ~SharedProgress() { munmap(memory_, sizeof(Progress)); }
  Progress& Get() const { return *static_cast<Progress*>(memory_); }

 private:
  void* memory_;
};

void ThrowOutputAway() {
  const int nowhere = Checked(open("/dev/null", O_WRONLY));
  Checked(dup2(nowhere, STDOUT_FILENO));
  Checked(dup2(nowhere, STDERR_FILENO));
}

}  // namespace

std::string ChildEnd::Text() const { return (Exited ? "status " : "signal ") + std::to_string(Number); }

ChildEnd InChild(const std::function<int(Progress&)>& work, Progress& progress, bool quiet) {
  const SharedProgress shared;
  std::cout.flush();
  const pid_t child = Checked(fork());
  if (child == 0) {
    if (quiet) ThrowOutputAway();
    const int status = work(shared.Get());
    std::cout.flush();
    // What a child of a test would tidy up belongs to its parent.
    quiet ? std::_Exit(status) : std::exit(status);
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) Checked(-1);
  }
  progress = shared.Get();
  return WIFEXITED(status) ? ChildEnd{true, WEXITSTATUS(status)} : ChildEnd{false, WTERMSIG(status)};
}

void LimitSeconds(unsigned seconds) { alarm(seconds); }

}  // namespace monkey
