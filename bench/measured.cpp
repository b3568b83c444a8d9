// The child sends its seconds through a pipe; its memory comes with its exit status.
#include "bench/measured.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <ctime>
#include <exception>
#include <iostream>
#include <numeric>
#include <stdexcept>

#include "runtime/failure.h"

namespace bench {
namespace {

double SecondsOf(const std::vector<double>& parts) { return std::accumulate(parts.begin(), parts.end(), 0.0); }

// In the child: never returns.
[[noreturn]] void Send(int pipe, const std::function<std::vector<double>()>& work) {
  try {
    std::vector<double> parts = work();
    std::size_t bytes = parts.size() * sizeof(double);
    _exit(::write(pipe, parts.data(), bytes) == static_cast<ssize_t>(bytes) ? 0 : 1);
  } catch (const runtime::Failure& failure) {
    std::cerr << failure.Name << ": " << failure.File << "\n";
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
  }
  _exit(1);
}

Measured Once(const std::function<std::vector<double>()>& work) {
  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) Send(ends[1], work);
  ::close(ends[1]);
  Measured measured;
  double part = 0;
  while (::read(ends[0], &part, sizeof part) == static_cast<ssize_t>(sizeof part)) measured.Parts.push_back(part);
  ::close(ends[0]);
  int status = 0;
  rusage usage{};
  if (::wait4(child, &status, 0, &usage) != child || status != 0) throw std::runtime_error("a measured run has failed");
  measured.PeakBytes = std::int64_t{usage.ru_maxrss} * 1024;
  return measured;
}

}  // namespace

double Measured::Seconds() const { return SecondsOf(Parts); }

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

Measured Best(int runs, const std::function<std::vector<double>()>& work) {
  Measured best = Once(work);
  for (int run = 1; run < runs; ++run) {
    Measured other = Once(work);
    if (other.Seconds() < best.Seconds()) best = other;
  }
  return best;
}

Measured BestInOne(int runs, const std::function<std::vector<double>()>& work) {
  return Once([&] {
    std::vector<double> best = work();
    for (int run = 1; run < runs; ++run) {
      std::vector<double> other = work();
      if (SecondsOf(other) < SecondsOf(best)) best = other;
    }
    return best;
  });
}

}  // namespace bench
