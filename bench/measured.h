// Measures time and memory of a piece of work in a process of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

// Seconds of each part of the work, and the peak memory of its process.
struct Measured {
  std::vector<double> Parts;
  std::int64_t PeakBytes = 0;
  double Seconds() const;
};

// Seconds that the call takes.
double Timed(const std::function<void()>& call);
// The same in processor time.
double ProcessorSeconds(const std::function<void()>& call);

// Runs the work in a process of its own, `runs` times; returns the fastest. work: returns the seconds of its
// parts; the same number every time. Throws std::runtime_error if a run fails.
Measured Best(int runs, const std::function<std::vector<double>()>& work);

// The same with all runs in one process, as in a long-running program.
Measured BestInOne(int runs, const std::function<std::vector<double>()>& work);

}  // namespace bench
