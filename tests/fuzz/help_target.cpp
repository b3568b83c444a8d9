// Any text as a help file: it grows by nothing, its topics are found by number and by their words, and written and read
// again it is the same.
#include <algorithm>

#include "help/help_file.h"
#include "tests/fuzz/fuzzing.h"

namespace {

std::string Written(const help::HelpParagraph& paragraph) {
  std::string text = paragraph.Item ? "-  " : " ";  // a blank in front, so that no word begins the line
  for (const help::HelpPiece& piece : paragraph.Pieces)
    text += piece.Link == 0 ? piece.Text : "[" + std::to_string(piece.Link) + " " + piece.Text + "]";
  return text + "\n\n";
}

std::string Written(const help::HelpFile& file) {
  std::string text;
  for (const help::HelpTopic& topic : file.Topics) {
    if (!topic.Chapter.empty()) text += "== " + topic.Chapter + "\n";
    text += "= " + topic.Title + " {";
    for (int number : topic.Numbers) text += std::to_string(number) + " ";
    text += "}\n";
    for (const help::HelpParagraph& paragraph : topic.Paragraphs) text += Written(paragraph);
  }
  return text;
}

// Such a link reads as plain text, which no file can tell.
bool HasLinkToNone(std::string_view text) {
  return text.find("[0") != std::string_view::npos || text.find("[-0") != std::string_view::npos;
}

std::size_t TextOf(const help::HelpFile& file) {
  std::size_t length = 0;
  for (const help::HelpTopic& topic : file.Topics) {
    length += topic.Title.size();
    for (const help::HelpParagraph& paragraph : topic.Paragraphs) {
      for (const help::HelpPiece& piece : paragraph.Pieces) length += piece.Text.size();
    }
  }
  return length;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::Input(data, size).Rest();
  const help::HelpFile file = help::ParseHelp(text);
  fuzz::Require(TextOf(file) <= text.size(), "the topics have no more text than the file");
  for (const help::HelpTopic& topic : file.Topics) {
    fuzz::Require(topic.Contains(topic.Title), "a topic is found by its title");
    for (int number : topic.Numbers) {
      const help::HelpTopic* found = file.Find(number);
      fuzz::Require(found && found <= &topic, "a number leads to its first topic");
    }
  }
  if (HasLinkToNone(text)) return 0;
  const std::string written = Written(file);
  fuzz::Require(Written(help::ParseHelp(written)) == written, "a help file written and read again is the same");
  return 0;
}
