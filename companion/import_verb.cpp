// import reads films from a file and puts them into the collection.
#include <algorithm>

#include "companion/bar.h"
#include "companion/import_report.h"
#include "companion/new_collection.h"
#include "companion/reading.h"
#include "companion/sort_run.h"
#include "companion/verbs.h"
#include "companion/writing.h"
#include "exchange/import.h"
#include "store/master_file.h"

namespace companion {
namespace {

using exchange::Doubles;

struct DoublesWord {
  std::string_view Word;
  Doubles What;
};
constexpr DoublesWord DoublesWords[] = {{"skip", Doubles::Skip}, {"update", Doubles::Update}, {"add", Doubles::Add}};

struct Request {
  const exchange::Format* Format = nullptr;
  std::vector<exchange::ColumnMap> Maps;
  exchange::Unstorable As = exchange::Unstorable::Marked;
  exchange::Doubles Doubles = Doubles::Skip;
  std::string Mistake;
};

Request Parse(const Invocation& invocation) {
  Request request;
  const std::optional<std::string> format = invocation.Value("format");
  request.Format = format ? exchange::FormatOf(*format) : exchange::GuessImportFormat(invocation.Arguments[0]);
  if (!request.Format || !request.Format->Read) {
    request.Mistake =
        format ? "there is no import of " + *format : "the file name does not tell the format; say --format";
  }
  for (const std::string& text : invocation.Values("map")) {
    const auto map = exchange::ParseColumnMap(text);
    if (map) request.Maps.push_back(*map);
    if (!map) request.Mistake = text + " does not map a column to a field";
  }
  if (invocation.Has("transliterate")) request.As = exchange::Unstorable::Transliterated;
  const std::string doubles = invocation.Value("doubles").value_or("skip");
  bool known = false;
  for (const DoublesWord& row : DoublesWords) {
    if (row.Word != doubles) continue;
    request.Doubles = row.What;
    known = true;
  }
  if (!known) request.Mistake = doubles + " is none of skip, update and add";
  return request;
}

// False if the file cannot be read, which is told.
bool ReadFile(const std::string& path, const Request& request, exchange::FilmsOfFile& films, Output& output) {
  const exchange::ImportFile file(path);
  exchange::Fault fault = file.Wrong();
  if (!fault) fault = exchange::ReadFilms(file.Source(), *request.Format, {request.Maps, request.As}, films);
  if (file.Wrong()) fault = file.Wrong();
  if (fault) output.Errors << path << ": " << *fault << "\n";
  return !fault;
}

// Whether the collection has as few records as an import can count; if not, that is told.
bool HasRoom(const Invocation& invocation, Output& output) {
  if (Reading(invocation).Slots() <= exchange::MostSlots) return true;
  output.Errors << "This collection has more than " << exchange::MostSlots << " records, too many for an import.\n";
  return false;
}

void Print(const ImportReport& report, const Invocation& invocation, Output& output) {
  if (invocation.Json) return PrintImportJson(report, output.Text);
  PrintImport(report, output.Text);
  if (!report.Written) output.Text << NothingWritten;
}

int StatusOf(const std::vector<exchange::Step>& steps) {
  return CountSteps(steps, exchange::Action::NoRoom) > 0 ? Found : Done;
}

int Write(runtime::Disk& disk, const Invocation& invocation, const Request& request, const exchange::FilmsOfFile& films,
          Output& output) {
  const bool is_new = !HasMasterFile(disk);
  if (is_new && !MakeCollection(disk, invocation, output)) return Found;
  runtime::Files files(disk);
  store::OpenMaster(files, 1);
  const std::vector<store::FilmRecord> slots = exchange::ReadSlots(disk);
  const std::vector<exchange::Step> steps = exchange::PlanImport(slots, films.Films, request.Doubles);
  {
    Bar bar(output, "Importing");
    exchange::ApplyImport(files, steps, [&](std::int64_t done) {
      bar.Show(static_cast<double>(done) / static_cast<double>(steps.size()));
    });
  }
  files.Close(1);
  Print({films, steps, slots, is_new ? WholeName(invocation.Folder) : "", true}, invocation, output);
  if (invocation.Has("sort")) return std::max(StatusOf(steps), PrintSorted(SortCollection(files, output), output));
  if (files.RecordsWritten() > 0 && !invocation.Json) output.Text << SortAfterwards;
  return StatusOf(steps);
}

}  // namespace

int Import(const Invocation& invocation, Output& output) {
  const Request request = Parse(invocation);
  if (!request.Mistake.empty()) return WrongUsage(invocation.Verb, output, request.Mistake);
  const std::unique_ptr<runtime::Disk> disk = invocation.MakeDisk(invocation.Folder);
  const bool is_new = !HasMasterFile(*disk);
  if (!(is_new ? MayBecomeCollection(invocation, output) : HasRoom(invocation, output))) return Found;
  exchange::FilmsOfFile films;
  if (!ReadFile(invocation.Arguments[0], request, films, output)) return Found;
  if (invocation.Write) {
    return WriteLocked(invocation, output,
                       [&](runtime::Disk& disk) { return Write(disk, invocation, request, films, output); });
  }
  const std::vector<store::FilmRecord> slots = exchange::ReadSlots(*disk);
  const std::vector<exchange::Step> steps = exchange::PlanImport(slots, films.Films, request.Doubles);
  Print({films, steps, slots, is_new ? WholeName(invocation.Folder) : ""}, invocation, output);
  return StatusOf(steps);
}

}  // namespace companion
