// Twenty thousand kills at random moments, a quarter for each habit, half of them in a slot that straddles a page.
#include <gtest/gtest.h>

#include "tests/safety/kill_trial.h"
#include "tests/safety/switched_off.h"

namespace safety {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int TrialsOfHabit = 250;  // a process that is watched starts slowly
#else
constexpr int TrialsOfHabit = 5000;
#endif

class Kills : public testing::TestWithParam<std::size_t> {
 protected:
  const Habit& Repeated = Habits()[GetParam()];
};

TEST_P(Kills, LeaveNoMixtureAndLoseNoSave) {
  KillCount count = KillAtRandom(Repeated, TrialsOfHabit, static_cast<unsigned>(GetParam()));
  RecordProperty("finished_saves", count.Finished);
  EXPECT_EQ(count.Trials, TrialsOfHabit);
  EXPECT_EQ(count.Straddling, TrialsOfHabit / 2);
  // How many saves end before the kill is a matter of the machine; some must, or the trial shows nothing.
  EXPECT_GT(count.Finished, TrialsOfHabit / 50);
  EXPECT_EQ(count.Complaints, std::vector<std::string>());
}

// A kill falls between the two pages of a write seldom enough to need some hundred trials.
constexpr int TrialsToComplaint = 20000;

bool KillsSee(Safeguard guard, std::string_view habit) {
  for (const Habit& repeated : Habits()) {
    if (repeated.Name == habit)
      return !KillAtRandom(repeated, TrialsToComplaint, 1, Without(guard), true).Complaints.empty();
  }
  return false;
}

class KillStrength : public testing::Test {
 protected:
  void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "watched processes start too slowly for so many kills";
#endif
  }
};

TEST_F(KillStrength, SeesThatTheJournalIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::JournalWrite, "Edit")); }
TEST_F(KillStrength, SeesThatTheRecoveryIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::Recovery, "Delete")); }
TEST_F(KillStrength, SeesThatTheRenameIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::AsideRename, "Setting")); }

INSTANTIATE_TEST_SUITE_P(Habits, Kills, testing::Range<std::size_t>(0, Habits().size()),
                         [](const auto& habit) { return Habits()[habit.param].Name; });

}  // namespace
}  // namespace safety
