// Twenty thousand kills at random moments: a quarter for each action, half of them in a slot that straddles a page.
#include <gtest/gtest.h>

#include "tests/safety/disabled_safeguard.h"
#include "tests/safety/kill_trial.h"

namespace safety {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int TrialsOfAction = 250;  // a process under the sanitizer starts slowly
#else
constexpr int TrialsOfAction = 5000;
#endif

class Kills : public testing::TestWithParam<std::size_t> {
 protected:
  const RepeatedAction& Repeated = RepeatedActions()[GetParam()];
};

TEST_P(Kills, LeaveNoMixtureAndLoseNoSave) {
  KillCount count = KillAtRandom(Repeated, TrialsOfAction, static_cast<unsigned>(GetParam()));
  RecordProperty("finished_saves", count.Finished);
  EXPECT_EQ(count.Trials, TrialsOfAction);
  EXPECT_EQ(count.Straddling, TrialsOfAction / 2);
  // The count depends on the machine; without any finished save the trial shows nothing.
  EXPECT_GT(count.Finished, TrialsOfAction / 50);
  EXPECT_EQ(count.Complaints, std::vector<std::string>());
}

// A kill rarely hits between the two pages of a write.
constexpr int TrialsToComplaint = 20000;

bool KillsSee(Safeguard guard, std::string_view action) {
  for (const RepeatedAction& repeated : RepeatedActions()) {
    if (repeated.Name == action)
      return !KillAtRandom(repeated, TrialsToComplaint, 1, Without(guard), true).Complaints.empty();
  }
  return false;
}

class KillStrength : public testing::Test {
 protected:
  void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "processes under the sanitizer start too slowly for so many kills";
#endif
  }
};

TEST_F(KillStrength, SeesThatTheJournalIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::JournalWrite, "Edit")); }
TEST_F(KillStrength, SeesThatTheRecoveryIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::Recovery, "Delete")); }
TEST_F(KillStrength, SeesThatTheRenameIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::AsideRename, "Setting")); }

INSTANTIATE_TEST_SUITE_P(RepeatedActions, Kills, testing::Range<std::size_t>(0, RepeatedActions().size()),
                         [](const auto& action) { return RepeatedActions()[action.param].Name; });

}  // namespace
}  // namespace safety
