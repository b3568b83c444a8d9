// The four alphabetical views: one handler a view, which opens it and is each of its steps.
#include "browse/key_walk.h"

namespace {

// What follows when the last position is found only after the film was shown.
enum class AfterShow { PlainBox, BoxAndReset, PlainBoxAndShow };

// What an empty key file brings when the view is opened: nothing of its own, or a box, with or without a reset.
enum class WhenEmpty { GoesOn, WarnAndReset, Warn, PlainBoxAndReset };

// Everything in which the four differ; what is not named here is the same in all.
struct AlphaView {
  std::string_view Kind;
  bool AllFormats;  // clears EditMode first and ViewState at the end, and puts a V on the screen right before the film
                    // is shown
  std::string_view KeyFile;
  std::string_view CountFile;  // read again on each step; "" for the count in memory
  screen::Text screen::RunState::*Count;
  std::string_view Heading;
  std::string_view NotSortedText;
  std::string_view NotSortedTitle;
  std::string_view EndText;
  std::string_view EndTitle;
  int AfterShowDivisor;  // bytes a key in the test after showing: 49, or 47 where that test is never to fire
  AfterShow After;
  WhenEmpty Empty;
  std::string_view EmptyText;
};

constexpr std::string_view CanViewed =
    "Records have not been sorted.  Records must be sorted before records can viewed!";
constexpr std::string_view CanBeViewed =
    "Records have not been sorted.  Records must be sorted before records can be viewed!";

// clang-format off
constexpr AlphaView TitleView = { "Title", true,  "Titlepra.Dat", "",         &frmPage1::TitleCount, "    Viewing All Titles Alphabetically",
                                  CanViewed,   "Reelora Prima Print Program", "End of file!",           "ALPHA TITLE SEARCH",       49, AfterShow::PlainBox,
                                  WhenEmpty::GoesOn, "" };
constexpr AlphaView DVDView   = { "DVD",   false, "DVDpra.Dat",   "DVDpra",   &frmPage1::DVDCount,   "Viewing All DVD Titles Alphabetically",
                                  CanViewed,   "Reelora Prima",               "End of file!",           "ALPHA DVD TITLE SEARCH",   47, AfterShow::BoxAndReset,
                                  WhenEmpty::WarnAndReset, "There are No DVD Discs in Library or Files need to Be Sorted" };
constexpr AlphaView LaserView = { "Laser", false, "Laserpra.Dat", "Laserpra", &frmPage1::LaserCount, "Viewing All Laser Disc Titles Alphabetically",
                                  CanBeViewed, "Reelora Prima",               "End of file!",           "ALPHA LASER TITLE SEARCH", 47, AfterShow::BoxAndReset,
                                  WhenEmpty::Warn, "There are No Laser Discs in Library or Files need to Be Sorted" };
constexpr AlphaView VHSView   = { "VHS",   false, "VHSpra.Dat",   "VHSpra",   &frmPage1::VHSCount,   "  Viewing All VHS Titles Alphabetically",
                                  CanBeViewed, "Reelora Prima",               "          End of file!", "ALPHA VHS TITLE SEARCH",   47, AfterShow::PlainBoxAndShow,
                                  WhenEmpty::PlainBoxAndReset, "There are No VHS Tapes in Library or Files need to Be Sorted" };
// clang-format on

// One step of a view: the film of the key at KeyFilePos, the view being opened first if need be.
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
    if (!view_.CountFile.empty()) count = window_.ReadOneItem(CountFileNo, view_.CountFile);
    if (count != "0") return false;
    Warn(view_.NotSortedTitle, view_.NotSortedText);
    window_.cmdReset_Click();
    return true;
  }

  // False where the view is over before it began. Without a key the step goes on with the record number that there is.
  bool Open(bool& has_key) {
    if (window_.KeyFilePos == 0) {
      window_.OpenKeyFile(view_.KeyFile);
      if (view_.Empty != WhenEmpty::GoesOn && window_.Files.Length(KeyFileNo) == 0) {
        SayEmpty();
        return false;
      }
    }
    window_.ReopenKeyFile(view_.KeyFile);
    has_key = window_.CountKeys() >= 1;
    window_.KeyFilePos = 1;
    return true;
  }

  void SayEmpty() {
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
    window_.ReopenKeyFile(view_.KeyFile);
    window_.ReadKeyPastBlank();
    if (window_.PastLastKey(browse::KeyLength)) {
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
    if (view_.AllFormats && window_.txtFormat.Text() == "V") window_.txtFormat.SetText("VHS");
    window_.ShowRecord();
    if (TestAfterShow()) window_.Show();
  }

  // False where the view has been reset.
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
