// The companion lists the history and restores films of odd and damaged collections, on a real folder. The stories have
// the rest.
#include "companion/command.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "runtime/files.h"
#include "runtime/folder_lock.h"
#include "store/master_file.h"
#include "tests/companion/titled_film.h"
#include "tests/kit/fresh_folder.h"
#include "tests/story/world.h"

namespace companion {
namespace {

class HistoryVerbs : public testing::Test {
 protected:
  HistoryVerbs() {
    Put(1, TitledFilm("Alien"));
    Put(2, TitledFilm("Solaris"));
  }

  void Put(std::int64_t slot, const store::FilmRecord& film) {
    runtime::Files files(Disk);
    store::OpenMaster(files, 1);
    store::WriteRecord(files, 1, slot, film);
  }
  std::string Master() { return story::ReadBytes(Folder.Path() / "Recpra.Dat").value_or(""); }
  std::string HistoryPath() { return Folder.Path() / ".reelora/history"; }
  int Run(std::vector<std::string> arguments) { return RunIn(Folder.Path(), std::move(arguments)); }
  int RunIn(const std::string& folder, std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"-C", folder});
    Out.str("");
    Complaints.str("");
    Output output{Out, Complaints, None};
    return RunCommand(arguments, output);
  }
  // The lines below the heading, without their times.
  std::vector<std::string> Listed() {
    EXPECT_EQ(Run({"history"}), 0);
    std::vector<std::string> lines;
    std::istringstream text(Out.str());
    std::string line;
    std::getline(text, line);
    while (std::getline(text, line)) lines.push_back(line.erase(8, 19));
    return lines;
  }

  kit::FreshFolder Folder;
  runtime::RealDisk Disk{Folder.Path().string()};
  std::ostringstream Out, Complaints;
  std::istringstream None;
};

using Lines = std::vector<std::string>;

TEST_F(HistoryVerbs, PutsAFilmBackIntoItsSlotAndNothingElse) {
  std::string before = Master();
  Put(2, TitledFilm("Brazil"));
  EXPECT_EQ(Run({"restore", "1", "--write"}), 0);
  EXPECT_EQ(Master(), before);
}

TEST_F(HistoryVerbs, SendsNoControlCharacterToTheTerminal) {
  Put(2, TitledFilm("\x1B]0;owned\x07"));
  Put(2, TitledFilm("\x9D"
                    "1\x90\x7F\x80"));
  Put(2, TitledFilm("Ran"));
  EXPECT_EQ(Listed(), (Lines{"     1         2  Solaris - Ran", "     2         2  ?]0;owned? - Ran",
                             "     3         2  ?1??€ - Ran"}));
  std::fstream history(HistoryPath(), std::ios::in | std::ios::out | std::ios::binary);
  history << "\x1B[31m";
  history.close();
  EXPECT_EQ(Run({"history"}), 0);
  EXPECT_EQ(Out.str().find('\x1B'), std::string::npos);
}

TEST_F(HistoryVerbs, DoesNothingWhileTheProgramRunsOnTheFolder) {
  Put(2, TitledFilm("Brazil"));
  std::string before = Master();
  runtime::FolderLock lock(Folder.Path().string());
  EXPECT_EQ(Run({"restore", "1", "--write"}), 1);
  EXPECT_EQ(Complaints.str(), "This collection is already open.\n");
  EXPECT_EQ(Master(), before);
  EXPECT_EQ(Run({"history"}), 0);
}

TEST_F(HistoryVerbs, NamesAFolderAndASlotThatAreNotThere) {
  Put(2, TitledFilm("Brazil"));
  EXPECT_EQ(RunIn("/nowhere", {"restore", "1"}), 1);
  EXPECT_EQ(Complaints.str(), "File not found: /nowhere/Recpra.Dat\n");
  std::filesystem::resize_file(Folder.Path() / "Recpra.Dat", store::RecordLength);
  EXPECT_EQ(Run({"restore", "1", "--write"}), 1);
  EXPECT_EQ(Complaints.str(), "Bad record number: " + Folder.Path().string() + "/Recpra.Dat\n");
  EXPECT_EQ(Run({"restore", "1"}), 1);
  EXPECT_EQ(Complaints.str(), "Bad record number: " + Folder.Path().string() + "/Recpra.Dat\n");
}

TEST_F(HistoryVerbs, PassesOverAnEntryThatWasNeverFinished) {
  Put(2, TitledFilm("Brazil"));
  std::ofstream(HistoryPath(), std::ios::app | std::ios::binary) << std::string(677, '\0');
  std::ofstream(HistoryPath(), std::ios::app | std::ios::binary)
      << "2026-11-21 05:30:00 0000000 " << std::string(649, ' ');
  Put(2, TitledFilm("Ran"));
  std::ofstream(HistoryPath(), std::ios::app | std::ios::binary) << "2026-11-21 05:30:00 00000";
  EXPECT_EQ(Listed(), (Lines{"     1         2  Solaris - Ran", "     4         2  Brazil - Ran"}));
}

TEST_F(HistoryVerbs, ListsNoHistoryThatNobodyCanHaveMade) {
  Put(2, TitledFilm("Brazil"));
  std::filesystem::resize_file(HistoryPath(), 1'000'001 * std::uintmax_t{677});
  EXPECT_EQ(Run({"history"}), 1);
  EXPECT_EQ(Complaints.str(), "The history is damaged: it has 1000001 entries.\n");
  EXPECT_EQ(Out.str(), "");
  EXPECT_EQ(Run({"restore", "1", "--write"}), 0);
}

TEST_F(HistoryVerbs, LooksForNoFreeRecordInAFileOfAnyLength) {
  Put(2, TitledFilm("Brazil"));
  std::filesystem::resize_file(Folder.Path() / "Recpra.Dat", 1'000'001 * std::uintmax_t{649});
  for (const std::vector<std::string>& arguments :
       {Lines{"restore", "1", "--free"}, {"restore", "1", "--free", "--write"}}) {
    EXPECT_EQ(Run(arguments), 1);
    EXPECT_EQ(Complaints.str(), "The master file is damaged: it has 1000001 records.\n");
    EXPECT_EQ(Out.str(), "");
  }
  EXPECT_EQ(Run({"restore", "1", "--write"}), 0);
  EXPECT_EQ(std::filesystem::file_size(Folder.Path() / "Recpra.Dat"), 1'000'001 * std::uintmax_t{649});
}

}  // namespace
}  // namespace companion
