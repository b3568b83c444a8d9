// Starts on unusable files: the failure is reported with its file, and nothing is rewritten.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/program.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/refusing_disk.h"

namespace {

namespace fs = std::filesystem;

class BadStart : public testing::Test {
 protected:
  // What the failure report says.
  std::string Start(runtime::Disk& disk) {
    kit::QuietDesk desk;
    Program program(desk, disk);
    program.StartRecordScreen();
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(program.Stopped().has_value(), !desk.Reported.empty());
    return desk.Reported + " " + desk.ReportedFile;
  }

  kit::Collection collection_;
};

TEST_F(BadStart, AFolderInThePlaceOfTheMasterFile) {
  fs::create_directory(collection_.Folder() / "Recpra.Dat");
  runtime::RealDisk disk(collection_.Folder());
  EXPECT_EQ(Start(disk), "Path/File access error Recpra.Dat");
  EXPECT_TRUE(fs::is_directory(collection_.Folder() / "Recpra.Dat"));
}

TEST_F(BadStart, AFolderInThePlaceOfASetting) {
  fs::remove(collection_.Folder() / "AutoSave");
  fs::create_directory(collection_.Folder() / "AutoSave");
  runtime::RealDisk disk(collection_.Folder());
  EXPECT_EQ(Start(disk), "Path/File access error AutoSave");
}

class Refused : public BadStart, public testing::WithParamInterface<const char*> {};

TEST_P(Refused, IsNamed) {
  runtime::RealDisk real(collection_.Folder());
  kit::RefusingDisk disk(real, GetParam());
  EXPECT_EQ(Start(disk), std::string("Path/File access error ") + GetParam());
}

INSTANTIATE_TEST_SUITE_P(Files, Refused,
                         testing::Values("Recpra.Dat", "AutoSave", "AutoSort", "BGColor", "txtBGColor", "txtForColor",
                                         "tagForColor", "Titlepra", "Laserpra", "VHSpra", "DVDpra", "Fo1"),
                         [](const auto& file) {
                           std::string name = file.param;
                           std::erase(name, '.');
                           return name;
                         });

}  // namespace
