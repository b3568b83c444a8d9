// What is seen on the screen: texts, properties, the focus, the run state.
#include "tests/story/checks.h"

#include <array>
#include <charconv>
#include <map>
#include <optional>
#include <utility>

#include "runtime/code_page.h"
#include "tests/story/names.h"

namespace story {
namespace {

// What a name stands for: one of the two is set.
struct Thing {
  const forms::Control* Control = nullptr;
  const forms::Window* Window = nullptr;

  // The control as one of that class; nullptr where it is another.
  template <typename Class>
  const Class* As(forms::Kind kind) const {
    return Control && Control->Kind == kind ? static_cast<const Class*>(Control) : nullptr;
  }
  const forms::TextBox* Box() const { return As<forms::TextBox>(forms::Kind::TextBox); }
  const forms::ListBox* List() const { return As<forms::ListBox>(forms::Kind::ListBox); }
  const forms::Captioned* WithCaption() const;
};

const forms::Captioned* Thing::WithCaption() const {
  for (forms::Kind kind : {forms::Kind::Label, forms::Kind::Button, forms::Kind::OptionButton, forms::Kind::CheckBox,
                           forms::Kind::MenuItem}) {
    if (const auto* captioned = As<forms::Captioned>(kind)) return captioned;
  }
  return nullptr;
}

std::string YesNo(bool value) { return value ? "yes" : "no"; }

std::string ItemsOf(const forms::ListBox& list) {
  std::string items;
  for (const std::string& item : list.Items()) items += (items.empty() ? "" : " ") + Quoted(item);
  return items;
}

// The property's value in the notation of stories; nothing where the thing has no such property.
using Property = std::optional<std::string> (*)(const Thing&);

std::optional<std::string> TextOf(const Thing& thing) {
  return thing.Box() ? std::optional(Quoted(thing.Box()->Text())) : std::nullopt;
}

std::optional<std::string> CaptionOf(const Thing& thing) {
  if (thing.Window) return Quoted(thing.Window->Caption());
  const forms::Captioned* captioned = thing.WithCaption();
  return captioned ? std::optional(Quoted(captioned->Caption())) : std::nullopt;
}

std::optional<std::string> ValueOf(const Thing& thing) {
  if (const auto* option = thing.As<forms::OptionButton>(forms::Kind::OptionButton)) return YesNo(option->Value());
  if (const auto* check = thing.As<forms::CheckBox>(forms::Kind::CheckBox)) return YesNo(check->Value());
  return std::nullopt;
}

std::optional<std::string> BackColorOf(const Thing& thing) {
  return std::to_string(thing.Window ? thing.Window->BackColor() : thing.Control->Look().Back);
}

std::optional<std::string> FontSizeOf(const Thing& thing) {
  if (!thing.Control) return std::nullopt;
  std::array<char, 32> digits{};
  auto end = std::to_chars(digits.data(), digits.data() + digits.size(), thing.Control->Look().FontSize).ptr;
  return std::string(digits.data(), end);
}

const std::map<std::string_view, Property> Properties = {
    {"Text", TextOf},
    {"Caption", CaptionOf},
    {"Value", ValueOf},
    {"BackColor", BackColorOf},
    {"FontSize", FontSizeOf},
    {"Visible",
     [](const Thing& thing) -> std::optional<std::string> {
       return YesNo(thing.Window ? thing.Window->Visible() : thing.Control->Visible());
     }},
    {"Enabled",
     [](const Thing& thing) { return thing.Control ? std::optional(YesNo(thing.Control->Enabled())) : std::nullopt; }},
    {"Alignment",
     [](const Thing& thing) {
       return thing.Box()
                  ? std::optional<std::string>(thing.Box()->Alignment() == forms::Align::Left ? "left" : "centre")
                  : std::nullopt;
     }},
    {"Items", [](const Thing& thing) { return thing.List() ? std::optional(ItemsOf(*thing.List())) : std::nullopt; }},
    {"ListIndex",
     [](const Thing& thing) {
       return thing.List() ? std::optional(std::to_string(thing.List()->ListIndex())) : std::nullopt;
     }},
    {"ForeColor",
     [](const Thing& thing) {
       return thing.Control ? std::optional(std::to_string(thing.Control->Look().Fore)) : std::nullopt;
     }},
    {"HelpContext",
     [](const Thing& thing) {
       return thing.Window ? std::optional(std::to_string(thing.Window->HelpContext)) : std::nullopt;
     }},
};

void Compare(const Line& line, std::string_view expected, std::string_view got) {
  if (expected != got) throw Difference{line.Number, Differs(expected, got)};
}

std::optional<Thing> FindThing(const Program& program, std::string_view name) {
  if (const forms::Control* control = FindControl(program.Windows, name)) return Thing{control, nullptr};
  if (const forms::Window* window = FindWindow(program.Windows, name)) return Thing{nullptr, window};
  return std::nullopt;
}

Thing ThingNamed(const Program& program, const Line& line, std::string_view name) {
  std::optional<Thing> thing = FindThing(program, name);
  if (!thing) throw Difference{line.Number, Differs("a control or a window of the program", runtime::ToUtf8(name))};
  return *thing;
}

// The arguments from the second on, as a story writes them.
std::string ValuesOf(const Line& line) {
  std::string values;
  for (std::size_t index = 1; index < line.Arguments.size(); ++index)
    values += (index == 1 ? "" : " ") + Notation(line.Arguments[index]);
  return values;
}

void SeeProperty(const Program& program, const Line& line) {
  const std::string& name = line.Text(0);
  std::size_t dot = name.rfind('.');
  std::optional<std::string> value;
  if (dot == std::string::npos) {
    Thing thing = ThingNamed(program, line, name);
    value = thing.Box() ? TextOf(thing) : CaptionOf(thing);
  } else {
    auto property = Properties.find(std::string_view(name).substr(dot + 1));
    if (property == Properties.end())
      throw Difference{line.Number, Differs("a property of the stories", name.substr(dot + 1))};
    value = property->second(ThingNamed(program, line, std::string_view(name).substr(0, dot)));
  }
  if (!value) throw Difference{line.Number, Differs("a control that has that property", name)};
  auto shown = [](const std::string& notation) { return notation.empty() ? std::string("no items") : notation; };
  Compare(line, shown(ValuesOf(line)), shown(*value));
}

void SeeFocus(const Program& program, const Line& line) {
  const std::string& name = line.Text(1);
  if (name != "none") ControlNamed(program.Windows, name);
  const forms::Window* front = program.Windows.Front();
  Compare(line, "the focus on " + name, "the focus on " + (front && front->Focus() ? front->Focus()->Name : "none"));
}

void SeeState(const Program& program, const Line& line) {
  for (const screen::StateEntry* entry : program.RecordScreen.Entries()) {
    if (entry->Name != line.Text(1)) continue;
    auto value = entry->Read();
    const auto* number = std::get_if<std::int64_t>(&value);
    Compare(line, Notation(line.Arguments[2]), number ? std::to_string(*number) : Quoted(std::get<std::string>(value)));
    return;
  }
  throw Difference{line.Number, Differs("a variable of the run state", line.Text(1))};
}

}  // namespace

void Check(const Scene& scene, const Line& line) {
  if (CheckFiles(scene, line)) return;
  if (!scene.Running) throw Difference{line.Number, "expected the program to be running, got a line before its start"};
  if (line.Text(0) == "focus") {
    SeeFocus(*scene.Running, line);
  } else if (line.Text(0) == "state") {
    SeeState(*scene.Running, line);
  } else {
    SeeProperty(*scene.Running, line);
  }
}

}  // namespace story
