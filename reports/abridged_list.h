// The abridged lists: one line a film, with title, year, genre and format, of one key file.
#pragma once

#include <string_view>

#include "reports/print_frame.h"

namespace reports {

enum class Entry { LeavesFile, ClosesFile, ClosesFileOfOtherViews };
enum class FormatWord { AsShown, LaserForL, AlwaysLaser };

// Everything in which the four lists differ.
struct AbridgedList {
  Entry OnEntry;  // what becomes of an open key file; ClosesFileOfOtherViews spares the view called "DVD"
  std::string_view ViewKind;
  std::string_view CountFile;
  screen::Text screen::RunState::*CountWord;
  std::string_view KeyFile;
  std::string_view Headline;
  std::string_view Unsorted;
  std::string_view Question;
  int TitleTab;
  std::string_view Title;
  FormatWord Format;
  bool ClosingRule;
  int TotalTab;
  std::string_view Total;
  int PageTab;
};

extern const AbridgedList AllTitlesList, DvdList, LaserList, VhsList;

class AbridgedReport : PrintFrame {
 public:
  AbridgedReport(frmPage1& page, const AbridgedList& list) : PrintFrame(page), list_(list) {}
  void Run();

 private:
  void Enter();
  bool Sorted();
  void PrintPages();
  void PrintPageHead();
  void PrintFilm();
  void PrintEnd();

  const AbridgedList& list_;
};

}  // namespace reports
