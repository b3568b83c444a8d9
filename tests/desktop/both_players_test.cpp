// Plays the same actions, chosen by a fixed seed, on the bare forms and on the drawn widgets, and compares the two
// after each action.
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <sstream>

#include "tests/desktop/widget_player.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/source_tree.h"
#include "tests/story/bare_player.h"
#include "tests/story/set_up.h"

namespace story {
namespace {

// Gives its answers in turn and logs every request.
class LoggingDesk final : public kit::QuietDesk {
 public:
  std::string Log;

  std::string InputBox(std::string_view, std::string_view prompt) override {
    Log.append(prompt) += "|";
    constexpr std::array Inputs = {"A", "2", "", "SF", "99"};
    return Inputs[inputs_++ % Inputs.size()];
  }
  void Beep() override { Log += "beep|"; }
  std::optional<std::uint32_t> ColourDialog(std::uint32_t) override { return Log += "colour|", 0x123456; }
  void PrinterDialog() override { Log += "printer|"; }
  void Print(const runtime::PrintJob&) override { Log += "printed|"; }
  void Help(int topic) override { Log += "help " + std::to_string(topic) + "|"; }
  std::chrono::local_seconds Now() override { return {}; }
  std::string DriveLetters() override { return "ac"; }
  void Closed() override { Log += "closed|"; }
  void FailureReport(const runtime::Failure& failure) override {
    Log.append(failure.Name).append(" ").append(failure.File) += "|";
  }

 private:
  forms::Answer AskMessageBox(forms::Icon, std::string_view title, std::string_view text,
                              forms::Buttons buttons) override {
    Log.append(title).append(": ").append(text) += "|";
    if (buttons == forms::Buttons::Ok) return forms::Answer::Ok;
    return questions_++ % 3 == 2 ? forms::Answer::No : forms::Answer::Yes;
  }

  std::size_t inputs_ = 0, questions_ = 0;
};

// Set-up lines of stories.
using Collection = std::vector<std::string_view>;

constexpr std::string_view Films[] = {"film 1 Title=\"Alien\" Format=\"L\" Genre=\"SF\" CLV1=\"CAV\"",
                                      "film 2 Title=\"Brazil\" Format=\"V\" Genre=\"SF\" Rating=\"R\"",
                                      "film 3 Title=\"Casablanca\" Format=\"D\" Genre=\"DR\" Letter=\"W\"",
                                      "films 4 45 Title=\"Film ##\" Format=\"D\" Genre=\"SF\""};

// Sorted; unsorted; empty; with keys of missing films; with key files that are empty or cut short, or name no film.
const Collection Collections[] = {
    {Films[0], Films[1], Films[2], Films[3], "sorted"},
    {Films[0], Films[1], Films[2]},
    {},
    {Films[0], Films[1], Films[2], Films[3], "sorted", "film 2 Title=\"\"", "film 45 Title=\"Moved\"",
     "key Titlepra.Dat \"Gone\" 99", "key DVDpra.Dat \"\" 0", "key VHSpra.Dat \"Zero\" 0"},
    {Films[0], Films[1], "file Titlepra.Dat \"\"", "count Titlepra 5", "file VHSpra.Dat \"short\"", "count VHSpra 1",
     "key Laserpra.Dat \"Other\" 2", "count Laserpra 7", "file DVDpra.Dat \"\"", "count DVDpra 1"},
};

struct PlayedProgram {
  // as_delivered: starts at the opening windows with the settings on; otherwise as stories start.
  template <typename AnyPlayer>
  PlayedProgram(const AnyPlayer*, const Collection& collection, bool as_delivered) {
    World world{Folder.Path()};
    LayOutFolder(world, kit::DeliveredFolder());
    if (as_delivered) {
      for (const char* name : {"AutoSave", "AutoSort", "Fo1"}) WriteBytes(Folder.Path() / name, "YES\r\n");
    }
    for (std::string_view line : collection) SetUp(world, ParseLine(line, 1), Folder.Path());
    Player = std::make_unique<AnyPlayer>(Running);
    as_delivered ? Running.StartOpener() : Running.StartRecordScreen();
    Player->Settle();
  }

