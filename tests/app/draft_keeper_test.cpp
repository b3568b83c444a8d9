// When a draft is written, when it goes, and what the start asks.
#include "app/draft_keeper.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>

#include "app/program.h"
#include "store/master_file.h"
#include "tests/kit/draft_desk.h"
#include "tests/kit/films.h"
#include "tests/kit/passing_disk.h"
#include "tests/kit/refusing_disk.h"

namespace {

const std::string Master(store::MasterFileName);
const std::string DraftFile = ".reelora/draft";

// Counts the drafts that are written, and refuses to if told so.
class DraftDisk final : public kit::PassingDisk {
 public:
  using kit::PassingDisk::PassingDisk;
  int Drafts = 0;
  bool Full = false;

  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    if (!NameOf(handle).starts_with(DraftFile)) return kit::PassingDisk::WriteAt(handle, source, count, offset);
    ++Drafts;
    return Full ? -ENOSPC : kit::PassingDisk::WriteAt(handle, source, count, offset);
  }
};

// A run of the program; a second one on the same disk is the next start.
struct ProgramRun {
  explicit ProgramRun(runtime::Disk& disk) : Program(Desk, disk) {}
  kit::DraftDesk Desk;
  ::Program Program;
  frmPage1& Screen = Program.RecordScreen;

  void Click(forms::Control& control) {
    Program.Deliver([&] { Screen.UserClick(control); });
  }
  void Type(forms::TextBox& box, std::string_view text) {
    Program.Deliver([&] { box.SetText(text); });
  }
  void Edit(int slot) {
    while (Screen.CurrentRecNo < slot) Click(Screen.cmdNext);
    Click(Screen.cmdEdit);
  }
  void TypeNewFilm() {
    Program.StartRecordScreen();
    Click(Screen.cmdNew);
    Type(Screen.txtTitle, "Alien");
  }
};

class Drafts : public testing::Test {
 protected:
  kit::MemoryDisk Memory{kit::FolderOfFilms(9)};
  DraftDisk Disk{Memory};

  std::optional<store::Draft> Left(const std::string& name = "draft") { return store::ReadDraft(Memory, name); }
  bool HasDraft() { return Memory.Content().contains(DraftFile); }
  std::string Slot(std::size_t slot) {
    return Memory.Content().at(Master).substr((slot - 1) * store::RecordLength, store::RecordLength);
  }
  // A run that is stopped while slot 7 is being edited; the title typed is `title`.
  void StopInEdit(std::string_view title) {
    ProgramRun run(Disk);
    run.Program.StartRecordScreen();
    run.Edit(7);
    run.Type(run.Screen.txtTitle, title);
  }
};

TEST_F(Drafts, HoldWhatTheLastEventLeftInTheBoxes) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Edit(7);
  EXPECT_FALSE(HasDraft());
  run.Type(run.Screen.txtTitle, "The Keeper");
  run.Type(run.Screen.txtStar2, "Jane Doe");
  ASSERT_TRUE(Left());
  EXPECT_EQ(Left()->Slot, 7);
  EXPECT_FALSE(Left()->IsNew);
  EXPECT_EQ(Left()->Title, "The Keeper");
  EXPECT_EQ(Left()->Film.Get(store::FilmField::Star2).substr(0, 9), "Jane Doe ");
  EXPECT_EQ(std::string(Left()->Before.Bytes.data(), store::RecordLength), kit::FilmBytes(7, 0));
  EXPECT_EQ(Slot(7), kit::FilmBytes(7, 0));
}

TEST_F(Drafts, OfARecordNumberThatNoSaveWritesAreKeptAsNewFilms) {
  kit::Folder folder = kit::FolderOfFilms(9);
  folder["Last"] = "-5\r\n";
  kit::MemoryDisk memory(folder);
  ProgramRun stopped(memory);
  stopped.Program.StartRecordScreen();
  stopped.Click(stopped.Screen.mnuLastEntry);
  stopped.Click(stopped.Screen.cmdEdit);
  stopped.Type(stopped.Screen.txtTitle, "Kept");
  stopped.Click(stopped.Screen.cmdSave);
  ASSERT_EQ(stopped.Desk.Reported, runtime::BadRecordNumber);
  const std::optional<store::Draft> left = store::ReadDraft(memory, "draft");
  ASSERT_TRUE(left);
  EXPECT_TRUE(left->IsNew);
  EXPECT_EQ(left->Slot, 1);

  ProgramRun run(memory);
  run.Desk.Draft = forms::DraftAnswer::Keep;
  run.Program.StartOpener();
  EXPECT_EQ(run.Desk.Asked, std::vector<std::string>{"Kept"});
  const std::string master = memory.Content().at(Master);
  EXPECT_EQ(master.substr(0, 9 * store::RecordLength), folder.at(Master));
  EXPECT_EQ(master.substr(9 * store::RecordLength, 5), "Kept ");
}

