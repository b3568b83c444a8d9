// The focus: who can hold it, what runs when it moves, where Tab moves it.
#include <gtest/gtest.h>

#include "tests/kit/small_window.h"

namespace {

using Events = std::vector<std::string>;
using forms::Key;

class FocusTest : public testing::Test, protected kit::SmallScreen {
 protected:
  std::string Holder() const { return Window.Focus() ? Window.Focus()->Name : ""; }
};

TEST_F(FocusTest, LabelsMenusAndStripsCannotHoldIt) {
  for (const forms::Control* control :
       std::initializer_list<forms::Control*>{&Window.Tag, &Window.Menu, &Window.Ground})
    EXPECT_FALSE(control->CanHoldFocus()) << control->Name;
  for (const forms::Control* control :
       std::initializer_list<forms::Control*>{&Window.First, &Window.List, &Window.Push, &Window.One, &Window.Check})
    EXPECT_TRUE(control->CanHoldFocus()) << control->Name;
}

TEST_F(FocusTest, ShowingAWindowGivesItToTheFirstStopAndRunsLoadOnce) {
  Window.Show();
  EXPECT_EQ(Taken(), (Events{"Window.Load", "First.GotFocus"}));
  Window.Third.SetFocus();
  Taken();
  Window.Hide();
  Window.Show();
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(Holder(), "Third");
}

TEST_F(FocusTest, AMoveRunsLostFocusThenGotFocusAtOnce) {
  ShowWithFocus(Window.First);
  Window.Third.SetFocus();
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "Third.GotFocus"}));
  EXPECT_EQ(Holder(), "Third");
}

TEST_F(FocusTest, AMoveToTheHolderOrToAHiddenOrDisabledControlDoesNothing) {
  Window.Second.Hide();
  Window.Third.Disable();
  ShowWithFocus(Window.First);
  Window.First.SetFocus();
  Window.Second.SetFocus();
  Window.Third.SetFocus();
  Window.Tag.SetFocus();
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(Holder(), "First");
}

TEST_F(FocusTest, NobodyHoldsItWhileLostFocusRuns) {
  ShowWithFocus(Window.First);
  bool nobody = false;
  Window.First.LostFocus = [&] { nobody = Window.Focus() == nullptr && !Window.Third.HoldsFocus(); };
  Window.Third.SetFocus();
  EXPECT_TRUE(nobody);
}

TEST_F(FocusTest, AMoveMadeByLostFocusWins) {
  ShowWithFocus(Window.First);
  Window.First.LostFocus = [&] { Window.Push.SetFocus(); };
  Window.Third.SetFocus();
  EXPECT_EQ(Taken(), Events{"Push.GotFocus"});
  EXPECT_EQ(Holder(), "Push");
}

TEST_F(FocusTest, AMoveBackMadeByLostFocusWins) {
  ShowWithFocus(Window.First);
  Window.First.LostFocus = [&] { Window.First.SetFocus(); };
  Window.Third.SetFocus();
  EXPECT_EQ(Taken(), Events{"First.GotFocus"});
  EXPECT_EQ(Holder(), "First");
}

TEST_F(FocusTest, AMoveToAControlThatLostFocusDisablesEndsAtTheNextStop) {
  ShowWithFocus(Window.First);
  Window.First.LostFocus = [&] { Window.Third.Disable(); };
  Window.Third.SetFocus();
  EXPECT_EQ(Taken(), Events{"Push.GotFocus"});
  EXPECT_EQ(Holder(), "Push");
}

TEST_F(FocusTest, AMoveToNowhereMadeByLostFocusDoesNotWin) {
  Window.Second.Hide();
  ShowWithFocus(Window.First);
  Window.First.LostFocus = [&] { Window.Second.SetFocus(); };
  Window.Third.SetFocus();
  EXPECT_EQ(Holder(), "Third");
}

TEST_F(FocusTest, AControlThatNeverGotItNeverLosesIt) {
  ShowWithFocus(Window.First);
  Window.First.LostFocus = [&] { Window.Push.SetFocus(); };
  Window.Third.SetFocus();
  Window.Second.SetFocus();
  EXPECT_EQ(Taken(), (Events{"Push.GotFocus", "Push.LostFocus", "Second.GotFocus"}));
}

