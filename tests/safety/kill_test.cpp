// Twenty thousand kills at random moments, the same number for each action, half of them in a slot that straddles a
// page. REELORA_KILLS asks for another number, with other moments and slots; REELORA_SEED for others again.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "tests/kit/under_sanitizer.h"
#include "tests/safety/disabled_safeguard.h"
#include "tests/safety/kill_trial.h"

namespace safety {
namespace {

constexpr int UsualTrials = kit::UnderSanitizer ? 1000 : 20000;

int Asked(const char* variable, int otherwise) {
  const char* asked = std::getenv(variable);
  return asked ? std::atoi(asked) : otherwise;
}

class Kills : public testing::TestWithParam<std::size_t> {
 protected:
  const RepeatedAction& Repeated = RepeatedActions()[GetParam()];
  const int Total = Asked("REELORA_KILLS", UsualTrials);
  const int Trials = Total / static_cast<int>(RepeatedActions().size());
  // The usual kills are planned the same in every run.
  const int Row = Asked("REELORA_SEED", Total == UsualTrials ? 0 : 1);
  const unsigned Seed = static_cast<unsigned>(1000 * Row) + static_cast<unsigned>(GetParam());
};

TEST_P(Kills, LeaveNoMixtureAndLoseNoSave) {
  KillCount count = KillAtRandom(Repeated, Trials, Seed);
  std::cout << Repeated.Name << ": " << count.Trials << " kills, " << count.Straddling << " in straddling slots, "
            << count.Finished << " finished saves, " << count.Complaints.size() << " complaints" << std::endl;
  EXPECT_EQ(count.Trials, Trials);
  EXPECT_EQ(count.Straddling, (Trials + 1) / 2);
  // The count depends on the machine; without any finished save the trial shows nothing.
  EXPECT_GT(count.Finished, Trials / 50);
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
    if (kit::UnderSanitizer) GTEST_SKIP() << "processes under the sanitizer start too slowly for so many kills";
  }
};

TEST_F(KillStrength, SeesThatTheJournalIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::JournalWrite, "Edit")); }
TEST_F(KillStrength, SeesThatTheRecoveryIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::Recovery, "Delete")); }
TEST_F(KillStrength, SeesThatTheRenameIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::AsideRename, "Setting")); }
TEST_F(KillStrength, SeesThatTheRenameOfACopyIsMissing) { EXPECT_TRUE(KillsSee(Safeguard::AsideRename, "Copy")); }

INSTANTIATE_TEST_SUITE_P(RepeatedActions, Kills, testing::Range<std::size_t>(0, RepeatedActions().size()),
                         [](const auto& action) { return RepeatedActions()[action.param].Name; });

}  // namespace
}  // namespace safety
