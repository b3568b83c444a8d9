// Measures the sort run on master files of N films next to a plain read, GNU sort and SQLite; prints times, ratios and
// peak memory. The files are made in FOLDER from the films of SOURCE. Each contestant runs several times in a process
// of its own; GNU sort starts again each time, which is a good part of its time if films are few. Usage: sort_bench
// SOURCE FOLDER N...
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "bench/sort_contestants.h"
#include "runtime/failure.h"
#include "tests/kit/source_tree.h"
#include "tools/film_generator.h"

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t FilmsInAll = 7'000'000;
constexpr std::int64_t NoContestantsFrom = 2'000'000;

void Print(const char* what, const bench::Measured& measured, double read_seconds) {
  std::printf("  %-34s %10.6f s  %7.2f x read  %6.1f MiB\n", what, measured.Seconds(),
              measured.Seconds() / read_seconds, static_cast<double>(measured.PeakBytes) / (1024 * 1024));
}

void PrintParts(const bench::Measured& sorted, double films) {
  std::printf("  pass by pass, ns a film:          ");
  for (double part : sorted.Parts) std::printf(" %8.1f", part / films * 1e9);
  std::printf("\n");
}

void Measure(const std::string& source, const std::string& folder, std::int64_t films) {
  const int runs = static_cast<int>(std::clamp<std::int64_t>(FilmsInAll / films, 5, 300));
  tools::GenerateFilms(source, folder + "/Recpra.Dat", films);
  std::printf("%lld films\n", static_cast<long long>(films));
  bench::Measured read = bench::BestInOne(runs, [&] { return bench::ReadMaster(folder); });
  Print("(a) plain read of the master file", read, read.Seconds());
  bench::Measured sorted = bench::BestInOne(runs, [&] { return bench::SortPasses(folder, false); });
  Print("sort run, four passes", sorted, read.Seconds());
  PrintParts(sorted, static_cast<double>(films));
  Print("the same with its syncs", bench::BestInOne(2, [&] { return bench::SortPasses(folder, true); }),
        read.Seconds());
  if (films < NoContestantsFrom) {
    bench::PrepareLines(folder);
    bench::Measured lines = bench::BestInOne(runs, [&] { return bench::SortLines(folder); });
    Print("(b) GNU sort, one pass", lines, read.Seconds());
    std::printf("  (b) / sort run: %.2f\n", lines.Seconds() / sorted.Seconds());
#ifdef REELORA_SQLITE
    bench::PrepareTable(folder);
    bench::Measured indexes = bench::BestInOne(runs, [&] { return bench::MakeIndexes(folder); });
    Print("(c) SQLite, four indexes", indexes, read.Seconds());
    std::printf("  (c) / sort run: %.2f\n", indexes.Seconds() / sorted.Seconds());
#endif
  }
  std::fflush(stdout);
}

std::int64_t Number(const char* text) {
  std::int64_t number = 0;
  const char* end = text + std::strlen(text);
  auto [stop, error] = std::from_chars(text, end, number);
  if (error != std::errc() || stop != end || number < 1) throw std::invalid_argument("not a number of films");
  return number;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4) {
    std::cerr << "usage: sort_bench SOURCE FOLDER N...\n";
    return 2;
  }
  try {
    fs::path folder = fs::path(argv[2]) / "sort_bench";
    fs::remove_all(folder);
    fs::create_directories(folder);
    fs::copy(kit::DeliveredFolder() / "UPPER.ALT", folder);
    for (int argument = 3; argument < argc; ++argument) Measure(argv[1], folder.string(), Number(argv[argument]));
    fs::remove_all(folder);
    return 0;
  } catch (const runtime::Failure& failure) {
    std::cerr << failure.Name << ": " << failure.File << "\n";
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
  }
  return 1;
}
