// The table is one of Markdown, so that a document can hold it as printed.
#include "bench/table.h"

#include <cstdio>

#include "tests/kit/source_tree.h"

namespace bench {
namespace {

struct Unit {
  double Size;
  std::string_view Name;
};
// clang-format off
constexpr Unit Times[]    = { { 1, "s" }, { 1e-3, "ms" }, { 1e-6, "us" } };
constexpr Unit Memories[] = { { 1 << 20, "MiB" } };
// clang-format on

// In the largest unit of which there is at least one, with three digits.
template <std::size_t Count>
std::string InUnits(double amount, const Unit (&units)[Count]) {
  const Unit* unit = units;
  while (unit + 1 < units + Count && amount < unit->Size) ++unit;
  const double value = amount / unit->Size;
  char text[32];
  std::snprintf(text, sizeof text, "%.*f ", value < 10 ? 2 : value < 100 ? 1 : 0, value);
  return std::string(text).append(unit->Name);
}

template <std::size_t Count>
void Print(const Line& line, const Unit (&units)[Count]) {
  const bool compared = line.BaselineAmount > 0;
  char ratio[32] = "";
  char goal[32] = "";
  if (compared) std::snprintf(ratio, sizeof ratio, "%.2f", line.Amount / line.BaselineAmount);
  if (line.Goal) std::snprintf(goal, sizeof goal, "%.4g", *line.Goal);
  std::printf("| %-62s | %9s | %-42s | %9s | %6s | %5s |\n", line.What.c_str(), InUnits(line.Amount, units).c_str(),
              line.Baseline.c_str(), compared ? InUnits(line.BaselineAmount, units).c_str() : "", ratio, goal);
  std::fflush(stdout);
}

}  // namespace

void PrintSeconds(const Line& line) { Print(line, Times); }
void PrintBytes(const Line& line) { Print(line, Memories); }

std::string Grouped(std::int64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3; text.insert(at, ",")) at -= 3;
  return text;
}

Films::Films(int argc, char** argv) : Source(kit::SampleFile().string()), Sizes{3'200, 100'000, 1'000'000} {
  for (int index = 1; index < argc; ++index) {
    if (std::string_view(argv[index]) == "--large") {
      Sizes.push_back(9'999'999);
    } else {
      Source = argv[index];
    }
  }
}

}  // namespace bench
