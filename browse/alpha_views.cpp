// The four alphabetical views: one handler per view opens it and makes each of its steps.
#include "screen/frmPage1.h"
#include "store/film_codes.h"
#include "store/key_file.h"

namespace {

// What follows if the end is noticed after showing the film.
enum class AfterShow { PlainBox, BoxAndReset, PlainBoxAndShow };

// How opening on an empty key file is handled: as on any other, or with a box, with or without a reset.
enum class WhenEmpty { Continue, WarnAndReset, Warn, PlainBoxAndReset };

// Everything in which the four differ; what is not named here is the same in all.
struct AlphaView {
  std::string_view Kind;
  const store::KeyFile& Keys;
  screen::Text screen::RunState::*Count;
  bool AllFormats;  // the view of all titles: it clears EditMode, takes the count from memory instead of its file,
                    // clears ViewState at the end, and makes the V in the format box a VHS before showing a film
  std::string_view Heading;
  std::string_view NotSortedText;
  std::string_view NotSortedTitle;
  std::string_view EndText;
  std::string_view EndTitle;
  int AfterShowDivisor;  // bytes a key in the test after showing; with 47 only a damaged file can end there
  AfterShow After;
  WhenEmpty Empty;
  std::string_view EmptyText;
};

constexpr std::string_view CanViewed =
    "Records have not been sorted.  Records must be sorted before records can viewed!";
constexpr std::string_view CanBeViewed =
    "Records have not been sorted.  Records must be sorted before records can be viewed!";

// clang-format off
constexpr AlphaView TitleView = {
  .Kind             = screen::TitleView,
  .Keys             = store::TitleKeys,
  .Count            = &frmPage1::TitleCount,
  .AllFormats       = true,
  .Heading          = "    Viewing All Titles Alphabetically",
  .NotSortedText    = CanViewed,
  .NotSortedTitle   = "Reelora Prima Print Program",
  .EndText          = "End of file!",
  .EndTitle         = "ALPHA TITLE SEARCH",
  .AfterShowDivisor = store::KeyLength,
  .After            = AfterShow::PlainBox,
  .Empty            = WhenEmpty::Continue,
  .EmptyText        = "",
};
constexpr AlphaView DVDView = {
  .Kind             = screen::DVDView,
  .Keys             = store::DVDKeys,
  .Count            = &frmPage1::DVDCount,
  .AllFormats       = false,
  .Heading          = "Viewing All DVD Titles Alphabetically",
  .NotSortedText    = CanViewed,
  .NotSortedTitle   = "Reelora Prima",
  .EndText          = "End of file!",
  .EndTitle         = "ALPHA DVD TITLE SEARCH",
  .AfterShowDivisor = 47,
  .After            = AfterShow::BoxAndReset,
  .Empty            = WhenEmpty::WarnAndReset,
  .EmptyText        = "There are No DVD Discs in Library or Files need to Be Sorted",
};
constexpr AlphaView LaserView = {
  .Kind             = screen::LaserView,
  .Keys             = store::LaserKeys,
  .Count            = &frmPage1::LaserCount,
  .AllFormats       = false,
  .Heading          = "Viewing All Laser Disc Titles Alphabetically",
  .NotSortedText    = CanBeViewed,
  .NotSortedTitle   = "Reelora Prima",
  .EndText          = "End of file!",
  .EndTitle         = "ALPHA LASER TITLE SEARCH",
  .AfterShowDivisor = 47,
  .After            = AfterShow::BoxAndReset,
  .Empty            = WhenEmpty::Warn,
  .EmptyText        = "There are No Laser Discs in Library or Files need to Be Sorted",
};
constexpr AlphaView VHSView = {
  .Kind             = screen::VHSView,
  .Keys             = store::VHSKeys,
  .Count            = &frmPage1::VHSCount,
  .AllFormats       = false,
  .Heading          = "  Viewing All VHS Titles Alphabetically",
  .NotSortedText    = CanBeViewed,
  .NotSortedTitle   = "Reelora Prima",
  .EndText          = "          End of file!",
  .EndTitle         = "ALPHA VHS TITLE SEARCH",
  .AfterShowDivisor = 47,
  .After            = AfterShow::PlainBoxAndShow,
  .Empty            = WhenEmpty::PlainBoxAndReset,
  .EmptyText        = "There are No VHS Tapes in Library or Files need to Be Sorted",
};
// clang-format on

// One step of a view: it opens the view if need be and shows the film of the key at KeyFilePos.
class ViewStep {
 public:
  ViewStep(frmPage1& window, const AlphaView& view) : window_(window), view_(view) {}

