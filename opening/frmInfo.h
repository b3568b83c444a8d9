// The features window: what the program does, for first-time users.
#pragma once

#include "opening/opening_looks.h"
#include "opening/opening_sequence.h"

// clang-format off
struct frmInfo : forms::Window {
  frmInfo(forms::WindowStack& windows, OpeningSequence& sequence);

  forms::Picture Image1       { *this, "Image1", {0, 0, 9000, 6600}, "backdrop" };
  forms::Picture Image2       { *this, "Image2", {300, 1140, 3000, 4140}, "features" };
  forms::Label   lblInfo      { *this, "lblInfo",      "What Reelora Prima does for you",  {}, opening::HeadingLook, { 300,  240, 8400, 660} };
  forms::Label   lblRecord    { *this, "lblRecord",    "One record for every film",        {}, opening::FeatureLook, {3600, 1140, 5100, 300} };
  forms::Label   lblRecord2   { *this, "lblRecord2",   "Title, director, six stars, genre and format on page 1. Credits, awards, price and your own rating on page 2.", {}, opening::LineLook, {3600, 1440, 5100, 560} };
  forms::Label   lblFormats   { *this, "lblFormats",   "Tape, laser disc, DVD",            {}, opening::FeatureLook, {3600, 2080, 5100, 300} };
  forms::Label   lblFormats2  { *this, "lblFormats2",  "All of them in one collection, or each by itself, in the order of the alphabet.", {}, opening::LineLook, {3600, 2380, 5100, 560} };
  forms::Label   lblFind      { *this, "lblFind",      "Found in a moment",                {}, opening::FeatureLook, {3600, 3020, 5100, 300} };
  forms::Label   lblFind2     { *this, "lblFind2",     "Look for a star, a composer, an award: thirteen ways to find a film, and Match for the next one.", {}, opening::LineLook, {3600, 3320, 5100, 560} };
  forms::Label   lblLists     { *this, "lblLists",     "Twenty at a glance, or on paper",  {}, opening::FeatureLook, {3600, 3960, 5100, 300} };
  forms::Label   lblLists2    { *this, "lblLists2",    "Page through the collection twenty titles at a time, or print one of eight kinds of list.", {}, opening::LineLook, {3600, 4260, 5100, 560} };
  forms::Label   lblOwn       { *this, "lblOwn",       "Yours to arrange, and safe",       {}, opening::FeatureLook, {3600, 4900, 5100, 300} };
  forms::Label   lblOwn2      { *this, "lblOwn2",      "Your own colors, saving by itself, copies on a disk of yours.", {}, opening::LineLook, {3600, 5200, 5100, 320} };
  forms::OptionButton option1 { *this, "option1", "To  eliminate viewing this s&creen click option  or press Alt \"C\"", {1, 0, 0}, opening::ChoiceLook, {300, 5880, 6300, 480} };
  forms::Button  Command1     { *this, "Command1", "Con&tinue", {0, 0, 0}, opening::PushLook, {7050, 5880, 1650, 480} };

  void frmInfo_Load();
  void frmInfo_Unload();
  void Command1_Click();
  void option1_MouseMove();

 private:
  OpeningSequence& sequence_;
};
// clang-format on
