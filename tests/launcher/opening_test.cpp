// Which collection a start opens, what it asks, and what it says when it cannot.
#include "tests/launcher/opening_test.h"

#include <unistd.h>

#include <algorithm>

#include "runtime/folder_lock.h"
#include "tests/kit/ordinary_user.h"
#include "tests/kit/passing_disk.h"

namespace launcher {
namespace {

namespace fs = std::filesystem;

class Opening : public testing::Test, public LauncherHome {
 protected:
  Choice New(const fs::path& folder) const { return {Choice::What::New, folder.string()}; }
  Choice Existing(const fs::path& folder) const { return {Choice::What::Existing, folder.string()}; }
  // A folder that was opened once.
  fs::path Known(const std::string& name) {
    EXPECT_TRUE(OpenFolder(name));
    return Home / name;
  }
  void ExpectTold(const std::string& part) {
    ASSERT_EQ(User.Told.size(), 1U);
    EXPECT_NE(User.Told[0].find(part), std::string::npos) << User.Told[0];
    User.Told.clear();
  }
};

TEST_F(Opening, TheFirstStartAsksAndTheNextOnesDoNot) {
  User.Choices = {New(Home / "Film Collection")};
  std::optional<Opened> opened = Open();
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->Folder, Home / "Film Collection");
  EXPECT_EQ(opened->Notice, "");
  ExpectComplete(opened->Folder);
  ASSERT_EQ(User.Questions.size(), 1U);
  EXPECT_EQ(User.Questions[0].Missing, "");
  EXPECT_EQ(User.Questions[0].Known, std::vector<std::string>());
  EXPECT_EQ(User.Questions[0].Suggested, Home / "Film Collection");

