// Conversion between the code page and the toolkit.
#include "desktop/text.h"

#include <gtest/gtest.h>

namespace desktop {
namespace {

TEST(Text, EveryByteIsStoredAsItWasButControlCharacters) {
  constexpr std::string_view Undefined = "\x81\x8D\x8F\x90\x9D";
  for (int byte = 0x80; byte < 0x100; ++byte) {
    std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(Stored(Shown(text)), Undefined.find(text) == std::string_view::npos ? text : "") << byte;
  }
  EXPECT_EQ(Shown("\x80\x99"), QString::fromUtf8("€™"));
  EXPECT_EQ(Stored(QString::fromUtf8("€™ é")), "\x80\x99 \xe9");
}

TEST(Text, WhatTheCodePageLacksIsLeftOut) {
  EXPECT_EQ(Stored(QString::fromUtf8("aж\tb\nc😀")), "abc");
  EXPECT_FALSE(Storable(QString::fromUtf8("ж")));
  EXPECT_TRUE(Storable(QString::fromUtf8("É")));
}

TEST(Text, AnAccentTypedByItselfJoinsItsLetter) { EXPECT_EQ(Stored(QString::fromUtf8("e\u0301")), "\xe9"); }

TEST(Text, ACaptionIsSpokenWithoutPaddingAndHotKey) {
  EXPECT_EQ(Spoken("     Genre        Click box  "), "Genre Click box");
  EXPECT_EQ(Spoken("Ne&w"), "New");
}

TEST(CodePageValidator, TakesOutWhatIsRefusedAndKeepsTheCaretInPlace) {
  int refusals = 0;
  CodePageValidator validator([&] { return ++refusals > 0; });
  QString text = QString::fromUtf8("abжcd");
  int caret = 3;
  EXPECT_EQ(validator.validate(text, caret), QValidator::Acceptable);
  EXPECT_EQ(text, "abcd");
  EXPECT_EQ(caret, 2);
  EXPECT_EQ(refusals, 1);
}

TEST(CodePageValidator, AsksNothingAboutATextThatItTakes) {
  int refusals = 0;
  CodePageValidator validator([&] { return ++refusals > 0; });
  QString text = QString::fromUtf8("Amélie");
  int caret = 6;
  validator.validate(text, caret);
  EXPECT_EQ(text, QString::fromUtf8("Amélie"));
  EXPECT_EQ(refusals, 0);
}

}  // namespace
}  // namespace desktop
