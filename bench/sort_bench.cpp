// The sort run on master files of several sizes, side by side with a plain read, its floor, GNU sort and SQLite, and
// its peak memory. GNU sort starts again each time, which is a good part of its time if films are few. Usage:
// sort_bench [--large] [RECPRA_DAT]
#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "bench/sort_contestants.h"
#include "bench/table.h"
#include "runtime/failure.h"
#include "tests/kit/collection.h"
#include "tools/film_generator.h"

namespace {

constexpr std::int64_t FilmsInAll = 7'000'000;
constexpr std::int64_t NoContestantsFrom = 2'000'000;
constexpr double MostMemory = 256 * 1024 * 1024;

// The most plain reads that a sort should take, and with its syncs.
struct Goals {
  std::int64_t Films;
  std::optional<double> Reads, SyncedReads;
};
// clang-format off
constexpr Goals AllGoals[] = {
  {     3'200, 8,            std::nullopt },
  { 1'000'000, 4.5,          5            },
  { 9'999'999, 8,            std::nullopt },
};
// clang-format on

Goals GoalsFor(std::int64_t films) {
  const auto* found = std::find_if(std::begin(AllGoals), std::end(AllGoals),
                                   [films](const Goals& goals) { return goals.Films == films; });
  return found == std::end(AllGoals) ? Goals{films, std::nullopt, std::nullopt} : *found;
}

void Measure(const std::string& source, const std::string& folder, std::int64_t films) {
  tools::GenerateFilms(source, folder + "/Recpra.Dat", films);
  const std::int64_t peak = bench::PeakBytes([&] { bench::SortPasses(folder, false); });
  std::vector<bench::Contestant> contestants = {
      [&] { return bench::ReadMaster(folder); },       [&] { return bench::SortPasses(folder, false); },
      [&] { return bench::SortFloor(folder, false); }, [&] { return bench::SortPasses(folder, true); },
      [&] { return bench::SortFloor(folder, true); },
  };
  if (films < NoContestantsFrom) {
    bench::PrepareLines(folder);
    contestants.emplace_back([&] { return bench::SortLines(folder); });
#ifdef REELORA_SQLITE
    bench::PrepareTable(folder);
    contestants.emplace_back([&] { return bench::MakeIndexes(folder); });
#endif
  }
  const int rounds = static_cast<int>(std::clamp<std::int64_t>(FilmsInAll / films, 5, 300));
  const std::vector<double> seconds = bench::Race(rounds, contestants);
  const std::string name = "sort in four passes, " + bench::Grouped(films) + " films";
  const std::string synced = name + ", with its syncs";
  const Goals goals = GoalsFor(films);
  bench::PrintSeconds({name, seconds[1], "one plain read", seconds[0], goals.Reads});
  bench::PrintSeconds({name, seconds[1], "four reads and the writing, one thread", seconds[2]});
  bench::PrintSeconds({synced, seconds[3], "one plain read", seconds[0], goals.SyncedReads});
  bench::PrintSeconds({synced, seconds[3], "four reads and the writing, with syncs", seconds[4]});
  constexpr const char* Others[] = {"GNU sort, one pass", "SQLite, four indexes"};
  for (std::size_t other = 5; other < seconds.size(); ++other)
    bench::PrintSeconds({name, seconds[1], Others[other - 5], seconds[other]});
  bench::PrintBytes({name + ": peak memory", static_cast<double>(peak), "256 MiB", MostMemory, 1});
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const bench::Films films(argc, argv);
    for (std::int64_t count : films.Sizes) {
      const kit::Collection collection;
      Measure(films.Source, collection.Folder().string(), count);
    }
    return 0;
  } catch (const runtime::Failure& failure) {
    std::fprintf(stderr, "%s: %s\n", std::string(failure.Name).c_str(), failure.File.c_str());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
  return 1;
}
