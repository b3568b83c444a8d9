// Editing in a text box.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QInputMethodEvent>

#include "desktop/text.h"
#include "tests/desktop/drawn_window.h"

namespace desktop {
namespace {

class Field : public testing::Test, public DrawnWindow {
 protected:
  Field() { Window.First.SetFocus(), View.Sync(); }
};

TEST_F(Field, TypingAsksKeyPressBeforeTheTextChanges) {
  std::string seen;
  Window.First.KeyPress = [&] { seen += "[" + Window.First.Text() + "]"; };
  Window.First.Change = [&] { seen += Window.First.Text(); };
  Type("ab");
  EXPECT_EQ(seen, "[]a[a]ab");
  EXPECT_EQ(FieldOf(Window.First).text(), "ab");
}

TEST_F(Field, ACharacterIsDroppedWhenKeyPressMovesTheFocus) {
  Window.First.KeyPress = [&] { Window.Push.SetFocus(); };
  Type("a");
  EXPECT_EQ(Window.First.Text(), "");
  EXPECT_EQ(FieldOf(Window.First).text(), "");
  EXPECT_EQ(Focus(), &WidgetOf(Window.Push));
}

TEST_F(Field, ShowsWhatChangeMadeOfTheText) {
  Window.First.Change = [&] {
    if (Window.First.Text() == "V") Window.First.SetText("VHS");
  };
  Type("V");
  EXPECT_EQ(FieldOf(Window.First).text(), "VHS");
}

TEST_F(Field, IsEditedAtTheCaret) {
  Type("abd");
  Key(Qt::Key_Left);
  Type("c");
  EXPECT_EQ(Window.First.Text(), "abcd");
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Window.First.Text(), "bd");
}

TEST_F(Field, UndoTakesTheEditBack) {
  Type("abc");
  FieldOf(Window.First).undo();
  EXPECT_EQ(Window.First.Text(), FieldOf(Window.First).text().toStdString());
  EXPECT_NE(Window.First.Text(), "abc");
}

TEST_F(Field, ATypedCharacterThatTheCodePageLacksBeeps) {
  Type(QString::fromUtf8("aж"));
  EXPECT_EQ(Window.First.Text(), "a");
  EXPECT_EQ(FieldOf(Window.First).text(), "a");
  EXPECT_EQ(Desk.Beeps, 1);
}

TEST_F(Field, OfAPastedTextOnlyWhatTheCodePageHasIsTaken) {
  QApplication::clipboard()->setText(QString::fromUtf8("Amélie ж 2"));
  FieldOf(Window.First).paste();
  QApplication::processEvents();
  EXPECT_EQ(Window.First.Text(), "Am\xe9lie  2");
  EXPECT_EQ(Desk.Beeps, 1);
  EXPECT_EQ(View.Notices().Text(), QString::fromUtf8("ж cannot be stored"));
}

TEST_F(Field, APasteThatIsTakenInPartCanBeUndone) {
  Type("abc");
  FieldView& field = FieldOf(Window.First);
  QApplication::clipboard()->setText(QString::fromUtf8("Człowiek"));
  field.setSelection(1, 1);
  field.paste();
  QApplication::processEvents();
  EXPECT_EQ(Window.First.Text(), "aCzowiekc");
  EXPECT_EQ(field.cursorPosition(), 8);
  field.undo();
  EXPECT_EQ(Window.First.Text(), "abc");
  field.undo();
  EXPECT_EQ(Window.First.Text(), "");
  field.redo();
  field.redo();
  EXPECT_EQ(Window.First.Text(), "aCzowiekc");
}

TEST_F(Field, APasteOfWhichNothingIsTakenLeavesTextAndSelection) {
  Type("abc");
  FieldView& field = FieldOf(Window.First);
  QApplication::clipboard()->setText(QString::fromUtf8("ж"));
  field.setSelection(1, 1);
  field.paste();
  QApplication::processEvents();
  EXPECT_EQ(Window.First.Text(), "abc");
  EXPECT_EQ(field.selectedText(), "b");
  field.undo();
  EXPECT_EQ(Window.First.Text(), "");
}

TEST_F(Field, BytesOfARecordStayInAFieldThatIsTypedInto) {
  Window.First.SetText("Fran\x90ois\x01");
  View.Sync();
  Key(Qt::Key_End);
  Type("!");
  EXPECT_EQ(Window.First.Text(), "Fran\x90ois\x01!");
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace);
  FieldOf(Window.First).undo();
  EXPECT_EQ(FieldOf(Window.First).text(), Shown(Window.First.Text()));
  EXPECT_TRUE(Window.First.Text().starts_with("Fran\x90ois"));
  EXPECT_EQ(Desk.Beeps, 0);
}

TEST_F(Field, WhatTheFormShowsIsNeverRefused) {
  Window.First.SetText("a\x01\x81z");
  View.Sync();
  EXPECT_EQ(FieldOf(Window.First).text().size(), 4);
  EXPECT_EQ(Window.First.Text(), "a\x01\x81z");
  EXPECT_EQ(Desk.Beeps, 0);
}

TEST_F(Field, WhatAnInputMethodHandsOverIsTyped) {
  int asked = 0;
  Window.First.KeyPress = [&] { ++asked; };
  QInputMethodEvent event;
  event.setCommitString(QString::fromUtf8("é"));
  QApplication::sendEvent(Focus(), &event);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(Window.First.Text(), "\xe9");
}

TEST_F(Field, AnInputMethodIsRefusedAsTheKeysAre) {
  Window.First.KeyPress = [&] { Window.Push.SetFocus(); };
  QInputMethodEvent event;
  event.setCommitString("x");
  QApplication::sendEvent(Focus(), &event);
  EXPECT_EQ(Window.First.Text(), "");
  EXPECT_EQ(FieldOf(Window.First).text(), "");
}

TEST_F(Field, OfNothingButBlanksIsSelectedWholeOnTheWayIn) {
  Window.Second.SetText("     ");
  View.Sync();
  Key(Qt::Key_Tab, "\t");
  ASSERT_EQ(Focus(), &WidgetOf(Window.Second));
  EXPECT_EQ(FieldOf(Window.Second).selectedText(), "     ");
  Type("G");
  EXPECT_EQ(Window.Second.Text(), "G");
}

TEST_F(Field, WithATextIsNotSelectedOnTheWayIn) {
  Window.Second.SetText("Solaris");
  View.Sync();
  Key(Qt::Key_Tab, "\t");
  EXPECT_FALSE(FieldOf(Window.Second).hasSelectedText());
  EXPECT_EQ(FieldOf(Window.Second).cursorPosition(), 7);
}

TEST_F(Field, AnEditThatTheFormDoesNotTakeIsUndone) {
  QApplication::clipboard()->setText("elsewhere");
  FieldOf(Window.Second).paste();
  EXPECT_EQ(Window.Second.Text(), "");
  EXPECT_EQ(FieldOf(Window.Second).text(), "");
}

TEST_F(Field, KeepsTheCaretWhenOtherControlsChange) {
  Type("abc");
  Key(Qt::Key_Left);
  Window.Second.SetText("other");
  View.Sync();
  EXPECT_EQ(FieldOf(Window.First).cursorPosition(), 2);
}

TEST_F(Field, IsNamedByItsTagForScreenReaders) { EXPECT_EQ(FieldOf(Window.First).accessibleName(), "The title of it"); }

}  // namespace
}  // namespace desktop
