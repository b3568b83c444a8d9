// The twenty-row lists: a page of films at a time, in key order. Every list goes on by way of View All Genre, whose
// empty filter passes every film.
#include "browse/key_walk.h"

using store::FilmField;

namespace {

// Whether a list looks at the genre of a film, and where the genre comes from: it takes every film unseen, it tests
// with an empty filter that every film passes, or it asks.
enum class Filter { None, Empty, Asked };

// Everything in which the five lists differ.
struct TwentyRowList {
  std::string_view Kind;
  std::string_view KeyFile;
  std::string_view CountFile;
  screen::Text screen::RunState::*Count;
  std::string_view CanView;  // how the not-sorted text ends
  std::string_view NotSortedTitle;
  std::string_view Heading;
  Filter By;
  bool GoesOnUnsorted;  // the box is shown all the same
};

// clang-format off
constexpr TwentyRowList AllTitles = { "Title", "Titlepra.Dat", "Titlepra", &frmPage1::TitleCount, "can viewed!",    "Reelora Prima Print Program", "", Filter::None, false };
constexpr TwentyRowList AllDVD    = { "DVD",   "DVDpra.Dat",   "DVDpra",   &frmPage1::DVDCount,   "can viewed!",    "Reelora Prima",               "    Viewing All DVD Titles", Filter::Empty, true };
constexpr TwentyRowList AllLaser  = { "Laser", "Laserpra.Dat", "Laserpra", &frmPage1::LaserCount, "can be viewed!", "Reelora Prima",               "    Viewing All Titles", Filter::Empty, false };
constexpr TwentyRowList AllVHS    = { "VHS",   "VHSpra.Dat",   "VHSpra",   &frmPage1::VHSCount,   "can be viewed!", "Reelora Prima",               "    Viewing All Titles", Filter::Empty, false };
constexpr TwentyRowList AllGenre  = { "Genre", "Titlepra.Dat", "Titlepra", &frmPage1::TitleCount, "can viewed!",    "Reelora Prima Print Program", "    Viewing Files For Genre", Filter::Asked, false };

constexpr std::string_view GenrePrompt =
    "Enter Genre To Search:  Use 2 Letter Abreviation\n\rExamples\n\rAA  Action Adventure \n\rDR  Drama\n\rCO  Comedy\n\rupper or lower case";
// clang-format on

constexpr int FullPage = screen::ListRows;

class ListPage {
 public:
  ListPage(frmPage1& window, const TwentyRowList& list) : window_(window), list_(list) {}

  void Run() {
    if (TakesAll()) window_.cmdNext.Hide();
    if (list_.By != Filter::Asked) window_.GenreFilter = "";
    window_.ViewState = 1;
    window_.SearchState = 1;
    window_.ListShown = 1;
    window_.ListShownAlso = 1;
    if (NotSorted()) return;
    window_.ListState = 2;
    if (window_.PageMode == 4) {
      window_.RowCursor = 0;
      window_.ReopenKeyFile(window_.ListKeyFile);
    } else if (!Open()) {
      return;
    }
    Fill();
  }

 private:
  bool TakesAll() const { return list_.By == Filter::None; }

  // A list that goes on after the box ends at its first key.
  bool NotSorted() {
    window_.*list_.Count = window_.ReadOneItem(CountFileNo, list_.CountFile);
    if (window_.*list_.Count != "0") return false;
    std::string text = "Records have not been sorted.  Records must be sorted before records ";
    window_.Desk.MessageBox(forms::Icon::Warning, list_.NotSortedTitle, text.append(list_.CanView));
    if (list_.GoesOnUnsorted) return false;
    window_.cmdReset_Click();
    return true;
  }

  bool Open() {
    window_.KeyFilePos = 0;
    window_.BackCount = 0;
    window_.RowCursor = 0;
    window_.Files.Close(KeyFileNo);
    window_.ViewKind = list_.Kind;
    window_.cmdPrev20.Show();
    window_.cmdNext20.Show();
    window_.cmdPrevious.Hide();
    window_.cmdNext.Hide();
    window_.cmdPrevious.Enable();
    window_.optNotesoff.Hide();
    window_.optnoteson.Hide();
    if (!TakesAll()) {
      for (forms::Button* button : {&window_.cmdDelete, &window_.cmdMatch, &window_.cmdEdit, &window_.cmdSave})
        button->Enable();
      window_.lblHead.SetCaption(list_.Heading);
    }
    if (list_.By == Filter::Asked) {
      window_.GenreFilter = window_.Desk.InputBox("Search", GenrePrompt);
      if (window_.GenreFilter == "") {
        window_.cmdReset_Click();
        return false;
      }
      window_.GenreFilter = runtime::Upper(window_.GenreFilter);
    }
    window_.CurrentRecNo = 1;
    for (screen::GridColumn* column : {&window_.Text1, &window_.Text2, &window_.Text3}) {
      for (forms::TextBox& row : *column) row.Show();
    }
    window_.RecordFound = 0;
    window_.KeyFilePos = 1;
    window_.ListKeyFile = list_.KeyFile;
    window_.OpenKeyFile(list_.KeyFile);
    return true;
  }

