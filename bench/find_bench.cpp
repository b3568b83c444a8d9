// A search that finds nothing, for one field and for six, side by side with a plain sequential read of the file, GNU
// grep over the same bytes and an SQLite scan. Usage: find_bench [RECPRA_DAT [FILMS...]]
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "app/program.h"
#include "bench/measured.h"
#include "store/master_file.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"
#include "tools/film_generator.h"
#ifdef REELORA_SQLITE
#include <sqlite3.h>
#include "tests/kit/source_tree.h"
#endif

namespace {

namespace files = std::filesystem;
constexpr int Runs = 5;
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
double Search(const std::string& folder, void (frmPage1::*handler)()) {
  kit::QuietDesk desk;
  runtime::RealDisk disk(folder);
  Program program(desk, disk);
  program.StartRecordScreen();
  desk.NextAnswer = Sought;
  double seconds = bench::Timed([&] { program.Deliver([&] { (program.RecordScreen.*handler)(); }); });
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
  auto best = [](auto work) { return bench::Best(Runs, [work] { return std::vector<double>{work()}; }); };
  double read = best([&] { return ReadPlainly(path); }).Seconds();
  double grep = best([&] { return Grep(path); }).Seconds();
  bench::Measured director = best([&] { return Search(folder, &frmPage1::mnuFindDirector_Click); });
  bench::Measured star = best([&] { return Search(folder, &frmPage1::mnuFindStar_Click); });
  std::printf("%8lld films: plain read %7.2f ms, grep -i -c %7.2f ms", static_cast<long long>(films), read * 1e3,
              grep * 1e3);
#ifdef REELORA_SQLITE
  files::remove(folder / "films.db");
  MakeTable(folder);
  std::printf(", SQLite like %7.2f ms", best([&] { return ScanTable(folder); }).Seconds() * 1e3);
#endif
  auto report = [&](const char* name, const bench::Measured& search) {
    std::printf("\n  %-8s %7.2f ms, %.2f x the plain read (goal 1.25), %.2f x grep, peak %.1f MiB", name,
                search.Seconds() * 1e3, search.Seconds() / read, search.Seconds() / grep,
                double(search.PeakBytes) / (1 << 20));
  };
  report("Director", director);
  report("Star", star);
  std::printf("\n");
}

}  // namespace

int main(int argc, char** argv) {
  const std::string source = argc > 1 ? argv[1] : kit::SampleFile().string();
  std::vector<std::int64_t> sizes;
  for (int index = 2; index < argc; ++index) sizes.push_back(std::atoll(argv[index]));
  if (sizes.empty()) sizes = {32767, 100000, 1000000};
  const kit::Collection collection;
  for (std::int64_t films : sizes) Compare(source, collection.Folder(), films);
}
