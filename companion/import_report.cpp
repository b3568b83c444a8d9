// Lines for eyes, members for scripts.
#include "companion/import_report.h"

#include <algorithm>

#include "companion/differences.h"
#include "companion/json.h"
#include "companion/printable.h"

namespace companion {
namespace {

using exchange::Action;
using exchange::Step;

constexpr std::size_t NameColumns = 16;

struct ActionWords {
  Action What;
  std::string_view Name;  // in front of a film, and in JSON
  std::string_view Plan;  // after a count
  std::string_view Result;
};
// clang-format off
constexpr ActionWords Actions[] = {
  { Action::Add,    "add",     "to add",        "added" },
  { Action::Update, "update",  "to update",     "updated" },
  { Action::Same,   "same",    "there already", "there already" },
  { Action::Skip,   "skip",    "left out: a film of that title and year is there", "left out: a film of that title and year is there" },
  { Action::NoRoom, "no room", "for which there is no room", "for which there is no room" },
};
// clang-format on

const ActionWords& WordsOf(Action what) {
  return *std::find_if(std::begin(Actions), std::end(Actions),
                       [&](const ActionWords& row) { return row.What == what; });
}

void PrintColumns(const exchange::FilmsOfFile& file, std::ostream& text) {
  if (file.Own) return;
  for (std::size_t column = 0; column < file.Columns.size(); ++column) {
    const std::string_view field = exchange::NameOf(file.Targets[column]);
    text << "column " << exchange::Visible(file.Columns[column]) << (field.empty() ? " is left out" : " goes into ")
         << field << "\n";
  }
}

void PrintFields(const store::FilmRecord& film, std::ostream& text) {
  for (const store::FilmFieldRow& row : store::FilmFields) {
    const std::string field = exchange::FieldText(film, row.Field);
    if (!field.empty()) text << "  " << Padded(row.Name, NameColumns) << field << "\n";
  }
}

void PrintStep(const ImportReport& report, const Step& step, std::ostream& text) {
  text << WordsOf(step.What).Name;
  if (step.What != Action::NoRoom) text << " " << step.Slot;
  text << ": " << TitleOf(step.Bytes) << "\n";
  if (step.What == Action::Same || step.What == Action::Skip) return;
  if (step.What == Action::Update) {
    PrintDifferences(report.Slots[static_cast<std::size_t>(step.Slot) - 1], step.Bytes, text);
  } else {
    PrintFields(step.Bytes, text);
  }
  for (const exchange::Note& note : report.File.Films[step.Film].Notes) {
    text << "  ! " << store::RowOf(note.Field).Name << ": " << exchange::Visible(note.What) << "\n";
  }
}

void AddFilm(const ImportReport& report, const Step& step, Json& json) {
  json.BeginObject();
  json.Add("action", WordsOf(step.What).Name);
  if (step.What != Action::NoRoom) json.Add("record", step.Slot);
  json.BeginObject("film");
  for (const store::FilmFieldRow& row : store::FilmFields) {
    const std::string field = exchange::FieldText(step.Bytes, row.Field);
    if (!field.empty()) json.Add(row.Name, field);
  }
  json.End();
  json.BeginList("notes");
  for (const exchange::Note& note : report.File.Films[step.Film].Notes) {
    json.BeginObject();
    json.Add("field", store::RowOf(note.Field).Name);
    json.Add("note", exchange::Visible(note.What));
    json.End();
  }
  json.End();
  json.End();
}

}  // namespace

std::int64_t CountSteps(const std::vector<Step>& steps, Action what) {
  return std::count_if(steps.begin(), steps.end(), [&](const Step& step) { return step.What == what; });
}

void PrintImport(const ImportReport& report, std::ostream& text) {
  if (!report.NewFolder.empty()) {
    text << "A new collection " << (report.Written ? "was made in " : "would be made in ") << report.NewFolder << ".\n";
  }
  PrintColumns(report.File, text);
  for (const Step& step : report.Steps) PrintStep(report, step, text);
  for (const ActionWords& row : Actions) {
    const std::int64_t films = CountSteps(report.Steps, row.What);
    if (films > 0) text << Counted(films, "film") << " " << (report.Written ? row.Result : row.Plan) << "\n";
  }
  if (report.File.Untitled > 0) text << Counted(report.File.Untitled, "row") << " without a title\n";
}

void PrintImportJson(const ImportReport& report, std::ostream& text) {
  Json json(text);
  json.BeginObject();
  json.BeginList("columns");
  for (std::size_t column = 0; column < report.File.Columns.size(); ++column) {
    json.BeginObject();
    json.Add("name", exchange::Visible(report.File.Columns[column]));
    json.Add("field", exchange::NameOf(report.File.Targets[column]));
    json.End();
  }
  json.End();
  json.BeginList("films");
  for (const Step& step : report.Steps) AddFilm(report, step, json);
  json.End();
  json.Add("untitled", report.File.Untitled);
  json.AddTruth("newCollection", !report.NewFolder.empty());
  json.AddTruth("written", report.Written);
}

}  // namespace companion