  for (int start = 0; start < 3; ++start) EXPECT_EQ(Open()->Folder, Home / "Film Collection");
  EXPECT_EQ(User.Questions.size(), 1U);
  EXPECT_EQ(User.Told, std::vector<std::string>());
}

TEST_F(Opening, WhoGivesUpGetsNothing) {
  EXPECT_FALSE(Open());
  EXPECT_TRUE(fs::is_empty(Home));
}

TEST_F(Opening, LostSettingsDoNotHideTheUsualCollection) {
  Known("Film Collection");
  fs::remove(Settings);
  EXPECT_EQ(Open()->Folder, Home / "Film Collection");
  EXPECT_TRUE(User.Questions.empty());
}

TEST_F(Opening, ANamedFolderIsOpenedAndIsTheLastOneThen) {
  Known("one");
  Known("two");
  EXPECT_EQ(Open()->Folder, Home / "two");
  EXPECT_EQ(OpenFolder("one")->Folder, Home / "one");
  EXPECT_EQ(Open()->Folder, Home / "one");
}

TEST_F(Opening, AFolderMayHaveAnyName) {
  for (const char* name :
       {"my films", "it's \"mine\"", "-films", "--", "a\nb", "$HOME", "*", "caf\xC3\xA9", "\xFF", "a&b", "%1", "~"}) {
    std::optional<Opened> opened = OpenFolder(name);
    ASSERT_TRUE(opened) << name;
    EXPECT_EQ(opened->Folder, Home / name);
    ExpectComplete(Home / name);
    EXPECT_EQ(Open()->Folder, Home / name);
  }
}

TEST_F(Opening, ANameHasOneForm) {
  for (const char* name : {"films", "films/", "./films", "films//", "films/.", "nothing/../films", "../home/films"})
    EXPECT_EQ(OpenFolder(name)->Folder, Home / "films") << name;
  EXPECT_EQ(OpenFolder((Home / "films/").string())->Folder, Home / "films");
  EXPECT_EQ(ContentOf(Settings), "collection = " + (Home / "films").string() + "\n");
}

TEST_F(Opening, ALinkIsFollowedAndKeepsItsName) {
  fs::create_directories(Home / "disk/films");
  fs::create_directory_symlink(Home / "disk/films", Home / "link");
  EXPECT_EQ(OpenFolder("link")->Folder, Home / "link");
  ExpectComplete(Home / "disk/films");
  // ".." counts from where the link leads, as everywhere in the system.
  EXPECT_EQ(OpenFolder("link/../other")->Folder, Home / "disk/other");
}

TEST_F(Opening, ALinkToNothingIsNamed) {
  fs::create_directory_symlink(Home / "nothing", Home / "link");
  EXPECT_FALSE(OpenFolder("link"));
  ExpectTold("cannot be made");
}

TEST_F(Opening, AFileInPlaceOfTheFolderIsNamed) {
  Put(Home / "films", "mine");
  EXPECT_FALSE(OpenFolder("films"));
  ExpectTold("The folder " + (Home / "films").string() + " cannot be made. Something else of that name is in the way.");
  EXPECT_FALSE(OpenFolder("films/below"));
  ExpectTold("cannot be made");
  EXPECT_EQ(ContentOf(Home / "films"), "mine");
}

TEST_F(Opening, ARelativeNameNeedsACurrentFolder) {
  EXPECT_FALSE(OpenCollection({Wish::Folder, "films", ""}, Where, "", Noon, User));
  ExpectTold("current folder is gone");
  EXPECT_TRUE(OpenCollection({Wish::Folder, (Home / "films").string(), ""}, Where, "", Noon, User));
}

TEST_F(Opening, AFolderWithOtherFilesIsNotFilledWithoutAWord) {
  Put(Home / "papers/letter", "mine");
  EXPECT_FALSE(OpenFolder("papers"));
  EXPECT_EQ(User.Filled, std::vector<std::string>{Home / "papers"});
  EXPECT_FALSE(fs::exists(Home / "papers/UPPER.ALT"));
  EXPECT_FALSE(fs::exists(Home / "papers/.reelora"));
  EXPECT_FALSE(fs::exists(Settings));
  User.Fills = true;
  EXPECT_TRUE(OpenFolder("papers"));
  ExpectComplete(Home / "papers");
  EXPECT_EQ(ContentOf(Home / "papers/letter"), "mine");
  EXPECT_TRUE(OpenFolder("papers"));
  EXPECT_EQ(User.Filled.size(), 2U);
}

TEST_F(Opening, WhatMakesAFolderACollection) {
  for (const char* name : {"Recpra.Dat", ".reelora/lock", "UPPER.ALT"}) {
    fs::path folder = Home / ("has " + fs::path(name).filename().string());
    Put(folder / name, "x");
    EXPECT_TRUE(OpenFolder(folder.string()));
  }
  EXPECT_TRUE(User.Filled.empty());
}

TEST_F(Opening, AMissingCollectionIsAskedAbout) {
  fs::path one = Known("one");
  fs::path two = Known("two");
  fs::path three = Known("three");
  fs::remove_all(three);
  fs::remove_all(one);
  EXPECT_FALSE(Open());
  ASSERT_EQ(User.Questions.size(), 1U);
  EXPECT_EQ(User.Questions[0].Missing, three);
  EXPECT_EQ(User.Questions[0].Known, std::vector<std::string>{two});

  User.Choices = {Existing(three), Existing(two)};
  EXPECT_EQ(Open()->Folder, two);
  ExpectTold("There is no collection in " + three.string());
  EXPECT_FALSE(fs::exists(three)) << "a lost disk's folder was made";
  EXPECT_EQ(Open()->Folder, two);
}

// The folder on which a disk is mounted is there without the disk, too.
TEST_F(Opening, TheEmptyFolderOfALostDiskIsNotFilled) {
  fs::path films = Known("films");
  fs::rename(films, Home / "disk");
  fs::create_directory(films);
  EXPECT_FALSE(Open());
  EXPECT_TRUE(fs::is_empty(films));
  ASSERT_EQ(User.Questions.size(), 1U);
  EXPECT_EQ(User.Questions[0].Missing, films);
  fs::remove(films);
  fs::rename(Home / "disk", films);
  EXPECT_EQ(Open()->Folder, films);
}

TEST_F(Opening, AskedForAnotherOneItOffersThoseThatAreThere) {
  fs::path one = Known("one");
  fs::path two = Known("two");
  User.Choices = {Existing(one)};
  EXPECT_EQ(Open({Wish::Choose, "", ""})->Folder, one);
  ASSERT_EQ(User.Questions.size(), 1U);
  EXPECT_EQ(User.Questions[0].Known, (std::vector<std::string>{two, one}));
  EXPECT_EQ(Open()->Folder, one);
}

TEST_F(Opening, ANewCollectionGetsAFolderThatIsFree) {
  fs::create_directory(Home / "Film Collection");
  EXPECT_FALSE(Open());
  Put(Home / "Film Collection/letter", "mine");
  EXPECT_FALSE(Open());
  Known("Film Collection 2");
  EXPECT_FALSE(Open({Wish::Choose, "", ""}));
  ASSERT_EQ(User.Questions.size(), 3U);
  EXPECT_EQ(User.Questions[0].Suggested, Home / "Film Collection");
  EXPECT_EQ(User.Questions[1].Suggested, Home / "Film Collection 2");
  EXPECT_EQ(User.Questions[2].Suggested, Home / "Film Collection 3");
}

TEST_F(Opening, WhoChoosesWhatCannotBeIsAskedAgain) {
  Put(Home / "file", "mine");
  Put(Home / "papers/letter", "mine");
  User.Choices = {New(Home / "file"), Existing(Home / "none"), New(Home / "papers"), New(Home / "films")};
  EXPECT_EQ(Open()->Folder, Home / "films");
  EXPECT_EQ(User.Questions.size(), 4U);
  EXPECT_EQ(User.Told.size(), 2U);
  EXPECT_EQ(User.Filled.size(), 1U);
}

TEST_F(Opening, TheSampleIsACopyThatIsNotRemembered) {
  std::optional<Opened> opened = Open({Wish::Sample, "", ""});
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->Folder, Where.Sample);
  EXPECT_EQ(ContentOf(Where.Sample + "/Recpra.Dat"), "sample films");
  ExpectComplete(Where.Sample);
  EXPECT_FALSE(fs::exists(Settings));
  EXPECT_FALSE(fs::exists(Where.Sample + "/backups"));
  Put(Where.Sample + "/Recpra.Dat", "changed");
  EXPECT_TRUE(Open({Wish::Sample, "", ""}));
  EXPECT_EQ(ContentOf(Where.Sample + "/Recpra.Dat"), "changed");
}

