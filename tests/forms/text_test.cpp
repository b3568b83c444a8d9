// Texts, lists and options: setters run their handlers before they return.
#include <gtest/gtest.h>

#include "tests/kit/small_window.h"

namespace {

using Events = std::vector<std::string>;

class TextTest : public testing::Test, protected kit::SmallScreen {};

TEST_F(TextTest, ADifferentTextRunsChangeBeforeTheSetterReturns) {
  std::string seen;
  Window.First.Change = [&] { seen = Window.First.Text(); };
  Window.First.SetText("Solaris");
  EXPECT_EQ(seen, "Solaris");
}

TEST_F(TextTest, TheSameTextRunsNothing) {
  Window.First.SetText("Solaris");
  Taken();
  Window.First.SetText("Solaris");
  EXPECT_EQ(Taken(), Events{});
  Window.First.SetText("Solaris ");
  EXPECT_EQ(Taken(), Events{"First.Change"});
}

TEST_F(TextTest, AChangeHandlerMaySetTheTextAgain) {
  int runs = 0;
  Window.First.Change = [&] {
    ++runs;
    if (Window.First.Text() == "V") Window.First.SetText("VHS");
  };
  Window.First.SetText("V");
  EXPECT_EQ(Window.First.Text(), "VHS");
  EXPECT_EQ(runs, 2);
}

TEST_F(TextTest, SelectingAnItemRunsClickAlsoWhenItIsSelected) {
  Window.List.Add({"a", "b"});
  EXPECT_EQ(Taken(), Events{});
  Window.List.Select(1);
  Window.List.Select(1);
  EXPECT_EQ(Taken(), (Events{"List.Click", "List.Click"}));
  EXPECT_EQ(Window.List.Selected(), "b");
}

TEST_F(TextTest, SelectingOutsideTheListDoesNothing) {
  Window.List.Add("a");
  Window.List.Select(1);
  Window.List.Select(-1);
  EXPECT_EQ(Taken(), Events{});
  EXPECT_EQ(Window.List.ListIndex(), -1);
}

TEST_F(TextTest, EmptyingAListRunsNothing) {
  Window.List.Add({"a", "b"});
  Window.List.Select(0);
  Taken();
  Window.List.Empty();
  EXPECT_EQ(Taken(), Events{});
  EXPECT_TRUE(Window.List.Items().empty());
  EXPECT_EQ(Window.List.ListIndex(), -1);
}

TEST_F(TextTest, AListHoldsAnItemOnce) {
  Window.List.Add({"b", "a", "b"});
  EXPECT_EQ(Window.List.Items(), (std::vector<std::string>{"b", "a"}));
  Window.List.Select(0);
  Window.List.Add("a");
  EXPECT_EQ(Window.List.Items().size(), 2u);
  EXPECT_EQ(Window.List.Selected(), "b");
}

TEST_F(TextTest, ASortedListKeepsItsSelectionOverAnItemAddedInFront) {
  forms::ListBox sorted{Window, "Sorted", {}, {}, {}, forms::ListBox::Order::Sorted};
  sorted.Add({"m", "x"});
  sorted.Select(0);
  sorted.Add({"z", "a"});
  EXPECT_EQ(sorted.Items(), (std::vector<std::string>{"a", "m", "x", "z"}));
  EXPECT_EQ(sorted.Selected(), "m");
}

TEST_F(TextTest, NothingSelectedReadsAsNothing) {
  Window.List.Add("a");
  EXPECT_EQ(Window.List.Selected(), "");
}

TEST_F(TextTest, SelectingAnOptionRunsItsClickOnceAndClearsItsSibling) {
  Window.One.Select();
  Window.One.Select();
  EXPECT_EQ(Taken(), Events{"One.Click"});
  Window.Two.Select();
  EXPECT_EQ(Taken(), Events{"Two.Click"});
  EXPECT_TRUE(Window.Two.Value());
  EXPECT_FALSE(Window.One.Value());
}

TEST_F(TextTest, AnOptionIsSelectedWhenItsClickRuns) {
  bool seen = false;
  Window.One.Click = [&] { seen = Window.One.Value() && !Window.Two.Value(); };
  Window.Two.Select();
  Window.One.Select();
  EXPECT_TRUE(seen);
}

TEST_F(TextTest, AUsersClickOnAnOptionAlwaysRunsItsClick) {
  Window.One.Select();
  ShowWithFocus(Window.One);
  Window.UserClick(Window.One);
  Window.UserClick(Window.One);
  EXPECT_EQ(Taken(), (Events{"One.Click", "One.MouseUp", "One.Click", "One.MouseUp"}));
}

TEST_F(TextTest, AnOptionStartsUnselected) { EXPECT_FALSE(Window.One.Value() || Window.Two.Value()); }

TEST_F(TextTest, AHotKeyIsTheLetterBehindTheFirstMark) {
  EXPECT_EQ(forms::HotKey("&Back"), 'B');
  EXPECT_EQ(forms::HotKey("Ne&w"), 'W');
  EXPECT_EQ(forms::HotKey("Reset"), 0);
  EXPECT_EQ(forms::HotKey("End&"), 0);
}

TEST_F(TextTest, WhatIsSeenOfAControlRaisesItsVersion) {
  unsigned version = Window.First.Version();
  Window.First.SetText("a");
  EXPECT_NE(Window.First.Version(), std::exchange(version, Window.First.Version()));
  Window.First.Hide();
  EXPECT_NE(Window.First.Version(), std::exchange(version, Window.First.Version()));
  Window.First.SetAlignment(forms::Align::Left);
  EXPECT_NE(Window.First.Version(), std::exchange(version, Window.First.Version()));
  Window.First.SetText("a");
  EXPECT_EQ(Window.First.Version(), version);
}

}  // namespace