TEST_F(Drafts, OfNewFilmsSaySo) {
  ProgramRun run(Disk);
  run.TypeNewFilm();
  ASSERT_TRUE(Left());
  EXPECT_TRUE(Left()->IsNew);
}

TEST_F(Drafts, StayWhereTheFilmCannotBeReadAgain) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Edit(7);
  run.Type(run.Screen.txtTitle, "Kept");
  run.Program.Deliver([&] {
    run.Program.Files.Close(static_cast<int>(run.Screen.MasterFileNo));
    run.Screen.EditMode = 0;
  });
  EXPECT_TRUE(HasDraft());
}

TEST_F(Drafts, ThatCannotBeReadStayForALaterStart) {
  StopInEdit("Kept");
  kit::RefusingDisk refusing(Memory, DraftFile);
  ProgramRun run(refusing);
  run.Desk.Draft = forms::DraftAnswer::Drop;
  run.Program.StartOpener();
  EXPECT_EQ(run.Desk.Asked, std::vector<std::string>());
  EXPECT_EQ(run.Desk.Reported, "");
  EXPECT_TRUE(HasDraft());
}

TEST_F(Drafts, StayWhereNobodyCanBeAsked) {
  StopInEdit("Kept");
  kit::QuietDesk desk;
  Program program(desk, Memory);
  program.StartOpener();
  EXPECT_TRUE(HasDraft());
  EXPECT_EQ(Slot(7), kit::FilmBytes(7, 0));
}

TEST_F(Drafts, AreNotWrittenWhenNothingHasChanged) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Type(run.Screen.txtTitle, "not open");
  run.Edit(7);
  EXPECT_EQ(Disk.Drafts, 0);
  run.Type(run.Screen.txtTitle, "Alien");
  run.Type(run.Screen.txtTitle, "Alien");
  run.Program.Deliver([&] { run.Screen.UserMove(nullptr); });
  EXPECT_EQ(Disk.Drafts, 1);
}

TEST_F(Drafts, GoWhenTheFilmIsSaved) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Edit(7);
  run.Type(run.Screen.txtTitle, "Alien");
  ASSERT_TRUE(HasDraft());
  run.Click(run.Screen.cmdSave);
  EXPECT_FALSE(HasDraft());
}

TEST_F(Drafts, GoWhenTheFilmIsSavedAsItWas) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Edit(7);
  std::string title(run.Screen.txtTitle.Text());
  run.Type(run.Screen.txtTitle, "Alien");
  run.Type(run.Screen.txtTitle, title);
  ASSERT_TRUE(HasDraft());
  run.Click(run.Screen.cmdSave);
  EXPECT_FALSE(HasDraft());
}

TEST_F(Drafts, GoWhenTheUserSaysNo) {
  for (bool closes : {false, true}) {
    ProgramRun run(Disk);
    run.Program.StartRecordScreen();
    run.Edit(7);
    run.Type(run.Screen.txtTitle, "Alien");
    ASSERT_TRUE(HasDraft());
    run.Desk.Question = forms::Answer::No;
    if (closes) run.Program.Deliver([&] { run.Screen.UserClose(); });
    if (!closes) run.Click(run.Screen.cmdReset);
    EXPECT_FALSE(HasDraft());
  }
}

TEST_F(Drafts, GoWhenTheFilmIsDeleted) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Edit(7);
  run.Type(run.Screen.txtTitle, "Alien");
  ASSERT_TRUE(HasDraft());
  run.Program.Deliver([&] { run.Screen.cmdDelete_Click(); });
  EXPECT_FALSE(HasDraft());
}

TEST_F(Drafts, OfANewFilmGoWhenItIsDeleted) {
  ProgramRun run(Disk);
  run.TypeNewFilm();
  ASSERT_TRUE(HasDraft());
  run.Click(run.Screen.cmdDelete);
  EXPECT_FALSE(HasDraft());
}

TEST_F(Drafts, StandWhenAnotherHandlerLeavesTheFilmUnasked) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Edit(7);
  run.Type(run.Screen.txtTitle, "Alien");
  run.Program.Deliver([&] { run.Screen.EditMode = 0; });
  EXPECT_TRUE(HasDraft());
  run.Program.Deliver([&] { run.Screen.cmdReset_Click(); });
  run.Edit(3);
  run.Type(run.Screen.txtTitle, "Brazil");
  EXPECT_EQ(Left()->Title, "Alien");
  ASSERT_TRUE(Left("draft2"));
  EXPECT_EQ(Left("draft2")->Title, "Brazil");
  run.Click(run.Screen.cmdSave);
  EXPECT_TRUE(Left());
  EXPECT_FALSE(Left("draft2"));
}

