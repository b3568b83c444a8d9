// What the guard says about files that an event has left.
#include "tests/monkey/complaints.h"

#include <gtest/gtest.h>

#include "store/history.h"
#include "tests/kit/films.h"

namespace monkey {
namespace {

const std::string Blank = std::string(647, ' ') + "\r\n";

TEST(SlotComplaint, OfAWriteToOneSlotIsNone) {
  const std::string before = kit::Films(1, 3);
  EXPECT_EQ(SlotComplaint(before, kit::FilmBytes(1, 0) + kit::FilmBytes(2, 9) + kit::FilmBytes(3, 0), 2, false), "");
  EXPECT_EQ(SlotComplaint(before, before + kit::FilmBytes(4, 0), 4, false), "");
  EXPECT_EQ(SlotComplaint(before, before + std::string(649, ' ') + kit::FilmBytes(5, 0), 5, false), "");
  EXPECT_EQ(SlotComplaint(before + "part", before + Blank, 4, false), "");
}

TEST(SlotComplaint, NamesWhatIsWrong) {
  const std::string before = kit::Films(1, 3);
  EXPECT_EQ(SlotComplaint(before, before.substr(1) + ".", 2, false), "bytes before slot 2 were changed");
  EXPECT_EQ(SlotComplaint(before, kit::Films(1, 2) + kit::FilmBytes(3, 1), 2, false),
            "bytes after slot 2 were changed");
  EXPECT_EQ(SlotComplaint(before, before + "x", 2, false), "a length of 1948 bytes after a write to slot 2");
  EXPECT_EQ(SlotComplaint(before, before + std::string(649, 'x') + Blank, 5, false),
            "the gap before slot 5 is not blank");
  EXPECT_EQ(SlotComplaint(before, before + std::string(649, ' '), 4, false), "slot 4 has no line end");
  EXPECT_EQ(SlotComplaint(before, before + std::string(649, ' '), 4, true), "") << "a delete that was stopped";
}

class HistoryOfSlot2 : public testing::Test {
 protected:
  static std::string Entry(int slot, const std::string& film) { return store::HistoryHead({}, slot) + film; }
  std::string Complaint(const std::string& history, bool disturbed = false) const {
    return HistoryComplaint(Old, history, 2, Before, After, disturbed);
  }

  const std::string Film = kit::FilmBytes(2, 0);
  const std::string Before = kit::FilmBytes(1, 0) + Film;
  const std::string After = kit::FilmBytes(1, 0) + kit::FilmBytes(2, 1);
  const std::string Old = Entry(1, kit::FilmBytes(1, 5));
};

TEST_F(HistoryOfSlot2, HasTheFilmAtItsEnd) {
  EXPECT_EQ(Complaint(Old + Entry(2, Film)), "");
  EXPECT_EQ(HistoryComplaint(Old + "part", Old + Entry(2, Film), 2, Before, After, false), "");
  EXPECT_EQ(Complaint(Old + Entry(2, Film) + "part", true), "");
}

TEST_F(HistoryOfSlot2, NamesWhatIsWrong) {
  EXPECT_EQ(Complaint(Old), "the film of slot 2 is not in the history");
  EXPECT_EQ(Complaint(Old, true), "the film of slot 2 is not in the history");
  EXPECT_EQ(Complaint(Old + Entry(3, Film)), "an entry of the history for another slot than slot 2");
  EXPECT_EQ(Complaint(Old + Entry(2, Blank)), "the entry of the history is not the film of slot 2");
  EXPECT_EQ(Complaint(Old + Entry(2, Film) + "part"), "the history has part of an entry");
  EXPECT_EQ(Complaint(Entry(2, Film)), "an older entry of the history was changed");
  EXPECT_EQ(HistoryComplaint(Old, Old + Entry(2, Film), std::nullopt, Before, Before, false),
            "an entry of the history for a slot that was not written");
}

}  // namespace
}  // namespace monkey
