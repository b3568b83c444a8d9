// Find By Genre: the films of one genre, one at a time, in title order. The film with the highest number ends the walk
// unseen.
#include "browse/key_walk.h"
#include "runtime/checked_int.h"
#include "store/film_codes.h"

namespace {

constexpr std::string_view GenrePrompt =
    "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama";
constexpr std::string_view GenreTitle = "GENRE SEARCH";

// The words of the pick list, behind its code and " = ".
constexpr std::size_t WordsAt = 5;

}  // namespace

void frmPage1::mnuFindGenre_Click() {
  if (ViewKind != "Genre") {
    Files.Close(KeyFileNo);
    KeyFilePos = 0;
  }
  SearchState = 3;
  cmdPrevious.Enable();
  cmdNext.Enable();
  lblHead.SetCaption("Viewing Genre File Alphabetically");
  ViewKind = "Genre";
  bool has_key = true;
  if (KeyFilePos < 1 && !OpenGenreView(has_key)) return;
  ReopenKeyFile("Titlepra.Dat");
  ScanGenre(has_key);
}

// False where nothing was asked for.
bool frmPage1::OpenGenreView(bool& has_key) {
  std::string answer = Desk.InputBox("Search For Genre", GenrePrompt);
  if (answer.empty()) {
    cmdReset_Click();
    return false;
  }
  GenreFilter = runtime::Upper(answer);
  if (const store::GenreRow* genre = store::GenreOf(GenreFilter)) GenreWords = genre->ListItem.substr(WordsAt);
  CurrentRecNo = 1;
  lblHead.SetCaption("Viewing Files For " + GenreWords.Value() + " Alphabetically");
  OpenKeyFile("Titlepra.Dat");
  KeyFilePos = 1;
  has_key = runtime::RoundToInt32(static_cast<double>(Files.Length(KeyFileNo)) / browse::KeyLength) >= 1;
  return true;
}

// Two blank keys in front and a film of another genre behind them, walked backward, go round for ever: there is no
// guard.
void frmPage1::ScanGenre(bool read_key) {
  for (;; read_key = true) {
    if (read_key && !TakeGenreKey()) return;
    if (NavDirection != 1) {
      ReadRecord(ScanRecNo);
      if (ScanRecNo == RecordCount) break;
      MatchGenre();
      if (MatchPos < 1) {
        KeyFilePos += 1;
        continue;
      }
      RecordFound = 1;
    }
    ReadRecord(ScanRecNo);
    if (ScanRecNo == RecordCount) break;
    MatchGenre();
    if (MatchPos < 1) {
      KeyFilePos -= 1;
      continue;
    }
    RecordFound = 1;
    CurrentRecNo = ScanRecNo;
    ShowRecord();
    lblHead.SetCaption("Viewing Files For " + GenreWords.Value() + "  Alphabetically");
    RowCursor += 1;
    return;
  }
  Desk.Beep();
  Desk.MessageBox(forms::Icon::Warning, "", "End of file encountered!");
  cmdReset_Click();
}

// False where the view is over.
bool frmPage1::TakeGenreKey() {
  if (NavDirection == 1 && KeyFilePos == 1) {
    Desk.Beep();
    Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
    CurrentRecNo = 1;
    cmdReset_Click();
    return false;
  }
  ReadKeyPastBlank();
  if (PastLastKey(browse::KeyLength)) {
    Desk.Beep();
    std::string missed = "The search for \"" + GenreWords.Value() + "\" genre was not found.";
    Desk.MessageBox(forms::Icon::Warning, GenreTitle, RowCursor > 0 ? "End of file!" : missed);
    cmdReset_Click();
    return false;
  }
  return TakeScanRecNoOrStop();
}
