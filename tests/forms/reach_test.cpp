// What the user can reach: buttons under others, windows behind others and under a modal one.
#include <gtest/gtest.h>

#include "forms/window.h"
#include "forms/window_stack.h"
#include "tests/kit/quiet_desk.h"

namespace forms {
namespace {

const Look Plain;
const Place Spot = {0, 0, 100, 100};
const Place Elsewhere = {200, 0, 100, 100};

struct ThreeButtons : Window {
  using Window::Window;
  Button Under{*this, "Under", "&Back", {1, 0, 0}, Plain, Spot};
  Button Over{*this, "Over", "&Back", {3, 0, 0}, Plain, Spot};
  Button Beside{*this, "Beside", "&Next", {2, 0, 0}, Plain, Elsewhere};
};

class ReachTest : public testing::Test {
 protected:
  ReachTest() {
    Buttons.Under.Click = [this] { clicked_ += "under "; };
    Buttons.Over.Click = [this] { clicked_ += "over "; };
    Buttons.Under.MouseMove = [this] { clicked_ += "move "; };
    Buttons.Show();
  }
  kit::QuietDesk Desk;
  WindowStack Windows{Desk};
  ThreeButtons Buttons{Windows, "Buttons", "Buttons", 400, 400};
  std::string clicked_;
};

TEST_F(ReachTest, ACoveredButtonTakesNoClickPointerTabOrHotKey) {
  EXPECT_EQ(Buttons.Focus(), &Buttons.Beside);
  Buttons.UserClick(Buttons.Under);
  Buttons.UserMove(&Buttons.Under);
  EXPECT_EQ(clicked_, "");
  Buttons.UserKey(Key::Tab);
  EXPECT_EQ(Buttons.Focus(), &Buttons.Over);
  Buttons.UserKey(Key::Tab);
  EXPECT_EQ(Buttons.Focus(), &Buttons.Beside);
  Buttons.UserAlt('B');
  EXPECT_EQ(clicked_, "over ");
}

TEST_F(ReachTest, ADisabledButtonStillCovers) {
  Buttons.Over.Disable();
  Buttons.UserAlt('B');
  Buttons.UserClick(Buttons.Under);
  EXPECT_EQ(clicked_, "");
}

TEST_F(ReachTest, AHiddenButtonCoversNothing) {
  Buttons.Over.Hide();
  Buttons.UserClick(Buttons.Under);
  EXPECT_EQ(clicked_, "under ");
}

TEST_F(ReachTest, AHandlerReachesACoveredButton) {
  Buttons.Under.SetFocus();
  EXPECT_EQ(Buttons.Focus(), &Buttons.Under);
}

TEST_F(ReachTest, AButtonThatComesToLieUnderAnotherPassesTheFocusOn) {
  Buttons.Over.Hide();
  Buttons.Under.SetFocus();
  Buttons.Over.Show();
  EXPECT_EQ(Buttons.Focus(), &Buttons.Beside);
}

TEST_F(ReachTest, AStepAsOnePassesTheFocusOnOnceAtItsEnd) {
  std::string got;
  Buttons.Over.GotFocus = [&] { got += "over "; };
  Buttons.Beside.LostFocus = [&] { got += "lost "; };
  Buttons.PassFocusOnAfter([&] {
    Buttons.Beside.Hide();
    EXPECT_EQ(Buttons.Focus(), &Buttons.Beside);
    EXPECT_EQ(got, "");
  });
  EXPECT_EQ(got, "lost over ");
}

TEST_F(ReachTest, AStepAsOneThatShowsTheHolderAgainPassesNothingOn) {
  Buttons.PassFocusOnAfter([&] {
    Buttons.Beside.Hide();
    Buttons.Beside.Show();
  });
  EXPECT_EQ(Buttons.Focus(), &Buttons.Beside);
}

TEST_F(ReachTest, AModalWindowTakesAllInput) {
  Window modal(Windows, "Modal", "Modal", 100, 100);
  modal.Modal = true;
  modal.Show();
  Buttons.UserClick(Buttons.Over);
  Buttons.UserKey(Key::Tab);
  Buttons.UserClose();
  EXPECT_EQ(clicked_, "");
  EXPECT_EQ(Buttons.Focus(), &Buttons.Beside);
  EXPECT_TRUE(Buttons.Visible());
  modal.Hide();
  Buttons.UserClick(Buttons.Over);
  EXPECT_EQ(clicked_, "over ");
}

TEST_F(ReachTest, AWindowHiddenBehindAnotherComesBackWhenThatGoes) {
  Window front(Windows, "Front", "Front", 100, 100);
  Buttons.HiddenBehind = &front;
  front.Show();
  EXPECT_TRUE(Buttons.Visible());
  EXPECT_FALSE(Buttons.InSight());
  Buttons.UserClick(Buttons.Over);
  EXPECT_EQ(clicked_, "");
  front.UserClose();
  EXPECT_TRUE(Buttons.InSight());
  EXPECT_EQ(Windows.Front(), &Buttons);
}

TEST_F(ReachTest, AWindowInFrontOfTheOneThatHidesItIsInSight) {
  Window behind(Windows, "Behind", "Behind", 100, 100);
  Buttons.HiddenBehind = &behind;
  behind.Show();
  Buttons.Show();
  EXPECT_TRUE(Buttons.InSight());
}

TEST_F(ReachTest, ABoxThatTakesNoTypingKeepsItsText) {
  struct Status : Window {
    using Window::Window;
    TextBox Box{*this, "Box", {0, 0, 0}, Plain, Align::Left, Spot};
  } status(Windows, "Status", "Status", 100, 100);
  status.Box.TakesTyping = false;
  status.Box.SetText("On");
  status.Show();
  status.UserType('x');
  EXPECT_FALSE(status.UserKeyPress(status.Box));
  status.UserEdit(status.Box, "");
  EXPECT_EQ(status.Box.Text(), "On");
}

}  // namespace
}  // namespace forms