TEST_F(Opening, TheSampleCanBeChosen) {
  User.Choices = {{Choice::What::Sample, ""}};
  EXPECT_EQ(Open()->Folder, Where.Sample);
}

TEST_F(Opening, AMissingSampleIsNamed) {
  fs::remove_all(Delivered / "sample");
  EXPECT_FALSE(Open({Wish::Sample, "", ""}));
  ExpectTold("Install Reelora Prima again");
}

TEST_F(Opening, WithoutAHomeThereIsNoSampleAndNoMemory) {
  Where.Home = Where.Settings = Where.Sample = "";
  EXPECT_FALSE(Open({Wish::Sample, "", ""}));
  ExpectTold("There is no home folder");
  User.Choices = {New(Machine.Path() / "films")};
  std::optional<Opened> opened = Open();
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->Notice, "There is no home folder, so this collection is not remembered.");
  EXPECT_EQ(User.Questions[0].Suggested, "");
}

TEST_F(Opening, AHomeThatCannotBeWrittenIsNamed) {
  fs::permissions(Machine.Path(), fs::perms(0755));
  fs::permissions(Home, fs::perms(0555));
  fs::create_directory(Machine.Path() / "open");
  fs::permissions(Machine.Path() / "open", fs::perms::all);
  User.Choices = {New(Home / "Film Collection"), New(Machine.Path() / "open/films")};
  std::optional<Opened> opened;
  {
    kit::OrdinaryUser user;
    opened = Open();
  }
  fs::permissions(Home, fs::perms::owner_all);
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->Folder, Machine.Path() / "open/films");
  ExpectTold("Your user account has no permission for that.");
  EXPECT_EQ(opened->Notice.find("This collection is not remembered in " + Where.Settings), 0U) << opened->Notice;
  EXPECT_TRUE(fs::is_empty(Home));
}