  // The limit is looked at once a page; behind it the first row takes the record number that there is.
  void Fill() {
    std::int16_t limit =
        runtime::RoundToInt16(static_cast<double>(window_.Files.Length(KeyFileNo)) / browse::KeyLength + 1);
    bool read_key = window_.KeyFilePos <= limit;
    while (window_.RowCursor < FullPage) {
      if (read_key && !TakeKey()) return;
      read_key = true;
      if (!TakeFilm()) continue;
      window_.WriteListRow(window_.RowCursor);
      window_.RowCursor += 1;
      window_.MatchPos = 0;
      if (window_.RowCursor < FullPage) window_.KeyFilePos += 1;
    }
    window_.MatchPos = 0;
    window_.cmdNext20.Show();
    window_.cmdPrev20.Show();
  }

  // False where the list is over.
  bool TakeKey() {
    if (window_.NavDirection == 1 && window_.KeyFilePos == 0) {
      window_.Desk.Beep();
      window_.Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
      window_.CurrentRecNo = 1;
      window_.cmdReset_Click();
      if (TakesAll()) window_.cmdNew.Show();
      return false;
    }
    if (window_.PastLastKey(browse::KeyLength)) window_.Desk.Beep();
    window_.ReadKeyPastBlank();
    if (window_.PastLastKey(browse::KeyLength)) {
      End();
      return false;
    }
    return window_.TakeScanRecNoOrStop();
  }

  void End() {
    for (int row = static_cast<int>(window_.RowCursor); row < FullPage; ++row) {
      for (screen::GridColumn* column : {&window_.Text1, &window_.Text2, &window_.Text3}) (*column)[row].SetText("");
    }
    window_.Desk.MessageBox(forms::Icon::None, "", "End of file!");
    window_.PageMode = 0;
    window_.Files.Close(KeyFileNo);
    window_.cmdReset_Click();
  }

  // False where the film does not pass the filter, KeyFilePos having moved on (or, walking back, back).
  bool TakeFilm() {
    if (!TakesAll() && window_.NavDirection != 1) {
      window_.ReadRecord(window_.ScanRecNo);
      window_.MatchGenre();
      if (window_.MatchPos < 1) {
        window_.KeyFilePos += 1;
        return false;
      }
      window_.RecordFound = 1;
      window_.HitCount += 1;
    }
    window_.ReadRecord(window_.ScanRecNo);
    if (!TakesAll()) {
      window_.MatchGenre();
      if (window_.MatchPos < 1) {
        window_.KeyFilePos -= 1;
        return false;
      }
      window_.RecordFound = 1;
    }
    window_.CurrentRecNo = window_.ScanRecNo;
    window_.ShowRecord();
    return true;
  }

  frmPage1& window_;
  const TwentyRowList& list_;
};

}  // namespace

void frmPage1::mnuAllTitles_Click() { ListPage(*this, AllTitles).Run(); }
void frmPage1::mnualldvd_Click() { ListPage(*this, AllDVD).Run(); }
void frmPage1::mnualllas_Click() { ListPage(*this, AllLaser).Run(); }
void frmPage1::mnuAllVHS_Click() { ListPage(*this, AllVHS).Run(); }
void frmPage1::mnuFindAllGenre_Click() { ListPage(*this, AllGenre).Run(); }

// Where the filter stands in the genre of the current film, from 1; an empty filter stands at 1 in every genre.
void frmPage1::MatchGenre() {
  std::string genre = runtime::Upper(runtime::Trim(CurrentFilm.Get(FilmField::Genre)));
  MatchPos = static_cast<std::int64_t>(runtime::Position(genre, GenreFilter));
}

void frmPage1::WriteListRow(std::int64_t row) {
  if (row < 0 || row >= FullPage) return;
  Text1[row].SetText(runtime::Trim(CurrentFilm.Get(FilmField::Title)));
  std::string middle(runtime::Trim(CurrentFilm.Get(FilmField::Year)));
  Text2[row].SetText(middle.append(14, ' ').append(runtime::Trim(txtGenreList.Text())));
  Text3[row].SetText(runtime::Trim(txtFormat.Text()));
}

// The 1 is added on a short page too, and stays.
void frmPage1::cmdNext20_Click() {
  KeyFilePos += 1;
  if (ListState != 2 || RowCursor != FullPage) return;
  PageMode = 4;
  RowCursor = 0;
  mnuFindAllGenre_Click();
}
