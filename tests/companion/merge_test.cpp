// A collection has room for as many records as a view can show.
#include <gtest/gtest.h>

#include "tests/companion/command_test.h"
#include "tests/kit/collection.h"
#include "tests/kit/films.h"
#include "tests/story/world.h"

namespace companion {
namespace {

std::string Full() {
  const std::string film = kit::FilmBytes(1, 0);
  std::string master;
  for (int slot = 1; slot <= 32'767; ++slot) master += film;
  return master;
}

TEST(MergeTest, TakesTheLastFreeRecordAndNoneBeyond) {
  const kit::Collection here, there;
  const std::filesystem::path master = here.Folder() / "Recpra.Dat";
  story::WriteBytes(there.Folder() / "Recpra.Dat", kit::FilmBytes(2, 0));
  std::string films = Full();
  story::WriteBytes(master, films);
  const Ran refused = RunIn(here.Folder(), {"merge", there.Folder(), "--write"});
  EXPECT_EQ(refused.Status, Found);
  EXPECT_EQ(refused.Errors, "There is no room: a collection has 32767 records at most. Nothing was added.\n");
  EXPECT_TRUE(story::ReadBytes(master) == films);
  std::fill(films.end() - 649, films.end(), ' ');
  story::WriteBytes(master, films);
  EXPECT_EQ(RunIn(here.Folder(), {"merge", there.Folder(), "--write"}).Status, Done);
  EXPECT_EQ(story::ReadBytes(master)->substr(32'766 * 649), kit::FilmBytes(2, 0));
}

}  // namespace
}  // namespace companion