// Each way to a folder that its owner keeps private: the folder itself, one in it, one that is not there.
TEST_F(Opening, AFolderThatAnotherUserKeepsPrivateIsNamed) {
  const fs::path others = Home / "anna";
  Put(others / "films/Recpra.Dat", "films");
  fs::permissions(Machine.Path(), fs::perms(0755));
  fs::permissions(others, fs::perms::owner_all);
  const std::string owner = ::geteuid() == 0 ? "the user root, and" : "you, but";
  if (::geteuid() != 0) fs::permissions(others, fs::perms::none);
  {
    kit::OrdinaryUser user;
    EXPECT_FALSE(OpenFolder("anna"));
    ExpectTold("The folder " + others.string() + " cannot be opened. It belongs to " + owner +
               " you have no permission to read it.");
    for (const char* below : {"films", "new"}) {
      EXPECT_FALSE(OpenFolder("anna/" + std::string(below)));
      ExpectTold("The folder " + (others / below).string() + " cannot be opened. The folder " + others.string() +
                 ", which it is in, belongs to " + owner + " you have no permission to read it.");
    }
    User.Choices = {Existing(others / "films")};
    EXPECT_FALSE(Open({Wish::Choose, "", ""}));
    ExpectTold("cannot be opened");
  }
  fs::permissions(others, fs::perms::owner_all);
  EXPECT_TRUE(User.Filled.empty());
  EXPECT_EQ(ContentOf(others / "films/Recpra.Dat"), "films");
  EXPECT_FALSE(fs::exists(others / "new"));
}

TEST_F(Opening, ALinkIntoAPrivateFolderIsNamed) {
  const fs::path others = Home / "anna";
  fs::create_directories(others / "films");
  fs::create_directory_symlink(others / "films", Home / "link");
  fs::permissions(Machine.Path(), fs::perms(0755));
  fs::permissions(others, ::geteuid() == 0 ? fs::perms::owner_all : fs::perms::none);
  {
    kit::OrdinaryUser user;
    EXPECT_FALSE(OpenFolder("link"));
  }
  fs::permissions(others, fs::perms::owner_all);
  ExpectTold("The folder " + (Home / "link").string() + " cannot be opened. It belongs to another user, and");
}

// A collection can be read and not listed where its folder may be searched only.
TEST_F(Opening, APrivateFolderIsOneThatCannotBeListed) {
  const fs::path films = Known("films");
  const fs::path empty = Home / "empty";
  fs::create_directory(empty);
  fs::permissions(Machine.Path(), fs::perms(0755));
  for (const fs::path& folder : {films, empty}) fs::permissions(folder, fs::perms(0111));
  {
    kit::OrdinaryUser user;
    EXPECT_TRUE(OpenFolder("films"));
    User.Told.clear();
    EXPECT_FALSE(OpenFolder("empty"));
    ExpectTold("The folder " + empty.string() + " cannot be opened. It belongs to");
  }
  for (const fs::path& folder : {films, empty}) fs::permissions(folder, fs::perms::owner_all);
}

TEST_F(Opening, SettingsThatCannotBeWrittenAreNamed) {
  Put(Home / ".config", "mine");
  std::optional<Opened> opened = OpenFolder("films");
  ASSERT_TRUE(opened);
  EXPECT_NE(opened->Notice.find("The settings in " + Where.Settings + " cannot be read."), std::string::npos);
  EXPECT_EQ(ContentOf(Home / ".config"), "mine");
}

TEST_F(Opening, SettingsThatCannotBeReadAreNotReplaced) {
  fs::create_directories(Settings);
  std::optional<Opened> opened = OpenFolder("films");
  ASSERT_TRUE(opened);
  EXPECT_NE(opened->Notice.find("cannot be read"), std::string::npos);
  EXPECT_TRUE(fs::is_directory(Settings));
}

