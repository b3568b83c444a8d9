// Parses the help file line by line.
#include "help/help_file.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

namespace help {
namespace {

char Lower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool ContainsWord(std::string_view text, std::string_view word) {
  return std::search(text.begin(), text.end(), word.begin(), word.end(),
                     [](char one, char other) { return Lower(one) == Lower(other); }) != text.end();
}

std::string_view NextLine(std::string_view& rest) {
  std::string_view line = rest.substr(0, rest.find('\n'));
  rest.remove_prefix(std::min(line.size() + 1, rest.size()));
  while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) line.remove_suffix(1);
  return line;
}

// Removes a number from the front of the text; nothing if it does not start with one.
std::optional<int> RemoveNumber(std::string_view& text) {
  int number = 0;
  auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

// "TITLE {N N}".
void ReadHeading(std::string_view heading, HelpTopic& topic) {
  std::size_t brace = heading.find(" {");
  topic.Title = heading.substr(0, brace);
  if (brace == std::string_view::npos) return;
  heading.remove_prefix(brace + 2);
  while (std::optional<int> number = RemoveNumber(heading)) {
    topic.Numbers.push_back(*number);
    if (!heading.starts_with(' ')) return;
    heading.remove_prefix(1);
  }
}

std::vector<HelpPiece> Pieces(std::string_view text) {
  std::vector<HelpPiece> pieces;
  std::string plain;
  const std::size_t closing = text.rfind(']');
  const std::size_t without_links = text.size() - (closing == std::string_view::npos ? 0 : closing + 1);
  while (!text.empty()) {
    std::string_view link = text.substr(1);
    std::optional<int> number = text[0] == '[' && text.size() > without_links ? RemoveNumber(link) : std::nullopt;
    if (!number || !link.starts_with(' ')) {
      plain += text[0];
      text.remove_prefix(1);
      continue;
    }
    if (!plain.empty()) pieces.push_back({plain});
    plain.clear();
    const std::size_t end = link.find(']');
    pieces.push_back({std::string(link.substr(1, end - 1)), *number});
    text = link.substr(end + 1);
  }
  if (!plain.empty()) pieces.push_back({plain});
  return pieces;
}

// Joins the lines of a paragraph until it is complete.
class Parser {
 public:
  HelpFile Parse(std::string_view utf8) {
    while (!utf8.empty()) AddLine(NextLine(utf8));
    EndParagraph();
    return std::move(file_);
  }

 private:
  void AddLine(std::string_view line) {
    if (line.starts_with('#')) return;
    bool chapter = line.starts_with("== ");
    bool topic = line.starts_with("= ");
    bool item = line.starts_with("- ");
    if (line.empty() || chapter || topic || item) EndParagraph();
    if (chapter) chapter_ = line.substr(3);
    if (topic) {
      file_.Topics.push_back({chapter_, "", {}, {}});
      ReadHeading(line.substr(2), file_.Topics.back());
    }
    if (line.empty() || chapter || topic) return;
    if (item) item_ = true;
    std::string_view words = line.substr(item ? 2 : 0);
    words.remove_prefix(std::min(words.find_first_not_of(' '), words.size()));
    if (!paragraph_.empty()) paragraph_ += ' ';
    paragraph_ += words;
  }

  void EndParagraph() {
    if (!paragraph_.empty() && !file_.Topics.empty())
      file_.Topics.back().Paragraphs.push_back({item_, Pieces(paragraph_)});
    paragraph_.clear();
    item_ = false;
  }

  HelpFile file_;
  std::string chapter_;
  std::string paragraph_;
  bool item_ = false;
};

}  // namespace

bool HelpTopic::Contains(std::string_view words) const {
  std::string text = Title;
  for (const HelpParagraph& paragraph : Paragraphs) {
    text += '\n';
    for (const HelpPiece& piece : paragraph.Pieces) text += piece.Text;
  }
  while (!words.empty()) {
    std::string_view word = words.substr(0, words.find(' '));
    if (!ContainsWord(text, word)) return false;
    words.remove_prefix(std::min(word.size() + 1, words.size()));
  }
  return true;
}

const HelpTopic* HelpFile::Find(int number) const {
  auto found = std::find_if(Topics.begin(), Topics.end(), [number](const HelpTopic& topic) {
    return std::find(topic.Numbers.begin(), topic.Numbers.end(), number) != topic.Numbers.end();
  });
  return found == Topics.end() ? nullptr : &*found;
}

HelpFile ParseHelp(std::string_view utf8) { return Parser().Parse(utf8); }

}  // namespace help
