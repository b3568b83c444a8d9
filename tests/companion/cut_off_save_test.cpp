// A save that was cut off in the middle of its record is read as the next start of the program would leave it, by
// whoever reads the collection or takes films from it, and nothing is written there.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "runtime/journal_block.h"
#include "tests/companion/command_test.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/story/world.h"

namespace companion {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

constexpr int Slot = 7;
// The bytes of that slot up to the border of the sectors that it lies on.
constexpr std::size_t ToBorder = 4096 - 6 * 649;

std::string With(const std::string& film) { return kit::Films(1, Slot - 1) + film + kit::Films(Slot + 1, 8); }
std::string Mixed(std::size_t border) {
  return kit::FilmBytes(Slot, 1).substr(0, border) + kit::FilmBytes(Slot, 0).substr(border);
}

class CutOffSave : public testing::Test {
 protected:
  CutOffSave() {
    for (const auto& [name, bytes] : kit::FolderOfFilms(8)) {
      for (const kit::FreshFolder* folder : {&Torn, &Whole}) story::WriteBytes(folder->Path() / name, bytes);
    }
    story::WriteBytes(Here.Path() / "Recpra.Dat", kit::Films(1, 3));
    Put(With(Mixed(ToBorder)), With(kit::FilmBytes(Slot, 1)));
    NoteSave({"Recpra.Dat", Slot, 8 * 649, kit::FilmBytes(Slot, 0), kit::FilmBytes(Slot, 1)});
  }
  void Put(const std::string& torn, const std::string& whole) {
    story::WriteBytes(Torn.Path() / "Recpra.Dat", torn);
    story::WriteBytes(Whole.Path() / "Recpra.Dat", whole);
  }
  void NoteSave(const runtime::JournalBlock& block) {
    runtime::RealDisk disk(Torn.Path());
    runtime::MakeSafetyFolder(disk);
    runtime::WriteBlock(runtime::OpenJournal(disk), block);
  }
  // The first sectors of a ninth film.
  void PutPartOfAnAppend() {
    Put(kit::Films(1, 8) + kit::FilmBytes(9, 1).substr(0, 5632 - 8 * 649), kit::Films(1, 8));
    NoteSave({"Recpra.Dat", 9, 8 * 649, std::string(649, '\0'), kit::FilmBytes(9, 1)});
  }
  static Files FilesIn(const fs::path& folder) {
    Files files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
      if (entry.is_regular_file()) files[entry.path()] = *story::ReadBytes(entry.path());
    }
    return files;
  }
  // What is read of the torn collection is what is read of the whole one.
  void ExpectReadAsWhole() {
    const Files before = FilesIn(Torn.Path());
    for (const std::vector<std::string>& verb : {std::vector<std::string>{"export"},
                                                 {"export", "--format", "json"},
                                                 {"list", "--json"},
                                                 {"search", "a"},
                                                 {"stats"},
                                                 {"backup"},
                                                 {"sort"},
                                                 {"diff", Here.Path()}}) {
      EXPECT_EQ(RunIn(Torn.Path(), verb).Text, RunIn(Whole.Path(), verb).Text) << verb[0];
    }
    for (const fs::path& other : {Torn.Path(), Torn.Path() / "Recpra.Dat"}) {
      EXPECT_EQ(RunIn(Here.Path(), {"diff", other}).Text, RunIn(Here.Path(), {"diff", Whole.Path()}).Text) << other;
      EXPECT_EQ(RunIn(Whole.Path(), {"diff", other}).Text, "The films are the same.\n") << other;
    }
    EXPECT_TRUE(FilesIn(Torn.Path()) == before);
  }
  // After a verb that takes films of the torn collection.
  std::string FilmsHere(const std::string& verb) {
    const Files before = FilesIn(Torn.Path());
    const Ran ran = RunIn(Here.Path(), {verb, Torn.Path(), "--write"});
    EXPECT_EQ(ran.Status, Done) << ran.Errors;
    EXPECT_TRUE(FilesIn(Torn.Path()) == before);
    return *story::ReadBytes(Here.Path() / "Recpra.Dat");
  }

  kit::FreshFolder Torn, Whole, Here;
};

TEST_F(CutOffSave, IsReadAsTheNewFilm) { ExpectReadAsWhole(); }

TEST_F(CutOffSave, OfANewFilmIsNotRead) {
  PutPartOfAnAppend();
  ExpectReadAsWhole();
}

// The file lacks the last byte of its last film, and the write has not come so far.
TEST_F(CutOffSave, OverAFilmThatEndsEarlyIsReadAsTheOldFilm) {
  constexpr std::size_t Border = 4608 - 7 * 649;
  const std::string before = kit::Films(1, 8).substr(0, 8 * 649 - 1), saved = kit::FilmBytes(8, 1);
  std::string torn = before;
  torn.replace(7 * 649, Border, saved, 0, Border);
  Put(torn, before);
  NoteSave({"Recpra.Dat", 8, 8 * 649 - 1, before.substr(7 * 649) + '\0', saved});
  ExpectReadAsWhole();
  EXPECT_EQ(FilmsHere("restore-backup"), before);
}

TEST_F(CutOffSave, IsMergedAndPutBackAsTheNewFilm) {
  EXPECT_EQ(FilmsHere("merge"), With(kit::FilmBytes(Slot, 1)));
  EXPECT_EQ(FilmsHere("restore-backup"), With(kit::FilmBytes(Slot, 1)));
}

TEST_F(CutOffSave, OfANewFilmIsNeitherMergedNorPutBack) {
  PutPartOfAnAppend();
  EXPECT_EQ(FilmsHere("merge"), kit::Films(1, 8));
  EXPECT_EQ(FilmsHere("restore-backup"), kit::Films(1, 8));
}

// A mixture within a sector, or another film.
TEST_F(CutOffSave, ChangesNothingInABackupThatWasPutBesideIt) {
  for (const std::string& films : {With(Mixed(ToBorder / 2)), With(kit::FilmBytes(Slot, 2)), kit::Films(11, 13)}) {
    Put(films, films);
    ExpectReadAsWhole();
    EXPECT_EQ(FilmsHere("restore-backup"), films);
  }
}

}  // namespace
}  // namespace companion