TEST_F(Opening, MissingAndEmptyFilesAreReplacedAtEveryStart) {
  fs::path films = Known("films");
  fs::remove(films / "UPPER.ALT");
  Put(films / "AutoSave", "");
  EXPECT_TRUE(Open());
  ExpectComplete(films);
}

TEST_F(Opening, ADamagedInstallationIsNamedAndTheStartGoesOn) {
  Put(Delivered / "AutoSave", "");
  EXPECT_TRUE(OpenFolder("films"));
  ExpectTold("The file AutoSave that comes with Reelora Prima is empty. Install Reelora Prima again.");
  Where.Delivered = "";
  EXPECT_TRUE(OpenFolder("films"));
  ExpectTold("The files that come with Reelora Prima are missing. Install Reelora Prima again.");
}

TEST_F(Opening, AFileThatCannotBePutIsNamedAndTheStartGoesOn) {
  fs::create_directories(Home / "films/UPPER.ALT");
  std::optional<Opened> opened = OpenFolder("films");
  EXPECT_TRUE(opened);
  ExpectTold("The file UPPER.ALT cannot be put into the collection in " + (Home / "films").string());
}

TEST_F(Opening, AFolderThatAnotherRunHasLockedIsLeftAsItIs) {
  fs::path films = Known("films");
  Put(films / "Recpra.Dat", "films");
  fs::remove(films / "UPPER.ALT");
  runtime::FolderLock running(films.string());
  ASSERT_TRUE(running.Held());
  EXPECT_EQ(Open()->Folder, films);
  EXPECT_FALSE(fs::exists(films / "UPPER.ALT"));
  EXPECT_FALSE(fs::exists(films / "backups"));
}

TEST_F(Opening, TheLockIsFreeForTheProgram) {
  fs::path films = Known("films");
  EXPECT_TRUE(runtime::FolderLock(films.string()).Held());
}

class StartCopies : public Opening {
 protected:
  StartCopies() : Films(Known("films")) { Put(Films / "Recpra.Dat", "films"); }
  std::vector<fs::path> In(const fs::path& folder) const {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) files.push_back(entry.path());
    return files;
  }
  void NameSecondFolder(const std::string& folder) {
    Put(Settings, ContentOf(Settings) + "# another disk\ncopies = " + folder + "\n");
  }
  const fs::path Films;
  const std::string Copy = "Recpra 2026-11-22 12-00-00.Dat";
};

TEST_F(StartCopies, AreMadeWhenTheFilmsHaveChanged) {
  EXPECT_EQ(Open()->Notice, "");
  EXPECT_EQ(In(Films / "backups"), std::vector<fs::path>{Films / "backups" / Copy});
  EXPECT_EQ(ContentOf(Films / "backups" / Copy), "films");
  Open();
  EXPECT_EQ(In(Films / "backups").size(), 1U);
  Put(Films / "Recpra.Dat", "more films");
  Open();
  EXPECT_EQ(In(Films / "backups").size(), 2U);
}

TEST_F(StartCopies, AreNoMoreReadableThanTheFilms) {
  fs::permissions(Films / "Recpra.Dat", fs::perms::owner_read | fs::perms::owner_write);
  fs::permissions(Films, fs::perms::owner_all);
  fs::create_directory(Home / "disk");
  NameSecondFolder((Home / "disk").string());
  Open();
  fs::path second = Home / "disk" / SecondCopiesName(Films.string());
  for (const fs::path& folder : {Films / "backups", second}) {
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all) << folder;
    EXPECT_EQ(fs::status(folder / Copy).permissions(), fs::perms::owner_read | fs::perms::owner_write) << folder;
  }
}

