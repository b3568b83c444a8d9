// Integers of 16 and 32 bits: rounding and overflow.
#include "runtime/checked_int.h"

#include <gtest/gtest.h>

#include <cmath>

namespace runtime {
namespace {

template <typename Doing>
std::string_view FailureOf(Doing doing) {
  try {
    doing();
  } catch (const Failure& failure) {
    return failure.Name;
  }
  return "";
}

TEST(Words, OverflowsNameNoFile) {
  try {
    RoundToInt16(32768);
    FAIL() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.File, "");
    EXPECT_EQ(failure.SystemError, 0);
  }
  try {
    Int16 word = 32768;
    FAIL() << "no failure: " << word;
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.File, "");
  }
}

TEST(Words, RoundTiesToEven) {
  EXPECT_EQ(RoundToInt16(0.5), 0);
  EXPECT_EQ(RoundToInt16(1.5), 2);
  EXPECT_EQ(RoundToInt16(2.5), 2);
  EXPECT_EQ(RoundToInt16(-0.5), 0);
  EXPECT_EQ(RoundToInt16(-1.5), -2);
  EXPECT_EQ(RoundToInt16(-2.5), -2);
}

TEST(Words, RoundToTheNearest) {
  EXPECT_EQ(RoundToInt32(2.49), 2);
  EXPECT_EQ(RoundToInt32(2.51), 3);
  EXPECT_EQ(RoundToInt32(-2.51), -3);
  EXPECT_EQ(RoundToInt32(973.0 / 649), 1);
  EXPECT_EQ(RoundToInt32(974.0 / 649), 2);
}

TEST(Words, RoundingOverflowsAtTheEdgeOfTheWord) {
  EXPECT_EQ(RoundToInt16(32767.5 - 0.1), 32767);
  EXPECT_EQ(RoundToInt16(-32768.5), -32768);
  EXPECT_EQ(FailureOf([] { RoundToInt16(32767.5); }), Overflow);
  EXPECT_EQ(FailureOf([] { RoundToInt16(-32768.6); }), Overflow);
  EXPECT_EQ(RoundToInt32(2147483647.0), 2147483647);
  EXPECT_EQ(FailureOf([] { RoundToInt32(2147483648.0); }), Overflow);
  EXPECT_EQ(FailureOf([] { RoundToInt32(std::nan("")); }), Overflow);
  EXPECT_EQ(FailureOf([] { RoundToInt32(1e300); }), Overflow);
}

TEST(Words, AnAssignmentThatDoesNotFitOverflowsAndLeavesTheWord) {
  Int16 word = 32767;
  EXPECT_EQ(FailureOf([&] { word += 1; }), Overflow);
  EXPECT_EQ(word, 32767);
  EXPECT_EQ(FailureOf([&] { word = -32769; }), Overflow);
  EXPECT_EQ(word, 32767);
  word -= 65535;
  EXPECT_EQ(word, -32768);
}

TEST(Words, A32BitWordHoldsMore) {
  Int32 word = 32767;
  word += 1;
  EXPECT_EQ(word, 32768);
  word = 2147483647;
  EXPECT_EQ(FailureOf([&] { word += 1; }), Overflow);
}

TEST(Words, StartAtZero) {
  EXPECT_EQ(Int16(), 0);
  EXPECT_EQ(Int32(), 0);
}

}  // namespace
}  // namespace runtime
