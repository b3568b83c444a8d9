// The code page and Unicode.
#include "runtime/code_page.h"

#include <gtest/gtest.h>

namespace runtime {
namespace {

TEST(CodePage, EveryByteComesBack) {
  for (int code = 0; code < 256; ++code) {
    char character = static_cast<char>(code);
    EXPECT_EQ(FromUnicode(ToUnicode(character)), character) << code;
    EXPECT_EQ(FromUtf8(ToUtf8({&character, 1})), std::string(1, character)) << code;
  }
}

TEST(CodePage, KnowsItsOwnStretch) {
  EXPECT_EQ(ToUnicode('\x80'), U'\u20AC');
  EXPECT_EQ(ToUnicode('\x96'), U'\u2013');
  EXPECT_EQ(ToUnicode('\x9F'), U'\u0178');
  EXPECT_EQ(ToUnicode('\xE9'), U'\u00E9');
  EXPECT_EQ(FromUnicode(U'\u0153'), '\x9C');
}

TEST(CodePage, HasTheseCharactersFrom80To9F) {
  std::string stretch;
  for (int code = 0x80; code < 0xA0; ++code) stretch += static_cast<char>(code);
  EXPECT_EQ(ToUtf8(stretch), "€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008dŽ\u008f\u0090‘’“”•–—˜™š›œ\u009džŸ");
}

TEST(CodePage, LacksTheRestOfUnicode) {
  for (char32_t character : {U'\u0080', U'\u0100', U'\u0391', U'\u4E2D', U'\U0001F600'})
    EXPECT_EQ(FromUnicode(character), std::nullopt);
}

TEST(CodePage, ReadsUtf8) {
  EXPECT_EQ(FromUtf8("Amélie – 5 €"), "Am\xE9lie \x96 5 \x80");
  EXPECT_EQ(FromUtf8(""), "");
  EXPECT_EQ(ToUtf8("Am\xE9lie \x96 5 \x80"), "Amélie – 5 €");
}

TEST(CodePage, RefusesMalformedUtf8) {
  for (const char* text :
       {"\xC3", "\xC3(", "\xE2\x82", "\x80", "\xC0\xAF", "\xF0\x9F\x98\x80", "\xFF", "\xE0\x83\xA9", "\xE0\xA0"})
    EXPECT_EQ(FromUtf8(text), std::nullopt) << text;
}

}  // namespace
}  // namespace runtime