TEST_F(StartCopies, GoToASecondFolderThatIsThere) {
  fs::create_directory(Home / "disk");
  NameSecondFolder((Home / "disk").string());
  EXPECT_EQ(OpenFolder("films/")->Notice, "");
  EXPECT_EQ(ContentOf(Home / "disk" / SecondCopiesName(Films.string()) / Copy), "films");
  EXPECT_NE(ContentOf(Settings).find("# another disk\n"), std::string::npos);
}

// Or a loss of power could take the folder, and the copy with it.
TEST_F(StartCopies, SyncTheFolderInWhichTheirsIsNew) {
  class Recording final : public kit::PassingDisk {
   public:
    Recording(std::unique_ptr<runtime::Disk> below, std::string folder, std::vector<std::string>& synced)
        : PassingDisk(*below), owned_(std::move(below)), folder_(std::move(folder)), synced_(synced) {}
    int SyncFolder(const std::string& name) override {
      if (name.empty()) synced_.push_back(folder_);
      return PassingDisk::SyncFolder(name);
    }

   private:
    std::unique_ptr<runtime::Disk> owned_;
    std::string folder_;
    std::vector<std::string>& synced_;
  };
  std::vector<std::string> synced;
  auto disk_in = [&](const std::string& folder, runtime::RealDisk::Links links) -> std::unique_ptr<runtime::Disk> {
    return std::make_unique<Recording>(RealDiskIn(folder, links), folder, synced);
  };
  const std::string disk = (Home / "disk").string();
  fs::create_directory(disk);
  NameSecondFolder(disk);
  OpenCollection({}, Where, Home.string(), Noon, User, disk_in);
  EXPECT_EQ(std::ranges::count(synced, Films.string()), 1);
  EXPECT_EQ(std::ranges::count(synced, disk), 1);
}

// Films behind a link are no copy: where it leads to the films themselves, a damage to them would reach it.
TEST_F(StartCopies, FollowNoLinkOnTheirDisk) {
  NameSecondFolder((Home / "disk").string());
  const fs::path second = Home / "disk" / SecondCopiesName(Films.string());
  for (const fs::path& folder : {Films / "backups", second}) {
    fs::create_directories(folder);
    fs::create_symlink(Films / "Recpra.Dat", folder / "Recpra 2026-11-21 12-00-00.Dat");
  }
  const std::string notice = Open()->Notice;
  for (const fs::path& folder : {Films / "backups", second})
    EXPECT_NE(notice.find("No copy of the films was made in " + folder.string()), std::string::npos) << notice;
}

TEST_F(StartCopies, OfTwoCollectionsOfOneNameAreApart) {
  EXPECT_NE(SecondCopiesName("/a/films"), SecondCopiesName("/b/films"));
  EXPECT_TRUE(SecondCopiesName("/a/films").starts_with("films "));
}

TEST_F(StartCopies, WithoutTheSecondFolderSaySo) {
  NameSecondFolder((Home / "disk").string());
  EXPECT_EQ(Open()->Notice,
            "No second copy of the films was made: the folder " + (Home / "disk").string() + " is not there.");
  EXPECT_FALSE(fs::exists(Home / "disk"));
  EXPECT_TRUE(fs::exists(Films / "backups" / Copy));
}

TEST_F(StartCopies, TheSecondFolderHasAWholeName) {
  NameSecondFolder("disk");
  EXPECT_NE(Open()->Notice.find("must begin with a slash"), std::string::npos);
}

TEST_F(StartCopies, ThatCannotBeMadeStopNothing) {
  Put(Films / "backups", "mine");
  std::optional<Opened> opened = Open();
  ASSERT_TRUE(opened);
  EXPECT_NE(opened->Notice.find("No copy of the films was made in " + (Films / "backups").string()), std::string::npos);
  EXPECT_EQ(ContentOf(Films / "backups"), "mine");
  EXPECT_EQ(User.Told, std::vector<std::string>());
}

TEST_F(StartCopies, OfNoFilmsAreNotMade) {
  Put(Films / "Recpra.Dat", "");
  EXPECT_EQ(Open()->Notice, "");
  EXPECT_FALSE(fs::exists(Films / "backups"));
}

}  // namespace
}  // namespace launcher
