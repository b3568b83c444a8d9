// A story as lines of a verb and its arguments, taken from a text file and checked against the table of verbs. A line
// turns back into the same notation, for messages.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace story {

// What differs in a story, thrown and kept; Line from 1, 0 for the file as a whole.
struct Difference {
  int Line = 0;
  std::string What;
};

// "expected ..., came ...".
std::string Differs(std::string_view expected, std::string_view came);

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
  // The value of a number argument; throws Difference where it does not fit 32 bits.
  int Number32(std::size_t index) const;
  // The line as a story writes it, in UTF-8.
  std::string Notation() const;
};

// A text in quotes with its escapes, in UTF-8.
std::string Quoted(std::string_view text);
std::string Notation(const Argument& argument);

// One line of UTF-8, which is neither blank nor a comment; throws Difference for a syntax or a verb that there is not.
Line ParseLine(std::string_view utf8, int number);

// All lines of a file but blank ones and comments; throws Difference as ParseLine does, or where the file cannot be
// read.
std::vector<Line> ReadStory(const std::filesystem::path& path);
std::vector<Line> ParseStory(std::string_view utf8);

}  // namespace story
