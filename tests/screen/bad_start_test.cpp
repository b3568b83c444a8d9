// Starts on files that cannot be used: the failure is named with its file, and nothing is rewritten.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

#include "app/program.h"
#include "bench/quiet_desk.h"
#include "tests/safety/passing_disk.h"
#include "tests/story/fresh_folder.h"

namespace {

namespace fs = std::filesystem;

// A disk that refuses one file.
class RefusingDisk final : public safety::PassingDisk {
 public:
  RefusingDisk(runtime::Disk& below, std::string refused) : PassingDisk(below), refused_(std::move(refused)) {}
  int Open(const std::string& name, Mode mode) override {
    return name == refused_ ? -EACCES : PassingDisk::Open(name, mode);
  }

 private:
  std::string refused_;
};

class BadStart : public testing::Test {
 protected:
  BadStart() {
    for (const auto& entry : fs::directory_iterator(REELORA_DELIVERED)) {
      if (entry.is_regular_file()) fs::copy(entry.path(), folder_.Path());
    }
  }

  // What the failure report says.
  std::string Start(runtime::Disk& disk) {
    bench::QuietDesk desk;
    Program program(desk, disk);
    program.StartRecordScreen();
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(program.Stopped().has_value(), !desk.Failure.empty());
    return desk.Failure;
  }

  story::FreshFolder folder_;
};

TEST_F(BadStart, AFolderInThePlaceOfTheMasterFile) {
  fs::create_directory(folder_.Path() / "Recpra.Dat");
  runtime::RealDisk disk(folder_.Path());
  EXPECT_EQ(Start(disk), "Path/File access error Recpra.Dat");
  EXPECT_TRUE(fs::is_directory(folder_.Path() / "Recpra.Dat"));
}

TEST_F(BadStart, AFolderInThePlaceOfASetting) {
  fs::remove(folder_.Path() / "AutoSave");
  fs::create_directory(folder_.Path() / "AutoSave");
  runtime::RealDisk disk(folder_.Path());
  EXPECT_EQ(Start(disk), "Path/File access error AutoSave");
}

class Refused : public BadStart, public testing::WithParamInterface<const char*> {};

TEST_P(Refused, IsNamed) {
  runtime::RealDisk real(folder_.Path());
  RefusingDisk disk(real, GetParam());
  EXPECT_EQ(Start(disk), std::string("Path/File access error ") + GetParam());
}

INSTANTIATE_TEST_SUITE_P(Files, Refused,
                         testing::Values("Recpra.Dat", "AutoSave", "AutoSort", "BGColor", "txtBGColor", "txtForColor",
                                         "tagForColor", "Titlepra", "Laserpra", "VHSpra", "DVDpra", "Fo1"));

}  // namespace
