// The twenty-row lists: a page of films at a time, in key order. Every list continues through View All Genre, whose
// empty filter passes every film.
#include "screen/frmPage1.h"
#include "store/key_file.h"

using store::FilmField;

namespace {

// What a list does with the genre of a film: ignores it, tests it with an empty filter that always passes, or asks for
// the genre.
enum class Filter { None, Empty, Asked };

// Everything in which the five lists differ.
struct TwentyRowList {
  std::string_view Kind;
  const store::KeyFile& Keys;
  screen::Text screen::RunState::*Count;
  std::string_view CanView;  // how the not-sorted text ends
  std::string_view NotSortedTitle;
  std::string_view Heading;
  Filter By;
  bool OpensUnsorted;  // continues after the not-sorted message
};

// clang-format off
constexpr TwentyRowList AllTitles = {
  .Kind           = screen::TitleView,
  .Keys           = store::TitleKeys,
  .Count          = &frmPage1::TitleCount,
  .CanView        = "can viewed!",
  .NotSortedTitle = "Reelora Prima Print Program",
  .Heading        = "",
  .By             = Filter::None,
  .OpensUnsorted  = false,
};
constexpr TwentyRowList AllDVD = {
  .Kind           = screen::DVDView,
  .Keys           = store::DVDKeys,
  .Count          = &frmPage1::DVDCount,
  .CanView        = "can viewed!",
  .NotSortedTitle = "Reelora Prima",
  .Heading        = "    Viewing All DVD Titles",
  .By             = Filter::Empty,
  .OpensUnsorted  = true,
};
constexpr TwentyRowList AllLaser = {
  .Kind           = screen::LaserView,
  .Keys           = store::LaserKeys,
  .Count          = &frmPage1::LaserCount,
  .CanView        = "can be viewed!",
  .NotSortedTitle = "Reelora Prima",
  .Heading        = "    Viewing All Titles",
  .By             = Filter::Empty,
  .OpensUnsorted  = false,
};
constexpr TwentyRowList AllVHS = {
  .Kind           = screen::VHSView,
  .Keys           = store::VHSKeys,
  .Count          = &frmPage1::VHSCount,
  .CanView        = "can be viewed!",
  .NotSortedTitle = "Reelora Prima",
  .Heading        = "    Viewing All Titles",
  .By             = Filter::Empty,
  .OpensUnsorted  = false,
};
constexpr TwentyRowList AllGenre = {
  .Kind           = screen::GenreView,
  .Keys           = store::TitleKeys,
  .Count          = &frmPage1::TitleCount,
  .CanView        = "can viewed!",
  .NotSortedTitle = "Reelora Prima Print Program",
  .Heading        = "    Viewing Files For Genre",
  .By             = Filter::Asked,
  .OpensUnsorted  = false,
};

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
    window_.ViewState = screen::ViewStarted;
    window_.SearchState = screen::TextSearch;
    window_.ListShown = 1;
    window_.ListShownAlso = 1;
    if (NotSorted()) return;
    window_.ListState = screen::ListOpened;
    if (window_.PageMode == screen::ListContinues) {
      window_.RowCursor = 0;
      window_.ReopenKeyFile(window_.ListKeyFile);
    } else if (!Open()) {
      return;
    }
    Fill();
  }

 private:
  bool TakesAll() const { return list_.By == Filter::None; }

  // True if the list does not open. One that opens all the same ends at its first key.
  bool NotSorted() {
    window_.*list_.Count = window_.ReadOneItem(CountFileNo, list_.Keys.CountFile);
    if (window_.*list_.Count != "0") return false;
    std::string text = "Records have not been sorted.  Records must be sorted before records ";
    window_.Desk.MessageBox(forms::Icon::Warning, list_.NotSortedTitle, text.append(list_.CanView));
    if (list_.OpensUnsorted) return false;
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
    window_.ListKeyFile = list_.Keys.Name;
    window_.OpenKeyFile(window_.ListKeyFile);
    return true;
  }

  // The limit is checked once per page; past it the first row shows the film of ScanRecNo.
  void Fill() {
    std::int16_t limit =
        runtime::RoundToInt16(static_cast<double>(window_.Files.Length(KeyFileNo)) / store::KeyLength + 1);
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

  // False if the list is over.
  bool TakeKey() {
    if (window_.NavDirection == screen::Backward && window_.KeyFilePos == 0) {
      window_.Desk.Beep();
      window_.Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
      window_.CurrentRecNo = 1;
      window_.cmdReset_Click();
      if (TakesAll()) window_.cmdNew.Show();
      return false;
    }
    if (window_.PastLastKey(store::KeyLength)) window_.Desk.Beep();
    window_.ReadKeyPastBlank();
    if (window_.PastLastKey(store::KeyLength)) {
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

  // False if the film does not pass the filter; KeyFilePos has moved on (back when walking back).
  bool TakeFilm() {
    if (!TakesAll() && window_.NavDirection != screen::Backward) {
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

// Position of the filter in the genre of the current film, from 1; an empty filter is at 1 in every genre.
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

// KeyFilePos is advanced even on a short page.
void frmPage1::cmdNext20_Click() {
  KeyFilePos += 1;
  if (ListState != screen::ListOpened || RowCursor != FullPage) return;
  PageMode = screen::ListContinues;
  RowCursor = 0;
  mnuFindAllGenre_Click();
}
