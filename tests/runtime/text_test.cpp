// Texts: trimming, padding, capitals, numbers.
#include "runtime/text.h"

#include <gtest/gtest.h>

#include <limits>

#include "runtime/failure.h"

namespace runtime {
namespace {

// The name of the failure; "" if there is none.
std::string_view FailureOf(std::string_view text) {
  try {
    WholeNumber(text, "Last");
  } catch (const Failure& failure) {
    if (failure.Name == TypeMismatch) {
      EXPECT_EQ(failure.File, "Last");
    }
    return failure.Name;
  }
  return "";
}

TEST(Text, TrimTakesBlanksAtBothEndsAndNothingElse) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\t a"), "\t a");
  EXPECT_EQ(TrimFront("  a  "), "a  ");
  EXPECT_EQ(TrimFront("   "), "");
}

TEST(Text, FixedCutsOrPads) {
  EXPECT_EQ(Fixed("abc", 5), "abc  ");
  EXPECT_EQ(Fixed("abc", 2), "ab");
  EXPECT_EQ(Fixed("", 2), "  ");
}

TEST(Text, CapitalsCoverTheAccentedLetters) {
  EXPECT_EQ(Upper("Third man, 7"), "THIRD MAN, 7");
  EXPECT_EQ(Upper("\xE0\xE9\xF1\xFC\xFE"), "\xC0\xC9\xD1\xDC\xDE");
  EXPECT_EQ(Upper("\x9A\x9C\x9E\xFF"), "\x8A\x8C\x8E\x9F");
}

TEST(Text, WhatHasNoCapitalStays) {
  EXPECT_EQ(Upper("\xF7\xD7\xDF\x83\xB5"), "\xF7\xD7\xDF\x83\xB5");
  EXPECT_EQ(Upper("\xC9 [{`"), "\xC9 [{`");
}

TEST(Text, PositionsCountFromOne) {
  EXPECT_EQ(Position("Solaris", "lar"), 3u);
  EXPECT_EQ(Position("Solaris", "LAR"), 0u);
  EXPECT_EQ(Position("Solaris", ""), 1u);
  EXPECT_EQ(Position("", "a"), 0u);
}

TEST(Text, NumbersAsTextKeepThePlaceOfTheSign) {
  EXPECT_EQ(NumberText(0), " 0");
  EXPECT_EQ(NumberText(1234), " 1234");
  EXPECT_EQ(NumberText(-5), "-5");
}

TEST(Text, TheNumericValueGoesAsFarAsTheNumberDoes) {
  EXPECT_EQ(NumericValue("  12abc"), 12);
  EXPECT_EQ(NumericValue("12.5.6"), 12.5);
  EXPECT_EQ(NumericValue("-7"), -7);
  EXPECT_EQ(NumericValue("+7"), 7);
  EXPECT_EQ(NumericValue(".5"), 0.5);
  EXPECT_EQ(NumericValue("-.5x"), -0.5);
  EXPECT_EQ(NumericValue("5."), 5);
  EXPECT_EQ(NumericValue("1e3"), 1);
}

TEST(Text, AValuePastAllNumbersIsEndlessOfItsSign) {
  const std::string nines(400, '9');
  EXPECT_EQ(NumericValue(nines), std::numeric_limits<double>::infinity());
  EXPECT_EQ(NumericValue("-" + nines), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(NumericValue(std::string(400, '5')), std::numeric_limits<double>::infinity());
  EXPECT_EQ(NumericValue("0." + std::string(400, '0') + "1"), 0);
}

TEST(Text, WordsHaveNoValue) {
  for (const char* text : {"", "   ", "abc", "-", "+", ".", "- 5", "+-5", "inf", "nan", "&5"})
    EXPECT_EQ(NumericValue(text), 0) << text;
}

TEST(Text, AWholeNumberIsRoundedToEven) {
  EXPECT_EQ(WholeNumber(" 12 ", "Last"), 12);
  EXPECT_EQ(WholeNumber("2.5", "Last"), 2);
  EXPECT_EQ(WholeNumber("3.5", "Last"), 4);
  EXPECT_EQ(WholeNumber("-2147483648", "Last"), -2147483647 - 1);
}

TEST(Text, WhatIsNoNumberIsATypeMismatch) {
  for (const char* text : {"", "  ", "abc", "12a", "1 2", "--1", "."}) EXPECT_EQ(FailureOf(text), TypeMismatch) << text;
  for (const char* text : {"1.5.6", "1:", "1/"}) EXPECT_EQ(FailureOf(text), TypeMismatch) << text;
}

TEST(Text, WhatDoesNotFitOverflows) {
  EXPECT_EQ(FailureOf("2147483647"), "");
  EXPECT_EQ(FailureOf("2147483648"), Overflow);
  EXPECT_EQ(FailureOf("-2147483649"), Overflow);
  EXPECT_EQ(FailureOf("99999999999999999999999999"), Overflow);
  EXPECT_EQ(FailureOf(std::string(400, '9')), Overflow);
  EXPECT_EQ(FailureOf("0." + std::string(400, '0') + "1"), "");
}

}  // namespace
}  // namespace runtime
