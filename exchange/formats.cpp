// The table.
#include "exchange/formats.h"

#include <algorithm>

namespace exchange {
namespace {

// clang-format off
constexpr Format Table[] = {
  { "csv",     ".csv",  ".tsv",  WriteCsv,     ReadCsv },
  { "json",    ".json", "",      WriteJson,    ReadJson },
  { "rec",     ".rec",  "",      WriteRec,     ReadRec },
  { "tellico", ".xml",  ".tc",   WriteTellico, ReadTellico },
  { "html",    ".html", ".htm",  WriteHtml,    nullptr },
};
// clang-format on

bool EndsIn(std::string_view name, std::string_view ending) {
  if (ending.empty() || name.size() < ending.size()) return false;
  const std::string_view end = name.substr(name.size() - ending.size());
  return std::equal(end.begin(), end.end(), ending.begin(), [](char letter, char small) {
    return letter == small || (letter >= 'A' && letter <= 'Z' && letter + ('a' - 'A') == small);
  });
}

}  // namespace

std::span<const Format> Formats() { return Table; }

const Format* FormatOf(std::string_view name) {
  for (const Format& format : Table) {
    if (format.Name == name) return &format;
  }
  return nullptr;
}

const Format* FormatOfFile(std::string_view file_name) {
  for (const Format& format : Table) {
    if (EndsIn(file_name, format.Ending) || EndsIn(file_name, format.OtherEnding)) return &format;
  }
  return nullptr;
}

}  // namespace exchange
