// The quick start window if its flag file cannot be read.
#include <gtest/gtest.h>

#include "app/program.h"
#include "tests/kit/answering_desk.h"
#include "tests/kit/films.h"
#include "tests/kit/memory_disk.h"

namespace {

TEST(QuickStart, AFlagFileThatCannotBeReadIsMadeWithYes) {
  for (const char* content : {"missing", ""}) {
    kit::Folder folder = kit::FolderOfFilms(1);
    folder.erase("Fo1");
    if (*content == '\0') folder["Fo1"] = content;
    kit::MemoryDisk disk(folder);
    kit::AnsweringDesk desk;
    Program program(desk, disk);
    program.Deliver([&] { program.QuickStart.Show(); });
    EXPECT_EQ(disk.Content().at("Fo1"), "YES\r\n");
    EXPECT_FALSE(program.Stopped());
    EXPECT_FALSE(program.Files.IsOpen(CountFileNo));
  }
}

TEST(QuickStart, StartClosesTheKeyFileAndEndsTheEdit) {
  kit::MemoryDisk disk(kit::FolderOfFilms(1));
  kit::AnsweringDesk desk;
  Program program(desk, disk);
  program.StartOpener();
  program.RecordScreen.EditMode = 1;
  program.Files.OpenRandom(KeyFileNo, "Titlepra.Dat", 49);
  program.Deliver([&] { program.Opener.UserClick(program.Opener.cmdStart); });
  EXPECT_EQ(program.RecordScreen.EditMode, 0);
  EXPECT_FALSE(program.Files.IsOpen(KeyFileNo));
}

}  // namespace
