// The quick start window: how to enter a first film, in six steps.
#pragma once

#include "opening/opening_looks.h"
#include "opening/opening_sequence.h"

// clang-format off
struct frmQuickStart : forms::Window {
  frmQuickStart(forms::WindowStack& windows, OpeningSequence& sequence);

  forms::Picture Image1       { *this, "Image1", {0, 0, 9000, 6000}, "backdrop" };
  forms::Picture Image2       { *this, "Image2", {300, 1140, 900, 3960}, "six_steps" };
  forms::Label   lblQuick1    { *this, "lblQuick1", "Quick Start ", {}, opening::HeadingLook, {300, 240, 8400, 660} };
  forms::Label   lblStep1     { *this, "lblStep1", "Click \"New\", or press Alt W. An empty page 1 opens.",                                                   {}, opening::LineLook, {1350, 1140, 7350, 660} };
  forms::Label   lblStep2     { *this, "lblStep2", "Type the title and press Tab; go on like this through director, stars and label. Leave empty what you do not know.", {}, opening::LineLook, {1350, 1800, 7350, 660} };
  forms::Label   lblStep3     { *this, "lblStep3", "Where a list opens, move with the arrow keys and press Enter, or click your choice: format, genre, aspect, color.", {}, opening::LineLook, {1350, 2460, 7350, 660} };
  forms::Label   lblStep4     { *this, "lblStep4", "After color, page 2 opens by itself: producer, camera, writers, music, awards, price.",                    {}, opening::LineLook, {1350, 3120, 7350, 660} };
  forms::Label   lblStep5     { *this, "lblStep5", "Press Tab in the last box, Your Rating: your film is saved, and the collection is sorted.",                {}, opening::LineLook, {1350, 3780, 7350, 660} };
  forms::Label   lblStep6     { *this, "lblStep6", "Choose \"View Files\", \"Alpha Titles\", and there it is. Press F1 anywhere for help.",                    {}, opening::LineLook, {1350, 4440, 7350, 660} };
  forms::CheckBox Check1      { *this, "Check1", "Check here not to see this screen anymore.", {1, 0, 0}, opening::ChoiceLook, {300, 5310, 5700, 420} };
  forms::Button  cmdContinue  { *this, "cmdContinue", "continue", {0, 0, 0}, opening::PushLook, {7050, 5280, 1650, 480} };

  void frmQuickStart_Load();
  void Check1_Click();
  void cmdContinue_Click();

 private:
  OpeningSequence& sequence_;
};
// clang-format on
