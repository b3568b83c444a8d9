// Which texts are control statements, and what they mean.
#include "sort/statement.h"

#include <gtest/gtest.h>

namespace sort {
namespace {

constexpr std::string_view Titles =
    "S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(1,40,C,GT,\"000000\") Record(649)";

TEST(Statement, ReadsEveryClauseOfThePassOfTitles) {
  auto statement = ParseStatement(Titles);
  ASSERT_TRUE(statement);
  ASSERT_EQ(statement->Fields.size(), 1u);
  EXPECT_EQ(statement->Fields[0].Span.Offset, 0u);
  EXPECT_EQ(statement->Fields[0].Span.Width, 40u);
  EXPECT_FALSE(statement->Fields[0].Descending);
  EXPECT_EQ(statement->WeightsFile, "UPPER.ALT");
  ASSERT_EQ(statement->Output.size(), 3u);
  EXPECT_EQ(statement->Output[0].As, OutputPiece::Kind::Bytes);
  EXPECT_EQ(statement->Output[0].Span.Width, 40u);
  EXPECT_EQ(statement->Output[1].As, OutputPiece::Kind::RecordNumber);
  EXPECT_EQ(statement->Output[2].As, OutputPiece::Kind::LineEnd);
  ASSERT_TRUE(statement->Include);
  EXPECT_EQ(statement->Include->Constant, "000000");
  EXPECT_FALSE(statement->Include->KeepsLess);
  EXPECT_FALSE(statement->Include->KeepsEqual);
  EXPECT_TRUE(statement->Include->KeepsGreater);
  EXPECT_EQ(statement->RecordLength, 649u);
}

TEST(Statement, ReadsThePassOfOneFormatWithItsBlankAtTheEnd) {
  auto statement =
      ParseStatement("S(1,40,C,A) ALTSEQ(UPPER.ALT) OUTREC(1,40,Arrn,CRLF ) Include(266,1,C,EQ,\"D\") Record(649) ");
  ASSERT_TRUE(statement);
  EXPECT_EQ(statement->Include->Span.Offset, 265u);
  EXPECT_EQ(statement->Include->Span.Width, 1u);
  EXPECT_TRUE(statement->Include->KeepsEqual);
}

TEST(Statement, ReadsSeveralFieldsAndPieces) {
  auto statement = ParseStatement("S(3,2,C,D,1,2,C,A) OUTREC(CRLF,5,1,Arrn,1,2,5,1) Record(8)");
  ASSERT_TRUE(statement);
  ASSERT_EQ(statement->Fields.size(), 2u);
  EXPECT_TRUE(statement->Fields[0].Descending);
  EXPECT_FALSE(statement->Fields[1].Descending);
  ASSERT_EQ(statement->Output.size(), 5u);
  EXPECT_EQ(statement->Output[0].As, OutputPiece::Kind::LineEnd);
  EXPECT_EQ(statement->Output[1].Span.Offset, 4u);
  EXPECT_EQ(statement->Output[2].As, OutputPiece::Kind::RecordNumber);
  EXPECT_EQ(statement->Output[4].Span.Offset, 4u);
  EXPECT_FALSE(statement->WeightsFile);
  EXPECT_FALSE(statement->Include);
}

TEST(Statement, TakesWordsInAnyCaseAndClausesInAnyOrder) {
  EXPECT_TRUE(ParseStatement("record(4) include(1,1,c,ne,\"x\") outrec(1,4,ARRN,crlf) altseq(a.b) s(1,1,c,d)"));
}

TEST(Statement, TakesBlanksBetweenItsParts) {
  EXPECT_TRUE(ParseStatement("  S( 1 , 4 , C , A )   OUTREC( 1 , 4 , CRLF )  Record( 4 )  "));
}

TEST(Statement, KnowsTheSixRelations) {
  struct Row {
    std::string Word;
    bool Less, Equal, Greater;
  };
  for (const Row& row : {Row{"EQ", false, true, false}, Row{"NE", true, false, true}, Row{"GT", false, false, true},
                         Row{"GE", false, true, true}, Row{"LT", true, false, false}, Row{"LE", true, true, false}}) {
    auto statement = ParseStatement("S(1,1,C,A) OUTREC(1,1) Include(1,1,C," + row.Word + ",\"m\") Record(1)");
    ASSERT_TRUE(statement) << row.Word;
    EXPECT_EQ(statement->Include->KeepsLess, row.Less) << row.Word;
    EXPECT_EQ(statement->Include->KeepsEqual, row.Equal) << row.Word;
    EXPECT_EQ(statement->Include->KeepsGreater, row.Greater) << row.Word;
  }
}

TEST(Statement, IsNoneWhereAPartIsMissingWrongOrTooMuch) {
  for (const char* text : {
           "",
           " ",
           "sort this",
           "S(1,40,C,A) OUTREC(1,40)",
           "OUTREC(1,40) Record(649)",
           "S(1,40,C,A) Record(649)",
           "S() OUTREC(1,40) Record(649)",
           "S(1,40,C) OUTREC(1,40) Record(649)",
           "S(1,40,C,X) OUTREC(1,40) Record(649)",
           "S(1,40,B,A) OUTREC(1,40) Record(649)",
           "S(0,40,C,A) OUTREC(1,40) Record(649)",
           "S(1,0,C,A) OUTREC(1,40) Record(649)",
           "S(-1,40,C,A) OUTREC(1,40) Record(649)",
           "S(1,40,C,A, OUTREC(1,40) Record(649)",
           "S(1,40,C,A OUTREC(1,40) Record(649)",
           "S 1,40,C,A) OUTREC(1,40) Record(649)",
           "S(610,41,C,A) OUTREC(1,40) Record(649)",
           "S(1,40,C,A) OUTREC() Record(649)",
           "S(1,40,C,A) OUTREC(1) Record(649)",
           "S(1,40,C,A) OUTREC(1,650) Record(649)",
           "S(1,40,C,A) OUTREC(1,40,) Record(649)",
           "S(1,40,C,A) OUTREC(1,40,Number) Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Record(0)",
           "S(1,40,C,A) OUTREC(1,40) Record()",
           "S(1,40,C,A) OUTREC(1,40) Record(32768)",
           "S(1,40,C,A) OUTREC(1,40) Record(99999999999999999999)",
           "S(1,40,C,A) OUTREC(1,40) Record(649) Record(649)",
           "S(1,40,C,A) S(1,40,C,A) OUTREC(1,40) Record(649)",
           "S(1,40,C,A) ALTSEQ() OUTREC(1,40) Record(649)",
           "S(1,40,C,A) ALTSEQ(UPPER.ALT OUTREC 1,40 Record",
           "S(1,40,C,A) OUTREC(1,40) Include(1,40,C,GT,000000) Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Include(1,40,C,GT,\"000000) Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Include(1,40,C,XX,\"000000\") Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Include(1,40,C,\"000000\") Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Include(650,1,C,EQ,\"D\") Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Include(266,1,C,EQ,\"D\"x) Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Include(266,1,C,EQ,\"D\"\") Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Record(649) and more",
           "S(1,40,C,X OUTREC(1,40) Record(649)",
           "S(1,40,C,A) OUTREC(Number Record(649)",
           "S(1,40,C,A) OUTREC(1,40) Record(64:)",
           "S(1,40,C,A) OUTREC(1,40) Record(649) ALTSEQ(",
           "S(1,40,C,A) OUTREC(1,40) Record(649) Include(",
           "S(1,40,C,A) OUTREC(1,40) Record(649) Include(266,1,C,XX",
           "S(1,40,C,A) OUTREC(1,40) Include(266,1,C,EQ,\") Record(649)",
       }) {
    EXPECT_FALSE(ParseStatement(text)) << text;
  }
}

TEST(Statement, OfThePassOfTitlesIsNoneWhenCutAnywhere) {
  for (std::size_t length = 0; length < Titles.size(); ++length)
    EXPECT_FALSE(ParseStatement(Titles.substr(0, length))) << Titles.substr(0, length);
}

}  // namespace
}  // namespace sort