TEST_F(Drafts, ThatCannotBeWrittenAreToldOnceAndStopNothing) {
  ProgramRun run(Disk);
  run.Program.StartRecordScreen();
  run.Edit(7);
  Disk.Full = true;
  run.Type(run.Screen.txtTitle, "Alien");
  run.Type(run.Screen.txtTitle, "Aliens");
  EXPECT_EQ(run.Desk.Notices, std::vector<std::string>{"What you type cannot be kept in case of a stop: Disk full."});
  EXPECT_FALSE(run.Program.Stopped());
  Disk.Full = false;
  run.Type(run.Screen.txtTitle, "Alien 3");
  EXPECT_EQ(Left()->Title, "Alien 3");
}

TEST_F(Drafts, AreKeptWithTheArticleBehindTheTitle) {
  StopInEdit("The Keeper");
  ProgramRun next(Disk);
  next.Desk.Draft = forms::DraftAnswer::Keep;
  next.Program.StartOpener();
  EXPECT_EQ(next.Desk.Asked, std::vector<std::string>{"The Keeper"});
  EXPECT_EQ(Slot(7).substr(0, 12), "Keeper, The ");
  EXPECT_FALSE(HasDraft());
  EXPECT_TRUE(next.Program.Opener.Visible());
}

TEST_F(Drafts, AreDroppedByThatAnswerAlone) {
  StopInEdit("Alien");
  for (forms::DraftAnswer answer : {forms::DraftAnswer::Later, forms::DraftAnswer::Drop}) {
    ProgramRun next(Disk);
    next.Desk.Draft = answer;
    next.Program.StartOpener();
    EXPECT_EQ(next.Desk.Asked, std::vector<std::string>{"Alien"});
    EXPECT_EQ(HasDraft(), answer == forms::DraftAnswer::Later);
  }
  EXPECT_EQ(Slot(7), kit::FilmBytes(7, 0));
}

TEST_F(Drafts, LeftForLaterOutliveAFurtherFilm) {
  StopInEdit("Alien");
  StopInEdit("Brazil");
  ProgramRun next(Disk);
  next.Program.StartOpener();
  EXPECT_EQ(next.Desk.Asked, (std::vector<std::string>{"Alien", "Brazil"}));
}

TEST_F(Drafts, OfASavedFilmAreNotAskedAbout) {
  StopInEdit("The Keeper");
  store::Draft draft = *Left();
  runtime::Files files(Memory);
  store::KeepDraft(files, draft);
  ProgramRun next(Disk);
  next.Program.StartOpener();
  EXPECT_EQ(next.Desk.Asked, std::vector<std::string>());
  EXPECT_FALSE(HasDraft());
}

TEST_F(Drafts, OfASlotThatNoFileHasAreNone) {
  StopInEdit("Kept");
  store::Draft draft = *Left();
  draft.Slot = std::numeric_limits<std::int64_t>::max();
  store::WriteDraft(Memory, "draft", draft);
  EXPECT_FALSE(Left());
  ProgramRun next(Disk);
  next.Program.StartOpener();
  EXPECT_TRUE(next.Desk.Asked.empty());
}

TEST_F(Drafts, AreNotAskedAboutByTheRecordScreen) {
  StopInEdit("Alien");
  ProgramRun next(Disk);
  next.Program.StartRecordScreen();
  EXPECT_EQ(next.Desk.Asked, std::vector<std::string>());
  EXPECT_TRUE(HasDraft());
}

TEST_F(Drafts, StandWhenTheSessionEndsUnderABox) {
  class EndingDesk final : public kit::QuietDesk {
    forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons) override {
      throw forms::SessionEnded{};
    }
  } desk;
  Program program(desk, Disk);
  program.StartRecordScreen();
  program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.cmdEdit); });
  program.Deliver([&] { program.RecordScreen.txtTitle.SetText("Alien"); });
  program.Deliver([&] { program.RecordScreen.UserClose(); });
  EXPECT_TRUE(program.Ended());
  EXPECT_FALSE(program.Stopped());
  EXPECT_TRUE(Left());
}

TEST_F(Drafts, AndTheEndOfTheSessionSaveOrGiveUp) {
  for (bool save : {false, true}) {
    ProgramRun run(Disk);
    run.Program.StartRecordScreen();
    run.Edit(7);
    run.Type(run.Screen.txtTitle, "Alien");
    EXPECT_TRUE(run.Program.HasOpenFilm());
    run.Program.EndSession(save);
    EXPECT_TRUE(run.Program.Ended());
    EXPECT_FALSE(run.Program.HasOpenFilm());
    EXPECT_FALSE(HasDraft());
    EXPECT_EQ(Slot(7).starts_with("Alien "), save);
  }
}

}  // namespace
