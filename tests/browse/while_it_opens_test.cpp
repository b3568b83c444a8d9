// What the screen shows while a list opens, and what a step reads again from the folder.
#include "tests/browse/browsing.h"

namespace {

using Shown = std::vector<std::string>;

struct Opening {
  forms::MenuItem screen::PageControls::*Item;
  std::string_view Heading;  // under the box that tells the end
};
// clang-format off
constexpr Opening Openings[] = {
  { &frmPage1::mnuAllTitles,    "what stood there before" },
  { &frmPage1::mnualldvd,       "    Viewing All DVD Titles" },
  { &frmPage1::mnualllas,       "    Viewing All Titles" },
  { &frmPage1::mnuAllVHS,       "    Viewing All Titles" },
  { &frmPage1::mnuFindAllGenre, "    Viewing Files For Genre" },
};
// clang-format on

// The list ends at its first key, before a film is shown under the new heading.
TEST_F(BrowsingTest, AListHasItsHeadingBeforeItsFirstFilm) {
  SetUpLine("film 1 Title=\"Alien\"");
  for (const char* name : {"Titlepra", "DVDpra", "Laserpra", "VHSpra"}) {
    SetUpLine("count " + std::string(name) + " 1");
    SetUpLine("key " + std::string(name) + ".Dat \"\" 1");
  }
  desk.Typed = "sf";
  for (const Opening& opening : Openings) {
    frmPage1& window = Start();
    window.lblHead.SetCaption("what stood there before");
    std::string heading;
    desk.Watch = [&] { heading = window.lblHead.Caption(); };
    Click(window.*opening.Item);
    EXPECT_EQ(heading, opening.Heading);
    EXPECT_EQ(desk.Shown, Shown({"End of file!"}));
  }
}

TEST_F(BrowsingTest, ARowIsClearedBeforeTheEndIsTold) {
  SetUpLine("films 1 22 Title=\"Film ##\" Format=\"D\"");
  SetUpLine("sorted");
  frmPage1& window = Start();
  Click(window.mnuAllTitles);
  std::vector<std::string> rows;
  desk.Watch = [&] { rows = {window.Text1[1].Text(), window.Text1[2].Text(), window.Text1[19].Text()}; };
  Click(window.cmdNext20);
  EXPECT_EQ(rows, std::vector<std::string>({"Film 22", "", ""}));
}

TEST_F(BrowsingTest, TheGenreViewHasAHeadingWhileItAsks) {
  SetUpLine("film 1 Title=\"Alien\"");
  SetUpLine("sorted");
  frmPage1& window = Start();
  std::string heading;
  desk.Watch = [&] { heading = window.lblHead.Caption(); };
  Click(window.mnuFindGenre);
  EXPECT_EQ(heading, "Viewing Genre File Alphabetically");
}

TEST_F(BrowsingTest, TheGenreViewNamesTheGenreWithOneBlankUntilAFilmIsShown) {
  SetUpLine("film 1 Title=\"Alien\" Genre=\"DR\"");
  SetUpLine("film 2 Title=\"\"");
  SetUpLine("sorted");
  frmPage1& window = Start();
  std::string heading;
  desk.Watch = [&] { heading = window.lblHead.Caption(); };
  desk.Typed = "we";
  Click(window.mnuFindGenre);
  EXPECT_EQ(heading, "Viewing Files For Western Alphabetically");
}

TEST_F(BrowsingTest, TheSlotBehindTheLastIsShownBeforeTheEndIsTold) {
  SetUpLine("film 1 Title=\"Alien\"");
  SetUpLine("film 2 Title=\"Brazil\" Director=\"Terry Gilliam\"");
  frmPage1& window = Start();
  std::vector<std::string> seen;
  desk.Watch = [&] { seen = {window.Caption(), window.txtTitle.Text()}; };
  Click(window.cmdNext);
  Click(window.cmdNext);
  EXPECT_EQ(seen, Shown({"Reelora Prima Record  3/ 2      Title Non Sorted", "Brazil"}));
  desk.Typed = "9";
  Click(window.mnuFile);
  EXPECT_EQ(seen[0], "Reelora Prima Record  9/ 2      Title Non Sorted");
}

TEST_F(BrowsingTest, AFormatViewReadsItsCountAtEachStepAndTheTitleViewNever) {
  SetUpLine("films 1 3 Title=\"Film #\" Format=\"L\"");
  SetUpLine("sorted");
  frmPage1& window = Start();
  Click(window.mnuByLaser);
  SetUpLine("count Laserpra 0");
  Click(window.cmdNext);
  EXPECT_EQ(desk.Shown, Shown({"Records have not been sorted.  Records must be sorted before records can be viewed!"}));
  EXPECT_EQ(window.ViewKind, "");
  desk.Shown.clear();

  Click(window.mnuByTitle);
  SetUpLine("remove Titlepra");
  Click(window.cmdNext);
  EXPECT_EQ(window.txtTitle.Text(), "Film 2");
  EXPECT_EQ(desk.Shown, Shown());
  Click(window.mnuAllTitles);
  EXPECT_EQ(desk.Reported, "File not found");
}

TEST_F(BrowsingTest, AMissingOrEmptyCountFileStopsAFormatView) {
  SetUpLine("film 1 Title=\"Alien\" Format=\"V\"");
  SetUpLine("sorted");
  frmPage1& window = Start();
  SetUpLine("remove VHSpra");
  Click(window.mnuByVHS);
  EXPECT_EQ(desk.Reported, "File not found");

  SetUpLine("count VHSpra 1");
  frmPage1& again = Start();
  SetUpLine("file VHSpra \"\"");
  Click(again.mnuByVHS);
  EXPECT_EQ(desk.Reported, "Input past end of file");
}

TEST_F(BrowsingTest, AListsCountIsReadAgainByItsNext) {
  SetUpLine("films 1 45 Title=\"Film ##\" Format=\"D\"");
  SetUpLine("sorted");
  frmPage1& window = Start();
  Click(window.mnualldvd);
  SetUpLine("remove DVDpra");
  Click(window.cmdNext20);
  EXPECT_EQ(window.Text1[0].Text(), "Film 21");
  SetUpLine("remove Titlepra");
  Click(window.cmdNext20);
  EXPECT_EQ(desk.Reported, "File not found");
}

// If "Last" is gone, the number read before is used.
TEST_F(BrowsingTest, ALastEntryThatGoesMissingIsTheOneReadBefore) {
  SetUpLine("films 1 4 Title=\"Film #\"");
  SetUpLine("file Last \"3\\r\\n\"");
  frmPage1& window = Start();
  Click(window.mnuLastEntry);
  EXPECT_EQ(window.txtTitle.Text(), "Film 3");
  Click(window.cmdPrevious);
  SetUpLine("remove Last");
  Click(window.mnuLastEntry);
  EXPECT_EQ(window.txtTitle.Text(), "Film 3");
  EXPECT_EQ(window.CurrentRecNo, 3);
  EXPECT_EQ(desk.Shown, Shown());
}

}  // namespace
