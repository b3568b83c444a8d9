// Editing in a text box.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QInputMethodEvent>

#include "desktop/text.h"
#include "tests/desktop/small_window.h"

namespace desktop {
namespace {

class Field : public testing::Test, public DrawnWindow {
 protected:
  Field() { Form.Title.SetFocus(), View.Sync(); }
};

TEST_F(Field, TypingAsksKeyPressBeforeTheTextChanges) {
  std::string seen;
  Form.Title.KeyPress = [&] { seen += "[" + Form.Title.Text() + "]"; };
  Form.Title.Change = [&] { seen += Form.Title.Text(); };
  Type("ab");
  EXPECT_EQ(seen, "[]a[a]ab");
  EXPECT_EQ(FieldOf(Form.Title).text(), "ab");
}

TEST_F(Field, ACharacterIsDroppedWhenKeyPressMovesTheFocus) {
  Form.Title.KeyPress = [&] { Form.Save.SetFocus(); };
  Type("a");
  EXPECT_EQ(Form.Title.Text(), "");
  EXPECT_EQ(FieldOf(Form.Title).text(), "");
  EXPECT_EQ(Focus(), &WidgetOf(Form.Save));
}

TEST_F(Field, ShowsWhatChangeMadeOfTheText) {
  Form.Title.Change = [&] {
    if (Form.Title.Text() == "V") Form.Title.SetText("VHS");
  };
  Type("V");
  EXPECT_EQ(FieldOf(Form.Title).text(), "VHS");
}

TEST_F(Field, IsEditedAtTheCaret) {
  Type("abd");
  Key(Qt::Key_Left);
  Type("c");
  EXPECT_EQ(Form.Title.Text(), "abcd");
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Form.Title.Text(), "bd");
}

TEST_F(Field, UndoTakesTheEditBack) {
  Type("abc");
  FieldOf(Form.Title).undo();
  EXPECT_EQ(Form.Title.Text(), FieldOf(Form.Title).text().toStdString());
  EXPECT_NE(Form.Title.Text(), "abc");
}

TEST_F(Field, ATypedCharacterThatTheCodePageLacksBeeps) {
  Type(QString::fromUtf8("aж"));
  EXPECT_EQ(Form.Title.Text(), "a");
  EXPECT_EQ(FieldOf(Form.Title).text(), "a");
  EXPECT_EQ(Desk.Beeps, 1);
}

TEST_F(Field, OfAPastedTextOnlyWhatTheCodePageHasIsTaken) {
  QApplication::clipboard()->setText(QString::fromUtf8("Amélie ж 2"));
  FieldOf(Form.Title).paste();
  QApplication::processEvents();
  EXPECT_EQ(Form.Title.Text(), "Am\xe9lie  2");
  EXPECT_EQ(Desk.Beeps, 1);
  EXPECT_EQ(View.Notices().Text(), QString::fromUtf8("ж cannot be stored"));
}

TEST_F(Field, APasteThatIsTakenInPartCanBeUndone) {
  Type("abc");
  FieldView& field = FieldOf(Form.Title);
  QApplication::clipboard()->setText(QString::fromUtf8("Człowiek"));
  field.setSelection(1, 1);
  field.paste();
  QApplication::processEvents();
  EXPECT_EQ(Form.Title.Text(), "aCzowiekc");
  EXPECT_EQ(field.cursorPosition(), 8);
  field.undo();
  EXPECT_EQ(Form.Title.Text(), "abc");
  field.undo();
  EXPECT_EQ(Form.Title.Text(), "");
  field.redo();
  field.redo();
  EXPECT_EQ(Form.Title.Text(), "aCzowiekc");
}

TEST_F(Field, APasteOfWhichNothingIsTakenLeavesTextAndSelection) {
  Type("abc");
  FieldView& field = FieldOf(Form.Title);
  QApplication::clipboard()->setText(QString::fromUtf8("ж"));
  field.setSelection(1, 1);
  field.paste();
  QApplication::processEvents();
  EXPECT_EQ(Form.Title.Text(), "abc");
  EXPECT_EQ(field.selectedText(), "b");
  field.undo();
  EXPECT_EQ(Form.Title.Text(), "");
}

TEST_F(Field, BytesOfARecordStayInAFieldThatIsTypedInto) {
  Form.Title.SetText("Fran\x90ois\x01");
  View.Sync();
  Key(Qt::Key_End);
  Type("!");
  EXPECT_EQ(Form.Title.Text(), "Fran\x90ois\x01!");
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Backspace);
  FieldOf(Form.Title).undo();
  EXPECT_EQ(FieldOf(Form.Title).text(), Shown(Form.Title.Text()));
  EXPECT_TRUE(Form.Title.Text().starts_with("Fran\x90ois"));
  EXPECT_EQ(Desk.Beeps, 0);
}

TEST_F(Field, WhatTheFormShowsIsNeverRefused) {
  Form.Title.SetText("a\x01\x81z");
  View.Sync();
  EXPECT_EQ(FieldOf(Form.Title).text().size(), 4);
  EXPECT_EQ(Form.Title.Text(), "a\x01\x81z");
  EXPECT_EQ(Desk.Beeps, 0);
}

TEST_F(Field, WhatAnInputMethodHandsOverIsTyped) {
  int asked = 0;
  Form.Title.KeyPress = [&] { ++asked; };
  QInputMethodEvent event;
  event.setCommitString(QString::fromUtf8("é"));
  QApplication::sendEvent(Focus(), &event);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(Form.Title.Text(), "\xe9");
}

TEST_F(Field, AnInputMethodIsRefusedAsTheKeysAre) {
  Form.Title.KeyPress = [&] { Form.Save.SetFocus(); };
  QInputMethodEvent event;
  event.setCommitString("x");
  QApplication::sendEvent(Focus(), &event);
  EXPECT_EQ(Form.Title.Text(), "");
  EXPECT_EQ(FieldOf(Form.Title).text(), "");
}

TEST_F(Field, OfNothingButBlanksIsSelectedWholeOnTheWayIn) {
  Form.Star.SetText("     ");
  View.Sync();
  Key(Qt::Key_Tab, "\t");
  ASSERT_EQ(Focus(), &WidgetOf(Form.Star));
  EXPECT_EQ(FieldOf(Form.Star).selectedText(), "     ");
  Type("G");
  EXPECT_EQ(Form.Star.Text(), "G");
}

TEST_F(Field, WithATextIsNotSelectedOnTheWayIn) {
  Form.Star.SetText("Solaris");
  View.Sync();
  Key(Qt::Key_Tab, "\t");
  EXPECT_FALSE(FieldOf(Form.Star).hasSelectedText());
  EXPECT_EQ(FieldOf(Form.Star).cursorPosition(), 7);
}

TEST_F(Field, AnEditThatTheFormDoesNotTakeIsUndone) {
  QApplication::clipboard()->setText("elsewhere");
  FieldOf(Form.Star).paste();
  EXPECT_EQ(Form.Star.Text(), "");
  EXPECT_EQ(FieldOf(Form.Star).text(), "");
}

TEST_F(Field, KeepsTheCaretWhenOtherControlsChange) {
  Type("abc");
  Key(Qt::Key_Left);
  Form.Star.SetText("other");
  View.Sync();
  EXPECT_EQ(FieldOf(Form.Title).cursorPosition(), 2);
}

TEST_F(Field, IsNamedByItsTagForScreenReaders) { EXPECT_EQ(FieldOf(Form.Title).accessibleName(), "The title of it"); }

}  // namespace
}  // namespace desktop
