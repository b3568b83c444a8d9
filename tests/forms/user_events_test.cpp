// The user's clicks, moves and keys: what runs, in which order, and what ends a click.
#include <gtest/gtest.h>

#include "tests/kit/small_window.h"

namespace {

using Events = std::vector<std::string>;
using forms::Key;

class UserEventsTest : public testing::Test, protected kit::SmallScreen {
 protected:
  std::string Holder() const { return Window.Focus() ? Window.Focus()->Name : ""; }
};

TEST_F(UserEventsTest, AClickMovesTheFocusFirst) {
  ShowWithFocus(Window.First);
  Window.UserClick(Window.Push);
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "Push.GotFocus", "Push.Click", "Push.MouseUp"}));
}

TEST_F(UserEventsTest, AClickOnTheHolderRunsClickAndMouseUp) {
  ShowWithFocus(Window.First);
  Window.UserClick(Window.First);
  EXPECT_EQ(Taken(), (Events{"First.Click", "First.MouseUp"}));
}

TEST_F(UserEventsTest, AClickOnWhatCannotHoldTheFocusLeavesItAlone) {
  ShowWithFocus(Window.First);
  Window.UserClick(Window.Item);
  Window.UserClick(Window.Tag);
  EXPECT_EQ(Taken(), (Events{"Item.Click", "Item.MouseUp", "Tag.Click", "Tag.MouseUp"}));
  EXPECT_EQ(Holder(), "First");
}

TEST_F(UserEventsTest, ABoxOnTheWayEndsTheClick) {
  ShowWithFocus(Window.First);
  Window.First.LostFocus = [&] { Desk.MessageBox(forms::Icon::None, "", "Save?"); };
  Window.UserClick(Window.Push);
  EXPECT_EQ(Taken(), (Events{"box Save?", "Push.GotFocus"}));
  EXPECT_EQ(Holder(), "Push");
}

TEST_F(UserEventsTest, AMovedFocusEndsTheClick) {
  ShowWithFocus(Window.First);
  Window.Second.GotFocus = [&] { Window.Push.SetFocus(); };
  Window.UserClick(Window.Second);
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "Second.LostFocus", "Push.GotFocus"}));
}

TEST_F(UserEventsTest, AClickOnAHiddenOrDisabledControlDoesNothing) {
  ShowWithFocus(Window.First);
  Window.Push.Disable();
  Window.List.Hide();
  Window.List.Add("a");
  Window.UserClick(Window.Push);
  Window.UserPick(Window.List, 0);
  Window.UserDblClick(Window.Push);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, NothingReachesAWindowThatIsNotVisible) {
  ShowWithFocus(Window.First);
  Window.Hide();
  Window.UserClick(Window.First);
  Window.UserType('a');
  Window.UserKey(Key::Tab);
  Window.UserAlt('P');
  Window.UserMove(nullptr);
  Window.UserClose();
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, ADoubleClickIsAClickAndThenADoubleClick) {
  ShowWithFocus(Window.List);
  Window.UserDblClick(Window.List);
  EXPECT_EQ(Taken(), (Events{"List.Click", "List.MouseUp", "List.DblClick"}));
}

TEST_F(UserEventsTest, ADoubleClickOnAButtonIsTwoClicks) {
  ShowWithFocus(Window.First);
  Window.UserDblClick(Window.Push);
  EXPECT_EQ(Taken(),
            (Events{"First.LostFocus", "Push.GotFocus", "Push.Click", "Push.MouseUp", "Push.Click", "Push.MouseUp"}));
}

TEST_F(UserEventsTest, ASecondClickIsADoubleClickOnAListAndAClickOnAButton) {
  ShowWithFocus(Window.List);
  Window.UserSecondClick(Window.List);
  Window.UserSecondClick(Window.Push);
  EXPECT_EQ(Taken(), (Events{"List.DblClick", "List.LostFocus", "Push.GotFocus", "Push.Click", "Push.MouseUp"}));
}

TEST_F(UserEventsTest, ASecondClickOnAHiddenOrDisabledControlDoesNothing) {
  ShowWithFocus(Window.First);
  Window.Second.Disable();
  Window.List.Hide();
  Window.UserSecondClick(Window.Second);
  Window.UserSecondClick(Window.List);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, ARightClickGivesATextBoxTheFocusAndNothingElse) {
  ShowWithFocus(Window.First);
  Window.UserRightClick(Window.Push);
  Window.UserRightClick(Window.First);
  EXPECT_EQ(Taken(), Events{});
  Window.UserRightClick(Window.Second);
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "Second.GotFocus"}));
}

TEST_F(UserEventsTest, ARightClickOnADisabledTextBoxDoesNothing) {
  ShowWithFocus(Window.First);
  Window.Second.Disable();
  Window.UserRightClick(Window.Second);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, APressBesideTheItemsOnlyTakesTheFocus) {
  Window.List.Add({"a", "b"});
  ShowWithFocus(Window.First);
  Window.UserPick(Window.List, -1);
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "List.GotFocus"}));
  EXPECT_EQ(Window.List.ListIndex(), -1);
}

