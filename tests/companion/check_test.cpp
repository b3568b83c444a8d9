// What check finds in a large collection, and in one that the program left.
#include <gtest/gtest.h>

#include <cstdio>

#include "runtime/folder_lock.h"
#include "runtime/journal_block.h"
#include "store/draft.h"
#include "tests/companion/command_test.h"
#include "tests/companion/titled_film.h"
#include "tests/kit/collection.h"
#include "tests/kit/ordinary_user.h"
#include "tests/story/world.h"

namespace companion {
namespace {

class CheckTest : public testing::Test {
 protected:
  // That many films in the order of their titles, sorted.
  void PutFilms(int count) {
    std::string master, keys;
    for (int number = 1; number <= count; ++number) {
      char title[64];
      std::snprintf(title, sizeof title, "%-40.40s", ("Film " + std::to_string(100000 + number)).c_str());
      const store::FilmRecord film = TitledFilm(title);
      master.append(film.Bytes.data(), film.Bytes.size());
      std::snprintf(title + 40, sizeof title - 40, "%07d\r\n", number);
      keys.append(title, 49);
    }
    Put("Recpra.Dat", master);
    Put("Titlepra.Dat", keys);
    Put("Titlepra", " " + std::to_string(count) + "\r\n");
  }
  void Put(const std::string& name, const std::string& bytes) { story::WriteBytes(Folder.Folder() / name, bytes); }
  void PutOlderThanTheKeys(const std::string& master) {
    Put("Recpra.Dat", master);
    Put("Titlepra.Dat", *story::ReadBytes(Folder.Folder() / "Titlepra.Dat"));
  }
  Ran Check() { return RunIn(Folder.Folder(), {"check"}); }

