// The full list: every film of the all-formats key file, six lines per film, eight films per page.
#pragma once

#include "reports/print_frame.h"

namespace reports {

class FullList : PrintFrame {
 public:
  explicit FullList(frmPage1& page) : PrintFrame(page) {}
  void Run();

 private:
  void PrintPageHead();
  void PrintFilm();
  void PrintEnd();
};

}  // namespace reports
