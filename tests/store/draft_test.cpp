// The draft's file, and the slot that a kept film goes to.
#include "store/draft.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <limits>

#include "runtime/checksum.h"
#include "runtime/whole_io.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/passing_disk.h"
#include "tests/kit/refusing_disk.h"
#include "tests/story/world.h"

namespace store {
namespace {

const std::string Name = "draft";
const std::string File = ".reelora/draft";
const std::string Master(MasterFileName);

FilmRecord FilmOf(const std::string& bytes) {
  FilmRecord film;
  bytes.copy(film.Bytes.data(), film.Bytes.size());
  return film;
}

Draft DraftOf(std::int64_t slot, bool is_new, const std::string& title) {
  Draft draft;
  draft.Slot = slot;
  draft.IsNew = is_new;
  draft.Title = title;
  draft.Film.Set(FilmField::Title, title);
  draft.Film.Set(FilmField::Director, "Jane Doe");
  draft.Film.Set(FilmField::Tail, "\r\n");
  return draft;
}

std::string TitleIn(const kit::MemoryDisk& disk, std::size_t slot) {
  return disk.Content().at(Master).substr((slot - 1) * RecordLength, 40);
}

std::string Padded(std::string title) { return title.append(40 - title.size(), ' '); }

class DraftFile : public testing::Test {
 protected:
  kit::MemoryDisk Disk{kit::Folder{}};

  // The disk with that content of the draft's file.
  static std::optional<Draft> ReadFrom(const std::string& bytes) {
    kit::MemoryDisk disk(kit::Folder{{File, bytes}});
    return ReadDraft(disk, Name);
  }
};

TEST_F(DraftFile, IsReadAsItWasWritten) {
  Draft draft = DraftOf(17, true, "The Third Man");
  draft.Before = FilmOf(kit::FilmBytes(17, 3));
  WriteDraft(Disk, Name, draft);
  EXPECT_TRUE(Disk.Content().at(File).starts_with("REELDRF1"));
  std::optional<Draft> read = ReadDraft(Disk, Name);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Slot, 17);
  EXPECT_TRUE(read->IsNew);
  EXPECT_EQ(read->Title, "The Third Man");
  EXPECT_EQ(read->Before.Bytes, draft.Before.Bytes);
  EXPECT_EQ(read->Film.Bytes, draft.Film.Bytes);
}

TEST_F(DraftFile, KeepsMoreOfALongTitleThanASaveUses) {
  Draft draft = DraftOf(1, true, "A " + std::string(100, 'x') + "  y");
  WriteDraft(Disk, Name, draft);
  EXPECT_EQ(ToSave(*ReadDraft(Disk, Name)).Bytes, ToSave(draft).Bytes);
}

TEST_F(DraftFile, OfAnyWrongByteIsNoDraft) {
  WriteDraft(Disk, Name, DraftOf(2, false, "Alien"));
  std::string bytes = Disk.Content().at(File);
  ASSERT_TRUE(ReadFrom(bytes));
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    std::string wrong = bytes;
    wrong[at] = static_cast<char>(wrong[at] ^ 0x40);
    ASSERT_FALSE(ReadFrom(wrong)) << "at byte " << at;
  }
}

// A number of the head, by its offset, under a sum that is right.
std::string WithNumber(std::string bytes, std::size_t at, std::int64_t number) {
  std::memcpy(bytes.data() + at, &number, sizeof number);
  const std::size_t body = bytes.size() - sizeof(std::uint64_t);
  const std::uint64_t sum = runtime::Checksum(std::string_view(bytes).substr(0, body));
  std::memcpy(bytes.data() + body, &sum, sizeof sum);
  return bytes;
}

TEST_F(DraftFile, OfAMadNumberUnderARightSumIsNoDraft) {
  constexpr std::size_t Mark = 0, Slot = 8, TitleLength = 24;
  WriteDraft(Disk, Name, DraftOf(2, false, "Alien"));
  const std::string bytes = Disk.Content().at(File);
  ASSERT_EQ(ReadFrom(WithNumber(bytes, Slot, 7)).value().Slot, 7);
  ASSERT_EQ(ReadFrom(WithNumber(bytes, TitleLength, 64)).value().Title.size(), 64U);
  EXPECT_FALSE(ReadFrom(WithNumber(bytes, Mark, 0)));
  for (std::int64_t slot : {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::max()})
    EXPECT_FALSE(ReadFrom(WithNumber(bytes, Slot, slot))) << slot;
  for (std::int64_t length : {-1, 65}) EXPECT_FALSE(ReadFrom(WithNumber(bytes, TitleLength, length))) << length;
}

