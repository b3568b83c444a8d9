// The wiring of the record screen: what the lists of handlers name is wired, and nothing else is.
#include "screen/handlers.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "app/program.h"
#include "screen/entry_fields.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/quiet_desk.h"

namespace {

class Wiring : public testing::Test {
 protected:
  kit::FreshFolder folder_;
  runtime::RealDisk disk_{folder_.Path()};
  kit::QuietDesk desk_;
  Program program_{desk_, disk_};
  frmPage1& screen_ = program_.RecordScreen;
};

std::set<std::string> ListedHandlers() {
#define NAME_OF(control, Event) std::string(#control "." #Event),
  return {CONTROL_HANDLERS(NAME_OF)};
#undef NAME_OF
}

// The name of a control without the index that stories give the star fields.
std::string MemberName(const forms::Control& control) { return control.Name.substr(0, control.Name.find('(')); }

std::set<std::string> WiredHandlers(const forms::Window& window) {
  std::set<std::string> wired;
  for (const forms::Control* control : window.Controls()) {
#define NAME_IF_WIRED(Event) \
  if (control->Event) wired.insert(MemberName(*control) + "." #Event);
    NAME_IF_WIRED(Click)
    NAME_IF_WIRED(DblClick)
    NAME_IF_WIRED(GotFocus)
    NAME_IF_WIRED(LostFocus)
    NAME_IF_WIRED(MouseUp)
    NAME_IF_WIRED(MouseMove)
    NAME_IF_WIRED(KeyPress)
    NAME_IF_WIRED(MouseDown)
    NAME_IF_WIRED(Change)
#undef NAME_IF_WIRED
  }
  return wired;
}

TEST_F(Wiring, IsWhatTheListsName) { EXPECT_EQ(WiredHandlers(screen_), ListedHandlers()); }

TEST_F(Wiring, CoversTheWindowsOwnEvents) {
#define EXPECT_WIRED(Event) EXPECT_TRUE(screen_.Event) << #Event;
  WINDOW_HANDLERS(EXPECT_WIRED)
#undef EXPECT_WIRED
}

TEST_F(Wiring, EveryFieldActsWhenItGetsTheFocus) {
  for (const screen::EntryField& field : screen::EntryFields) EXPECT_TRUE((screen_.*field.Box).GotFocus) << field.Title;
}

const forms::MenuItem* MenuItemAt(const forms::Window& window, std::size_t row) {
  const auto& controls = window.Controls();
  bool is_item = row < controls.size() && controls[row]->Kind == forms::Kind::MenuItem;
  return is_item ? static_cast<const forms::MenuItem*>(controls[row]) : nullptr;
}

TEST_F(Wiring, EveryCommandOfTheMenuIsWired) {
  for (std::size_t row = 0; row < screen_.Controls().size(); ++row) {
    const forms::MenuItem* item = MenuItemAt(screen_, row);
    if (!item) continue;
    const forms::MenuItem* next = MenuItemAt(screen_, row + 1);
    bool opens_menu = next && next->Level > item->Level;
    EXPECT_EQ(static_cast<bool>(item->Click), !opens_menu) << item->Name;
  }
}

}  // namespace
