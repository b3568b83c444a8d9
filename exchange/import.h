// Reads a file of films and writes them into a collection.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "exchange/film_of_row.h"
#include "exchange/formats.h"
#include "exchange/import_plan.h"
#include "runtime/files.h"

namespace exchange {

// A file opened for reading; the file "tellico.xml" in it if it is zipped.
class ImportFile {
 public:
  // Check Wrong() first.
  explicit ImportFile(const std::string& path);
  ~ImportFile();
  ImportFile(const ImportFile&) = delete;
  ImportFile& operator=(const ImportFile&) = delete;

  // What is wrong with it: when opened, or while it was read.
  const Fault& Wrong() const;
  const ByteSource& Source() const { return source_; }

 private:
  struct Opened;
  std::unique_ptr<Opened> opened_;
  ByteSource source_;
};

struct FilmsOfFile {
  std::vector<ReadFilm> Films;
  std::int64_t Untitled = 0;  // rows without a title, which are left out
  bool Own = false;           // an export of this program
  std::vector<std::string> Columns;
  std::vector<Target> Targets;  // of the columns
};

// After a fault, do not use what was read. More films than a collection can have are a fault.
Fault ReadFilms(const ByteSource& source, const Format& format, FilmMaker maker, FilmsOfFile& films);

// The format of a file by its name; nullptr if it names none that can be read.
const Format* GuessImportFormat(std::string_view path);

// Writes the films to add and to update through the journal, in their order; `progress` gets the count after each. File
// number 1 must have the master file open. The caller holds the lock of the collection.
void ApplyImport(runtime::Files& files, const std::vector<Step>& steps,
                 const std::function<void(std::int64_t done)>& progress);

}  // namespace exchange
