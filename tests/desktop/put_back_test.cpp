// The notice of an overwritten or deleted film, and its button.
#include <gtest/gtest.h>

#include <QPushButton>

#include "desktop/put_back_notice.h"
#include "desktop/stack_view.h"
#include "desktop/text.h"
#include "store/master_file.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/quiet_desk.h"

namespace desktop {
namespace {

class PutBack : public testing::Test {
 protected:
  PutBack() {
    Notice.DrawOn(View);
    View.Deliver([&] { Program.StartRecordScreen(); });
  }

  frmPage1& Screen() { return Program.RecordScreen; }
  void Click(forms::Control& control) {
    View.Deliver([&] { Screen().UserClick(control); });
  }
  // By Find By File No., which leaves a film that is open for typing open.
  void GoTo(int record) {
    Desk.NextAnswer = std::to_string(record);
    Click(Screen().mnuFile);
  }
  void Retitle(const std::string& title) {
    View.Deliver([&] { Screen().txtTitle.SetText(title); });
  }
  std::string Record(int record) const {
    return Disk.Content()
        .at(std::string(store::MasterFileName))
        .substr((record - 1) * store::RecordLength, store::RecordLength);
  }
  static std::string TitleOf(int record) { return kit::FilmBytes(record, 0).substr(0, 40); }
  QString Text() { return View.Notices().Text(); }
  void PressPutBack() {
    ASSERT_EQ(View.Notices().ActionButton(0).text(), "Put back");
    View.Notices().ActionButton(0).click();
  }

  kit::MemoryDisk Disk{kit::FolderOfFilms(3)};
  kit::QuietDesk Desk;
  ::Program Program{Desk, Disk};
  PutBackNotice Notice{Program};
  StackView View{Program.Windows, [this](const std::function<void()>& event) { Notice.Deliver(event); }};
};

TEST_F(PutBack, ADeletedFilmComesBackToItsRecordAndToTheScreen) {
  GoTo(2);
  Click(Screen().cmdDelete);
  EXPECT_EQ(Text(), "Record 2 held " + Shown(TitleOf(2)) + ".");
  EXPECT_EQ(Screen().txtTitle.Text(), "");
  PressPutBack();
  EXPECT_EQ(Text(), Shown(TitleOf(2)) + " is back in record 2.");
  EXPECT_FALSE(View.Notices().ActionButton(0).isVisible());
  EXPECT_EQ(Record(2), kit::FilmBytes(2, 0));
  EXPECT_EQ(Screen().txtTitle.Text(), TitleOf(2));
  EXPECT_EQ(Desk.Reported, "");
}

TEST_F(PutBack, AFilmOverwrittenAfterAJumpInTheMiddleOfAnEditComesBack) {
  Click(Screen().cmdEdit);
  GoTo(3);
  Retitle("Brazil");
  Click(Screen().cmdSave);
  ASSERT_EQ(Record(3).substr(0, 7), "Brazil ");
  EXPECT_EQ(Text(), "Record 3 held " + Shown(TitleOf(3)) + ".");
  PressPutBack();
  EXPECT_EQ(Record(3), kit::FilmBytes(3, 0));
  EXPECT_EQ(Screen().txtTitle.Text(), TitleOf(3));
  EXPECT_EQ(Text(), Shown(TitleOf(3)) + " is back in record 3. It held Brazil.");
  PressPutBack();
  EXPECT_EQ(Record(3).substr(0, 7), "Brazil ");
  EXPECT_EQ(Screen().txtTitle.Text(), "Brazil");
}

TEST_F(PutBack, ASaveThatKeepsTheTitleIsNoLoss) {
  Click(Screen().cmdEdit);
  View.Deliver([&] { Screen().txtDirector.SetText("Terry Gilliam"); });
  Click(Screen().cmdSave);
  ASSERT_EQ(store::CountHistory(Disk), 1);
  EXPECT_TRUE(View.Notices().Empty());
}

TEST_F(PutBack, WhatAnEarlierRunOverwroteIsNotOffered) {
  GoTo(2);
  Click(Screen().cmdDelete);
  kit::QuietDesk desk;
  ::Program later(desk, Disk);
  OverwrittenFilms films(later);
  later.StartRecordScreen();
  store::WriteRecord(later.Files, 1, 3, store::FilmRecord());
  std::vector<store::KeptFilm> lost = films.TakeLost();
  ASSERT_EQ(lost.size(), 1U);
  EXPECT_EQ(lost[0].Slot, 3);
  EXPECT_TRUE(films.TakeLost().empty());
}

TEST_F(PutBack, TheScreenStaysWhileAFilmIsOpenForTyping) {
  GoTo(2);
  Click(Screen().cmdDelete);
  GoTo(2);
  Click(Screen().cmdEdit);
  Retitle("Ran");
  PressPutBack();
  EXPECT_EQ(Record(2), kit::FilmBytes(2, 0));
  EXPECT_EQ(Screen().txtTitle.Text(), "Ran");
}

TEST_F(PutBack, AnotherRecordOnTheScreenStays) {
  GoTo(2);
  Click(Screen().cmdDelete);
  GoTo(3);
  PressPutBack();
  EXPECT_EQ(Record(2), kit::FilmBytes(2, 0));
  EXPECT_EQ(Screen().txtTitle.Text(), TitleOf(3));
}

// Each disk call of the button fails: the film is back or the program stops by name, and the next start puts it back.
TEST(PutBackOnABadDisk, LeavesTheOldOrTheNewFilm) {
  constexpr int Record = 2;
  const std::string master(store::MasterFileName), film = kit::FilmBytes(Record, 0);
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused, kit::Fault::ShortThenFull}) {
    bool reached = true;
    for (std::size_t call = 0; reached; ++call) {
      SCOPED_TRACE(std::string(kit::NameOf(fault)) + " at call " + std::to_string(call));
      kit::MemoryDisk memory(kit::FolderOfFilms(3));
      kit::FaultyDisk disk(memory);
      kit::QuietDesk desk;
      ::Program program(desk, disk);
      PutBackNotice notice(program);
      StackView view(program.Windows, [&](const std::function<void()>& event) { notice.Deliver(event); });
      notice.DrawOn(view);
      view.Deliver([&] { program.StartRecordScreen(); });
      desk.NextAnswer = std::to_string(Record);
      view.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.mnuFile); });
      view.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.cmdDelete); });
      const std::string deleted = memory.Content().at(master);
      const std::size_t calls = disk.Calls();
      disk.Arm({fault, call});
      view.Notices().ActionButton(0).click();
      reached = disk.Calls() > calls + call;
      const std::string found = memory.Content().at(master);
      std::string restored = deleted;
      restored.replace((Record - 1) * store::RecordLength, film.size(), film);
      if (program.Stopped()) {
        ASSERT_NE(desk.Reported, "");
        ASSERT_TRUE(found == deleted || found == restored);
      } else {
        ASSERT_EQ(found, restored);
      }
    }
  }
}

}  // namespace
}  // namespace desktop