TEST_F(DraftFile, OfAnotherNameIsNoDraft) {
  kit::MemoryDisk disk(kit::Folder{{".reelora/journal", ""}, {".reelora/draft.new", ""}, {".reelora/draft7", ""}});
  EXPECT_EQ(DraftNames(disk), std::vector<std::string>{"draft7"});
  kit::MemoryDisk of_all_digits(kit::Folder{{".reelora/draft1234567890", ""}});
  EXPECT_EQ(DraftNames(of_all_digits), std::vector<std::string>{"draft1234567890"});
}

TEST_F(DraftFile, OfAnyOtherLengthIsNoDraft) {
  WriteDraft(Disk, Name, DraftOf(2, false, "Alien"));
  std::string bytes = Disk.Content().at(File);
  for (std::size_t length = 0; length < bytes.size(); ++length) ASSERT_FALSE(ReadFrom(bytes.substr(0, length)));
  EXPECT_FALSE(ReadFrom(bytes + " "));
  EXPECT_FALSE(ReadFrom(bytes + bytes));
}

TEST_F(DraftFile, OfAnotherDraftKeepsItsName) {
  EXPECT_EQ(FreeDraftName(Disk), "draft");
  WriteDraft(Disk, "draft", DraftOf(2, false, "Alien"));
  WriteDraft(Disk, "draft2", DraftOf(3, false, "Brazil"));
  EXPECT_EQ(FreeDraftName(Disk), "draft3");
  EXPECT_EQ(DraftNames(Disk), (std::vector<std::string>{"draft", "draft2"}));
  RemoveDraft(Disk, "draft");
  EXPECT_EQ(FreeDraftName(Disk), "draft");
}

TEST_F(DraftFile, ThatCannotBeReadKeepsItsName) {
  WriteDraft(Disk, "draft", DraftOf(2, false, "Alien"));
  kit::RefusingDisk refusing(Disk, File);
  EXPECT_EQ(FreeDraftName(refusing), "draft2");
}

TEST_F(DraftFile, ThatIsCutWhileItIsReadIsNoDraft) {
  class Cutting final : public kit::PassingDisk {
   public:
    using PassingDisk::PassingDisk;
    std::int64_t ReadAt(int handle, char* target, std::size_t count, std::int64_t offset) override {
      PassingDisk::Truncate(handle, 40);
      return PassingDisk::ReadAt(handle, target, count, offset);
    }
  };
  WriteDraft(Disk, Name, DraftOf(2, false, "Alien"));
  Cutting cutting(Disk);
  EXPECT_FALSE(ReadDraft(cutting, Name));
}

class KeptDraft : public testing::Test {
 protected:
  kit::MemoryDisk Disk{kit::FolderOfFilms(9)};
  runtime::Files Files{Disk};

  // A draft of an edited film, opened as it stands in its slot.
  Draft Edited(std::int64_t slot, const std::string& title) {
    Draft draft = DraftOf(slot, false, title);
    draft.Before = FilmOf(kit::FilmBytes(static_cast<int>(slot), 0));
    return draft;
  }
  void Put(std::int64_t slot, const FilmRecord& film) {
    OpenMaster(Files, 1);
    WriteRecord(Files, 1, slot, film);
    Files.Close(1);
  }
};

TEST_F(KeptDraft, GoesIntoItsSlotIfThatHoldsItsFilm) {
  KeepDraft(Files, Edited(7, "The Keeper"));
  EXPECT_EQ(TitleIn(Disk, 7), Padded("Keeper, The"));
  EXPECT_EQ(Disk.Content().at(Master).size(), 9u * RecordLength);
  EXPECT_TRUE(IsSaved(Files, Edited(7, "The Keeper")));
}

TEST_F(KeptDraft, PutsTheFilmBeforeItIntoTheHistory) {
  KeepDraft(Files, Edited(7, "The Keeper"));
  EXPECT_NE(Disk.Content().at(".reelora/history").find(kit::FilmBytes(7, 0)), std::string::npos);
}

TEST_F(KeptDraft, GoesIntoItsSlotIfThatIsFree) {
  Put(7, FilmRecord());
  KeepDraft(Files, Edited(7, "Alien"));
  EXPECT_EQ(TitleIn(Disk, 7), Padded("Alien"));
}

