// Events are chosen by what is on the screen, so that most of them do something.
#include "tests/monkey/events.h"

#include <algorithm>
#include <chrono>

#include "forms/window.h"
#include "runtime/clock.h"
#include "runtime/code_page.h"
#include "tests/story/story_file.h"

namespace monkey {
namespace {

// clang-format off
constexpr std::string_view Keys[] = {
  "Tab", "Tab", "Tab", "Tab", "Shift+Tab", "Enter", "Enter", "Esc", "Space", "Up", "Down", "Down", "Home", "End", "F1",
};
// Each ends the program or takes far longer than other events; a click on one is thrown again but once in a few times.
constexpr struct { std::string_view Name; std::size_t OneIn; } Rare[] = {
  { "mnuExit", 12 }, { "cmdExit", 12 }, { "cmdSort", 3 }, { "mnuSort", 3 },
};
// In percent, for a program that is running; the rest are clicks.
constexpr struct { Act What; std::size_t Percent; std::size_t PercentInEntry; } Shares[] = {
  { Act::Key,  17, 22 }, { Act::Type, 8, 28 }, { Act::Pick, 14, 12 }, { Act::Move, 6, 3 }, { Act::DblClick, 5, 3 }, { Act::Clear, 1, 3 },
};
// clang-format on

std::size_t RarityOf(std::string_view name) {
  for (const auto& rare : Rare) {
    if (rare.Name == name) return rare.OneIn;
  }
  return 1;
}

const forms::Control& AnyControl(const forms::Window& window, Dice& dice) {
  for (;;) {
    const forms::Control& control = *dice.OneOf(window.Controls());
    bool answers = control.Visible() && control.Enabled();
    if ((answers || dice.OneIn(20)) && dice.OneIn(RarityOf(control.Name))) return control;
  }
}

// nullptr if no list is up.
const forms::ListBox* AnyList(const forms::Window& window, Dice& dice) {
  std::vector<const forms::ListBox*> lists;
  for (const forms::Control* control : window.Controls()) {
    if (control->Kind != forms::Kind::ListBox || !control->Visible()) continue;
    const auto* list = static_cast<const forms::ListBox*>(control);
    if (!list->Items().empty()) lists.push_back(list);
  }
  return lists.empty() ? nullptr : dice.OneOf(lists);
}

std::string AnyKey(Dice& dice) {
  if (dice.OneIn(4)) return "Alt+" + std::string(1, static_cast<char>('A' + dice.Below(26)));
  if (dice.OneIn(8)) return std::string(1, static_cast<char>('!' + dice.Below('~' - '!' + 1)));
  return std::string(dice.OneOf(Keys));
}

// Bytes of the code page that stand for no character, or for one that no key types.
bool IsTyped(char character) {
  constexpr std::string_view Untyped = "\x7F\x81\x8D\x8F\x90\x9D\xAD";
  return Untyped.find(character) == std::string_view::npos;
}

std::string AnyTyping(const Habits& habits, Dice& dice) {
  std::string text = RandomText(dice);
  if (!habits.AnyByte) std::erase_if(text, [](char character) { return !IsTyped(character); });
  return text;
}

Event Outside(const Habits& habits, Dice& dice) {
  Event event;
  if (habits.Faults && dice.OneIn(2)) {
    event.What = Act::Fault;
    const auto kinds = static_cast<std::size_t>(habits.Kills ? kit::Fault::KillHalfway : kit::Fault::ShortThenFull) + 1;
    event.Fault = {static_cast<kit::Fault>(dice.Below(kinds)), dice.Below(40), dice.OneIn(2)};
    // A call that is interrupted is made again, and so for ever.
    if (event.Fault.As == kit::Fault::Interrupted) event.Fault.FromThenOn = false;
    return event;
  }
  constexpr Act Acts[] = {Act::Clock, Act::Clock, Act::Restart, Act::RestartAtOpener, Act::EndSession, Act::Close};
  event.What = dice.OneOf(Acts);
  if (event.What == Act::Clock) event.Number = RandomClock(dice);
  if (event.What == Act::EndSession) event.Number = dice.OneIn(2) ? 1 : 0;
  return event;
}

Act AnyAct(bool in_entry, Dice& dice) {
  std::size_t throw_of = dice.Below(100);
  for (const auto& share : Shares) {
    std::size_t percent = in_entry ? share.PercentInEntry : share.Percent;
    if (throw_of < percent) return share.What;
    throw_of -= percent;
  }
  return Act::Click;
}

Event OnWindow(const forms::Window& window, bool in_entry, const Habits& habits, Dice& dice) {
  Event event;
  event.What = AnyAct(in_entry, dice);
  const forms::ListBox* list = event.What == Act::Pick ? AnyList(window, dice) : nullptr;
  if (event.What == Act::Pick && !list) event.What = Act::Click;
  switch (event.What) {
    case Act::Pick:
      event.Name = list->Name;
      event.Text = dice.OneOf(list->Items());
      break;
    case Act::Key:
      event.Name = AnyKey(dice);
      break;
    case Act::Type:
      event.Text = AnyTyping(habits, dice);
      break;
    case Act::Move:
      event.Name = dice.OneIn(4) ? window.Name : AnyControl(window, dice).Name;
      break;
    case Act::Clear:
      break;
    default:
      event.Name = AnyControl(window, dice).Name;
  }
  return event;
}

std::string OutsideNotation(const Event& event) {
  switch (event.What) {
    case Act::Clock:
      return "# the clock: " + ClockText(event.Number);
    case Act::RestartAtOpener:
      return "# with the opening window, and its questions about drafts:\nrestart";
    case Act::EndSession:
      return std::string("# after the end of the session, ") + (event.Number == 1 ? "saved" : "given up") +
             ":\nrestart";
    default:
      return "# a fault: " + std::string(kit::NameOf(event.Fault.As)) + ", disk call " +
             std::to_string(event.Fault.At) + " from here" + (event.Fault.FromThenOn ? " and all later ones" : "");
  }
}

}  // namespace

Event RandomEvent(const Program& program, const Habits& habits, Dice& dice) {
  const forms::Window* front = program.Windows.Front();
  Event event;
  if (dice.OneIn(habits.Faults ? 30 : 120) || !front) {
    event = Outside(habits, dice);
  } else {
    event = OnWindow(*front, program.HasOpenFilm(), habits, dice);
  }
  event.Answers = dice.Next();
  return event;
}

Event RandomStart(Dice& dice) {
  Event event;
  event.What = dice.OneIn(3) ? Act::RestartAtOpener : Act::Restart;
  event.Answers = dice.Next();
  return event;
}

std::int64_t RandomClock(Dice& dice) {
  constexpr std::int64_t Year1900 = -2208988800, Year2100 = 4102444800;
  return Year1900 + static_cast<std::int64_t>(dice.Below(static_cast<std::size_t>(Year2100 - Year1900)));
}

std::string Notation(const Event& event) {
  switch (event.What) {
    case Act::Click:
      return "click " + event.Name;
    case Act::DblClick:
      return "dblclick " + event.Name;
    case Act::Move:
      return "move " + event.Name;
    case Act::Pick:
      return "pick " + event.Name + " " + story::Quoted(event.Text);
    case Act::Key:
      // In quotes: a character could be read as a comment or a text.
      return "key " + (event.Name.size() == 1 ? story::Quoted(event.Name) : event.Name);
    case Act::Type:
      return "type " + story::Quoted(event.Text);
    case Act::Clear:
      return "clear";
    case Act::Close:
      return "close";
    case Act::Restart:
      return "restart";
    default:
      return OutsideNotation(event);
  }
}

std::string ClockText(std::int64_t clock) {
  return runtime::StampText(std::chrono::local_seconds(std::chrono::seconds(clock)));
}

}  // namespace monkey
