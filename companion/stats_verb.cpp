// stats tells what the collection is made of: the summary of the exported page as text.
#include <algorithm>

#include "companion/json.h"
#include "companion/reading.h"
#include "companion/table.h"
#include "companion/verbs.h"
#include "exchange/summary.h"

namespace companion {
namespace {

struct Section {
  std::string_view Name;
  const std::vector<exchange::Share>& Shares;
};

void PrintSection(const Section& section, std::int64_t films, Output& output) {
  const std::vector<Column> columns = {{std::string(section.Name)}, {"Films", true}, {"Share", true}};
  std::vector<std::vector<std::string>> rows;
  for (const exchange::Share& share : section.Shares) {
    const std::int64_t percent = (200 * share.Films + films) / (2 * films);
    rows.push_back({share.Name, exchange::Grouped(share.Films), std::to_string(percent) + " %"});
  }
  constexpr std::size_t AsWideAsNeeded = 1000;
  output.Text << "\n";
  PrintTable(columns, rows, AsWideAsNeeded, output.Text);
}

void AddSection(const Section& section, Json& json) {
  json.BeginList(section.Name);
  for (const exchange::Share& share : section.Shares) {
    json.BeginObject();
    json.Add("name", share.Name);
    json.Add("films", share.Films);
    json.End();
  }
  json.End();
}

}  // namespace

int Stats(const Invocation& invocation, Output& output) {
  const Reading reading(invocation);
  if (reading.Slots() > Reading::MaxSlots) return RefuseLength(reading, output);
  const exchange::Summary summary = exchange::Summarize(exchange::FilmsOf(reading.Disk()));
  const Section sections[] = {{"Format", summary.Formats}, {"Genre", summary.Genres}, {"Decade", summary.Decades}};
  if (!invocation.Json) {
    output.Text << exchange::Headline(summary) << "\n";
    for (const Section& section : sections) {
      if (summary.Films > 0) PrintSection(section, summary.Films, output);
    }
    return Done;
  }
  Json json(output.Text);
  json.BeginObject();
  json.Add("films", summary.Films);
  json.Add("minutes", summary.Minutes);
  json.Add("timed", summary.Timed);
  json.Add("cents", summary.Cents);
  json.Add("priced", summary.Priced);
  for (const Section& section : sections) AddSection(section, json);
  return Done;
}

}  // namespace companion
