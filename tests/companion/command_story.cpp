#include "tests/companion/command_story.h"

#include <fstream>
#include <regex>
#include <sstream>

#include "companion/command.h"
#include "runtime/text.h"
#include "store/draft.h"
#include "store/master_file.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/source_tree.h"
#include "tests/story/checks.h"
#include "tests/story/set_up.h"
#include "tests/story/story_file.h"

namespace command_story {
namespace {

namespace fs = std::filesystem;

constexpr int TerminalColumns = 72;

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

// Words between blanks; blanks between single quotes belong to a word.
std::vector<std::string> Words(std::string_view line) {
  std::vector<std::string> words;
  bool quoted = false, in_word = false;
  for (char character : line) {
    if (character == ' ' && !quoted) {
      in_word = false;
      continue;
    }
    if (!in_word) words.emplace_back();
    in_word = true;
    if (character == '\'') {
      quoted = !quoted;
    } else {
      words.back() += character;
    }
  }
  return words;
}

// What a command is to print, or has printed.
struct Printed {
  std::vector<std::string> Lines;  // as the story writes them: "> text", "! text", "= status"
  std::string Answers;
};

void AddLines(const std::string& mark, const std::string& text, std::vector<std::string>& lines) {
  std::istringstream all(text);
  std::string line;
  while (std::getline(all, line)) {
    line.resize(line.find_last_not_of(' ') + 1);
    lines.push_back(mark);
    if (!line.empty()) lines.back().append(" ").append(line);
  }
}

class Player {
 public:
  explicit Player(const Story& story) : story_(story) {
    fs::create_directory(Home());
    fs::create_directory(Other());
    world_.Folder = Home();
    story::LayOutFolder(world_, kit::DeliveredFolder());
    story::WriteBytes(Home() / "Recpra.Dat", "");
    other_.Folder = Other();
    story::LayOutFolder(other_, kit::DeliveredFolder());
    story::WriteBytes(Other() / "Recpra.Dat", "");
  }

  std::string Play() {
    for (std::size_t at = 0; at < story_.Lines.size(); ++at) {
      const std::string& line = story_.Lines[at];
      const std::string complaint = line[0] == '$' || line[0] == '%' ? RunLine(at) : PlayLine(line);
      if (!complaint.empty()) return std::string(line).append("\n").append(complaint);
    }
    return "";
  }

 private:
  fs::path Home() const { return fresh_.Path() / "home"; }
  fs::path Other() const { return fresh_.Path() / "other"; }

  // The lines of the result that follow the command's line; at then is at the last of them.
  Printed Expected(std::size_t& at) const {
    Printed expected;
    while (at + 1 < story_.Lines.size() &&
           std::string_view(">!=<").find(story_.Lines[at + 1][0]) != std::string::npos) {
      const std::string& line = story_.Lines[++at];
      if (line[0] == '<') {
        expected.Answers += line.substr(std::min<std::size_t>(2, line.size())) + "\n";
      } else {
        expected.Lines.push_back(line);
      }
    }
    return expected;
  }

  std::string RunLine(std::size_t& at) {
    const std::string line = story_.Lines[at];
    const Printed expected = Expected(at);
    std::vector<std::string> arguments = {"-C", Home()};
    for (const std::string& word : Words(std::string_view(line).substr(1))) {
      arguments.push_back(Replaced(Replaced(word, "OTHER", Other()), "HOME", Home()));
    }
    std::ostringstream text, errors;
    std::istringstream answers(expected.Answers);
    companion::Output output{text, errors, answers};
    if (line[0] == '%') output.Columns = TerminalColumns;
    const int status = companion::RunCommand(arguments, output, companion::RealDiskIn, kit::DeliveredFolder());
    Printed printed;
    AddLines(">", Neutral(text.str()), printed.Lines);
    AddLines("!", Neutral(errors.str()), printed.Lines);
    if (status != 0) printed.Lines.push_back("= " + std::to_string(status));
    if (printed.Lines == expected.Lines) return "";
    std::string seen = "printed instead:\n";
    for (const std::string& shown : printed.Lines) seen += shown + "\n";
    return seen;
  }

  // Without what differs from run to run, and with tabs that can be seen.
  std::string Neutral(const std::string& text) const {
    static const std::regex Stamp("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}[:-][0-9]{2}[:-][0-9]{2}");
    const std::string dated = std::regex_replace(text, Stamp, "YYYY-MM-DD HH:MM:SS");
    return Replaced(Replaced(Replaced(dated, Home(), "HOME"), Other(), "OTHER"), "\t", "|");
  }

  std::string PlayLine(const std::string& text) {
    constexpr std::string_view OtherMark = "other ", SaveMark = "save ", TypedMark = "typed ";
    const bool other = text.starts_with(OtherMark);
    story::World& world = other ? other_ : world_;
    const fs::path beside = kit::SourceFolder() / "tests/companion/stories";
    try {
      if (text.starts_with(SaveMark)) {
        Save(story::ParseLine("film " + text.substr(SaveMark.size()), 0));
        return "";
      }
      if (text.starts_with(TypedMark)) {
        Type(story::ParseLine("film " + text.substr(TypedMark.size()), 0));
        return "";
      }
      const story::Line line = story::ParseLine(other ? text.substr(OtherMark.size()) : text, 0);
      if (line.As == story::Role::SetUp) {
        story::SetUp(world, line, beside);
      } else if (line.As != story::Role::Check || !story::CheckFiles({nullptr, world, beside}, line)) {
        return "is no set-up line and no check of a file";
      }
    } catch (const story::Difference& difference) {
      return difference.What;
    }
    return "";
  }

  // As the program saves it, so that what it overwrites goes to the history.
  void Save(const story::Line& line) {
    runtime::RealDisk disk(Home());
    runtime::Files files(disk);
    store::OpenMaster(files, 1);
    store::WriteRecord(files, 1, line.Number32(0), FilmOf(line));
  }
  // As the program keeps what is typed: over the film of the record, or as a new one.
  void Type(const story::Line& line) {
    runtime::RealDisk disk(Home());
    runtime::MakeSafetyFolder(disk);
    const store::FilmRecord film = FilmOf(line);
    store::Draft draft{line.Number32(0), true, std::string(runtime::Trim(film.Get(store::FilmField::Title))), {}, film};
    const runtime::OpenFile master(disk, "Recpra.Dat", runtime::Disk::Mode::Read);
    draft.IsNew =
        master.Read(draft.Before.Bytes.data(), store::RecordLength, (draft.Slot - 1) * store::RecordLength) == 0;
    store::WriteDraft(disk, store::FreeDraftName(disk), draft);
  }
  static store::FilmRecord FilmOf(const story::Line& line) {
    store::FilmRecord film;
    film.Set(store::FilmField::Tail, "\r\n");
    for (const store::FilmFieldRow& row : store::FilmFields) {
      for (const story::Argument& field : line.Arguments) {
        if (field.Field == row.Name) film.Set(row.Field, field.Text);
      }
    }
    return film;
  }

  const Story& story_;
  const kit::FreshFolder fresh_;
  story::World world_, other_;
};

}  // namespace

std::vector<Story> ReadStories(const fs::path& file) {
  std::vector<Story> stories;
  std::ifstream text(file);
  std::string line;
  for (int number = 1; std::getline(text, line); ++number) {
    if (line.starts_with("# ")) {
      stories.push_back({line.substr(2), number, {}});
    } else if (!line.empty() && !stories.empty()) {
      stories.back().Lines.push_back(line);
    }
  }
  return stories;
}

std::string Play(const Story& story) { return Player(story).Play(); }

}  // namespace command_story
