// Splits a line into its arguments and turns it back into its notation.
#include "tests/story/story_file.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <optional>
#include <utility>

#include "runtime/code_page.h"
#include "tests/story/story_table.h"
#include "tests/story/verbs.h"

namespace story {
namespace {

constexpr std::string_view Blanks = " \t";
// Between a line and the one that continues it.
constexpr char Continuation = '\n';

// Takes arguments off the front of a line in the system's code page.
class Scanner {
 public:
  Scanner(std::string_view rest, int number) : rest_(rest), number_(number) { PassBlanks(); }

  bool AtEnd() const { return rest_.empty(); }
  Argument Take() {
    Argument argument = TakeArgument();
    PassBlanks();
    while (rest_.starts_with(Continuation)) {
      rest_.remove_prefix(1);
      if (AtEnd() || rest_[0] == Continuation) Fail("expected more of the line after +");
      if (rest_[0] != '"') break;
      if (argument.As == Argument::Form::Word) Fail("expected a text above the text that continues it");
      argument.Text += TakeQuoted();
      PassBlanks();
    }
    return argument;
  }

 private:
  [[noreturn]] void Fail(std::string what) const { throw Difference{number_, std::move(what)}; }

  void PassBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(Blanks), rest_.size())); }

  Argument TakeArgument() {
    Argument argument;
    if (rest_[0] == '"') {
      argument = {Argument::Form::Text, TakeQuoted()};
    } else {
      std::size_t length = std::min(rest_.find_first_of(" \t\"\n"), rest_.size());
      std::string_view word = rest_.substr(0, length);
      rest_.remove_prefix(length);
      bool is_field = word.size() > 1 && word.ends_with('=') && rest_.starts_with('"');
      if (rest_.starts_with('"') && !is_field) Fail("expected a blank before the quote");
      if (is_field) {
        argument = {Argument::Form::Field, TakeQuoted(), std::string(word.substr(0, word.size() - 1))};
      } else {
        argument = {Argument::Form::Word, std::string(word)};
      }
    }
    return argument;
  }

  char TakeCharacter() {
    if (rest_.empty() || rest_[0] == Continuation) Fail("expected a closing quote, got the end of the line");
    char character = rest_[0];
    rest_.remove_prefix(1);
    return character;
  }

  std::string TakeQuoted() {
    std::string text;
    TakeCharacter();
    for (char character = TakeCharacter(); character != '"'; character = TakeCharacter()) {
      text += character == '\\' ? TakeEscape() : character;
    }
    if (!rest_.empty() && rest_[0] != Continuation && Blanks.find(rest_[0]) == std::string_view::npos)
      Fail("expected a blank after the closing quote");
    return text;
  }

  char TakeEscape() {
    switch (char letter = TakeCharacter()) {
      case '"':
      case '\\':
        return letter;
      case 'n':
        return '\n';
      case 'r':
        return '\r';
      case 'x':
        return TakeHexadecimal();
      default:
        Fail(std::string("expected one of the escapes \\\" \\\\ \\n \\r \\xHH, got \\") + letter);
    }
  }

  char TakeHexadecimal() {
    unsigned code = 0;
    std::string_view digits = rest_.substr(0, 2);
    auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    if (digits.size() < 2 || error != std::errc() || end != digits.data() + 2)
      Fail("expected two hexadecimal digits after \\x");
    rest_.remove_prefix(2);
    return static_cast<char>(code);
  }

  std::string_view rest_;
  int number_;
};

// A line as its words and texts, not yet checked against the verbs.
Line Scanned(std::string_view utf8, int number) {
  std::optional<std::string> text = runtime::FromUtf8(utf8);
  if (!text) throw Difference{number, Differs("UTF-8 text of the system's code page", "another character")};
  Scanner scanner(*text, number);
  Line line;
  line.Number = number;
  Argument verb = scanner.Take();
  if (verb.As != Argument::Form::Word) throw Difference{number, Differs("a verb", Notation(verb))};
  line.Verb = verb.Text;
  while (!scanner.AtEnd()) line.Arguments.push_back(scanner.Take());
  return line;
}

// Every line with its number, without blank lines and comments; a line that begins with + is put after the line that it
// continues.
std::vector<std::pair<int, std::string>> WholeLines(std::string_view utf8) {
  std::vector<std::pair<int, std::string>> lines;
  for (int number = 1; !utf8.empty(); ++number) {
    std::string_view line = utf8.substr(0, utf8.find('\n'));
    utf8.remove_prefix(std::min(line.size() + 1, utf8.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    line.remove_prefix(std::min(line.find_first_not_of(Blanks), line.size()));
    if (line.empty() || line[0] == '#') continue;
    if (line[0] != '+') {
      lines.emplace_back(number, line);
      continue;
    }
    if (lines.empty()) throw Difference{number, Differs("a line above the one that continues it", line)};
    line.remove_prefix(1);
    line.remove_prefix(std::min(line.find_first_not_of(Blanks), line.size()));
    (lines.back().second += Continuation) += line;
  }
  return lines;
}

}  // namespace

std::string Differs(std::string_view expected, std::string_view got) {
  return "expected " + std::string(expected) + ", got " + std::string(got);
}

int Line::Number32(std::size_t index) const {
  const std::string& text = Text(index);
  int value = 0;
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) throw Difference{Number, Differs("a number", text)};
  return value;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (char character : text) {
    auto code = static_cast<unsigned char>(character);
    if (character == '"' || character == '\\') {
      quoted += '\\';
      quoted += character;
    } else if (character == '\n' || character == '\r') {
      quoted += character == '\n' ? "\\n" : "\\r";
    } else if (code < 0x20 || code == 0x7F) {
      std::array<char, 5> escape{};
      std::snprintf(escape.data(), escape.size(), "\\x%02X", code);
      quoted += escape.data();
    } else {
      quoted += runtime::ToUtf8({&character, 1});
    }
  }
  return quoted + '"';
}

std::string Notation(const Argument& argument) {
  if (argument.As == Argument::Form::Word) return runtime::ToUtf8(argument.Text);
  return (argument.As == Argument::Form::Field ? argument.Field + "=" : "") + Quoted(argument.Text);
}

std::string Line::Notation() const {
  std::string notation = Verb;
  for (const Argument& argument : Arguments) notation += " " + story::Notation(argument);
  return notation;
}

Line ParseLine(std::string_view utf8, int number) {
  Line line = Scanned(utf8, number);
  line.As = RoleOf(line);
  return line;
}

std::vector<Story> ParseStories(std::string_view utf8) {
  std::vector<Line> lines;
  for (const auto& [number, text] : WholeLines(utf8)) lines.push_back(Scanned(text, number));
  std::vector<Story> stories = ExpandTable(std::move(lines));
  for (Story& one : stories) {
    try {
      for (Line& line : one.Lines) line.As = RoleOf(line);
    } catch (Difference& difference) {
      difference.Row = one.Row;
      throw;
    }
  }
  return stories;
}

std::vector<Story> ReadStories(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (!file) throw Difference{0, Differs("a story", "no file that can be read")};
  return ParseStories(text);
}

}  // namespace story