TEST_F(UserEventsTest, APressOnAnItemSelectsItAndRunsMouseDown) {
  Window.List.Add({"a", "b"});
  ShowWithFocus(Window.First);
  Window.UserPick(Window.List, 1);
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "List.GotFocus", "List.Click", "List.MouseDown"}));
  EXPECT_EQ(Window.List.Selected(), "b");
}

TEST_F(UserEventsTest, ABoxOnTheWayEndsThePress) {
  Window.List.Add("a");
  ShowWithFocus(Window.First);
  Window.First.LostFocus = [&] { Desk.MessageBox(forms::Icon::None, "", "Save?"); };
  Window.UserPick(Window.List, 0);
  EXPECT_EQ(Taken(), (Events{"box Save?", "List.GotFocus"}));
  EXPECT_EQ(Window.List.ListIndex(), -1);
}

TEST_F(UserEventsTest, ArrowsMoveTheSelectionAndRunClick) {
  Window.List.Add({"a", "b", "c"});
  ShowWithFocus(Window.List);
  std::vector<std::string> selected;
  for (Key key : {Key::Down, Key::Down, Key::Up, Key::End, Key::Home}) {
    Window.UserKey(key);
    selected.push_back(Window.List.Selected());
  }
  EXPECT_EQ(selected, (Events{"a", "b", "a", "c", "a"}));
  EXPECT_EQ(Taken(), Events(5, "List.Click"));
}

TEST_F(UserEventsTest, AnArrowThatMovesNothingRunsNothing) {
  Window.List.Add({"a", "b"});
  ShowWithFocus(Window.List);
  Window.List.Select(1);
  Taken();
  Window.UserKey(Key::Down);
  Window.UserKey(Key::End);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, OtherKeysInAListRunKeyPressAndNothingElse) {
  Window.List.Add({"a", "b"});
  ShowWithFocus(Window.List);
  Window.UserKey(Key::Enter);
  Window.UserKey(Key::Space);
  Window.UserType('b');
  Window.UserType(' ');
  EXPECT_EQ(Taken(), Events(4, "List.KeyPress"));
  EXPECT_EQ(Window.List.ListIndex(), -1);
}

TEST_F(UserEventsTest, TabLeavesAList) {
  ShowWithFocus(Window.List);
  Window.UserKey(Key::Tab);
  EXPECT_EQ(Taken(), (Events{"List.LostFocus", "Alike.GotFocus"}));
}

TEST_F(UserEventsTest, ACharacterRunsKeyPressAndThenChange) {
  Window.First.SetText("So");
  ShowWithFocus(Window.First);
  Window.UserType('l');
  Window.UserKey(Key::Space);
  EXPECT_EQ(Taken(), (Events{"First.KeyPress", "First.Change", "First.KeyPress", "First.Change"}));
  EXPECT_EQ(Window.First.Text(), "Sol ");
}

TEST_F(UserEventsTest, ACharacterIsDroppedWhenKeyPressMovesTheFocusAway) {
  Window.First.SetText("So");
  ShowWithFocus(Window.First);
  Window.First.KeyPress = [&] { Window.Push.SetFocus(); };
  Window.UserType('l');
  EXPECT_EQ(Window.First.Text(), "So");
  EXPECT_EQ(Holder(), "Push");
}

TEST_F(UserEventsTest, ANativeEditAsksFirstAndThenSetsTheText) {
  ShowWithFocus(Window.First);
  EXPECT_TRUE(Window.UserKeyPress(Window.First));
  Window.UserEdit(Window.First, "abc");
  EXPECT_EQ(Taken(), (Events{"First.KeyPress", "First.Change"}));
  EXPECT_FALSE(Window.UserKeyPress(Window.Second));
  Window.UserEdit(Window.Second, "abc");
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(Window.Second.Text(), "");
}

TEST_F(UserEventsTest, ANativeEditIsRefusedWhenKeyPressMovesTheFocusAway) {
  ShowWithFocus(Window.First);
  Window.First.KeyPress = [&] { Window.Push.SetFocus(); };
  EXPECT_FALSE(Window.UserKeyPress(Window.First));
}

TEST_F(UserEventsTest, EnterInATextBoxMovesAndTypesNothing) {
  ShowWithFocus(Window.First);
  Window.UserKey(Key::Enter);
  EXPECT_EQ(Holder(), "First");
  EXPECT_EQ(Window.First.Text(), "");
}

TEST_F(UserEventsTest, EnterAndSpaceOnAButtonRunItsClick) {
  ShowWithFocus(Window.Push);
  Window.UserKey(Key::Enter);
  Window.UserKey(Key::Space);
  Window.UserType(' ');
  EXPECT_EQ(Taken(), Events(3, "Push.Click"));
}

