// SQLite indexes in place of the key files.
#include <sqlite3.h>

#include <memory>
#include <stdexcept>

#include "bench/sort_contestants.h"
#include "runtime/text.h"
#include "runtime/whole_io.h"
#include "store/film_record.h"
#include "store/master_file.h"

namespace bench {
namespace {

constexpr const char* Indexes[] = {
    "CREATE INDEX titles ON films(title COLLATE NOCASE) WHERE title > '000000'",
    "CREATE INDEX dvds ON films(title COLLATE NOCASE) WHERE format = 'D'",
    "CREATE INDEX lasers ON films(title COLLATE NOCASE) WHERE format = 'L'",
    "CREATE INDEX tapes ON films(title COLLATE NOCASE) WHERE format = 'V'",
};

// All fields but the line end.
constexpr int Columns = static_cast<int>(store::FilmField::Tail);

void Run(sqlite3* database, const char* statement) {
  if (sqlite3_exec(database, statement, nullptr, nullptr, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(database));
}

// Without syncs, which are measured apart; with its journal, as the sort's outputs too are old or new after a kill;
// with a second thread for its sorting and 200 MB to keep pages in.
std::unique_ptr<sqlite3, int (*)(sqlite3*)> OpenDatabase(const std::string& folder) {
  sqlite3* opened = nullptr;
  int result = sqlite3_open((folder + "/films.sqlite").c_str(), &opened);
  std::unique_ptr<sqlite3, int (*)(sqlite3*)> database(opened, sqlite3_close);
  if (result != SQLITE_OK) throw std::runtime_error("no database");
  Run(opened, "PRAGMA synchronous=OFF; PRAGMA threads=1; PRAGMA cache_size=-200000");
  return database;
}

// The texts of a film, each without its padding, in the columns of the table.
void Insert(sqlite3_stmt* statement, const store::FilmRecord& film) {
  for (int column = 0; column < Columns; ++column) {
    std::string_view text = runtime::Trim(film.Get(store::FilmField(column)));
    sqlite3_bind_text(statement, column + 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
  }
  if (sqlite3_step(statement) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(sqlite3_db_handle(statement)));
  sqlite3_reset(statement);
}

}  // namespace

void PrepareTable(const std::string& folder) {
  auto database = OpenDatabase(folder);
  std::string columns;
  std::string values;
  for (int column = 0; column < Columns; ++column) {
    columns.append(column > 0 ? "," : "").append(store::FilmFields[column].Name).append(" TEXT");
    values.append(column > 0 ? ",?" : "?");
  }
  Run(database.get(), ("DROP TABLE IF EXISTS films; CREATE TABLE films(" + columns + "); BEGIN").c_str());
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(database.get(), ("INSERT INTO films VALUES(" + values + ")").c_str(), -1, &prepared, nullptr);
  std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> insert(prepared, sqlite3_finalize);
  runtime::RealDisk disk(folder);
  runtime::OpenFile master(disk, std::string(store::MasterFileName), runtime::Disk::Mode::Read);
  std::vector<store::FilmRecord> films(4096);
  std::int64_t offset = 0;
  while (std::size_t length = master.Read(films.front().Bytes.data(), films.size() * store::RecordLength, offset)) {
    for (std::size_t film = 0; film < length / store::RecordLength; ++film) Insert(prepared, films[film]);
    offset += static_cast<std::int64_t>(length);
  }
  insert.reset();
  Run(database.get(), "COMMIT");
}

double MakeIndexes(const std::string& folder) {
  auto database = OpenDatabase(folder);
  Run(database.get(),
      "DROP INDEX IF EXISTS titles; DROP INDEX IF EXISTS dvds; DROP INDEX IF EXISTS lasers; "
      "DROP INDEX IF EXISTS tapes");
  return Timed([&] {
    for (const char* statement : Indexes) Run(database.get(), statement);
  });
}

}  // namespace bench
