// The window that asks which collection to open, and what it makes of the user's answer.
#include "desktop/collection_dialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include "tests/kit/fresh_folder.h"

namespace desktop {
namespace {

using launcher::Choice;
using launcher::Question;

const Question First{"", {}, "/home/anna/Film Collection"};
const Question Lost{"/media/disk/films", {"/films/one", "/films/two & three"}, "/home/anna/Film Collection"};

struct Dialog {
  explicit Dialog(const Question& question) : Window(question) {}
  // What the user gets who does that in the open window.
  template <typename Use>
  Choice After(Use use) {
    QTimer::singleShot(0, &Window, [&] { use(*this); });
    return Window.Ask();
  }
  QString Heading() const { return Window.findChild<QLabel*>()->text(); }
  QStringList Rows() const {
    QStringList texts;
    for (const QRadioButton* row : Window.findChildren<QRadioButton*>()) texts.append(row->text());
    return texts;
  }
  QRadioButton& Row(int at) const { return *Window.findChildren<QRadioButton*>().at(at); }
  QLineEdit& NewFolder() const { return *Window.findChildren<QLineEdit*>().at(0); }
  QLineEdit& ExistingFolder() const { return *Window.findChildren<QLineEdit*>().at(1); }
  QPushButton& Open() const {
    for (QPushButton* button : Window.findChildren<QPushButton*>())
      if (button->text() == "&Open") return *button;
    throw std::logic_error("no button to open");
  }

  CollectionDialog Window;
};

void ExpectChoice(const Choice& choice, Choice::What what, const std::string& folder) {
  EXPECT_EQ(choice.For, what);
  EXPECT_EQ(choice.Folder, folder);
}

TEST(CollectionDialog, AtTheFirstStartEnterMakesTheUsualCollection) {
  Dialog dialog(First);
  EXPECT_TRUE(dialog.Heading().startsWith("Welcome"));
  EXPECT_EQ(dialog.Rows().size(), 3);
  ExpectChoice(dialog.After([](Dialog& shown) { QTest::keyClick(&shown.Window, Qt::Key_Return); }), Choice::What::New,
               "/home/anna/Film Collection");
}

TEST(CollectionDialog, EscGivesUp) {
  Dialog dialog(First);
  ExpectChoice(dialog.After([](Dialog& shown) { QTest::keyClick(&shown.Window, Qt::Key_Escape); }),
               Choice::What::Nothing, "");
}

TEST(CollectionDialog, OfALostCollectionNamesItAndOffersTheOthers) {
  Dialog dialog(Lost);
  EXPECT_TRUE(QString(dialog.Heading()).remove(QChar(0x200B)).contains("/media/disk/films"));
  EXPECT_EQ(dialog.Rows().mid(0, 3), QStringList({"&Try again", "/films/one", "/films/two && three"}));
  ExpectChoice(dialog.After([](Dialog& shown) { QTest::keyClick(&shown.Window, Qt::Key_Return); }),
               Choice::What::Existing, "/media/disk/films");
  ExpectChoice(dialog.After([](Dialog& shown) {
    shown.Row(2).click();
    shown.Open().click();
  }),
               Choice::What::Existing, "/films/two & three");
}

TEST(CollectionDialog, ArrowsGoFromRowToRow) {
  Dialog dialog(First);
  Choice choice = dialog.After([](Dialog& shown) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&shown.Window));
    EXPECT_EQ(shown.Window.focusWidget(), &shown.Row(0));
    QTest::keyClick(&shown.Row(0), Qt::Key_Down);
    QTest::keyClick(&shown.Row(1), Qt::Key_Down);
    EXPECT_EQ(shown.Window.focusWidget(), &shown.Row(2));
    QTest::keyClick(&shown.Row(2), Qt::Key_Return);
  });
  EXPECT_EQ(choice.For, Choice::What::Sample);
}

TEST(CollectionDialog, TypingChoosesTheRow) {
  Dialog dialog(First);
  ExpectChoice(dialog.After([](Dialog& shown) {
    QTest::keyClicks(&shown.ExistingFolder(), "/films");
    EXPECT_TRUE(shown.Row(1).isChecked());
    shown.Open().click();
  }),
               Choice::What::Existing, "/films");
}

TEST(CollectionDialog, WithoutAFolderNothingCanBeOpened) {
  Dialog dialog(First);
  dialog.Row(1).click();
  EXPECT_FALSE(dialog.Open().isEnabled());
  QTest::keyClicks(&dialog.ExistingFolder(), " ");
  EXPECT_FALSE(dialog.Open().isEnabled());
  QTest::keyClicks(&dialog.ExistingFolder(), "films");
  EXPECT_TRUE(dialog.Open().isEnabled());
  dialog.Row(2).click();
  EXPECT_TRUE(dialog.Open().isEnabled());
}

TEST(CollectionDialog, WithoutAHomeThereIsNoUsualCollection) {
  Dialog dialog({"", {}, ""});
  EXPECT_EQ(dialog.NewFolder().text(), "");
  EXPECT_FALSE(dialog.Open().isEnabled());
}

TEST(CollectionDialog, ANameThatIsNoTextKeepsItsBytes) {
  Dialog dialog({"", {"/films/\xFF"}, "/home/\xFE/Film Collection"});
  ExpectChoice(dialog.After([](Dialog& shown) { shown.Open().click(); }), Choice::What::Existing, "/films/\xFF");
  ExpectChoice(dialog.After([](Dialog& shown) {
    shown.Row(1).click();
    shown.Open().click();
  }),
               Choice::What::New, "/home/\xFE/Film Collection");
}

TEST(CollectionDialog, ALongNameLeavesTheWindowNarrow) {
  const std::string longest = "/" + std::string(250, 'a') + "/" + std::string(250, 'b');
  Dialog dialog({longest, {longest}, longest});
  EXPECT_LT(dialog.Window.sizeHint().width(), 700);
  EXPECT_EQ(dialog.Row(1).toolTip().toStdString(), longest);
}

TEST(TypedFolder, MayBeginAtHome) {
  EXPECT_EQ(TypedFolder(" /films ", "/home/anna"), "/films");
  EXPECT_EQ(TypedFolder("films", "/home/anna"), "/home/anna/films");
  EXPECT_EQ(TypedFolder("~/films", "/home/anna"), "/home/anna/films");
  EXPECT_EQ(TypedFolder("~", "/home/anna"), "/home/anna");
  EXPECT_EQ(TypedFolder("films", ""), "");
  EXPECT_EQ(TypedFolder("  ", "/home/anna"), "");
}

TEST(FolderForNew, IsAFolderOfItsOwn) {
  kit::FreshFolder picked;
  QString path = QString::fromStdString(picked.Path().string());
  EXPECT_EQ(FolderForNew(path), path);
  QDir(path).mkdir("letters");
  EXPECT_EQ(FolderForNew(path), path + "/Film Collection");
  ASSERT_TRUE(QFile(path + "/Recpra.Dat").open(QFile::WriteOnly));
  EXPECT_EQ(FolderForNew(path), path);
}

}  // namespace
}  // namespace desktop
