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

}  // namespace
}  // namespace desktop
