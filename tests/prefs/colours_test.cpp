// What the colour dialog starts from.
#include <gtest/gtest.h>

#include "app/program.h"
#include "tests/kit/answering_desk.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"

namespace {

using Colours = std::vector<std::uint32_t>;

struct ColourMenu : testing::Test {
  ColourMenu() { Running.StartRecordScreen(); }
  void Choose(forms::MenuItem& item, std::optional<std::uint32_t> colour) {
    Desk.Colours = {colour};
    Running.Deliver([&] { Running.RecordScreen.UserClick(item); });
  }

  kit::MemoryDisk Disk{kit::FolderOfFilms(1)};
  kit::AnsweringDesk Desk;
  Program Running{Desk, Disk};
  frmPage1& Window = Running.RecordScreen;
};

TEST_F(ColourMenu, TheDialogStartsFromItsOwnColour) {
  Choose(Window.mnuBGColors, 0x123456);
  Choose(Window.mnuTxtColor, std::nullopt);
  Choose(Window.mnuMessColor, 0x654321);
  Choose(Window.mnuTxtBoxColor, std::nullopt);
  EXPECT_EQ(Desk.ColourStarts, (Colours{forms::Black, 0x123456, 0x123456, 0x654321}));
  EXPECT_EQ(Window.txtTitle.Look().Fore, 0x123456u);
  EXPECT_EQ(Window.txtTitle.Look().Back, 0x654321u);
}

TEST_F(ColourMenu, DefaultColorsLeavesTheDialogAtTheTagColour) {
  Running.Deliver([&] { Window.UserClick(Window.mnudefault); });
  Choose(Window.mnuBGColors, std::nullopt);
  EXPECT_EQ(Desk.ColourStarts, Colours{forms::Yellow});
  EXPECT_EQ(Window.BackColor(), forms::Yellow);
}

TEST_F(ColourMenu, AWriteThatFailsStopsTheProgramByName) {
  Running.Files.OpenInput(ColourFileNo, "BGColor");
  Choose(Window.mnuBGColors, 1);
  EXPECT_EQ(Desk.Reported, "File already open");
}

}  // namespace
