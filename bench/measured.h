// Times and memory of one piece of work, taken in a process of its own.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace bench {

// Seconds: as the work took them, part by part. PeakBytes: the most memory that its process held.
struct Measured {
  std::vector<double> Parts;
  std::int64_t PeakBytes = 0;
  double Seconds() const;
};

// Seconds that the call takes.
double Timed(const std::function<void()>& call);
// The same of the processor.
double ProcessorSeconds(const std::function<void()>& call);

// Runs the work in a process of its own, so many times; the run that took the least. Work: returns the seconds of its
// parts; the same number every time. Throws std::runtime_error where a run fails.
Measured Best(int runs, const std::function<std::vector<double>()>& work);

// The same with all runs in one process, for work that a program does which has long been running.
Measured BestInOne(int runs, const std::function<std::vector<double>()>& work);

}  // namespace bench
