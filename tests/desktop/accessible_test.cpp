// What screen readers are told of the windows, and when.
#include <gtest/gtest.h>

#include <QAccessible>

#include "desktop/input_dialog.h"
#include "desktop/text.h"
#include "tests/desktop/whole_program.h"

namespace desktop {
namespace {

class Ears : public testing::Test, public WholeProgram {
 protected:
  QString Heard() { return Form().Speech().Words(); }
  QAccessibleInterface& On(const forms::Control& control) { return Of(Form().ViewOf(control)->Widget()); }
  static QAccessibleInterface& Of(QObject& object) { return *QAccessible::queryAccessibleInterface(&object); }
  static QString Title(int record) { return Shown(kit::FilmBytes(record, 0).substr(0, 40)).trimmed(); }
  void TypeNewFilm() {
    Click(Screen().cmdNew);
    View.Deliver([&] { Screen().txtFormat.SetFocus(); });
    ASSERT_TRUE(Screen().List3.Visible());
  }
};

TEST_F(Ears, AFilmThatComesUpIsSaidWithItsPosition) {
  Click(Screen().cmdNext);
  EXPECT_TRUE(Heard().startsWith(Title(2) + ", ")) << Heard().toStdString();
  EXPECT_TRUE(Heard().endsWith(", record 2 of 25")) << Heard().toStdString();
  Click(Screen().cmdNext);
  EXPECT_TRUE(Heard().startsWith(Title(3) + ", ")) << Heard().toStdString();
}

TEST_F(Ears, TheSameFilmIsSaidAgain) {
  unsigned before = Form().Speech().Times();
  Click(Screen().cmdPrevious);  // at the top: a box, and the first film again
  Click(Screen().cmdPrevious);
  EXPECT_EQ(Form().Speech().Times() - before, 2);
  EXPECT_TRUE(Heard().endsWith(", record 1 of 25")) << Heard().toStdString();
}

TEST_F(Ears, HeadingsAndCountsAreSaidWhenTheyChange) {
  Click(Screen().cmdSort);
  EXPECT_TRUE(Heard().contains("No. Titles 25")) << Heard().toStdString();
  Click(Screen().mnuByTitle);
  EXPECT_TRUE(Heard().startsWith("Viewing All Titles Alphabetically. ")) << Heard().toStdString();
  Click(Screen().cmdNext);
  EXPECT_FALSE(Heard().contains("Viewing")) << Heard().toStdString();
}

TEST_F(Ears, ASavedFilmIsSaidToBeSaved) {
  Click(Screen().cmdEdit);
  Click(Screen().cmdSave);
  EXPECT_TRUE(Heard().contains("Your work has been saved") || Heard().contains("Your Work Has Been Saved!"))
      << Heard().toStdString();
}

TEST_F(Ears, ANoticeIsSaidOnce) {
  View.Notices().Show("Saved as films.pdf", {}, "a");
  EXPECT_EQ(Heard(), "Saved as films.pdf");
  Click(Screen().cmdNext);
  EXPECT_FALSE(Heard().contains("films.pdf"));
}

TEST_F(Ears, OfWhatWaitsForTheWindowTheLastIsKept) {
  QWidget hidden;
  Announcer announcer(hidden);
  for (int number = 0; number < 1000; ++number) announcer.Add(QString::number(number));
  announcer.Say();
  EXPECT_EQ(announcer.Words(), "");
  hidden.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&hidden));
  announcer.Say();
  EXPECT_TRUE(announcer.Words().startsWith("980. ") && announcer.Words().endsWith(" 999"))
      << announcer.Words().toStdString();
}

TEST_F(Ears, APickListThatOpensSaysWhatItHasTaken) {
  TypeNewFilm();
  EXPECT_TRUE(Heard().contains("Format V - L- D list, DVD is taken")) << Heard().toStdString();
}

TEST_F(Ears, APageOfTheListIsSaidByItsFirstAndLastTitle) {
  OpenList();
  QString words =
      QStringLiteral("List: 20 films, %1 to %2").arg(Shown(Screen().Text1[0].Text()), Shown(Screen().Text1[19].Text()));
  EXPECT_TRUE(Heard().endsWith(words)) << Heard().toStdString();
}

TEST_F(Ears, AWindowSaysWhatItHasWhenItComesToTheFront) {
  View.Deliver([&] { Program.QuickStart.Show(); });
  FormView& quick = *View.ViewOf(Program.QuickStart);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !quick.Speech().Words().isEmpty(); }));
  EXPECT_TRUE(quick.Speech().Words().startsWith("Quick Start. Click \"New\", or press Alt W."))
      << quick.Speech().Words().toStdString();
  EXPECT_TRUE(quick.Speech().Words().endsWith("Press F1 anywhere for help."));
}

TEST_F(Ears, WindowsAreFramesAndThePageSwitchRadioButtons) {
  EXPECT_EQ(Of(Form()).role(), QAccessible::Window);
  EXPECT_EQ(On(Screen().optNotesoff).role(), QAccessible::RadioButton);
  EXPECT_TRUE(On(Screen().optNotesoff).state().checked);
  EXPECT_FALSE(On(Screen().optnoteson).state().checked);
  On(Screen().optnoteson).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(On(Screen().optnoteson).state().checked);
  EXPECT_TRUE(Screen().txtProducer.Visible());
}

