// Conversion between the code page and the toolkit.
#include "desktop/text.h"

#include <gtest/gtest.h>

namespace desktop {
namespace {

TEST(Text, EveryByteComesBack) {
  for (int byte = 0; byte < 0x100; ++byte) {
    std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(Stored(Shown(text)), text) << byte;
  }
  EXPECT_EQ(Shown("\x80\x99"), QString::fromUtf8("€™"));
  EXPECT_EQ(Stored(QString::fromUtf8("€™ é")), "\x80\x99 \xe9");
}

TEST(Text, ABoxTakesNoControlCharactersAndNothingThatTheCodePageLacks) {
  QString text = QString::fromUtf8("aж\tb\nc😀");
  EXPECT_EQ(Typed(text), "abc");
  EXPECT_EQ(NotTyped(text), QString::fromUtf8("ж\t\n😀"));
  EXPECT_EQ(NotTyped(QString::fromUtf8("É\u00a0€")), "");
  EXPECT_EQ(NotTyped(QString(QChar(0x90))), QString(QChar(0x90)));
}

TEST(Text, AnAccentTypedByItselfJoinsItsLetter) {
  EXPECT_EQ(Typed(QString::fromUtf8("e\u0301")), QString::fromUtf8("é"));
}

TEST(Text, ACaptionIsSpokenWithoutPaddingAndHotKey) {
  EXPECT_EQ(Spoken("     Genre        Click box  "), "Genre Click box");
  EXPECT_EQ(Spoken("Ne&w"), "New");
}

TEST(Breakable, LetsALineBreakInAPathAndInALongWord) {
  EXPECT_EQ(Breakable("in /a/b c"), QString::fromUtf16(u"in /a/\u200Bb c"));
  EXPECT_EQ(Breakable(QString(50, 'x')), QString(40, 'x') + QChar(0x200B) + QString(10, 'x'));
  EXPECT_EQ(Breakable(QString(30, 'x') + " " + QString(30, 'x')), QString(30, 'x') + " " + QString(30, 'x'));
  QString film = QString(39, 'x') + QString::fromUtf16(u"\U0001F3AC");
  EXPECT_EQ(Breakable(film), film + QChar(0x200B)) << "a character was cut in two";
}

}  // namespace
}  // namespace desktop
