// The help file as chapters of topics: how its text is read, and how it is searched.
//
// The file is UTF-8. "# ..." is passed over; "== NAME" begins a chapter; "= TITLE {N N}" begins a topic and gives the
// numbers under which it is opened. Lines up to a blank one are one paragraph; "- " begins an item of a list. "[N
// words]" is a link to topic N.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace help {

inline constexpr std::string_view HelpFileName = "Reelora4.HLP";

// Words that belong together; Link: the topic that they lead to, 0 for none.
struct HelpPiece {
  std::string Text;
  int Link = 0;
};

struct HelpParagraph {
  bool Item = false;
  std::vector<HelpPiece> Pieces;
};

struct HelpTopic {
  std::string Chapter, Title;
  std::vector<int> Numbers;
  std::vector<HelpParagraph> Paragraphs;

  // Whether title and text hold all the words, in capitals or not.
  bool Holds(std::string_view words) const;
};

struct HelpFile {
  // In the order of the file. Text before the first topic is passed over, whatever it is.
  std::vector<HelpTopic> Topics;
  // nullptr where there is none of that number.
  const HelpTopic* Find(int number) const;
};

HelpFile ParseHelp(std::string_view utf8);

}  // namespace help