  kit::Collection Folder;
};

TEST_F(CheckTest, TellsWhenTheViewsAreNearlyFull) {
  PutFilms(32'000);
  EXPECT_EQ(Check().Text, "Everything is in order.\n");
  PutFilms(32'001);
  EXPECT_EQ(Check().Text,
            "Titlepra.Dat: 32001 keys, near the end. A view has room for 32767. Begin a second collection.\n"
            "Found 1 thing.\n");
  PutFilms(32'768);
  EXPECT_EQ(Check().Text,
            "Titlepra.Dat: 32768 keys, too many. A view has room for 32767. Begin a second collection.\n"
            "Found 1 thing.\n");
}

TEST_F(CheckTest, TellsOfASaveThatWasCutOff) {
  PutFilms(2);
  runtime::RealDisk disk(Folder.Folder());
  runtime::MakeSafetyFolder(disk);
  const store::FilmRecord before = TitledFilm("Film 100002");
  store::FilmRecord after = TitledFilm("Film 100002, again");
  after.Set(store::FilmField::Music, "Goldsmith");
  const std::string old_film(before.Bytes.data(), 649), new_film(after.Bytes.data(), 649);
  runtime::WriteBlock(runtime::OpenJournal(disk), {"Recpra.Dat", 2, 2 * 649, old_film, new_film});
  // The sector that begins at byte 1024 is still the old one.
  std::string master = *story::ReadBytes(Folder.Folder() / "Recpra.Dat");
  Put("Recpra.Dat", master.replace(649, 1024 - 649, new_film, 0, 1024 - 649));
  const Ran ran = Check();
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Text,
            "Titlepra.Dat: the key \"Film 100002\" leads to record 2, which is \"Film 100002, again\". Sort.\n"
            "record 2, journal: a save of this record was cut off. The next start of the program, or a verb with "
            "--write, finishes it.\n"
            "Found 2 things. 1 can be mended: check --fix.\n");
  // It is finished before anything is mended.
  const std::string wrong_key =
      "Titlepra.Dat: the key \"Film 100002\" leads to record 2, which is \"Film 100002, again\". Sort.\n";
  EXPECT_EQ(RunIn(Folder.Folder(), {"check", "--fix", "--write"}).Text, wrong_key +
                                                                            "Sort the collection? [y/n/a/q] \n"
                                                                            "Found 1 thing. 1 can be mended.\n"
                                                                            "0 things mended.\n");
  EXPECT_TRUE(story::ReadBytes(Folder.Folder() / "Recpra.Dat")->ends_with(new_film));
}

TEST_F(CheckTest, TellsOfADraft) {
  PutFilms(2);
  runtime::RealDisk disk(Folder.Folder());
  runtime::MakeSafetyFolder(disk);
  store::WriteDraft(disk, "draft2", {3, true, "Alien", {}, TitledFilm("Alien")});
  EXPECT_EQ(Check().Text,
            "record 3, draft2: \"Alien\" was typed and not saved. The next start of the program asks about it; draft "
            "shows it.\n"
            "Found 1 thing.\n");
}

TEST_F(CheckTest, TellsOfAHistoryThatNobodyCanHaveMade) {
  PutFilms(1);
  runtime::RealDisk disk(Folder.Folder());
  runtime::MakeSafetyFolder(disk);
  Put(".reelora/history", "");
  std::filesystem::resize_file(Folder.Folder() / ".reelora/history", 1'000'001 * std::uintmax_t{677});
  EXPECT_EQ(Check().Text,
            "history: it has 1000001 entries. Nobody overwrites so many films. Move the file .reelora/history away.\n"
            "Found 1 thing.\n");
}

TEST_F(CheckTest, RefusesAMasterFileThatNoSortTakes) {
  Put("Recpra.Dat", "");
  std::filesystem::resize_file(Folder.Folder() / "Recpra.Dat", 1'000'001 * std::uintmax_t{649});
  for (const char* verb : {"check", "list", "sort", "export"}) {
    const Ran ran = RunIn(Folder.Folder(), {verb});
    EXPECT_EQ(ran.Status, Found) << verb;
    EXPECT_EQ(ran.Errors, "The master file is damaged: it has 1000001 records.\n") << verb;
    EXPECT_EQ(ran.Text, "") << verb;
  }
}

TEST_F(CheckTest, TellsTheFirstThousandOfAKind) {
  PutFilms(1'003);
  std::string master = *story::ReadBytes(Folder.Folder() / "Recpra.Dat");
  for (std::size_t end = 647; end < master.size(); end += 649) master[end] = ' ';
  for (std::size_t year = 272; year < master.size(); year += 649) master[year] = 'x';
  PutOlderThanTheKeys(master);
  const Ran ran = Check();
  EXPECT_NE(ran.Text.find("record 1000, line end: "), std::string::npos);
  EXPECT_EQ(ran.Text.find("record 1001, line end: "), std::string::npos);
  const std::string year = "Year: in 3 more records it is no number. Check again once the first 1000 are in order.\n";
  const std::string end =
      "line end: in 3 more records it is not CR LF. Check again once the first 1000 are in order.\n";
  EXPECT_TRUE(ran.Text.ends_with("\n" + year + end + "Found 2002 things. 1001 can be mended: check --fix.\n"))
      << ran.Text.substr(ran.Text.size() - 300);
  const std::string json = RunIn(Folder.Folder(), {"check", "--json"}).Text;
  EXPECT_NE(json.find(R"({"where":"Year","what":"in 3 more records it is no number",)"
                      R"("toDo":"Check again once the first 1000 are in order.","canBeMended":false},)"),
            std::string::npos);
  EXPECT_NE(json.find(R"("what":"in 3 more records it is not CR LF",)"
                      R"("toDo":"Check again once the first 1000 are in order.","canBeMended":true}])"),
            std::string::npos);
}

TEST_F(CheckTest, MendsWhatItDidNotTellTheNextTime) {
  PutFilms(1'003);
  std::string master = *story::ReadBytes(Folder.Folder() / "Recpra.Dat");
  std::string broken = master;
  for (std::size_t end = 647; end < master.size(); end += 649) broken[end] = ' ';
  PutOlderThanTheKeys(broken);
  const std::string more =
      "line end: in 3 more records it is not CR LF. Check again once the first 1000 are in order.\n";
  EXPECT_NE(RunIn(Folder.Folder(), {"check", "--fix"}).Text.find(more), std::string::npos);
  Ran ran = RunIn(Folder.Folder(), {"check", "--fix", "--write", "--yes"});
  EXPECT_EQ(ran.Status, Found);
  EXPECT_TRUE(ran.Text.starts_with(more));
  EXPECT_TRUE(ran.Text.ends_with("Found 1001 things. 1001 can be mended.\n1000 things mended.\n"));
  ran = RunIn(Folder.Folder(), {"check", "--fix", "--write", "--yes"});
  EXPECT_TRUE(ran.Text.ends_with("Found 3 things. 3 can be mended.\n3 things mended.\n"));
  EXPECT_EQ(ran.Status, Done);
  EXPECT_TRUE(story::ReadBytes(Folder.Folder() / "Recpra.Dat") == master);
}

TEST_F(CheckTest, TellsOfASafetyFolderThatCannotBeListed) {
  PutFilms(1);
  runtime::RealDisk disk(Folder.Folder());
  runtime::MakeSafetyFolder(disk);
  const std::filesystem::path safety = Folder.Folder() / ".reelora";
  std::filesystem::permissions(Folder.Folder(), std::filesystem::perms(0755));
  std::filesystem::permissions(safety, std::filesystem::perms(0111));
  Ran ran;
  {
    const kit::OrdinaryUser user;
    ran = Check();
  }
  std::filesystem::permissions(safety, std::filesystem::perms::owner_all);
  EXPECT_EQ(ran.Text,
            ".reelora: the folder cannot be listed. It may hold films that were typed and not saved. Let your user "
            "account read it.\nFound 1 thing.\n");
}

TEST_F(CheckTest, PassesOverKeysThatNoSortMakes) {
  PutFilms(1);
  std::filesystem::resize_file(Folder.Folder() / "Titlepra.Dat", std::uintmax_t{1} << 36);
  EXPECT_EQ(Check().Text,
            "Titlepra.Dat: 36 bytes after the last whole key; a view has no end then. Sort.\n"
            "Titlepra.Dat: it has 1402438300 keys. Sort.\n"
            "Found 2 things. 2 can be mended: check --fix.\n");
}

TEST_F(CheckTest, MendsNothingWhileTheProgramHasTheFolderOpen) {
  PutFilms(1);
  Put("AutoSave", "no\r\n");
  const runtime::FolderLock lock(Folder.Folder());
  const Ran ran = RunIn(Folder.Folder(), {"check", "--fix", "--write", "--yes"});
  EXPECT_EQ(ran.Status, Found);
  EXPECT_EQ(ran.Errors, "This collection is already open.\n");
  EXPECT_EQ(story::ReadBytes(Folder.Folder() / "AutoSave"), "no\r\n");
}

}  // namespace
}  // namespace companion