TEST_F(Ears, ALabelNamesItsFieldAndAButtonTellsItsKey) {
  auto relations = On(Screen().txtDirector).relations(QAccessible::Label);
  ASSERT_EQ(relations.size(), 1);
  EXPECT_EQ(relations[0].first->text(QAccessible::Name), "Director");
  relations = On(Screen().lblDirector).relations(QAccessible::Labelled);
  ASSERT_EQ(relations.size(), 1);
  EXPECT_EQ(relations[0].first, &On(Screen().txtDirector));
  EXPECT_EQ(On(Screen().cmdNew).actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
            QStringList("Alt+W"));
}

TEST_F(Ears, TheQuestionOfAnInputBoxNamesItsLine) {
  InputDialog box("Search", "Title & year\nto search:", nullptr, [](const QString&) {});
  auto& line = *box.findChild<QLineEdit*>();
  auto relations = Of(line).relations(QAccessible::Label);
  ASSERT_EQ(relations.size(), 1);
  EXPECT_EQ(relations[0].first->text(QAccessible::Name), "Title & year to search:");
  EXPECT_EQ(Of(line).text(QAccessible::Name), "Title & year to search:");
  EXPECT_EQ(Of(*box.findChild<QLabel*>()).relations(QAccessible::Labelled).at(0).first, &Of(line));
}

TEST_F(Ears, ControlsFollowEachOtherAsTheyStandOnTheWindow) {
  QAccessibleInterface& surface = Of(Form().Surface());
  QStringList names;
  for (int index = 0; index < 9; ++index) names.append(surface.child(index)->text(QAccessible::Name));
  EXPECT_EQ(names.join(' '), "Reset New Sort Delete Save Edit Match Back Next");
  EXPECT_EQ(surface.indexOfChild(surface.child(3)), 3);
  EXPECT_EQ(surface.child(-1), nullptr);
  EXPECT_EQ(surface.child(surface.childCount()), nullptr);
}

TEST_F(Ears, TheListOfTwentyIsATableWithHeaders) {
  OpenList();
  QAccessibleInterface& table = Of(Form().List());
  EXPECT_FALSE(table.state().invisible);
  ASSERT_EQ(table.tableInterface()->rowCount(), 20);
  ASSERT_EQ(table.tableInterface()->columnCount(), 3);
  QAccessibleInterface& cell = *table.tableInterface()->cellAt(4, 0);
  EXPECT_EQ(cell.role(), QAccessible::Cell);
  EXPECT_EQ(cell.text(QAccessible::Name), "Title, row 5");
  EXPECT_EQ(cell.text(QAccessible::Value), Shown(Screen().Text1[4].Text()));
  EXPECT_EQ(cell.parent(), &table);
  EXPECT_EQ(table.child(table.indexOfChild(&cell)), &cell);
  EXPECT_EQ(cell.tableCellInterface()->rowIndex(), 4);
  EXPECT_EQ(cell.tableCellInterface()->columnHeaderCells().at(0)->text(QAccessible::Name), "Title");
  EXPECT_EQ(cell.tableCellInterface()->rowHeaderCells().at(0)->text(QAccessible::Name), "row 5");
  EXPECT_EQ(table.tableInterface()->columnDescription(2), "Format");
  EXPECT_EQ(table.tableInterface()->cellAt(20, 0), nullptr);
}

TEST_F(Ears, WhatTheListCoversIsNotSaidToShow) {
  EXPECT_FALSE(On(Screen().txtTitle).state().invisible);
  OpenList();
  EXPECT_TRUE(Screen().txtTitle.Visible());
  EXPECT_TRUE(On(Screen().txtTitle).state().invisible);
  EXPECT_TRUE(On(Screen().lblDirector).state().invisible);
  EXPECT_FALSE(On(Screen().Text1[0]).state().invisible);
  EXPECT_FALSE(On(Screen().cmdReset).state().invisible);
}

TEST_F(Ears, AFieldsTextCanBeReadAndChanged) {
  TypeNewFilm();
  View.Deliver([&] { Screen().txtTitle.SetFocus(); });
  QAccessibleInterface& field = On(Screen().txtTitle);
  field.editableTextInterface()->insertText(0, "Alien");
  EXPECT_EQ(Screen().txtTitle.Text(), "Alien");
  EXPECT_EQ(field.textInterface()->characterCount(), 5);
  EXPECT_EQ(field.textInterface()->text(1, 3), "li");
  field.editableTextInterface()->replaceText(0, 5, "Brazil");
  EXPECT_EQ(Screen().txtTitle.Text(), "Brazil");
  field.textInterface()->setSelection(0, 1, 3);
  int start = 0, end = 0;
  field.textInterface()->selection(0, &start, &end);
  EXPECT_EQ(start * 10 + end, 13);
  Form().grab();  // the toolkit moves a text to its place when it paints it
  EXPECT_EQ(field.textInterface()->offsetAtPoint(field.textInterface()->characterRect(3).center()), 3);
  EXPECT_EQ(On(Screen().txtAutoSave).editableTextInterface(), nullptr);
}

TEST_F(Ears, TheCopyWindowHasFilesAndDrivesAndNothingBeneath) {
  View.Deliver([&] { Program.Copy.Open(); });
  FormView& copy = *View.ViewOf(Program.Copy);
  QAccessibleInterface& surface = Of(copy.Surface());
  QStringList lists;
  for (int index = 0; index < surface.childCount(); ++index)
    if (surface.child(index)->role() == QAccessible::List) lists.append(surface.child(index)->text(QAccessible::Name));
  EXPECT_EQ(lists.join(' '), "Files Drives");
  EXPECT_EQ(copy.ViewOf(Program.Copy.Dir1)->Widget().accessibleName(), "Folders");
  EXPECT_EQ(copy.focusWidget(), &copy.ViewOf(Program.Copy.File1)->Widget());
}

}  // namespace
}  // namespace desktop
