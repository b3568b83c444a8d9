// What is seen, as text.
#include "tests/monkey/session.h"

#include <algorithm>
#include <sstream>

#include "runtime/code_page.h"

namespace monkey {
namespace {

std::string ContentOf(const forms::Control& control) {
  switch (control.Kind) {
    case forms::Kind::TextBox:
      return static_cast<const forms::TextBox&>(control).Text();
    case forms::Kind::ListBox: {
      const auto& list = static_cast<const forms::ListBox&>(control);
      return std::to_string(list.Items().size()) + " items, " + list.Selected();
    }
    case forms::Kind::OptionButton:
      return static_cast<const forms::OptionButton&>(control).Value() ? "on" : "off";
    case forms::Kind::CheckBox:
      return static_cast<const forms::CheckBox&>(control).Value() ? "on" : "off";
    case forms::Kind::Label:
      return static_cast<const forms::Label&>(control).Caption();
    default:
      return "";
  }
}

std::string ValueOf(const screen::StateEntry& state) {
  auto value = state.Read();
  const auto* number = std::get_if<std::int64_t>(&value);
  return number ? std::to_string(*number) : std::get<std::string>(value);
}

// A text with a line end in it stays one line.
void AddLine(std::string& seen, std::string line) {
  std::replace(line.begin(), line.end(), '\n', '|');
  seen += line + "\n";
}

}  // namespace

std::string Seen(const Program& program) {
  std::string seen = program.Ended() ? "ended\n" : "running\n";
  for (const screen::StateEntry* state : program.RecordScreen.Entries())
    AddLine(seen, std::string(state->Name) + "=" + ValueOf(*state));
  for (const forms::Window* window : program.Windows.All()) {
    AddLine(seen, window->Name + (window->Visible() ? " " : " hidden ") + window->Caption() + ", help " +
                      std::to_string(window->HelpContext) + ", focus " +
                      (window->Focus() ? window->Focus()->Name : "none"));
    for (const forms::Control* control : window->Controls())
      AddLine(seen, control->Name + (control->Visible() ? "" : " hidden") + (control->Enabled() ? "" : " disabled") +
                        "=" + ContentOf(*control));
  }
  return seen;
}

std::string FirstDifference(const std::string& bare, const std::string& drawn) {
  if (bare == drawn) return "";
  std::istringstream bare_lines(bare), drawn_lines(drawn);
  std::string one, other;
  while (std::getline(bare_lines, one) && std::getline(drawn_lines, other)) {
    if (one != other) return "the widgets differ: bare " + runtime::ToUtf8(one) + ", drawn " + runtime::ToUtf8(other);
  }
  return "the widgets differ in length";
}

}  // namespace monkey
