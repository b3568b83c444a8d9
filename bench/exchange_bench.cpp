// The films of 32,767 records, as many as a collection can have, exported and imported in each format, in processor
// time. The baseline is the library's bare reading of the same text. The import that writes goes through the journal,
// without the waiting of syncs. Usage: exchange_bench [--large] [RECPRA_DAT]
#include <cstring>
#include <filesystem>
#include <stdexcept>

#include "bench/bare_parse.h"
#include "bench/measured.h"
#include "bench/table.h"
#include "exchange/import.h"
#include "store/master_file.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/unsynced_disk.h"
#include "tools/film_generator.h"

namespace {

constexpr int Rounds = 5;

std::string Export(const exchange::Format& format, runtime::Disk& disk) {
  std::string text;
  exchange::Collection collection;
  collection.Each = exchange::FilmsOf(disk);
  format.Write(collection, [&](std::string_view bytes) { text += bytes; });
  return text;
}

exchange::FilmsOfFile Read(const exchange::Format& format, std::string_view text) {
  exchange::FilmsOfFile films;
  const exchange::ByteSource source = [&](char* target, std::size_t count) {
    const std::size_t length = std::min(count, text.size());
    std::memcpy(target, text.data(), length);
    text.remove_prefix(length);
    return length;
  };
  const exchange::Fault fault = exchange::ReadFilms(source, format, {{}, exchange::Unstorable::Marked}, films);
  if (fault || films.Films.empty()) throw std::runtime_error(fault.value_or("nothing read"));
  return films;
}

// Into a collection without films.
void Write(const exchange::FilmsOfFile& films) {
  const kit::FreshFolder folder;
  runtime::RealDisk real(folder.Path().string());
  kit::UnsyncedDisk disk(real);
  runtime::Files files(disk);
  store::OpenMaster(files, 1);
  exchange::ApplyImport(files, exchange::PlanImport({}, films.Films, exchange::Doubles::Skip), [](std::int64_t) {});
}

void MeasureFormat(const exchange::Format& format, runtime::Disk& disk) {
  const std::string name(format.Name);
  const std::string text = Export(format, disk);
  std::vector<bench::Contestant> contestants = {
      [&] { return bench::ProcessorSeconds([&] { Export(format, disk); }); },
  };
  if (format.Read) {
    contestants.push_back([&] { return bench::ProcessorSeconds([&] { Read(format, text); }); });
    contestants.push_back([&] { return bench::ProcessorSeconds([&] { Write(Read(format, text)); }); });
    contestants.push_back([&] { return bench::ProcessorSeconds([&] { bench::BareParse(name, text); }); });
  }
  const std::vector<double> seconds = bench::Race(Rounds, contestants);
  std::int64_t count = 0;
  exchange::FilmsOf(disk)([&](std::int64_t, const store::FilmRecord&) { ++count; });
  const std::string films = bench::Grouped(count) + " films";
  bench::PrintSeconds({films + " exported as " + name, seconds[0]});
  if (!format.Read) return;
  const std::string baseline = std::string(bench::BareParser(name)) + " alone";
  bench::PrintSeconds({films + " read from " + name, seconds[1], baseline, seconds[3]});
  bench::PrintSeconds({films + " imported from " + name, seconds[2], baseline, seconds[3]});
}

}  // namespace

int main(int argc, char** argv) {
  const bench::Films films(argc, argv);
  const kit::FreshFolder folder;
  tools::GenerateFilms(films.Source, (folder.Path() / store::MasterFileName).string(), exchange::MostSlots);
  runtime::RealDisk disk(folder.Path().string());
  for (const exchange::Format& format : exchange::Formats()) MeasureFormat(format, disk);
}