TEST_F(UserEventsTest, EnterIsNothingToACheckBoxAndAnOption) {
  ShowWithFocus(Window.Check);
  Window.UserKey(Key::Enter);
  Window.One.Select();
  Window.One.SetFocus();
  Taken();
  Window.UserKey(Key::Enter);
  EXPECT_EQ(Taken(), Events{});
  EXPECT_FALSE(Window.Check.Value());
}

TEST_F(UserEventsTest, EscRunsTheCancelButtonsClickAndTheFocusStays) {
  ShowWithFocus(Window.First);
  Window.UserKey(Key::Esc);
  EXPECT_EQ(Taken(), Events{});
  Window.CancelButton = &Window.Push;
  Window.UserKey(Key::Esc);
  EXPECT_EQ(Taken(), Events{"Push.Click"});
  EXPECT_EQ(Holder(), "First");
  Window.Push.Disable();
  Window.UserKey(Key::Esc);
  Window.Push.Enable();
  Window.Push.Hide();
  Window.UserKey(Key::Esc);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, F1OpensTheTopicThatWasSetLast) {
  Window.Show();
  Window.HelpContext = 0;
  Taken();
  Window.UserKey(Key::F1);
  Window.HelpContext = 260;
  Window.UserKey(Key::F1);
  EXPECT_EQ(Taken(), (Events{"help 0", "help 260"}));
}

TEST_F(UserEventsTest, AltPressesTheButtonOfThatLetter) {
  ShowWithFocus(Window.First);
  Window.UserAlt('p');
  EXPECT_EQ(Taken(), (Events{"First.LostFocus", "Push.GotFocus", "Push.Click"}));
}

TEST_F(UserEventsTest, OfSeveralWithALetterAltTakesTheNextInACircle) {
  ShowWithFocus(Window.First);
  Window.UserAlt('P');
  EXPECT_EQ(Holder(), "Push");
  Window.UserAlt('P');
  EXPECT_EQ(Holder(), "Alike");
  Window.UserAlt('P');
  EXPECT_EQ(Holder(), "Push");
}

TEST_F(UserEventsTest, AltPassesOverHiddenAndDisabledControls) {
  Window.Push.Disable();
  ShowWithFocus(Window.First);
  Window.UserAlt('P');
  EXPECT_EQ(Holder(), "Alike");
}

TEST_F(UserEventsTest, OfAPairOfOptionsAltSelectsTheOtherOne) {
  Window.One.Select();
  ShowWithFocus(Window.First);
  Window.UserAlt('G');
  EXPECT_TRUE(Window.Two.Value());
  EXPECT_EQ(Taken().back(), "Two.Click");
  Window.UserAlt('G');
  EXPECT_TRUE(Window.One.Value());
  EXPECT_EQ(Taken().back(), "One.Click");
}

TEST_F(UserEventsTest, ALabelsLetterIsNobodys) {
  ShowWithFocus(Window.First);
  Window.UserAlt('T');
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, WithNoControlOfThatLetterTheMenuIsMeant) {
  ShowWithFocus(Window.First);
  EXPECT_EQ(Window.UserAlt('L'), &Window.Pull);
  EXPECT_EQ(Taken(), Events{"Pull.Click"});
  EXPECT_EQ(Holder(), "First");
  EXPECT_EQ(Window.UserAlt('I'), nullptr);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, AClickOnACheckBoxTurnsItBeforeItsClick) {
  ShowWithFocus(Window.Check);
  bool seen = false;
  Window.Check.Click = [&] { seen = Window.Check.Value(); };
  Window.UserClick(Window.Check);
  EXPECT_TRUE(seen);
  Window.UserKey(Key::Space);
  EXPECT_FALSE(seen);
}

TEST_F(UserEventsTest, AMoveRunsTheControlsOwnMouseMoveOnly) {
  ShowWithFocus(Window.First);
  Window.UserMove(&Window.Push);
  EXPECT_EQ(Taken(), Events{"Push.MouseMove"});
  Window.UserMove(nullptr);
  EXPECT_EQ(Taken(), Events{"Window.MouseMove"});
  Window.Push.Disable();
  Window.UserMove(&Window.Push);
  EXPECT_EQ(Taken(), Events{"Push.MouseMove"});
  Window.Push.Hide();
  Window.UserMove(&Window.Push);
  EXPECT_EQ(Taken(), Events{});
}

TEST_F(UserEventsTest, TheCloseBoxRunsUnloadAndHidesTheWindow) {
  ShowWithFocus(Window.First);
  Window.UserClose();
  EXPECT_EQ(Taken(), Events{"Window.Unload"});
  EXPECT_FALSE(Window.Visible());
}

TEST_F(UserEventsTest, EndIsRemembered) {
  EXPECT_FALSE(Desk.Ended());
  Desk.End();
  EXPECT_TRUE(Desk.Ended());
}

}  // namespace
