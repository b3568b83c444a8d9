// GNU recutils: a record of lines "Name: value" for each film, a blank line between. The reader is ours: the form is a
// few rules of lines, and the library of recutils keeps each record whole and has no bounds.
#include "exchange/film_text.h"
#include "exchange/formats.h"
#include "exchange/text_out.h"

namespace exchange {
namespace {

constexpr std::string_view OwnType = "ReeloraFilm";

// The letters, digits and low lines of a name, up to the colon; 0 if there is no name.
std::size_t NameLength(std::string_view line) {
  auto is_letter = [](char byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); };
  if (line.empty() || !(is_letter(line[0]) || line[0] == '%')) return 0;
  std::size_t length = 1;
  while (length < line.size() &&
         (is_letter(line[length]) || (line[length] >= '0' && line[length] <= '9') || line[length] == '_')) {
    ++length;
  }
  return length < line.size() && line[length] == ':' ? length : 0;
}

class RecReading {
 public:
  explicit RecReading(Rows& rows) : rows_(rows) {}

  // False: read no further.
  bool Feed(std::string_view bytes) {
    while (!bytes.empty()) {
      const std::size_t end = bytes.find('\n');
      line_.append(bytes.substr(0, end));
      if (line_.size() > LongestPiece) fault_ = TooLong;
      if (fault_) return false;
      if (end == std::string_view::npos) return true;
      bytes.remove_prefix(end + 1);
      if (!Line()) return false;
    }
    return true;
  }
  Fault Finish() {
    if (!stopped_ && !fault_ && (line_.empty() || Line())) EndRecord();
    if (!fault_) return std::nullopt;
    return "line " + std::to_string(number_) + ": " + *fault_;
  }

 private:
  bool Line() {
    ++number_;
    if (line_.ends_with('\r')) line_.pop_back();
    if (continued_) {
      continued_ = false;
      AddToValue("", line_);
    } else if (line_.empty()) {
      if (!EndRecord()) return false;
    } else if (line_.starts_with('+')) {
      if (name_.empty()) fault_ = "a line with + after no value";
      AddToValue("\n", std::string_view(line_).substr(line_.starts_with("+ ") ? 2 : 1));
    } else if (!line_.starts_with('#')) {
      BeginValue();
    }
    line_.clear();
    return !fault_;
  }
  void BeginValue() {
    EndValue();
    const std::size_t length = NameLength(line_);
    if (length == 0) {
      fault_ = "no \"Name: value\"";
      return;
    }
    name_ = line_.substr(0, length);
    std::string_view value = std::string_view(line_).substr(length + 1);
    if (value.starts_with(' ') || value.starts_with('\t')) value.remove_prefix(1);
    AddToValue("", value);
  }
  // A backslash at the end of a line joins the next one to it.
  void AddToValue(std::string_view between, std::string_view text) {
    if (text.ends_with('\\')) {
      continued_ = true;
      text.remove_suffix(1);
    }
    value_.append(between).append(text);
    if (value_.size() > LongestPiece) fault_ = TooLong;
  }
  void EndValue() {
    if (name_.empty() || fault_) return;
    if (name_ == "%rec") {
      rows_.Own = value_ == OwnType;
    } else if (name_[0] != '%') {
      const std::size_t column = rows_.Column(name_);
      if (column == MostColumns) {
        fault_ = TooManyColumns;
      } else {
        rows_.Add(column, value_);
      }
    }
    name_.clear();
    value_.clear();
  }
  bool EndRecord() {
    EndValue();
    if (!fault_) stopped_ = !rows_.End();
    line_.clear();
    return !stopped_ && !fault_;
  }

  Rows& rows_;
  std::string line_, name_, value_;
  std::int64_t number_ = 0;
  bool continued_ = false;
  bool stopped_ = false;
  Fault fault_;
};

}  // namespace

void WriteRec(const Collection& collection, const ByteSink& sink) {
  TextOut out(sink);
  out.Text.append("%rec: ").append(OwnType).append("\n%key: ").append(RecordColumn);
  out.Text.append("\n%type: ").append(RecordColumn).append(" int\n%mandatory: Title\n");
  std::string text;
  collection.Each([&](std::int64_t number, const store::FilmRecord& film) {
    out.Text.append("\n").append(RecordColumn).append(": ").append(std::to_string(number)) += '\n';
    for (const store::FilmFieldRow& row : store::FilmFields) {
      text.clear();
      AppendField(film, row.Field, text);
      if (text.empty()) continue;
      if (text.ends_with('\\')) text.replace(text.size() - 1, 1, SignOf('\\'));
      out.Text.append(row.Name).append(": ").append(text) += '\n';
    }
    out.Pass();
  });
  out.End();
}

Fault ReadRec(const ByteSource& source, Rows& rows) {
  RecReading reading(rows);
  std::string block(std::size_t(64) * 1024, '\0');
  while (const std::size_t count = source(block.data(), block.size())) {
    if (!reading.Feed({block.data(), count})) break;
  }
  return reading.Finish();
}

}  // namespace exchange
