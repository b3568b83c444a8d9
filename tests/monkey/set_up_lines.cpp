// A collection as a story lays it out: films one by one where the verb can write them.
#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/monkey/collections.h"
#include "tests/story/story_file.h"

namespace monkey {
namespace {

// Nothing if a story cannot write the record as a film: its last bytes are not CR LF.
std::optional<std::string> FilmLine(const std::string& record, std::size_t slot) {
  if (!record.ends_with("\r\n")) return std::nullopt;
  std::string line = "film " + std::to_string(slot);
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (row.Field == store::FilmField::Tail) continue;
    std::string text = record.substr(static_cast<std::size_t>(row.Offset), static_cast<std::size_t>(row.Width));
    text.erase(text.find_last_not_of(' ') + 1);
    if (!text.empty()) line += " " + std::string(row.Name) + "=" + story::Quoted(text);
  }
  // A film line has at least one field.
  return line.ends_with('"') ? line : line + " Title=\"\"";
}

std::string FileLine(const std::string& name, const std::string& bytes) {
  return "file " + name + " " + story::Quoted(bytes) + "\n";
}

std::string FilmLines(const Collection& collection) {
  std::string lines;
  for (std::size_t slot = 1; slot <= collection.Films.size(); ++slot) {
    std::optional<std::string> line = FilmLine(collection.Films[slot - 1], slot);
    if (!line || !collection.Behind.empty()) return FileLine(std::string(store::MasterFileName), MasterOf(collection));
    lines += *line + "\n";
  }
  return collection.Behind.empty() ? lines : FileLine(std::string(store::MasterFileName), collection.Behind);
}

}  // namespace

std::string SetUpLines(const Collection& collection) {
  std::string lines = FilmLines(collection);
  for (const auto& [name, content] : collection.Files) {
    if (content) {
      lines += FileLine(name, *content);
    } else if (BaseFolder().contains(name)) {
      lines += "remove " + name + "\n";
    }
  }
  return lines;
}

}  // namespace monkey
