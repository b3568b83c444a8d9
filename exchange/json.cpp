// JSON: an object whose "films" are objects of the fields that are not empty. The JSON library of the companion reads,
// event by event, so that no document is ever kept.
#include <iterator>
#include <nlohmann/json.hpp>

#include "exchange/film_text.h"
#include "exchange/formats.h"
#include "exchange/text_out.h"

namespace exchange {
namespace {

// Its name comes before "films" in the alphabet too, as some tools sort them.
constexpr std::string_view OwnName = "collection";
constexpr std::string_view OwnMark = "reelora-films";

// Quotes of a text without control characters.
void AppendQuoted(std::string_view text, std::string& out) {
  out += '"';
  for (std::size_t at = text.find_first_of("\"\\"); at != std::string_view::npos; at = text.find_first_of("\"\\")) {
    out.append(text.substr(0, at)) += '\\';
    out += text[at];
    text.remove_prefix(at + 1);
  }
  out.append(text) += '"';
}

// The characters of a file, one by one. They pretend to end where one value is too long.
class Characters {
 public:
  explicit Characters(const ByteSource& source) : source_(source), block_(std::size_t(64) * 1024, '\0') { Fill(); }

  bool AtEnd() const { return next_ == filled_; }
  char Now() const { return block_[next_]; }
  void Next() {
    if (++next_ == filled_) Fill();
  }
  void ValueEnds() { value_start_ = before_ + next_; }
  bool StoppedInValue() const { return stopped_; }

 private:
  void Fill() {
    before_ += filled_;
    stopped_ = stopped_ || before_ - value_start_ > LongestPiece;
    filled_ = stopped_ ? 0 : source_(block_.data(), block_.size());
    next_ = 0;
  }

  const ByteSource& source_;
  std::string block_;
  std::size_t filled_ = 0, next_ = 0;
  std::size_t before_ = 0;  // the block
  std::size_t value_start_ = 0;
  bool stopped_ = false;
};

// As the parser wants them; without characters it is the end.
class CharacterIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = char;

  CharacterIterator() = default;
  explicit CharacterIterator(Characters& characters) : characters_(&characters) {}
  char operator*() const { return characters_->Now(); }
  CharacterIterator& operator++() {
    characters_->Next();
    return *this;
  }
  CharacterIterator operator++(int) { return ++*this; }
  // Against the end only.
  bool operator!=(const CharacterIterator&) const { return !characters_->AtEnd(); }
  bool operator==(const CharacterIterator& end) const { return !(*this != end); }

 private:
  Characters* characters_ = nullptr;
};

// An object in a list is a row; lists in it are several texts of a cell, and objects in it are told by their name.
class JsonHandler final : public nlohmann::json_sax<nlohmann::json> {
 public:
  JsonHandler(Characters& characters, Rows& rows) : characters_(characters), rows_(rows) {}

  Fault Wrong;
  bool Stopped = false;

  bool null() override { return Ends(); }
  bool boolean(bool truth) override { return Value(truth ? "true" : "false"); }
  bool number_integer(number_integer_t number) override { return Value(std::to_string(number)); }
  bool number_unsigned(number_unsigned_t number) override { return Value(std::to_string(number)); }
  bool number_float(number_float_t, const string_t& text) override { return Value(text); }
  bool string(string_t& text) override { return Value(text); }
  bool binary(binary_t&) override { return false; }
  bool key(string_t& key) override {
    if (InRow() && levels_.size() == row_level_) {
      column_ = rows_.Column(key);
      if (column_ == MostColumns) Wrong = TooManyColumns;
      inner_name_ = true;
    } else if (InRow()) {
      inner_name_ = key == "name" || key == "title";
    } else {
      mark_is_next_ = key == OwnName;
    }
    return Ends() && !Wrong;
  }
  bool start_object(std::size_t) override {
    if (!InRow() && !levels_.empty() && levels_.back() == '[') row_level_ = levels_.size() + 1;
    return Open('{');
  }
  bool end_object() override {
    if (levels_.size() == row_level_) {
      row_level_ = 0;
      Stopped = !rows_.End();
    }
    return Close() && !Stopped;
  }
  bool start_array(std::size_t) override { return Open('['); }
  bool end_array() override { return Close(); }
  // Its name in brackets comes before what it says.
  bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& error) override {
    std::string_view what = error.what();
    what.remove_prefix(what.find(']') + 1);
    what.remove_prefix(what.find_first_not_of(' '));
    if (what.starts_with(PlainError)) what.remove_prefix(PlainError.size());
    Wrong = Visible(what.substr(0, LongestComplaint));
    return false;
  }

 private:
  bool InRow() const { return row_level_ > 0; }
  bool Ends() {
    characters_.ValueEnds();
    return true;
  }
  bool Open(char bracket) {
    levels_ += bracket;
    if (levels_.size() > MostLevels) Wrong = TooDeep;
    return Ends() && !Wrong;
  }
  // Behind an object in a row a plain text may follow in the same list.
  bool Close() {
    levels_.pop_back();
    inner_name_ = true;
    return Ends();
  }
  bool Value(std::string_view text) {
    if (InRow() && inner_name_) rows_.Add(column_, text);
    if (!InRow() && mark_is_next_) rows_.Own = text == OwnMark;
    mark_is_next_ = false;
    return Ends();
  }

  static constexpr std::size_t LongestComplaint = 200;
  static constexpr std::string_view PlainError = "parse error at ";
  Characters& characters_;
  Rows& rows_;
  std::string levels_;  // their opening brackets
  std::size_t row_level_ = 0;
  std::size_t column_ = 0;
  bool inner_name_ = true;
  bool mark_is_next_ = false;
};

}  // namespace

void WriteJson(const Collection& collection, const ByteSink& sink) {
  TextOut out(sink);
  out.Text.append("{\"").append(OwnName).append("\": \"").append(OwnMark).append("\", \"films\": [");
  std::string text;
  std::string_view separator = "\n";
  collection.Each([&](std::int64_t number, const store::FilmRecord& film) {
    out.Text.append(separator).append("{\"").append(RecordColumn).append("\": ").append(std::to_string(number));
    separator = ",\n";
    for (const store::FilmFieldRow& row : store::FilmFields) {
      text.clear();
      AppendField(film, row.Field, text);
      if (text.empty()) continue;
      out.Text.append(", \"").append(row.Name).append("\": ");
      AppendQuoted(text, out.Text);
    }
    out.Text += '}';
    out.Pass();
  });
  out.Text += "\n]}\n";
  out.End();
}

Fault ReadJson(const ByteSource& source, Rows& rows) {
  Characters characters(source);
  JsonHandler handler(characters, rows);
  nlohmann::json::sax_parse(CharacterIterator(characters), CharacterIterator(), &handler);
  if (handler.Stopped) return std::nullopt;
  return characters.StoppedInValue() ? Fault(TooLong) : handler.Wrong;
}

}  // namespace exchange