TEST_F(FocusTest, AMoveMadeByGotFocusGoesOnFromThere) {
  ShowWithFocus(Window.First);
  Window.Second.GotFocus = [&] {
    Trace.emplace_back("Second.GotFocus");
    Window.Push.SetFocus();
  };
  Window.Second.SetFocus();
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "Second.GotFocus", "Second.LostFocus", "Push.GotFocus"}));
  EXPECT_EQ(Holder(), "Push");
}

TEST_F(FocusTest, TabGoesByTabPositionAndWraps) {
  Window.Two.Select();
  ShowWithFocus(Window.First);
  std::vector<std::string> holders;
  for (int step = 0; step < 8; ++step) {
    Window.UserKey(Key::Tab);
    holders.push_back(Holder());
  }
  EXPECT_EQ(holders, (Events{"Second", "Third", "Push", "Two", "Check", "List", "Alike", "First"}));
}

TEST_F(FocusTest, ShiftTabGoesBackAndWraps) {
  Window.One.Select();
  ShowWithFocus(Window.First);
  std::vector<std::string> holders;
  for (int step = 0; step < 8; ++step) {
    Window.UserKey(Key::ShiftTab);
    holders.push_back(Holder());
  }
  EXPECT_EQ(holders, (Events{"Alike", "List", "Check", "One", "Push", "Third", "Second", "First"}));
}

TEST_F(FocusTest, TabPassesOverHiddenAndDisabledControls) {
  Window.Second.Hide();
  Window.Third.Disable();
  ShowWithFocus(Window.First);
  Window.UserKey(Key::Tab);
  EXPECT_EQ(Holder(), "Push");
}

TEST_F(FocusTest, HidingTheHolderGivesItToTheNextTabPosition) {
  ShowWithFocus(Window.First);
  Window.First.Hide();
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "Second.GotFocus"}));
  EXPECT_EQ(Holder(), "Second");
}

TEST_F(FocusTest, DisablingTheHolderGivesItToTheNextTabPosition) {
  ShowWithFocus(Window.Alike);
  Window.Alike.Disable();
  EXPECT_EQ(Taken(), (Events{"Alike.LostFocus", "First.GotFocus"}));
}

TEST_F(FocusTest, HidingAnotherControlMovesNothing) {
  ShowWithFocus(Window.First);
  Window.Second.Hide();
  Window.Third.Disable();
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(FocusTest, WithNoStopLeftNobodyHoldsIt) {
  ShowWithFocus(Window.First);
  for (forms::Control* control : Window.Controls()) control->Disable();
  EXPECT_EQ(Holder(), "");
}

TEST_F(FocusTest, AnotherWindowInFrontIsNoLostFocus) {
  ShowWithFocus(Window.First);
  forms::Window other{Windows, "Other", "Another", 10, 10};
  other.Show();
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(Holder(), "First");
  EXPECT_EQ(Windows.Front(), &other);
  Window.Show();
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(Windows.Front(), &Window);
  other.Hide();
  Window.Hide();
  EXPECT_EQ(Windows.Front(), nullptr);
}

TEST_F(FocusTest, BeforeItIsShownAWindowHasNoHolder) {
  Window.Third.SetFocus();
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(Holder(), "");
}

TEST_F(FocusTest, AFieldsTopicOrTheControlsHelpIdCountsAsSet) {
  ShowWithFocus(Window.First);
  EXPECT_EQ(Window.HelpContext, 11);
  Window.Second.SetFocus();
  EXPECT_EQ(Window.HelpContext, 20);
  Window.List.SetFocus();
  EXPECT_EQ(Window.HelpContext, 20);
}

TEST_F(FocusTest, AHandlersHelpContextStands) {
  Window.Second.GotFocus = [&] { Window.HelpContext = 999; };
  ShowWithFocus(Window.First);
  Window.Second.SetFocus();
  EXPECT_EQ(Window.HelpContext, 999);
}

}  // namespace
