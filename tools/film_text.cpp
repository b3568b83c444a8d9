// Every value is checked against its field's width and codes, so that a mistyped text makes no odd collection.
#include "tools/film_text.h"

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "runtime/code_page.h"
#include "store/film_codes.h"
#include "store/film_record.h"

namespace tools {
namespace {

using store::FilmField;

constexpr std::array<std::string_view, 5> MovableArticles = {"The ", "An ", "A ", "THE ", "AN "};

bool KnownCode(FilmField field, std::string_view value) {
  if (field == FilmField::Format) return store::WordOf(store::Formats, value).has_value();
  if (field == FilmField::Letter) return store::WordOf(store::Aspects, value).has_value();
  if (field == FilmField::Genre) return store::GenreOf(value) != nullptr;
  if (field == FilmField::CLV1) return value == "CLV" || value == "CAV";
  if (field == FilmField::Color1) return value == "Color" || value == "B & W";
  return field != FilmField::Rating || std::ranges::find(store::RatingCodes, value) != store::RatingCodes.end();
}

constexpr std::string_view TableHead = "Fields=";

std::vector<std::string_view> Split(std::string_view line) {
  std::vector<std::string_view> parts;
  for (std::size_t bar = line.find('|'); bar != std::string_view::npos; bar = line.find('|')) {
    parts.push_back(line.substr(0, bar));
    line.remove_prefix(bar + 1);
  }
  parts.push_back(line);
  return parts;
}

class Reader {
 public:
  explicit Reader(std::string_view name) : name_(name) {}

  // One line, without its line end.
  void Take(std::string_view line) {
    ++line_number_;
    if (line.starts_with('#')) return;
    if (line.empty()) return EndSlot();
    if (!columns_.empty()) return TakeRow(line);
    if (line.starts_with(TableHead)) return TakeColumns(line.substr(TableHead.size()));
    if (line != "free") return TakeField(line);
    if (free_ || !named_.empty()) Fault("\"free\" needs a block of its own");
    free_ = true;
  }

  // Ends the slot of the lines since the last empty one, if there are any.
  void EndSlot() {
    if (!named_.empty() && !named_.contains(FilmField::Title)) Fault("the block above has no Title");
    if (free_ || !named_.empty()) {
      slot_.Set(FilmField::Tail, "\r\n");
      result_.MasterFile.append(slot_.Bytes.data(), slot_.Bytes.size());
    }
    slot_.Clear();
    named_.clear();
    free_ = false;
  }

  const FilmText& Result() const { return result_; }

 private:
  void TakeField(std::string_view line) {
    std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return Fault("neither Field=value nor \"free\"");
    const store::FilmFieldRow* row = RowOf(line.substr(0, equals));
    if (row == nullptr) return;
    if (free_) return Fault("a free slot has no fields");
    TakeValue(*row, line.substr(equals + 1));
  }

  void TakeColumns(std::string_view names) {
    if (free_ || !named_.empty()) return Fault("a table begins after an empty line");
    for (std::string_view name : Split(names)) {
      if (const store::FilmFieldRow* row = RowOf(name)) columns_.push_back(row);
    }
  }

  // A row is a whole slot.
  void TakeRow(std::string_view line) {
    const std::vector<std::string_view> values = Split(line);
    if (values.size() > columns_.size()) return Fault("more values than columns", line);
    for (std::size_t column = 0; column < values.size(); ++column) {
      if (!values[column].empty()) TakeValue(*columns_[column], values[column]);
    }
    EndSlot();
  }

  // Reports an unknown name and returns null.
  const store::FilmFieldRow* RowOf(std::string_view name) {
    const auto* row = std::ranges::find(store::FilmFields, name, &store::FilmFieldRow::Name);
    if (row != store::FilmFields.end() && row->Field != FilmField::Tail) return row;
    Fault("unknown field", name);
    return nullptr;
  }

  void TakeValue(const store::FilmFieldRow& row, std::string_view text) {
    if (!named_.insert(row.Field).second) return Fault("field named twice in the block", row.Name);
    auto value = runtime::FromUtf8(text);
    if (!value) return Fault("not in Windows-1252", text);
    CheckValue(row, *value, text);
    slot_.Set(row.Field, *value);
  }

  void CheckValue(const store::FilmFieldRow& row, std::string_view value, std::string_view text) {
    if (value.find_first_not_of(' ') == std::string::npos) Fault("no value", row.Name);
    if (std::ranges::any_of(value, [](unsigned char byte) { return byte < ' '; })) Fault("control character", row.Name);
    if (value.size() > static_cast<std::size_t>(row.Width)) Fault("wider than " + std::to_string(row.Width), text);
    if (!KnownCode(row.Field, value)) Fault("unknown code", text);
    auto begins = [&](std::string_view article) { return value.starts_with(article); };
    bool article_first = row.Field == FilmField::Title && std::ranges::any_of(MovableArticles, begins);
    if (article_first) Fault("the article belongs at the end of the title", text);
  }

  void Fault(std::string_view what, std::string_view where = {}) {
    result_.Faults.append(name_).append(":").append(std::to_string(line_number_)).append(": ").append(what);
    if (!where.empty()) result_.Faults.append(": ").append(where);
    result_.Faults += '\n';
  }

  std::string_view name_;
  int line_number_ = 0;
  store::FilmRecord slot_;
  std::set<FilmField> named_;  // the fields of the block so far
  bool free_ = false;
  std::vector<const store::FilmFieldRow*> columns_;  // of the table, once it has begun
  FilmText result_;
};

}  // namespace

FilmText ReadFilmText(std::istream& text, std::string_view name) {
  Reader reader(name);
  for (std::string line; std::getline(text, line);) {
    if (line.ends_with('\r')) line.pop_back();
    reader.Take(line);
  }
  reader.EndSlot();
  return reader.Result();
}

}  // namespace tools
