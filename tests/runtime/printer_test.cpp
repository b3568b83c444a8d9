// The printer's text surface, item by item.
#include "runtime/printer.h"

#include <gtest/gtest.h>

namespace runtime {
namespace {

std::vector<std::string> LinesOf(const PrintedPage& page) {
  std::vector<std::string> lines;
  for (const PrintedLine& line : page.Lines) lines.push_back(line.PlainText());
  return lines;
}

using Lines = std::vector<std::string>;

TEST(Printer, PrintsALineOfItemsWithoutSeparators) {
  Printer printer;
  printer.Print({"one", "two", Tab{10}, "ten"});
  EXPECT_EQ(LinesOf(printer.EndDocument("").Pages.at(0)), Lines({"onetwo   ten"}));
}

TEST(Printer, ATabToThePositionItselfStaysInTheLine) {
  Printer printer;
  printer.Print({"abc", Tab{4}, "d"});
  EXPECT_EQ(LinesOf(printer.EndDocument("").Pages.at(0)), Lines({"abcd"}));
}

TEST(Printer, ATabBehindThePositionGoesToTheNextLine) {
  Printer printer;
  printer.Print({"abcd", Tab{4}, "e", Tab{8}, "f"});
  EXPECT_EQ(LinesOf(printer.EndDocument("").Pages.at(0)), Lines({"abcd", "   e   f"}));
}

TEST(Printer, ANumberHasABlankForItsSignAndOneBehind) {
  Printer printer;
  printer.Print({"Page ", NumberItem{7}, "x", NumberItem{-12}, "y"});
  EXPECT_EQ(LinesOf(printer.EndDocument("").Pages.at(0)), Lines({"Page  7 x-12 y"}));
}

TEST(Printer, EmptyStatementsAndCarriageReturnsAreEmptyLines) {
  Printer printer;
  printer.PrintEmpty();
  printer.Print({"a"});
  printer.CarriageReturn();
  printer.Print({"b"});
  printer.CarriageReturn();
  EXPECT_EQ(LinesOf(printer.EndDocument("").Pages.at(0)), Lines({"", "a", "", "b", ""}));
}

TEST(Printer, EmptyTextsDoNotBeginALine) {
  Printer printer;
  printer.Print({Tab{3}, "", Tab{6}, "x"});
  PrintJob job = printer.EndDocument("");
  EXPECT_EQ(job.Pages.at(0).Lines.at(0).From, 6);
  EXPECT_EQ(job.Pages.at(0).Lines.at(0).Text, "x");
}

TEST(Printer, StylesHoldForTheLinesThatFollow) {
  Printer printer;
  printer.Print({"plain"});
  printer.SetBold(true);
  printer.SetUnderline(true);
  printer.Print({Tab{5}, "both", Tab{3}, "still"});
  printer.SetUnderline(false);
  printer.Print({"bold"});
  auto lines = printer.EndDocument("").Pages.at(0).Lines;
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_FALSE(lines[0].Bold || lines[0].Underline);
  EXPECT_TRUE(lines[1].Bold && lines[1].Underline);
  EXPECT_TRUE(lines[2].Bold && lines[2].Underline);
  EXPECT_TRUE(lines[3].Bold && !lines[3].Underline);
}

TEST(Printer, BlanksAtTheEndArePrintedAndLeftOutOfThePlainText) {
  Printer printer;
  printer.Print({Tab{2}, "note  "});
  PrintedLine line = printer.EndDocument("").Pages.at(0).Lines.at(0);
  EXPECT_EQ(line.Text, "note  ");
  EXPECT_EQ(line.PlainText(), " note");
}

TEST(Printer, ALineIsKeptAtItsLength) {
  Printer printer;
  printer.Print({std::string(500, 'x')});
  printer.Print({std::string(40, 'x')});
  EXPECT_EQ(printer.EndDocument("").Pages.at(0).Lines.at(1).Text.capacity(), 40u);
}

TEST(Printer, PagesFollowOneAnother) {
  Printer printer;
  printer.Print({"a"});
  printer.NewPage();
  printer.Print({"b"});
  PrintJob job = printer.EndDocument("");
  ASSERT_EQ(job.Pages.size(), 2u);
  EXPECT_EQ(LinesOf(job.Pages[0]), Lines({"a"}));
  EXPECT_EQ(LinesOf(job.Pages[1]), Lines({"b"}));
}

TEST(Printer, ADocumentTakesWhatAnUnendedOneLeft) {
  Printer printer;
  printer.SetFont("Courier New", 12);
  printer.Print({"left"});
  printer.Print({"next"});
  PrintJob job = printer.EndDocument("Next List");
  EXPECT_EQ(job.Title, "Next List");
  EXPECT_EQ(job.FontName, "Courier New");
  EXPECT_EQ(job.FontSize, 12);
  EXPECT_EQ(LinesOf(job.Pages.at(0)), Lines({"left", "next"}));
}

TEST(Printer, AnEndedDocumentIsGone) {
  Printer printer;
  printer.SetFont("Courier New", 12);
  printer.Print({"first"});
  printer.EndDocument("");
  printer.Print({"second"});
  PrintJob job = printer.EndDocument("");
  EXPECT_EQ(LinesOf(job.Pages.at(0)), Lines({"second"}));
  EXPECT_EQ(job.FontSize, 12);
}

}  // namespace
}  // namespace runtime
