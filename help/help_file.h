// The help file: its topics, grouped in chapters, and how to parse and search them.
//
// The file is UTF-8. "# ..." is a comment; "== NAME" starts a chapter; "= TITLE {N N}" starts a topic and gives its
// numbers. Lines up to a blank line form one paragraph; "- " starts a list item. "[N words]" is a link to topic N.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace help {

inline constexpr std::string_view HelpFileName = "Reelora4.HLP";

// A run of plain text, or a link. Link: the number of its topic, 0 for plain text.
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

  // Whether title and text contain all the words, ignoring the case of A to Z.
  bool Contains(std::string_view words) const;
};

struct HelpFile {
  // In the order of the file. Text before the first topic is ignored.
  std::vector<HelpTopic> Topics;
  // nullptr if no topic has this number.
  const HelpTopic* Find(int number) const;
};

HelpFile ParseHelp(std::string_view utf8);

}  // namespace help
