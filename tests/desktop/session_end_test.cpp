// The end of the session: the question, its three answers, and signals with and without a box.
#include "desktop/session_end.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <array>
#include <csignal>
#include <string>

#include "app/program.h"
#include "desktop/draft_box.h"
#include "desktop/qt_desk.h"
#include "desktop/stack_view.h"
#include "tests/kit/collection.h"

namespace desktop {
namespace {

// Runs when a box is up.
void WhenABoxIsUp(const std::function<void(QMessageBox&)>& act) {
  QTimer::singleShot(0, qApp, [act] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return WhenABoxIsUp(act);
    act(*box);
  });
}

void Press(QMessageBox& box, const QString& caption) {
  for (QAbstractButton* button : box.buttons())
    if (button->text().remove('&') == caption) return button->click();
  FAIL() << "no button " << caption.toStdString();
}

constexpr std::array Signals = {SIGTERM, SIGINT, SIGHUP};

// A shell lets background programs ignore SIGINT, and what is ignored stays so.
struct DefaultSignals {
  DefaultSignals() {
    for (int signal : Signals) std::signal(signal, SIG_DFL);
  }
};

class Session : public testing::Test {
 protected:
  Session() {
    Desk.DrawOn(View);
    Program.StartRecordScreen();
    View.Sync();
  }
  // An exit outside the main loop leaves every later loop ended.
  ~Session() override {
    QTimer::singleShot(0, qApp, [] { QApplication::exit(0); });
    QApplication::exec();
  }

  void TypeTitle() {
    View.Deliver([&] { Screen.cmdNew_Click(); });
    View.Deliver([&] { Screen.txtTitle.SetText("Alien"); });
  }
  bool HasDraft() { return std::filesystem::exists(Collection.Folder() / ".reelora/draft"); }
  bool HasFilm() { return std::filesystem::file_size(Collection.Folder() / "Recpra.Dat") > 0; }

  kit::Collection Collection;
  runtime::RealDisk Disk{Collection.Folder().string()};
  QtDesk Desk{Collection.Folder().string()};
  ::Program Program{Desk, Disk};
  frmPage1& Screen = Program.RecordScreen;
  StackView View{Program.Windows, [this](const std::function<void()>& event) { Program.Deliver(event); }};
  DefaultSignals Defaults;
  SessionEnd End{Program, View, Desk};
};

TEST_F(Session, EndsUnaskedWithNothingOpen) {
  EXPECT_TRUE(End.AskToEnd());
  EXPECT_FALSE(Program.Ended());
}

TEST_F(Session, AsksAsOnClosingAndSaves) {
  TypeTitle();
  WhenABoxIsUp([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "You have not saved your work. To save your work hit Yes, else hit No and quit");
    Press(box, "Yes");
  });
  EXPECT_TRUE(End.AskToEnd());
  EXPECT_TRUE(Program.Ended());
  EXPECT_TRUE(HasFilm());
  EXPECT_FALSE(HasDraft());
}

TEST_F(Session, GivesTheFilmUpOnNo) {
  TypeTitle();
  ASSERT_TRUE(HasDraft());
  WhenABoxIsUp([](QMessageBox& box) { Press(box, "No"); });
  EXPECT_TRUE(End.AskToEnd());
  EXPECT_TRUE(Program.Ended());
  EXPECT_FALSE(HasFilm());
  EXPECT_FALSE(HasDraft());
}

TEST_F(Session, CanBeCalledOff) {
  TypeTitle();
  WhenABoxIsUp([](QMessageBox& box) { Press(box, "Cancel"); });
  EXPECT_FALSE(End.AskToEnd());
  EXPECT_FALSE(Program.Ended());
  EXPECT_EQ(Screen.txtTitle.Text(), "Alien");
  EXPECT_TRUE(HasDraft());
}

TEST_F(Session, EndedBySignalClosesItsOwnQuestion) {
  TypeTitle();
  WhenABoxIsUp([](QMessageBox&) { std::raise(SIGTERM); });
  EXPECT_TRUE(End.AskToEnd());
  EXPECT_TRUE(Desk.SessionHasEnded());
  EXPECT_TRUE(HasDraft());
}

class SessionSignal : public Session, public testing::WithParamInterface<int> {};

// A handler that waits for an answer goes no further: no answer is made up.
TEST_P(SessionSignal, LeavesTheQuestionOfAHandlerUnanswered) {
  TypeTitle();
  WhenABoxIsUp([](QMessageBox&) { std::raise(GetParam()); });
  View.Deliver([&] { Screen.UserClose(); });
  EXPECT_TRUE(Program.Ended());
  EXPECT_TRUE(Desk.SessionHasEnded());
  EXPECT_TRUE(HasDraft());
  EXPECT_FALSE(HasFilm());
}

INSTANTIATE_TEST_SUITE_P(Each, SessionSignal, testing::ValuesIn(Signals), [](const auto& info) {
  return std::string(info.param == SIGTERM ? "SIGTERM" : info.param == SIGINT ? "SIGINT" : "SIGHUP");
});

TEST_F(Session, IsNotAskedAboutWhileAHandlerRuns) {
  TypeTitle();
  View.Deliver([&] { EXPECT_TRUE(End.AskToEnd()); });
  EXPECT_FALSE(Program.Ended());
  EXPECT_TRUE(HasDraft());
}

TEST_F(Session, ThatTellsTheProgramToQuitLeavesTheDraft) {
  TypeTitle();
  QEvent quit(QEvent::Quit);
  QApplication::sendEvent(qApp, &quit);
  EXPECT_TRUE(Desk.SessionHasEnded());
  EXPECT_TRUE(HasDraft());
}

class DraftQuestion : public testing::Test {
 protected:
  DraftBox Box{"Reelora Prima", "Alien", nullptr};
};

TEST_F(DraftQuestion, HasTheTitleAndTwoButtons) {
  WhenABoxIsUp([](QMessageBox& box) {
    EXPECT_TRUE(box.text().endsWith("\n\nAlien"));
    QStringList seen;
    for (QAbstractButton* button : box.buttons())
      if (button->isVisible()) seen << button->text();
    seen.sort();
    EXPECT_EQ(seen, (QStringList{"Drop it", "Keep it"}));
    EXPECT_EQ(box.defaultButton()->text(), "Keep it");
    Press(box, "Keep it");
  });
  EXPECT_EQ(Box.Ask(), forms::DraftAnswer::Keep);
}

TEST_F(DraftQuestion, DropsOnThatButton) {
  WhenABoxIsUp([](QMessageBox& box) { Press(box, "Drop it"); });
  EXPECT_EQ(Box.Ask(), forms::DraftAnswer::Drop);
}

TEST_F(DraftQuestion, IsLeftForLaterByEscAndTheCloseBox) {
  WhenABoxIsUp([](QMessageBox& box) {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&box, &escape);
  });
  EXPECT_EQ(Box.Ask(), forms::DraftAnswer::Later);
  WhenABoxIsUp([](QMessageBox& box) { box.close(); });
  EXPECT_EQ(Box.Ask(), forms::DraftAnswer::Later);
}

}  // namespace
}  // namespace desktop
