// Find By Genre: the films of one genre, one at a time, in title order. The walk ends, unshown, at the film with the
// highest number.
#include "runtime/checked_int.h"
#include "screen/frmPage1.h"
#include "store/film_codes.h"
#include "store/key_file.h"

namespace {

constexpr std::string_view GenrePrompt =
    "Enter Genre To Search:  Use 2 Letter Abbreviation \n\rAA  Action Adventure\n\rCO  Comedy\n\rDR  Drama";
constexpr std::string_view GenreTitle = "GENRE SEARCH";

// Offset of the words in an item of the pick list, after code and " = ".
constexpr std::size_t WordsOffset = 5;

// One step of the walk: it opens the view if need be and shows the next film of the genre.
class GenreStep {
 public:
  explicit GenreStep(frmPage1& window) : window_(window) {}

  void Run() {
    if (window_.ViewKind != screen::GenreView) {
      window_.Files.Close(KeyFileNo);
      window_.KeyFilePos = 0;
    }
    window_.SearchState = screen::GenreSearch;
    window_.cmdPrevious.Enable();
    window_.cmdNext.Enable();
    window_.lblHead.SetCaption("Viewing Genre File Alphabetically");
    window_.ViewKind = screen::GenreView;
    bool has_key = true;
    if (window_.KeyFilePos < 1 && !Open(has_key)) return;
    window_.ReopenKeyFile(store::TitleKeys.Name);
    Scan(has_key);
  }

 private:
  // False if no genre was entered. Without keys the walk continues with ScanRecNo.
  bool Open(bool& has_key) {
    std::string answer = window_.Desk.InputBox("Search For Genre", GenrePrompt);
    if (answer.empty()) {
      window_.cmdReset_Click();
      return false;
    }
    window_.GenreFilter = runtime::Upper(answer);
    if (const store::GenreRow* genre = store::GenreOf(window_.GenreFilter))
      window_.GenreWords = genre->ListItem.substr(WordsOffset);
    window_.CurrentRecNo = 1;
    window_.lblHead.SetCaption("Viewing Files For " + window_.GenreWords.Value() + " Alphabetically");
    window_.OpenKeyFile(store::TitleKeys.Name);
    window_.KeyFilePos = 1;
    has_key = runtime::RoundToInt32(static_cast<double>(window_.Files.Length(KeyFileNo)) / store::KeyLength) >= 1;
    return true;
  }

  // Two blank keys followed by a film of another genre, walked backward, loop for ever: nothing guards against it.
  void Scan(bool read_key) {
    for (;; read_key = true) {
      if (read_key && !TakeKey()) return;
      if (window_.NavDirection != screen::Backward) {
        window_.ReadRecord(window_.ScanRecNo);
        if (window_.ScanRecNo == window_.RecordCount) break;
        if (!Matches()) {
          window_.KeyFilePos += 1;
          continue;
        }
      }
      window_.ReadRecord(window_.ScanRecNo);
      if (window_.ScanRecNo == window_.RecordCount) break;
      if (!Matches()) {
        window_.KeyFilePos -= 1;
        continue;
      }
      ShowFilm();
      return;
    }
    window_.Desk.Beep();
    window_.Desk.MessageBox(forms::Icon::Warning, "", "End of file encountered!");
    window_.cmdReset_Click();
  }

  // False if the walk is over.
  bool TakeKey() {
    if (window_.NavDirection == screen::Backward && window_.KeyFilePos == 1) {
      window_.Desk.Beep();
      window_.Desk.MessageBox(forms::Icon::Warning, "", "Top of file encountered!");
      window_.CurrentRecNo = 1;
      window_.cmdReset_Click();
      return false;
    }
    window_.ReadKeyPastBlank();
    if (window_.PastLastKey(store::KeyLength)) {
      window_.Desk.Beep();
      std::string missed = "The search for \"" + window_.GenreWords.Value() + "\" genre was not found.";
      window_.Desk.MessageBox(forms::Icon::Warning, GenreTitle, window_.RowCursor > 0 ? "End of file!" : missed);
      window_.cmdReset_Click();
      return false;
    }
    return window_.TakeScanRecNoOrStop();
  }

  bool Matches() {
    window_.MatchGenre();
    if (window_.MatchPos < 1) return false;
    window_.RecordFound = 1;
    return true;
  }

  void ShowFilm() {
    window_.CurrentRecNo = window_.ScanRecNo;
    window_.ShowRecord();
    window_.lblHead.SetCaption("Viewing Files For " + window_.GenreWords.Value() + "  Alphabetically");
    window_.RowCursor += 1;
  }

  frmPage1& window_;
};

}  // namespace

void frmPage1::mnuFindGenre_Click() { GenreStep(*this).Run(); }