  void Run() {
    if (view_.AllFormats) window_.EditMode = 0;
    if (NotSorted()) return;
    window_.cmdPrevious.Enable();
    window_.ViewState = 2;
    if (window_.ViewKind != view_.Kind) {
      window_.Files.Close(KeyFileNo);
      window_.KeyFilePos = 0;
    }
    window_.ViewKind = view_.Kind;
    window_.lblHead.SetCaption(view_.Heading);
    bool has_key = true;
    if (window_.KeyFilePos < 1 && !Open(has_key)) return;
    if (has_key && !TakeKey()) return;
    ShowFilm();
  }

 private:
  void Warn(std::string_view title, std::string_view text) {
    window_.Desk.MessageBox(forms::Icon::Warning, title, text);
  }

  bool NotSorted() {
    auto& count = window_.*view_.Count;
    if (!view_.AllFormats) count = window_.ReadOneItem(CountFileNo, view_.Keys.CountFile);
    if (count != "0") return false;
    Warn(view_.NotSortedTitle, view_.NotSortedText);
    window_.cmdReset_Click();
    return true;
  }

  // False if the view was not opened. Without a key the step continues with ScanRecNo.
  bool Open(bool& has_key) {
    if (window_.KeyFilePos == 0) {
      window_.OpenKeyFile(view_.Keys.Name);
      if (view_.Empty != WhenEmpty::Continue && window_.Files.Length(KeyFileNo) == 0) {
        ReportEmpty();
        return false;
      }
    }
    window_.ReopenKeyFile(view_.Keys.Name);
    has_key = window_.CountKeys() >= 1;
    window_.KeyFilePos = 1;
    return true;
  }

  void ReportEmpty() {
    if (view_.Empty == WhenEmpty::PlainBoxAndReset) {
      window_.Desk.MessageBox(forms::Icon::None, "", view_.EmptyText);
      window_.EditMode = 0;
      window_.PrintPending = 0;
      if (window_.NewPending == 1) window_.CountRollback = 1;
      window_.ViewKind = "";
      window_.KeyFilePos = 0;
      window_.NavDirection = 0;
      window_.NavFlag2 = 0;
    } else {
      Warn(view_.EndTitle, view_.EmptyText);
    }
    if (view_.Empty != WhenEmpty::Warn) window_.cmdReset_Click();
  }

  // False at the end of the view.
  bool TakeKey() {
    window_.ReopenKeyFile(view_.Keys.Name);
    window_.ReadKeyPastBlank();
    if (window_.PastLastKey(store::KeyLength)) {
      window_.Desk.Beep();
      if (view_.AllFormats) window_.ViewState = 0;
      Warn(view_.EndTitle, view_.EndText);
      window_.cmdReset_Click();
      return false;
    }
    window_.TakeScanRecNo();
    return true;
  }

  void ShowFilm() {
    if (window_.ScanRecNo == 0) {
      window_.txtTitle.SetFocus();
      return;
    }
    window_.RecordFound = 0;
    window_.ReadRecord(window_.ScanRecNo);
    window_.CurrentRecNo = window_.ScanRecNo;
    bool letter_in_box = window_.txtFormat.Text() == store::FormatVHS;
    if (view_.AllFormats && letter_in_box) window_.txtFormat.SetText(store::VHSWord);
    window_.ShowRecord();
    if (TestAfterShow()) window_.Show();
  }

  // False if the view has been reset.
  bool TestAfterShow() {
    bool past = window_.PastLastKey(view_.AfterShowDivisor);
    if (past) window_.Desk.Beep();
    if (past && view_.After == AfterShow::BoxAndReset) {
      Warn(view_.EndTitle, "End of file!");
      window_.cmdReset_Click();
      return false;
    }
    if (past) window_.Desk.MessageBox(forms::Icon::None, "", "End of file!");
    if (view_.After != AfterShow::PlainBox) window_.ShowRecord();
    return true;
  }

  frmPage1& window_;
  const AlphaView& view_;
};

}  // namespace

void frmPage1::mnuByTitle_Click() { ViewStep(*this, TitleView).Run(); }
void frmPage1::mnuByDVD_Click() { ViewStep(*this, DVDView).Run(); }
void frmPage1::mnuByLaser_Click() { ViewStep(*this, LaserView).Run(); }
void frmPage1::mnuByVHS_Click() { ViewStep(*this, VHSView).Run(); }
