// The lines of the table that bench/run prints, and the master files that are measured.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

// Amount and BaselineAmount are in the same unit. Goal: the highest ratio wanted.
struct Line {
  std::string What;
  double Amount = 0;
  std::string Baseline = {};
  double BaselineAmount = 0;
  std::optional<double> Goal = std::nullopt;
};

// Each prints one line: the amount, and its ratio to the baseline if there is one.
void PrintSeconds(const Line& line);
void PrintBytes(const Line& line);

// "1,000,000"
std::string Grouped(std::int64_t number);

// The command line of a bench: [--large] [RECPRA_DAT].
struct Films {
  Films(int argc, char** argv);
  std::string Source;               // master file whose films are repeated; the delivered sample if none is given
  std::vector<std::int64_t> Sizes;  // counts of films, the largest only with --large
};

}  // namespace bench
