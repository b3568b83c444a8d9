// Two threads share pieces of work; a failure of either is reported.
#include "sort/workers.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>

#include "tests/kit/no_new_threads.h"

namespace sort {
namespace {

TEST(SortWorkersTest, DoBothPartsOfEachPieceOnTwoThreads) {
  Workers workers;
  std::array<std::thread::id, 2> threads;
  std::array<int, 2> done{};
  for (int piece = 1; piece <= 500; ++piece) {
    workers.RunHalves([&](int worker) {
      ++done.at(worker);
      threads.at(worker) = std::this_thread::get_id();
    });
    ASSERT_EQ(done, (std::array{piece, piece}));
  }
  EXPECT_EQ(threads[0], std::this_thread::get_id());
  EXPECT_NE(threads[0], threads[1]);
}

TEST(SortWorkersTest, DoBothPartsOnTheCallersThreadWhereThereIsNoOther) {
  std::string parts;
  RunHalves(nullptr, [&](int worker) { parts += std::to_string(worker); });
  EXPECT_EQ(parts, "01");
}

TEST(SortWorkersTest, DoBothPartsOnTheCallersThreadIfTheSystemRefusesAnother) {
  Workers workers;
  std::string parts;
  std::thread::id second;
  {
    const kit::NoNewThreads refused;
    workers.RunHalves([&](int worker) {
      parts += std::to_string(worker);
      second = std::this_thread::get_id();
    });
  }
  EXPECT_EQ(parts, "01");
  EXPECT_EQ(second, std::this_thread::get_id());
  workers.RunHalves([&](int worker) {
    if (worker == 1) second = std::this_thread::get_id();
  });
  EXPECT_NE(second, std::this_thread::get_id());
}

TEST(SortWorkersTest, ThrowWhatEitherPartThrowsAndGoOnAfterwards) {
  Workers workers;
  for (int thrower : {0, 1}) {
    bool other_done = false;
    EXPECT_THROW(workers.RunHalves([&](int worker) {
      if (worker == thrower) throw std::runtime_error("no");
      other_done = true;
    }),
                 std::runtime_error);
    EXPECT_TRUE(other_done);
  }
  EXPECT_THROW(workers.RunHalves([](int) { throw std::runtime_error("both"); }), std::runtime_error);
  std::array<bool, 2> done{};
  workers.RunHalves([&](int worker) { done.at(worker) = true; });
  EXPECT_EQ(done, (std::array{true, true}));
}

}  // namespace
}  // namespace sort
