// diff tells what differs between two collections, film by film; merge takes the films that are only in the other one.
#include "companion/bar.h"
#include "companion/copies.h"
#include "companion/differences.h"
#include "companion/pairs.h"
#include "companion/printable.h"
#include "companion/verbs.h"
#include "companion/writing.h"
#include "exchange/import_plan.h"
#include "store/master_file.h"

namespace companion {
namespace {

constexpr int MasterNo = 1;

struct TwoCollections {
  std::vector<NumberedFilm> Here, There;
};

// Nothing after a complaint.
std::optional<TwoCollections> ReadBoth(const Invocation& invocation, Output& output) {
  const Reading reading(invocation);
  TwoCollections both;
  const bool read = reading.EachSlot([&](const NumberedFilm& film) {
    if (HasTitle(film.Film)) both.Here.push_back(film);
  });
  if (!read) {
    RefuseLength(reading, output);
    return std::nullopt;
  }
  const std::optional<FilesByName> other = ReadOther(invocation, invocation.Arguments[0]);
  if (!other) {
    output.Errors << "There is no collection and no copy \"" << invocation.Arguments[0] << "\" that can be read.\n";
    return std::nullopt;
  }
  both.There = FilmsIn(other->at(std::string(store::MasterFileName)));
  return both;
}

struct Counts {
  std::int64_t Differ = 0, OnlyHere = 0, OnlyThere = 0;

  void Add(const FilmPair& pair) {
    if (!pair.There)
      ++OnlyHere;
    else if (!pair.Here)
      ++OnlyThere;
    else
      ++Differ;
  }
  bool Any() const { return Differ + OnlyHere + OnlyThere > 0; }
};

void Print(const FilmPair& pair, std::ostream& text) {
  if (!pair.There) {
    text << "only here: record " << pair.Here->Number << ", " << NameOf(*pair.Here) << "\n";
    return;
  }
  if (!pair.Here) {
    text << "only there: record " << pair.There->Number << ", " << NameOf(*pair.There) << "\n";
    return;
  }
  text << "differs: record " << pair.Here->Number << ", " << NameOf(*pair.Here);
  if (pair.Here->Number != pair.There->Number) text << ", there record " << pair.There->Number;
  text << "\n";
  PrintDifferences(pair.Here->Film, pair.There->Film, text);
}

void AddFilm(std::string_view name, const NumberedFilm* film, Json& json) {
  if (!film) return;
  json.BeginObject(name);
  json.Add("record", film->Number);
  json.Add("title", FieldText(film->Film, store::FilmField::Title));
  json.Add("year", FieldText(film->Film, store::FilmField::Year));
  json.End();
}

void AddPair(const FilmPair& pair, Json& json) {
  json.BeginObject();
  AddFilm("here", pair.Here, json);
  AddFilm("there", pair.There, json);
  if (pair.Here && pair.There) AddDifferences(pair.Here->Film, "here", pair.There->Film, "there", json);
  json.End();
}

void PrintCounts(const Counts& counts, std::ostream& text) {
  if (!counts.Any()) {
    text << "The films are the same.\n";
    return;
  }
  text << Counted(counts.Differ, "film") << (counts.Differ == 1 ? " differs, " : " differ, ") << counts.OnlyHere
       << " only here, " << counts.OnlyThere << " only there.\n";
}

// A film to add, and its record.
struct Addition {
  std::int64_t Record = 0;
  const NumberedFilm* Film = nullptr;
};

void PrintAdditions(const std::vector<Addition>& added, bool written, std::ostream& text) {
  for (const Addition& addition : added) {
    text << "record " << addition.Record << ": " << NameOf(*addition.Film) << "\n";
  }
  text << Counted(static_cast<std::int64_t>(added.size()), "film") << (written ? " added.\n" : " would be added.\n");
  if (!written)
    text << NothingWritten;
  else if (!added.empty())
    text << "Sort afterwards, so that views and lists show them.\n";
}

void AddAdditions(const std::vector<Addition>& added, bool written, std::ostream& text) {
  Json json(text);
  json.BeginObject();
  json.AddTruth("written", written);
  json.BeginList("added");
  for (const Addition& addition : added) {
    json.BeginObject();
    json.Add("record", addition.Record);
    json.Add("title", FieldText(addition.Film->Film, store::FilmField::Title));
    json.End();
  }
}

// Free records first, then those after the last. A film with another title is one that is missing here. Nothing if
// there is no room for all.
std::optional<std::vector<Addition>> PlanMerge(const TwoCollections& both, std::int64_t slots) {
  std::vector<bool> taken(static_cast<std::size_t>(slots) + 1);
  for (const NumberedFilm& film : both.Here) taken[static_cast<std::size_t>(film.Number)] = true;
  std::vector<Addition> added;
  std::int64_t record = 1;
  for (const FilmPair& pair : Paired(both.Here, both.There, NewTitles::Apart)) {
    if (pair.Here) continue;
    while (record <= slots && taken[static_cast<std::size_t>(record)]) ++record;
    if (record > exchange::MostSlots) return std::nullopt;
    added.push_back({record++, pair.There});
  }
  return added;
}

// Each film is saved as by the program.
void WriteAdditions(runtime::Disk& disk, const std::vector<Addition>& added, Output& output) {
  runtime::Files files(disk);
  store::OpenMaster(files, MasterNo);
  Bar bar(output, "Adding films");
  double done = 0;
  for (const Addition& addition : added) {
    store::FilmRecord film = addition.Film->Film;
    film.Set(store::FilmField::Tail, "\r\n");
    store::WriteRecord(files, MasterNo, addition.Record, film);
    bar.Show(++done / static_cast<double>(added.size()));
  }
}

int MergeFilms(runtime::Disk* disk, const Invocation& invocation, Output& output) {
  const std::optional<TwoCollections> both = ReadBoth(invocation, output);
  if (!both) return Found;
  const std::optional<std::vector<Addition>> added = PlanMerge(*both, Reading(invocation).Slots());
  if (!added) {
    output.Errors << "There is no room: a collection has " << exchange::MostSlots
                  << " records at most. Nothing was added.\n";
    return Found;
  }
  if (disk) WriteAdditions(*disk, *added, output);
  const bool written = disk != nullptr;
  if (invocation.Json)
    AddAdditions(*added, written, output.Text);
  else
    PrintAdditions(*added, written, output.Text);
  return Done;
}

}  // namespace

int Diff(const Invocation& invocation, Output& output) {
  const std::optional<TwoCollections> both = ReadBoth(invocation, output);
  if (!both) return Found;
  Counts counts;
  std::optional<Json> json;
  if (invocation.Json) json.emplace(output.Text).BeginList();
  for (const FilmPair& pair : Paired(both->Here, both->There, NewTitles::Paired)) {
    if (pair.IsSame()) continue;
    counts.Add(pair);
    if (json)
      AddPair(pair, *json);
    else
      Print(pair, output.Text);
  }
  if (!json) PrintCounts(counts, output.Text);
  return counts.Any() ? Found : Done;
}

int Merge(const Invocation& invocation, Output& output) {
  if (!invocation.Write) return MergeFilms(nullptr, invocation, output);
  return WriteLocked(invocation, output, [&](runtime::Disk& disk) { return MergeFilms(&disk, invocation, output); });
}

}  // namespace companion