TEST_F(KeptDraft, LeavesAnotherFilmInItsSlotAlone) {
  Put(7, FilmOf(kit::FilmBytes(7, 5)));
  KeepDraft(Files, Edited(7, "Alien"));
  EXPECT_EQ(Disk.Content().at(Master).substr(6 * RecordLength, RecordLength), kit::FilmBytes(7, 5));
  EXPECT_EQ(TitleIn(Disk, 10), Padded("Alien"));
}

TEST_F(KeptDraft, TakesTheFirstFreeSlotThen) {
  Put(7, FilmOf(kit::FilmBytes(7, 5)));
  Put(4, FilmRecord());
  KeepDraft(Files, Edited(7, "Alien"));
  EXPECT_EQ(TitleIn(Disk, 4), Padded("Alien"));
  EXPECT_EQ(Disk.Content().at(Master).size(), 9u * RecordLength);
}

TEST_F(KeptDraft, TakesTheVeryFirstSlotIfThatIsFree) {
  Put(1, FilmRecord());
  KeepDraft(Files, DraftOf(7, true, "Alien"));
  EXPECT_EQ(TitleIn(Disk, 1), Padded("Alien"));
}

TEST_F(KeptDraft, CountsARecordThatTheFileCutsOffAsASlot) {
  kit::Folder folder = kit::FolderOfFilms(9);
  folder[Master] += 'X';
  Disk = kit::MemoryDisk(folder);
  KeepDraft(Files, DraftOf(7, true, "Alien"));
  EXPECT_EQ(Disk.Content().at(Master)[9 * RecordLength], 'X');
  EXPECT_EQ(TitleIn(Disk, 11), Padded("Alien"));
}

TEST_F(KeptDraft, LeavesNoGapBehindTheLastFilm) {
  KeepDraft(Files, DraftOf(11, true, "Alien"));
  EXPECT_EQ(TitleIn(Disk, 10), Padded("Alien"));
}

TEST(IsBlank, IsToldFromAFilm) {
  EXPECT_TRUE(IsBlank(FilmRecord()));
  EXPECT_FALSE(IsBlank(FilmOf(kit::FilmBytes(1, 0))));
}

TEST_F(KeptDraft, IsNotKeptTwiceInTwoSlots) {
  Put(7, FilmOf(kit::FilmBytes(7, 5)));
  KeepDraft(Files, Edited(7, "Alien"));
  KeepDraft(Files, Edited(7, "Alien"));
  EXPECT_EQ(Disk.Content().at(Master).size(), 10u * RecordLength);
}

TEST_F(KeptDraft, OfANewFilmTakesNoFilmsSlot) {
  Draft draft = DraftOf(1, true, "Alien");
  draft.Before = FilmOf(kit::FilmBytes(1, 0));
  KeepDraft(Files, draft);
  EXPECT_EQ(TitleIn(Disk, 10), Padded("Alien"));
}

TEST_F(KeptDraft, FarBehindTheEndComesBehindTheLastFilm) {
  KeepDraft(Files, DraftOf(std::int64_t{1} << 60, true, "Alien"));
  EXPECT_EQ(Disk.Content().at(Master).size(), 10u * RecordLength);
  EXPECT_EQ(TitleIn(Disk, 10), Padded("Alien"));
}

TEST(KeptInADamagedFile, ComesBehindTheLastSlotOnceAndWithoutASearch) {
  const kit::FreshFolder folder;
  const std::string master = (folder.Path() / Master).string();
  story::WriteBytes(master, kit::Films(1, 2) + std::string(RecordLength, ' '));
  constexpr std::uintmax_t Length = 1'000'001 * std::uintmax_t{RecordLength};
  std::filesystem::resize_file(master, Length);
  runtime::RealDisk disk(folder.Path().string());
  runtime::Files files(disk);
  KeepDraft(files, DraftOf(1, true, "Alien"));
  KeepDraft(files, DraftOf(1, true, "Alien"));
  EXPECT_EQ(std::filesystem::file_size(master), Length + RecordLength);
  FilmRecord last;
  runtime::OpenFile(disk, Master, runtime::Disk::Mode::Read).Read(last.Bytes.data(), RecordLength, Length);
  EXPECT_EQ(last.Get(FilmField::Title), Padded("Alien"));
}

TEST_F(KeptDraft, LeavesTheMasterFileClosed) {
  KeepDraft(Files, Edited(7, "Alien"));
  EXPECT_FALSE(Files.IsOpen(1));
}

}  // namespace
}  // namespace store