  // Everything the user sees, and the log so far.
  std::string Seen() const {
    std::string seen = Desk.Log;
    for (const screen::StateEntry* state : Running.RecordScreen.Entries()) seen += "\n" + Seen(*state);
    for (const forms::Window* window : Running.Windows.All()) {
      seen += "\n" + window->Name + (window->Visible() ? " " : " hidden ") + window->Caption();
      if (window->Focus()) seen += " focus " + window->Focus()->Name;
      for (const forms::Control* control : window->Controls()) seen += "\n" + Seen(*control);
    }
    return seen;
  }
  static std::string Seen(const screen::StateEntry& state) {
    auto value = state.Read();
    const auto* number = std::get_if<std::int64_t>(&value);
    return std::string(state.Name) + "=" + (number ? std::to_string(*number) : std::get<std::string>(value));
  }
  static std::string Seen(const forms::Control& control) {
    std::string seen = control.Name + (control.Visible() ? "" : " hidden") + (control.Enabled() ? "" : " disabled");
    if (control.Kind == forms::Kind::TextBox) return seen + "=" + static_cast<const forms::TextBox&>(control).Text();
    if (control.Kind == forms::Kind::ListBox)
      return seen + "=" + static_cast<const forms::ListBox&>(control).Selected();
    if (control.Kind == forms::Kind::Label) return seen + "=" + static_cast<const forms::Label&>(control).Caption();
    return seen;
  }

  kit::FreshFolder Folder;
  LoggingDesk Desk;
  runtime::RealDisk Disk{Folder.Path().string()};
  Program Running{Desk, Disk};
  std::unique_ptr<story::Player> Player;
};

// The first line that differs, in both versions; "" if none does.
std::string FirstDifference(const std::string& bare, const std::string& drawn) {
  std::istringstream bare_lines(bare), drawn_lines(drawn);
  for (std::string one, other; std::getline(bare_lines, one) && std::getline(drawn_lines, other);)
    if (one != other) return one.insert(0, "bare: ").append("\ndrawn: ").append(other);
  return "";
}

using Dice = std::mt19937;

std::size_t Throw(Dice& dice, std::size_t sides) { return dice() % sides; }

constexpr std::array Keys = {"Tab",   "Shift+Tab", "Enter", "Esc",   "Space", "Up",    "Down",  "Home",  "End",
                             "F1",    "Alt+G",     "Alt+E", "Alt+N", "x",     "V",     "Alt+W", "Alt+S", "Alt+R",
                             "Alt+B", "Alt+O",     "Alt+V", "Alt+D", "Alt+C", "Alt+T", "Alt+M"};

std::string ControlAtRandom(const forms::Window& window, Dice& dice) {
  for (;;) {
    const std::string& name = window.Controls()[Throw(dice, window.Controls().size())]->Name;
    if (name != "mnuExit") return name;
  }
}

// Plays one random action on both; returns its description.
std::string ActAtRandom(PlayedProgram& one, PlayedProgram& other, Dice& dice) {
  const forms::Window& window = *one.Running.Windows.Front();
  auto both = [&](auto action) { action(*one.Player), action(*other.Player); };
  const forms::Control* holder = window.Focus();
  if (holder && holder->Kind == forms::Kind::ListBox && Throw(dice, 2) == 0) {
    const auto& items = static_cast<const forms::ListBox&>(*holder).Items();
    if (items.empty()) return "nothing";
    std::string item = items[Throw(dice, items.size())], list = holder->Name;
    both([&](Player& player) { player.Pick(list, item); });
    return "pick " + list + " " + item;
  }
  std::string name = ControlAtRandom(window, dice);
  switch (Throw(dice, 10)) {
    case 0:
      both([&](Player& player) { player.Move(name); });
      return "move " + name;
    case 1:
    case 2: {
      std::string key = Keys[Throw(dice, Keys.size())];
      both([&](Player& player) { player.Key(key); });
      return "key " + key;
    }
    case 3:
      both([&](Player& player) { player.Type("L\xe9o D"); });
      return "type";
    case 4:
      both([&](Player& player) { player.Clear(); });
      return "clear";
    case 5:
      both([&](Player& player) { player.DblClick(name); });
      return "dblclick " + name;
    case 6:
      if (Throw(dice, 20) > 0) break;
      both([&](Player& player) { player.Close(""); });
      return "close";
    default:
      break;
  }
  both([&](Player& player) { player.Click(name); });
  return "click " + name;
}

class BothPlayers : public testing::TestWithParam<unsigned> {};

TEST_P(BothPlayers, EndUpAlikeAfterEveryAction) {
  const Collection& collection = Collections[GetParam() % std::size(Collections)];
  PlayedProgram bare(static_cast<BarePlayer*>(nullptr), collection, GetParam() % 2 == 0);
  PlayedProgram drawn(static_cast<WidgetPlayer*>(nullptr), collection, GetParam() % 2 == 0);
  Dice dice(GetParam());
  std::string actions;
  try {
    for (int step = 0; step < 400 && !bare.Running.Ended(); ++step) {
      actions += ActAtRandom(bare, drawn, dice) + "\n";
      std::string differs = FirstDifference(bare.Seen(), drawn.Seen());
      ASSERT_EQ(differs, "") << actions;
    }
  } catch (const Unplayable& unplayable) {
    FAIL() << unplayable.What << "\n" << actions;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, BothPlayers, testing::Range(1U, 61U),
                         [](const auto& seed) { return "Seed" + std::to_string(seed.param); });

}  // namespace
}  // namespace story
