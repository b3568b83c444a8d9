// JSON: an object whose "films" are objects of the fields that are not empty. RapidJSON reads, event by event and
// without recursion: it is the quickest well-kept parser of Debian that takes a stream, and no document is ever kept.
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include "exchange/film_text.h"
#include "exchange/formats.h"
#include "exchange/text_out.h"

namespace exchange {
namespace {

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

// The stream that RapidJSON asks for, in pieces of a file. It pretends to end where one value is too long.
class PiecedStream {
 public:
  using Ch = char;
  explicit PiecedStream(const ByteSource& source) : source_(source), block_(std::size_t(64) * 1024, '\0') { Fill(); }

  char Peek() const { return *next_; }
  char Take() {
    const char taken = *next_++;
    if (next_ == end_) Fill();
    return taken;
  }
  std::size_t Tell() const { return before_ + static_cast<std::size_t>(next_ - block_.data()); }
  void ValueEnds() { value_start_ = Tell(); }
  bool StoppedInValue() const { return stopped_; }

  // For writing in place, which the parser does not do here.
  char* PutBegin() { return nullptr; }
  void Put(char) {}
  std::size_t PutEnd(char*) { return 0; }

 private:
  void Fill() {
    before_ += filled_;
    stopped_ = stopped_ || before_ - value_start_ > LongestPiece;
    filled_ = stopped_ ? 0 : source_(block_.data(), block_.size() - 1);
    block_[filled_] = '\0';
    next_ = block_.data();
    end_ = next_ + std::max<std::size_t>(filled_, 1);
  }

  const ByteSource& source_;
  std::string block_;
  const char* next_ = nullptr;
  const char* end_ = nullptr;
  std::size_t filled_ = 0;
  std::size_t before_ = 0;  // the block
  std::size_t value_start_ = 0;
  bool stopped_ = false;
};

// An object in a list is a row; lists in it are several texts of a cell, and objects in it are told by their name.
class JsonHandler {
 public:
  JsonHandler(PiecedStream& stream, Rows& rows) : stream_(stream), rows_(rows) {}

  Fault Wrong;
  bool Stopped = false;

  bool Null() { return Ends(); }
  bool Bool(bool truth) { return Value(truth ? "true" : "false"); }
  bool RawNumber(const char* text, rapidjson::SizeType length, bool) { return Value({text, length}); }
  bool String(const char* text, rapidjson::SizeType length, bool) { return Value({text, length}); }
  bool Key(const char* text, rapidjson::SizeType length, bool) {
    const std::string_view key(text, length);
    if (InRow() && levels_.size() == row_level_) {
      column_ = rows_.Column(key);
      if (column_ == MostColumns) Wrong = TooManyColumns;
      inner_name_ = true;
    } else if (InRow()) {
      inner_name_ = key == "name" || key == "title";
    } else {
      format_is_next_ = key == "format";
    }
    return Ends() && !Wrong;
  }
  bool StartObject() {
    if (!InRow() && !levels_.empty() && levels_.back() == '[') row_level_ = levels_.size() + 1;
    return Open('{');
  }
  bool EndObject(rapidjson::SizeType) {
    if (levels_.size() == row_level_) {
      row_level_ = 0;
      Stopped = !rows_.End();
    }
    return Close() && !Stopped;
  }
  bool StartArray() { return Open('['); }
  bool EndArray(rapidjson::SizeType) { return Close(); }

  // Never called, since numbers come as texts.
  bool Int(int) { return false; }
  bool Uint(unsigned) { return false; }
  bool Int64(std::int64_t) { return false; }
  bool Uint64(std::uint64_t) { return false; }
  bool Double(double) { return false; }

 private:
  bool InRow() const { return row_level_ > 0; }
  bool Ends() {
    stream_.ValueEnds();
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
    if (!InRow() && format_is_next_) rows_.Own = text == OwnMark;
    format_is_next_ = false;
    return Ends();
  }

  PiecedStream& stream_;
  Rows& rows_;
  std::string levels_;  // their opening brackets
  std::size_t row_level_ = 0;
  std::size_t column_ = 0;
  bool inner_name_ = true;
  bool format_is_next_ = false;
};

constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

void WriteJson(const Collection& collection, const ByteSink& sink) {
  TextOut out(sink);
  out.Text.append("{\"format\": \"").append(OwnMark).append("\", \"films\": [");
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
  PiecedStream stream(source);
  for (char mark : ByteOrderMark) {
    if (stream.Peek() == mark) stream.Take();
  }
  JsonHandler handler(stream, rows);
  rapidjson::Reader reader;
  const rapidjson::ParseResult result = reader.Parse<Flags>(stream, handler);
  if (!result.IsError() || handler.Stopped) return std::nullopt;
  std::string what = stream.StoppedInValue() ? std::string(TooLong)
                                             : handler.Wrong.value_or(rapidjson::GetParseError_En(result.Code()));
  return "byte " + std::to_string(result.Offset() + 1) + ": " + what;
}

}  // namespace exchange
