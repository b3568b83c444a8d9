// Measures the time and the memory of pieces of work.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace bench {

// Seconds that the call takes.
double Timed(const std::function<void()>& call);
// The same in processor time.
double ProcessorSeconds(const std::function<void()>& call);

// A piece of work that measures itself: returns its seconds.
using Contestant = std::function<double()>;
// Runs all in turn, `rounds` times, so that whatever else the machine does slows all of them; the fastest of each.
std::vector<double> Race(int rounds, std::span<const Contestant> contestants);

// The peak memory of a process that does nothing but the work. Throws std::runtime_error if the work fails.
std::int64_t PeakBytes(const std::function<void()>& work);

}  // namespace bench
