// Each call of the disks that a start makes fails, once or from then on, or is the last before a kill: the films and
// what the user made stay, a file is never half there, what failed is said, and the next start is as good as any.
#include <gtest/gtest.h>

#include "tests/launcher/failing_disk.h"
#include "tests/launcher/opening_test.h"

namespace launcher {
namespace {

namespace fs = std::filesystem;

const std::string Films(3 * 649, 'f');
const std::string NewCopy = "backups/Recpra 2026-11-22 12-00-00.Dat";
const std::string OldCopy = "backups/Recpra 2026-11-21 12-00-00.Dat";

// A collection with films that have changed, an old copy, a file that is empty and one that a newer delivery replaces,
// and a second folder for copies.
struct Situation : LauncherHome {
  Situation() {
    OpenFolder("films");
    Put(Delivered / "Reelora4.HLP", "newer help");
    Put(Folder / "AutoSave", "");
    Put(Folder / "mine", "mine");
    Put(Folder / "Recpra.Dat", Films);
    Put(Folder / OldCopy, "old films");
    fs::create_directory(Disk);
    Put(Settings, "collection = /other\ncopies = " + Disk.string() + "\n");
  }

  // Returns whether the start was killed.
  bool Start(FailurePlan& plan) {
    auto disk_in = [&](const std::string& folder, runtime::RealDisk::Links links) -> std::unique_ptr<runtime::Disk> {
      return std::make_unique<FailingDisk>(RealDiskIn(folder, links), plan);
    };
    try {
      Result = OpenCollection({Wish::Folder, "films", ""}, Where, Home.string(), Noon, User, disk_in);
      return false;
    } catch (const kit::Killed&) {
      return true;
    }
  }

  fs::path SecondCopy() const { return Disk / SecondCopiesName(Folder.string()) / fs::path(NewCopy).filename(); }

  // Old or new, whatever happened.
  void ExpectNothingTorn() const {
    EXPECT_EQ(ContentOf(Folder / "Recpra.Dat"), Films);
    EXPECT_EQ(ContentOf(Folder / "mine"), "mine");
    EXPECT_EQ(ContentOf(Folder / OldCopy), "old films");
    for (const fs::path& copy : {Folder / NewCopy, SecondCopy()}) {
      if (fs::exists(copy)) {
        EXPECT_EQ(ContentOf(copy), Films) << copy;
      }
    }
    std::string help = ContentOf(Folder / "Reelora4.HLP"), setting = ContentOf(Folder / "AutoSave");
    EXPECT_TRUE(help == "help" || help == "newer help") << help;
    EXPECT_TRUE(setting.empty() || setting == "YES\r\n") << setting;
    EXPECT_EQ(ContentOf(Folder / "UPPER.ALT"), "letters");
    std::string known = ContentOf(Settings), copies = "copies = " + Disk.string() + "\n";
    EXPECT_TRUE(known == "collection = /other\n" + copies || known == Remembered()) << known;
  }
  std::string Remembered() const {
    return "collection = " + Folder.string() + "\ncollection = /other\ncopies = " + Disk.string() + "\n";
  }
  bool IsAllDone() const {
    return ContentOf(Folder / "Reelora4.HLP") == "newer help" && ContentOf(Folder / "AutoSave") == "YES\r\n" &&
           ContentOf(Folder / NewCopy) == Films && ContentOf(SecondCopy()) == Films &&
           ContentOf(Settings) == Remembered();
  }

  const fs::path Folder = Home / "films";
  const fs::path Disk = Home / "disk";
  std::optional<Opened> Result;
};

int CallsOfAStart() {
  FailurePlan counting;
  Situation situation;
  EXPECT_FALSE(situation.Start(counting));
  EXPECT_TRUE(situation.IsAllDone());
  EXPECT_EQ(situation.Result->Notice, "");
  return counting.Calls;
}

void PlayEachCall(Failing as, bool from_then_on) {
  const int calls = CallsOfAStart();
  ASSERT_GT(calls, 50);
  for (int call = 0; call < calls; ++call) {
    SCOPED_TRACE("call " + std::to_string(call));
    Situation situation;
    FailurePlan plan{as, call, from_then_on};
    bool killed = situation.Start(plan);
    situation.ExpectNothingTorn();
    if (!killed) {
      ASSERT_TRUE(situation.Result) << "a start was stopped";
      bool said = !situation.User.Told.empty() || !situation.Result->Notice.empty();
      EXPECT_TRUE(said || situation.IsAllDone()) << "a failure was passed over";
    }
    FailurePlan none;
    situation.User.Told.clear();
    EXPECT_FALSE(situation.Start(none));
    EXPECT_TRUE(situation.IsAllDone());
    EXPECT_EQ(situation.Result->Notice, "");
    EXPECT_TRUE(situation.User.Told.empty());
    situation.ExpectNothingTorn();
  }
}

TEST(StartFaults, ADiskThatIsFullOnce) { PlayEachCall(Failing::Full, false); }
TEST(StartFaults, ADiskThatIsFull) { PlayEachCall(Failing::Full, true); }
TEST(StartFaults, AnErrorOnce) { PlayEachCall(Failing::Error, false); }
TEST(StartFaults, ADiskThatFails) { PlayEachCall(Failing::Error, true); }
TEST(StartFaults, ARefusalOnce) { PlayEachCall(Failing::Refused, false); }
TEST(StartFaults, ADiskThatRefuses) { PlayEachCall(Failing::Refused, true); }
TEST(StartFaults, AKill) { PlayEachCall(Failing::Kill, true); }

TEST(StartFaults, TheSampleOfAFullDiskIsThereOrNot) {
  for (int call = 0;; ++call) {
    LauncherHome home;
    FailurePlan plan{Failing::Full, call, true};
    auto disk_in = [&](const std::string& folder, runtime::RealDisk::Links links) -> std::unique_ptr<runtime::Disk> {
      return std::make_unique<FailingDisk>(RealDiskIn(folder, links), plan);
    };
    OpenCollection({Wish::Sample, "", ""}, home.Where, home.Home.string(), Noon, home.User, disk_in);
    fs::path films = fs::path(home.Where.Sample) / "Recpra.Dat";
    EXPECT_TRUE(!fs::exists(films) || ContentOf(films) == "sample films") << call;
    EXPECT_TRUE(home.Open({Wish::Sample, "", ""}));
    EXPECT_EQ(ContentOf(films), "sample films");
    home.ExpectComplete(home.Where.Sample);
    if (plan.Calls <= call) break;
  }
}

}  // namespace
}  // namespace launcher
