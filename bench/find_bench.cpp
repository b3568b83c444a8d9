// The thirteen searches for a text that no film contains, side by side with a plain sequential read of the file, GNU
// grep over the same bytes and an SQLite scan. Usage: find_bench [--large] [RECPRA_DAT]
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "app/program.h"
#include "bench/measured.h"
#include "bench/table.h"
#include "find/field_search.h"
#include "store/master_file.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"
#include "tools/film_generator.h"
#ifdef REELORA_SQLITE
#include <sqlite3.h>
#endif

namespace {

namespace files = std::filesystem;
constexpr std::int64_t FilmsInAll = 15'000'000;
constexpr std::int64_t NoTableFrom = 2'000'000;
// A smaller file is read before a search has shown the screen again.
constexpr std::int64_t GoalFrom = 100'000;
constexpr double Goal = 1.15;
// Rows of the table of searches.
constexpr std::size_t Title = 0;
constexpr std::size_t Director = 1;
constexpr std::size_t Star = 2;
constexpr const char* Sought = "qzxjwv";  // in no film

double ReadPlainly(const std::string& path) {
  return bench::Timed([&] {
    int handle = ::open(path.c_str(), O_RDONLY);
    auto buffer = std::make_unique<char[]>(1 << 17);
    while (::read(handle, buffer.get(), 1 << 17) > 0) continue;
    ::close(handle);
  });
}

double Grep(const std::string& path) {
  return bench::Timed([&] {
    if (std::system(("LC_ALL=C grep -a -i -c " + std::string(Sought) + " '" + path + "' > /dev/null").c_str()) < 0) {
      throw std::runtime_error("no grep");
    }
  });
}

// Runs the handler as a user does. No film contains the text, so it reads the whole file and resets the screen.
double Search(const std::string& folder, const find::FieldSearch& search) {
  kit::QuietDesk desk;
  runtime::RealDisk disk(folder);
  Program program(desk, disk);
  program.StartRecordScreen();
  desk.NextAnswer = Sought;
  double seconds = bench::Timed([&] { program.Deliver([&] { (program.RecordScreen.*search.Item).Click(); }); });
  if (!desk.Reported.empty()) throw std::runtime_error(desk.Reported + " " + desk.ReportedFile);
  return seconds;
}

#ifdef REELORA_SQLITE
void MakeTable(const std::string& folder) {
  sqlite3* database = nullptr;
  sqlite3_open((folder + "/films.db").c_str(), &database);
  sqlite3_exec(database, "create table film(director text, rest text); begin", nullptr, nullptr, nullptr);
  sqlite3_stmt* insert = nullptr;
  sqlite3_prepare_v2(database, "insert into film values(?, ?)", -1, &insert, nullptr);
  runtime::RealDisk disk(folder);
  runtime::Files all(disk);
  store::OpenMaster(all, 1);
  store::FilmRecord film;
  for (std::int64_t record = 1; all.Get(1, record, film.Bytes.data()); ++record) {
    std::string_view director = runtime::Trim(film.Get(store::FilmField::Director));
    sqlite3_bind_text(insert, 1, director.data(), int(director.size()), SQLITE_TRANSIENT);
    sqlite3_bind_text(insert, 2, film.Bytes.data() + 70, 579, SQLITE_TRANSIENT);
    sqlite3_step(insert);
    sqlite3_reset(insert);
  }
  sqlite3_finalize(insert);
  sqlite3_exec(database, "commit", nullptr, nullptr, nullptr);
  sqlite3_close(database);
}

double ScanTable(const std::string& folder) {
  sqlite3* database = nullptr;
  sqlite3_open((folder + "/films.db").c_str(), &database);
  double seconds = bench::Timed([&] {
    std::string query = "select count(*) from film where director like '%" + std::string(Sought) + "%'";
    sqlite3_exec(database, query.c_str(), nullptr, nullptr, nullptr);
  });
  sqlite3_close(database);
  return seconds;
}
#endif

void Compare(const std::string& source, const files::path& folder, std::int64_t films) {
  const std::string path = folder / "Recpra.Dat";
  tools::GenerateFilms(source, path, films);
  std::vector<bench::Contestant> contestants;
  for (const find::FieldSearch& search : find::Searches)
    contestants.emplace_back([&] { return Search(folder, search); });
  const std::size_t searches = contestants.size();
  contestants.emplace_back([&] { return ReadPlainly(path); });
  contestants.emplace_back([&] { return Grep(path); });
#ifdef REELORA_SQLITE
  if (films < NoTableFrom) {
    MakeTable(folder);
    contestants.emplace_back([&] { return ScanTable(folder); });
  }
#endif
  const int rounds = static_cast<int>(std::clamp<std::int64_t>(FilmsInAll / films, 5, 50));
  const std::vector<double> seconds = bench::Race(rounds, contestants);
  auto print = [&](std::size_t search, std::size_t other, const char* baseline, std::optional<double> goal) {
    std::string name = "search by " + std::string(find::Searches[search].Kind) + " through " + bench::Grouped(films);
    bench::PrintSeconds({name + " films", seconds[search], baseline, seconds[other], goal});
  };
  // The others look in one field each, as Director does.
  auto slowest = std::max_element(seconds.begin() + Star + 1, seconds.begin() + searches) - seconds.begin();
  for (std::size_t search : {Title, Director, Star, static_cast<std::size_t>(slowest)})
    print(search, searches, "one plain read", films < GoalFrom ? std::nullopt : std::optional(Goal));
  constexpr const char* Others[] = {"grep -i -c", "SQLite like '%x%'"};
  for (std::size_t other = searches + 1; other < seconds.size(); ++other)
    print(Director, other, Others[other - searches - 1], std::nullopt);
}

}  // namespace

int main(int argc, char** argv) {
  const bench::Films films(argc, argv);
  for (std::int64_t count : films.Sizes) {
    const kit::Collection collection;
    Compare(films.Source, collection.Folder(), count);
  }
}
