// Part of the unit tests of a mutated copy: writes to the file MUTATION_REACHED which mutants each test reached, and
// whether it passed.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "tests/mutation/reached.h"

namespace {

class ReachedByTests : public testing::EmptyTestEventListener {
 public:
  explicit ReachedByTests(const char* path) : file_(path) {}

  void OnTestProgramStart(const testing::UnitTest&) override {
    file_ << "start\tpassed\t0\t";
    mutation::WriteReached(file_);
  }

  void OnTestEnd(const testing::TestInfo& test) override {
    file_ << test.test_suite_name() << '.' << test.name() << (test.result()->Passed() ? "\tpassed\t" : "\tfailed\t")
          << test.result()->elapsed_time() << '\t';
    mutation::WriteReached(file_);
  }

 private:
  std::ofstream file_;
};

[[maybe_unused]] const bool Listens = [] {
  const char* path = std::getenv("MUTATION_REACHED");
  if (!path) return false;
  testing::UnitTest::GetInstance()->listeners().Append(new ReachedByTests(path));
  unsetenv("MUTATION_REACHED");  // a test may start this program again
  return true;
}();

}  // namespace
