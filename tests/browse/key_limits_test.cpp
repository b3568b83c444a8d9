// The limits of views and lists: 32,766 keys work, 32,767 end in an overflow, more open in a genre view alone.
#include "tests/browse/browsing.h"

namespace {

using Shown = std::vector<std::string>;

struct WayIn {
  const char* Name;
  forms::MenuItem screen::PageControls::*Item;
};
// clang-format off
constexpr WayIn Views[] = {
  { "Title", &frmPage1::mnuByTitle },
  { "DVD",   &frmPage1::mnuByDVD },
  { "Laser", &frmPage1::mnuByLaser },
  { "VHS",   &frmPage1::mnuByVHS },
};
constexpr WayIn Lists[] = {
  { "Title", &frmPage1::mnuAllTitles },
  { "DVD",   &frmPage1::mnualldvd },
  { "Laser", &frmPage1::mnualllas },
  { "VHS",   &frmPage1::mnuAllVHS },
  { "Genre", &frmPage1::mnuFindAllGenre },
};
// clang-format on

std::string TitleOf(int number) {
  std::string digits = std::to_string(number);
  return "Film " + std::string(5 - digits.size(), '0') + digits;
}

class KeyLimitsTest : public BrowsingTest {
 protected:
  // Every fourth film is a comedy; all four key files hold all keys.
  void LayOut(int keys) {
    SetUpLine("films 1 " + std::to_string(keys) + " Title=\"Film #####\" Format=\"D\" Genre=\"DR\"");
    SetGenres(keys);
    SetUpLine("sorted");
    std::string bytes = story::ReadBytes(fresh.Path() / "Titlepra.Dat").value_or("");
    ASSERT_EQ(bytes.size(), static_cast<std::size_t>(keys) * 49);
    for (const char* name : {"Laserpra", "VHSpra"}) {
      story::WriteBytes(fresh.Path() / (std::string(name) + ".Dat"), bytes);
      SetUpLine("count " + std::string(name) + " " + std::to_string(keys));
    }
  }
  void SetGenres(int keys) {
    std::string master = story::ReadBytes(fresh.Path() / "Recpra.Dat").value_or("");
    std::size_t at = master.find("DR", 0);
    for (int film = 1; film <= keys; ++film, at += store::RecordLength) {
      if (film % 4 == 0) master.replace(at, 2, "CO");
    }
    story::WriteBytes(fresh.Path() / "Recpra.Dat", master);
  }
};

TEST_F(KeyLimitsTest, EveryViewWalks32766KeysAndSaysItsEnd) {
  constexpr int Keys = 32766;
  LayOut(Keys);
  for (const WayIn& view : Views) {
    SCOPED_TRACE(view.Name);
    frmPage1& window = Start();
    Click(window.*view.Item);
    for (int key = 1; key < Keys; ++key) {
      ASSERT_EQ(window.KeyFilePos, key);
      ASSERT_EQ(window.txtTitle.Text(), TitleOf(key));
      Click(window.cmdNext);
    }
    EXPECT_EQ(window.txtTitle.Text(), TitleOf(Keys));
    EXPECT_EQ(desk.Shown, Shown());
    Click(window.cmdNext);
    std::string blanks(view.Item == &frmPage1::mnuByVHS ? 10 : 0, ' ');
    EXPECT_EQ(desk.Shown, Shown({"beep", blanks + "End of file!"}));
    EXPECT_EQ(window.CurrentRecNo, 1);
    EXPECT_EQ(desk.Reported, "");
  }
}

TEST_F(KeyLimitsTest, EveryListPages32766KeysBothWaysAndSaysItsEnds) {
  constexpr int Keys = 32766;
  constexpr int FullPages = Keys / 20;
  LayOut(Keys);
  for (const WayIn& list : Lists) {
    SCOPED_TRACE(list.Name);
    bool by_genre = list.Item == &frmPage1::mnuFindAllGenre;
    desk.Typed = by_genre ? "r" : "";
    frmPage1& window = Start();
    // Three of four films are dramas, so their pages in the genre list are longer apart.
    int full_pages = by_genre ? (Keys - Keys / 4) / 20 : FullPages;
    Click(window.*list.Item);
    for (int page = 1; page < full_pages; ++page) {
      int first = 20 * (page - 1) + 1;
      ASSERT_EQ(window.Text1[0].Text(), TitleOf(by_genre ? first + (first - 1) / 3 : first));
      Click(window.cmdNext20);
    }
    ASSERT_EQ(desk.Shown, Shown());
    EXPECT_EQ(window.RowCursor, 20);
    if (!by_genre) {
      for (int page = full_pages; page > 1; --page) Click(window.cmdPrev20);
      ASSERT_EQ(desk.Shown, Shown());
      EXPECT_EQ(window.Text1[0].Text(), TitleOf(1));
      EXPECT_EQ(window.Text1[19].Text(), TitleOf(20));
      Click(window.cmdPrev20);
      EXPECT_EQ(desk.Shown, Shown({"beep", "Top of file encountered!"}));
      Click(window.*list.Item);
      for (int page = 1; page < full_pages; ++page) Click(window.cmdNext20);
      desk.Shown.clear();
    }
    Click(window.cmdNext20);
    EXPECT_EQ(desk.Shown, Shown({"beep", "End of file!"}));
    EXPECT_EQ(window.Text1[5].Text() == TitleOf(Keys), !by_genre);
    EXPECT_EQ(window.ListState, 0);
    EXPECT_EQ(desk.Reported, "");
  }
}

TEST_F(KeyLimitsTest, AGenreViewWalks32766KeysAndSaysItsEnd) {
  LayOut(32766);
  desk.Typed = "co";
  frmPage1& window = Start();
  Click(window.mnuFindGenre);
  for (int film = 4; film < 32766 - 4; film += 4) {
    ASSERT_EQ(window.txtTitle.Text(), TitleOf(film));
    Click(window.cmdNext);
  }
  EXPECT_EQ(window.txtTitle.Text(), TitleOf(32764));
  EXPECT_EQ(desk.Shown, Shown());
  Click(window.cmdNext);
  EXPECT_EQ(desk.Shown, Shown({"beep", "End of file encountered!"}));
  EXPECT_EQ(desk.Reported, "");
}

// Each step counts twice in RowCursor, which is as wide as KeyFilePos.
TEST_F(KeyLimitsTest, AGenreViewOfTooManyFilmsOverflowsInItsCount) {
  LayOut(32766);
  desk.Typed = "dr";
  frmPage1& window = Start();
  Click(window.mnuFindGenre);
  for (int step = 1; step < 16384; ++step) {
    ASSERT_EQ(desk.Reported, "");
    Click(window.cmdNext);
  }
  EXPECT_EQ(window.RowCursor, 32767);
  Click(window.cmdNext);
  EXPECT_EQ(desk.Reported, "Overflow");
}

TEST_F(KeyLimitsTest, AViewOf32767KeysOpensAndOverflowsBehindTheLast) {
  LayOut(32767);
  for (const WayIn& view : Views) {
    SCOPED_TRACE(view.Name);
    frmPage1& window = Start();
    Click(window.*view.Item);
    EXPECT_EQ(window.txtTitle.Text(), TitleOf(1));
    window.KeyFilePos = 32766;
    Click(window.cmdNext);
    EXPECT_EQ(window.txtTitle.Text(), TitleOf(32767));
    EXPECT_EQ(desk.Shown, Shown());
    EXPECT_EQ(desk.Reported, "");
    Click(window.cmdNext);
    EXPECT_EQ(desk.Shown, Shown());
    EXPECT_EQ(desk.Reported, "Overflow");
    EXPECT_TRUE(program->Ended());
  }
}

TEST_F(KeyLimitsTest, AListOf32767KeysOverflowsWhenItOpens) {
  LayOut(32767);
  desk.Typed = "dr";
  for (const WayIn& list : Lists) {
    SCOPED_TRACE(list.Name);
    frmPage1& window = Start();
    Click(window.*list.Item);
    EXPECT_EQ(desk.Shown, Shown());
    EXPECT_EQ(desk.Reported, "Overflow");
  }
}

TEST_F(KeyLimitsTest, NoListAndNoAlphabeticalViewOpens32768Keys) {
  LayOut(32768);
  desk.Typed = "dr";
  auto expect_overflow = [&](const WayIn& way) {
    SCOPED_TRACE(way.Name);
    frmPage1& window = Start();
    Click(window.*way.Item);
    EXPECT_EQ(desk.Shown, Shown());
    EXPECT_EQ(desk.Reported, "Overflow");
    EXPECT_EQ(window.CurrentRecNo, 1);
  };
  for (const WayIn& view : Views) expect_overflow(view);
  for (const WayIn& list : Lists) expect_overflow(list);
}

TEST_F(KeyLimitsTest, AGenreViewOpens32768Keys) {
  LayOut(32768);
  desk.Typed = "co";
  frmPage1& window = Start();
  Click(window.mnuFindGenre);
  EXPECT_EQ(desk.Shown, Shown());
  EXPECT_EQ(desk.Reported, "");
  EXPECT_EQ(window.txtTitle.Text(), TitleOf(4));
}

TEST_F(KeyLimitsTest, AKeyFileWithAByteMoreIsWalkedUntilThePositionOverflows) {
  SetUpLine("film 1 Title=\"Alien\"");
  SetUpLine("film 2 Title=\"Brazil\"");
  SetUpLine("sorted");
  story::WriteBytes(fresh.Path() / "Titlepra.Dat", story::ReadBytes(fresh.Path() / "Titlepra.Dat").value_or("") + "X");
  frmPage1& window = Start();
  Click(window.mnuByTitle);
  for (int position = 2; position <= 32767; ++position) {
    Click(window.cmdNext);
    ASSERT_EQ(window.KeyFilePos, position);
  }
  EXPECT_EQ(window.txtTitle.Text(), "Brazil");
  EXPECT_EQ(desk.Shown, Shown());
  EXPECT_EQ(desk.Reported, "");
  Click(window.cmdNext);
  EXPECT_EQ(desk.Reported, "Overflow");
}

}  // namespace
