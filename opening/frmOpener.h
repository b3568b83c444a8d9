// The opening window: the title picture, Start and Exit.
#pragma once

#include "opening/opening_looks.h"
#include "opening/opening_sequence.h"

// clang-format off
struct frmOpener : forms::Window {
  frmOpener(forms::WindowStack& windows, OpeningSequence& sequence);

  forms::Picture Image1   { *this, "Image1", {0, 0, 9000, 6000}, "title" };
  forms::Button  cmdStart { *this, "cmdStart", "&Start", {0, 0, 0}, opening::PushLook, {2850, 5280, 1500, 480} };
  forms::Button  cmdExit  { *this, "cmdExit",  "E&xit",  {1, 0, 0}, opening::PushLook, {4650, 5280, 1500, 480} };

  void cmdStart_Click();
  void cmdExit_Click();
  void frmOpener_Unload();

 private:
  OpeningSequence& sequence_;
};
// clang-format on
