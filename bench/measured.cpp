// The memory of a child process comes with its exit status.
#include "bench/measured.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <exception>
#include <iostream>
#include <limits>
#include <stdexcept>

#include "runtime/failure.h"

namespace bench {
namespace {

// Returns whether the work succeeded.
bool Done(const std::function<void()>& work) {
  try {
    work();
    return true;
  } catch (const runtime::Failure& failure) {
    std::cerr << failure.Name << ": " << failure.File << "\n";
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
  }
  return false;
}

}  // namespace

double Timed(const std::function<void()>& call) {
  auto begin = std::chrono::steady_clock::now();
  call();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

double ProcessorSeconds(const std::function<void()>& call) {
  std::clock_t begin = std::clock();
  call();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

std::vector<double> Race(int rounds, std::span<const Contestant> contestants) {
  std::vector<double> best(contestants.size(), std::numeric_limits<double>::infinity());
  for (int round = 0; round < rounds; ++round)
    for (std::size_t at = 0; at < contestants.size(); ++at) best[at] = std::min(best[at], contestants[at]());
  return best;
}

std::int64_t PeakBytes(const std::function<void()>& work) {
  std::cout.flush();
  pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) ::_exit(Done(work) ? 0 : 1);
  int status = 0;
  rusage usage{};
  if (::wait4(child, &status, 0, &usage) != child || status != 0) throw std::runtime_error("a measured run has failed");
  return std::int64_t{usage.ru_maxrss} * 1024;
}

}  // namespace bench
