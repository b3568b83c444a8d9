// Which films the history offers, and where one that is put back shows.
#include "app/overwritten_films.h"

#include <gtest/gtest.h>

#include "app/program.h"
#include "tests/kit/draft_desk.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/refusing_disk.h"

namespace {

class Overwritten : public testing::Test {
 protected:
  void SetUp() override { Program.StartRecordScreen(); }
  void Click(forms::Control& control) {
    Program.Deliver([&] { Screen.UserClick(control); });
  }
  // Saves slot 7 with another text in that box.
  void Overwrite(forms::TextBox& box) {
    while (Screen.CurrentRecNo < 7) Click(Screen.cmdNext);
    Click(Screen.cmdEdit);
    Program.Deliver([&] { box.SetText("Other"); });
    Click(Screen.cmdSave);
  }

  kit::MemoryDisk Memory{kit::FolderOfFilms(9)};
  kit::RefusingDisk Disk{Memory};
  kit::DraftDesk Desk;
  ::Program Program{Desk, Disk};
  frmPage1& Screen = Program.RecordScreen;
  OverwrittenFilms Films{Program};
};

TEST_F(Overwritten, AreOfferedOnce) {
  Overwrite(Screen.txtTitle);
  const std::vector<store::KeptFilm> lost = Films.TakeLost();
  ASSERT_EQ(lost.size(), 1u);
  EXPECT_EQ(lost[0].Slot, 7);
  EXPECT_EQ(lost[0].Film.Get(store::FilmField::Title), kit::FilmBytes(7, 0).substr(0, 40));
  EXPECT_TRUE(Films.TakeLost().empty());
}

TEST_F(Overwritten, AreOfferedOnceTheHistoryCanBeRead) {
  Disk.Unopenable = runtime::InSafetyFolder(store::HistoryFile);
  OverwrittenFilms films(Program);
  EXPECT_TRUE(films.TakeLost().empty());
  Disk.Unopenable.clear();
  EXPECT_TRUE(films.TakeLost().empty());
  Overwrite(Screen.txtTitle);
  EXPECT_EQ(films.TakeLost().size(), 1U);
}

TEST_F(Overwritten, AreNotOfferedWhereTheTitleStayed) {
  Overwrite(Screen.txtDirector);
  EXPECT_TRUE(Films.TakeLost().empty());
}

TEST_F(Overwritten, ShowWhenTheyArePutBackUnlessSomethingElseIsOnTheScreen) {
  Overwrite(Screen.txtTitle);
  const store::KeptFilm lost = Films.TakeLost().front();
  const std::string other = Screen.txtTitle.Text();
  struct Row {
    screen::Number16 frmPage1::*Variable;
    int Value;
  };
  for (const Row& row : {Row{&frmPage1::EditMode, 1}, Row{&frmPage1::NewMode, 1}, Row{&frmPage1::ListState, 2}}) {
    const std::int64_t before = Screen.*row.Variable;
    Screen.*row.Variable = row.Value;
    Films.PutBack(lost);
    EXPECT_EQ(Screen.txtTitle.Text(), other);
    Screen.*row.Variable = before;
  }
  Films.PutBack(lost);
  EXPECT_EQ(Screen.txtTitle.Text(), kit::FilmBytes(7, 0).substr(0, 40));
}

}  // namespace
