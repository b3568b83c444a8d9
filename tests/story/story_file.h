// A story as lines of a verb and its arguments, read from a text file and checked against the table of verbs. A line
// turns back into the same notation, for messages.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace story {

// A mismatch, thrown and kept; Line from 1, 0 for the whole file. Row: the row of the file's table, "" without one.
struct Difference {
  int Line = 0;
  std::string What;
  std::string Row = {};
};

// "expected ..., got ...".
std::string Differs(std::string_view expected, std::string_view got);

enum class Role { SetUp, Action, Effect, Check };

// A bare word or number, a text in quotes, or Field="text". Texts are in the system's code page.
struct Argument {
  enum class Form { Word, Text, Field } As = Form::Word;
  std::string Text;
  std::string Field = {};

  bool Is(std::string_view word) const { return As == Form::Word && Text == word; }
  bool operator==(const Argument&) const = default;
};

struct Line {
  int Number = 0;
  Role As = Role::Action;
  std::string Verb;
  std::vector<Argument> Arguments;

  const std::string& Text(std::size_t index) const { return Arguments.at(index).Text; }
  // The value of a number argument; throws Difference if it does not fit 32 bits.
  int Number32(std::size_t index) const;
  // The line as a story writes it, in UTF-8.
  std::string Notation() const;
};

// A text in quotes with its escapes, in UTF-8.
std::string Quoted(std::string_view text);
std::string Notation(const Argument& argument);

// One line of UTF-8, neither blank nor a comment; throws Difference for a syntax error or an unknown verb.
Line ParseLine(std::string_view utf8, int number);

// One story of a file. Row: its name in UTF-8, "" if the file has no table.
struct Story {
  std::string Row;
  std::vector<Line> Lines;
};

// The stories of a file: one, or one for each row of its table. Throws Difference as ParseLine and ExpandTable do, or
// if the file cannot be read.
std::vector<Story> ReadStories(const std::filesystem::path& path);
std::vector<Story> ParseStories(std::string_view utf8);

}  // namespace story
