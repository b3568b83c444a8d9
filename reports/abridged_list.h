// The abridged lists: each prints one key file, one line per film with title, year, genre and format.
#pragma once

#include <string_view>

#include "reports/print_frame.h"
#include "store/key_file.h"

namespace reports {

enum class Entry { LeavesFile, ClosesFile, ClosesFileOfOtherViews };
enum class FormatWord { AsShown, LaserForL, AlwaysLaser };

// All differences between the four lists.
struct AbridgedList {
  Entry OnEntry;  // what happens to an open key file; ClosesFileOfOtherViews keeps that of the view "DVD"
  std::string_view ViewKind;
  store::KeyFile Keys;
  screen::Text screen::RunState::*CountWord;
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
