// Parses a statement from the front; each read removes what it has read.
#include "sort/statement.h"

#include <algorithm>
#include <array>

#include "runtime/text.h"

namespace sort {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  bool AtEnd() { return Rest().empty(); }
  bool Take(char character);
  // Letters in upper case; "" if there is none here.
  std::string Word();
  // From 1 to MaxRecordLength.
  bool Number(std::size_t& number);
  // The text before that character, which is removed too.
  bool UpTo(char character, std::string& text);
  bool Span(RecordSpan& span);
  // "," and the word.
  bool Next(std::string_view word) { return Take(',') && Word() == word; }

 private:
  std::string_view Rest() { return rest_ = runtime::TrimFront(rest_); }
  std::string_view rest_;
};

bool Reader::Take(char character) {
  if (!Rest().starts_with(character)) return false;
  rest_.remove_prefix(1);
  return true;
}

std::string Reader::Word() {
  std::string word;
  for (char letter : Rest()) {
    letter = runtime::Upper(letter);
    if (letter < 'A' || letter > 'Z') break;
    word += letter;
  }
  rest_.remove_prefix(word.size());
  return word;
}

bool Reader::Number(std::size_t& number) {
  number = 0;
  for (; !Rest().empty() && rest_.front() >= '0' && rest_.front() <= '9'; rest_.remove_prefix(1)) {
    number = number * 10 + static_cast<std::size_t>(rest_.front() - '0');
    if (number > MaxRecordLength) return false;
  }
  return number > 0;
}

bool Reader::UpTo(char character, std::string& text) {
  std::size_t end = rest_.find(character);
  if (end == std::string_view::npos) return false;
  text = rest_.substr(0, end);
  rest_.remove_prefix(end + 1);
  return true;
}

bool Reader::Span(RecordSpan& span) {
  std::size_t position = 0;
  if (!Number(position) || !Take(',') || !Number(span.Width)) return false;
  span.Offset = position - 1;
  return true;
}

bool ReadFields(Reader& reader, Statement& statement) {
  do {
    KeyField& field = statement.Fields.emplace_back();
    if (!reader.Span(field.Span) || !reader.Next("C") || !reader.Take(',')) return false;
    std::string order = reader.Word();
    if (order != "A" && order != "D") return false;
    field.Descending = order == "D";
  } while (reader.Take(','));
  return reader.Take(')');
}

bool ReadWeightsFile(Reader& reader, Statement& statement) {
  std::string name;
  if (!reader.UpTo(')', name)) return false;
  statement.WeightsFile = runtime::Trim(name);
  return !statement.WeightsFile->empty();
}

bool ReadOutput(Reader& reader, Statement& statement) {
  do {
    OutputPiece& piece = statement.Output.emplace_back();
    std::string word = reader.Word();
    if (word == "ARRN") {
      piece.As = OutputPiece::Kind::RecordNumber;
    } else if (word == "CRLF") {
      piece.As = OutputPiece::Kind::LineEnd;
    } else if (!word.empty() || !reader.Span(piece.Span)) {
      return false;
    }
  } while (reader.Take(','));
  return reader.Take(')');
}

struct RelationRow {
  std::string_view Word;
  bool Less, Equal, Greater;
};
// clang-format off
constexpr RelationRow Relations[] = {
  { "EQ", false, true,  false },
  { "NE", true,  false, true  },
  { "GT", false, false, true  },
  { "GE", false, true,  true  },
  { "LT", true,  false, false },
  { "LE", true,  true,  false },
};
// clang-format on

bool ReadInclude(Reader& reader, Statement& statement) {
  IncludeTest& test = statement.Include.emplace();
  if (!reader.Span(test.Span) || !reader.Next("C") || !reader.Take(',')) return false;
  std::string word = reader.Word();
  const auto* row = std::find_if(std::begin(Relations), std::end(Relations),
                                 [&](const RelationRow& relation) { return relation.Word == word; });
  if (row == std::end(Relations)) return false;
  test.KeepsLess = row->Less;
  test.KeepsEqual = row->Equal;
  test.KeepsGreater = row->Greater;
  return reader.Take(',') && reader.Take('"') && reader.UpTo('"', test.Constant) && reader.Take(')');
}

bool ReadRecordLength(Reader& reader, Statement& statement) {
  return reader.Number(statement.RecordLength) && reader.Take(')');
}

struct Clause {
  std::string_view Word;
  bool Required;
  bool (*Read)(Reader&, Statement&);
};
// clang-format off
constexpr std::array<Clause, 5> Clauses = {{
  { "S",       true,  ReadFields },
  { "ALTSEQ",  false, ReadWeightsFile },
  { "OUTREC",  true,  ReadOutput },
  { "INCLUDE", false, ReadInclude },
  { "RECORD",  true,  ReadRecordLength },
}};
// clang-format on

bool FitsRecord(const Statement& statement) {
  auto fits = [&](const RecordSpan& span) { return span.Offset + span.Width <= statement.RecordLength; };
  return std::all_of(statement.Fields.begin(), statement.Fields.end(),
                     [&](const KeyField& field) { return fits(field.Span); }) &&
         std::all_of(statement.Output.begin(), statement.Output.end(),
                     [&](const OutputPiece& piece) { return fits(piece.Span); }) &&
         (!statement.Include || fits(statement.Include->Span));
}

}  // namespace

std::optional<Statement> ParseStatement(std::string_view text) {
  Statement statement;
  Reader reader(text);
  std::array<bool, Clauses.size()> seen{};
  while (!reader.AtEnd()) {
    std::string word = reader.Word();
    const auto* clause =
        std::find_if(Clauses.begin(), Clauses.end(), [&](const Clause& row) { return row.Word == word; });
    if (clause == Clauses.end()) return std::nullopt;
    bool& seen_before = seen.at(static_cast<std::size_t>(clause - Clauses.begin()));
    if (seen_before || !reader.Take('(') || !clause->Read(reader, statement)) return std::nullopt;
    seen_before = true;
  }
  for (std::size_t row = 0; row < Clauses.size(); ++row) {
    if (Clauses[row].Required && !seen[row]) return std::nullopt;
  }
  return FitsRecord(statement) ? std::optional(std::move(statement)) : std::nullopt;
}

}  // namespace sort
