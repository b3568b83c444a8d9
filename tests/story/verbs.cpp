// The table of verbs. A shape names the arguments one by one: w word, n number, t text, e word or text, v number or
// text, f fields to the end, s texts to the end.
#include "tests/story/verbs.h"

#include <algorithm>

namespace story {
namespace {

// Subject: the word that must stand first among the arguments, "" for none; the shape is that of the arguments behind
// it.
struct VerbRow {
  std::string_view Verb, Subject;
  Role As;
  std::string_view Shape;
};

// clang-format off
constexpr VerbRow Verbs[] = {
  { "film",          "",        Role::SetUp,  "nf" },
  { "films",         "",        Role::SetUp,  "nnf" },
  { "sorted",        "",        Role::SetUp,  "" },
  { "key",           "",        Role::SetUp,  "etn" },
  { "count",         "",        Role::SetUp,  "en" },
  { "file",          "",        Role::SetUp,  "et" },
  { "remove",        "",        Role::SetUp,  "e" },
  { "folder",        "",        Role::SetUp,  "e" },
  { "clock",         "",        Role::SetUp,  "ww" },
  { "time",          "",        Role::SetUp,  "eww" },
  { "drive",         "",        Role::SetUp,  "we" },

  { "start",         "",        Role::Action, "" },
  { "start",         "opener",  Role::Action, "" },
  { "restart",       "",        Role::Action, "" },
  { "click",         "",        Role::Action, "w" },
  { "dblclick",      "",        Role::Action, "w" },
  { "move",          "",        Role::Action, "w" },
  { "pick",          "",        Role::Action, "wt" },
  { "key",           "",        Role::Action, "e" },
  { "key",           "",        Role::Action, "en" },
  { "type",          "",        Role::Action, "t" },
  { "clear",         "",        Role::Action, "" },
  { "close",         "",        Role::Action, "" },
  { "close",         "",        Role::Action, "w" },
  { "picture",       "page",    Role::Action, "nw" },
  { "picture",       "help",    Role::Action, "nw" },
  { "picture",       "failure", Role::Action, "ttnw" },
  { "picture",       "notice",  Role::Action, "ttw" },
  { "picture",       "work",    Role::Action, "tnw" },
  { "picture",       "",        Role::Action, "w" },

  { "box",           "",        Role::Effect, "weew" },
  { "input",         "",        Role::Effect, "ttt" },
  { "input",         "",        Role::Effect, "ttw" },
  { "beep",          "",        Role::Effect, "" },
  { "colour",        "",        Role::Effect, "w" },
  { "printer-setup", "",        Role::Effect, "" },
  { "printed",       "",        Role::Effect, "n" },
  { "help",          "",        Role::Effect, "w" },
  { "end",           "",        Role::Effect, "" },
  { "stop",          "",        Role::Effect, "t" },

  { "see",           "focus",   Role::Check,  "w" },
  { "see",           "state",   Role::Check,  "wv" },
  { "see",           "film",    Role::Check,  "nwt" },
  { "see",           "key",     Role::Check,  "entn" },
  { "see",           "file",    Role::Check,  "et" },
  { "see",           "same",    Role::Check,  "ee" },
  { "see",           "length",  Role::Check,  "en" },
  { "see",           "missing", Role::Check,  "e" },
  { "see",           "page",    Role::Check,  "nwn" },
  { "see",           "page",    Role::Check,  "nwnt" },
  { "see",           "pages",   Role::Check,  "n" },
  { "see",           "font",    Role::Check,  "tn" },
  { "see",           "drive",   Role::Check,  "wew" },
  { "see",           "",        Role::Check,  "ww" },
  { "see",           "",        Role::Check,  "ws" },
};
// clang-format on

bool IsNumber(const Argument& argument) {
  std::string_view digits = argument.Text;
  if (digits.starts_with('-')) digits.remove_prefix(1);
  return argument.As == Argument::Form::Word && !digits.empty() &&
         digits.find_first_not_of("0123456789") == std::string_view::npos;
}

bool Fits(char letter, const Argument& argument) {
  bool is_text = argument.As == Argument::Form::Text;
  switch (letter) {
    case 'w':
      return argument.As == Argument::Form::Word;
    case 'n':
      return IsNumber(argument);
    case 'v':
      return is_text || IsNumber(argument);
    case 'e':
      return argument.As != Argument::Form::Field;
    case 'f':
      return argument.As == Argument::Form::Field;
    default:
      return is_text;
  }
}

bool Takes(const VerbRow& row, const Line& line) {
  std::size_t first = row.Subject.empty() ? 0 : 1;
  if (first == 1 && (line.Arguments.empty() || !line.Arguments[0].Is(row.Subject))) return false;
  bool open_end = row.Shape.ends_with('f') || row.Shape.ends_with('s');
  std::size_t least = first + row.Shape.size() - (open_end ? 1 : 0);
  if (line.Arguments.size() < least || (!open_end && line.Arguments.size() > least)) return false;
  for (std::size_t index = first; index < line.Arguments.size(); ++index) {
    if (!Fits(row.Shape[std::min(index - first, row.Shape.size() - 1)], line.Arguments[index])) return false;
  }
  return true;
}

}  // namespace

Role RoleOf(const Line& line) {
  bool known = false;
  bool has_subject = false;
  for (const VerbRow& row : Verbs) {
    if (row.Verb != line.Verb) continue;
    known = true;
    bool subject_stands = !row.Subject.empty() && !line.Arguments.empty() && line.Arguments[0].Is(row.Subject);
    has_subject = has_subject || subject_stands;
    // A line with a subject of its own is none of the general rows, which stand below.
    bool concerns = row.Subject.empty() ? !has_subject : subject_stands;
    if (concerns && Takes(row, line)) return row.As;
  }
  if (line.Verb == "each" || line.Verb == "row")
    throw Difference{line.Number, Differs("each and its rows above all other lines", line.Notation())};
  throw Difference{line.Number, known ? Differs("arguments that \"" + line.Verb + "\" takes", line.Notation())
                                      : Differs("a verb of the stories", line.Verb)};
}

}  // namespace story
