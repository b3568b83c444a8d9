// Part of the unit tests of a mutated copy: writes to the file MUTATION_REACHED which mutants each test reached.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "tests/mutation/reached.h"

namespace {

class ReachedByTests : public testing::EmptyTestEventListener {
 public:
  explicit ReachedByTests(const char* path) : file_(path) {}

  void OnTestEnd(const testing::TestInfo& test) override {
    file_ << test.test_suite_name() << '.' << test.name() << "\t\t" << test.result()->elapsed_time() << '\t';
    mutation::WriteReached(file_);
  }

 private:
  std::ofstream file_;
};

[[maybe_unused]] const bool Listens = [] {
  const char* path = std::getenv("MUTATION_REACHED");
  if (path) testing::UnitTest::GetInstance()->listeners().Append(new ReachedByTests(path));
  return path != nullptr;
}();

}  // namespace
