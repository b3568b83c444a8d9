// What draft does in a damaged collection and without the permission to look. The stories have the rest.
#include <gtest/gtest.h>

#include <filesystem>

#include "runtime/whole_io.h"
#include "store/draft.h"
#include "tests/companion/command_test.h"
#include "tests/companion/titled_film.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/ordinary_user.h"
#include "tests/story/world.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

class DraftVerb : public testing::Test {
 protected:
  DraftVerb() {
    story::WriteBytes(Folder.Path() / "Recpra.Dat", kit::Films(1, 2));
    runtime::RealDisk disk(Folder.Path());
    runtime::MakeSafetyFolder(disk);
    store::WriteDraft(disk, "draft", {3, true, "Alien", {}, TitledFilm("Alien")});
  }
  fs::path Safety() const { return Folder.Path() / ".reelora"; }

  kit::FreshFolder Folder;
};

TEST_F(DraftVerb, TakesNoFolderThatCannotBeListedForAnEmptyOne) {
  fs::permissions(Folder.Path(), fs::perms(0755));
  fs::permissions(Safety(), fs::perms::none);
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"draft"}, {"draft", "--json"}, {"draft", "--keep"}, {"draft", "--drop", "--write"}}) {
    const kit::OrdinaryUser user;
    const Ran ran = RunIn(Folder.Path(), arguments);
    EXPECT_EQ(ran.Status, Found);
    EXPECT_EQ(ran.Errors, "The folder " + Safety().string() + " cannot be listed.\n");
    EXPECT_EQ(ran.Text, "");
  }
  fs::permissions(Safety(), fs::perms::owner_all);
}

TEST_F(DraftVerb, FindsNoneWithoutTheFolder) {
  fs::remove_all(Safety());
  const Ran ran = RunIn(Folder.Path(), {"draft"});
  EXPECT_EQ(ran.Status, Done);
  EXPECT_EQ(ran.Text, "There is no film that was typed and not saved.\n");
}

TEST_F(DraftVerb, NamesAFileOrALinkInPlaceOfTheFolder) {
  fs::remove_all(Safety());
  for (const bool link : {false, true}) {
    if (link) {
      fs::remove(Safety());
      fs::create_directory_symlink(".", Safety());
    } else {
      story::WriteBytes(Safety(), "mine");
    }
    EXPECT_EQ(RunIn(Folder.Path(), {"draft"}).Errors, "The folder " + Safety().string() + " cannot be listed.\n");
  }
}

TEST_F(DraftVerb, KeepsNothingInAMasterFileOfAnyLength) {
  const std::uintmax_t length = 1'000'001 * std::uintmax_t{649};
  fs::resize_file(Folder.Path() / "Recpra.Dat", length);
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"draft", "--keep"}, {"draft", "--keep", "--write"}}) {
    const Ran ran = RunIn(Folder.Path(), arguments);
    EXPECT_EQ(ran.Status, Found);
    EXPECT_EQ(ran.Errors, "The master file is damaged: it has 1000001 records.\n");
  }
  EXPECT_EQ(fs::file_size(Folder.Path() / "Recpra.Dat"), length);
  EXPECT_EQ(RunIn(Folder.Path(), {"draft", "--drop", "--write"}).Status, Done);
  EXPECT_FALSE(fs::exists(Safety() / "draft"));
}

}  // namespace
}  // namespace companion
