// The whole program on a desk and a disk: its windows, its files, and the one place where a failure is caught.
#pragma once

#include <functional>
#include <optional>

#include "filecopy/frmCopy.h"
#include "forms/window_stack.h"
#include "opening/frmInfo.h"
#include "opening/frmOpener.h"
#include "opening/frmQuickStart.h"
#include "runtime/disk.h"
#include "runtime/failure.h"
#include "runtime/files.h"
#include "screen/frmPage1.h"

class Program {
 public:
  Program(forms::Desk& desk, runtime::Disk& disk);

  forms::WindowStack Windows;
  runtime::Files Files;
  frmPage1 RecordScreen;
  OpeningSequence Opening;
  frmOpener Opener;
  frmInfo Info;
  frmQuickStart QuickStart;
  frmCopy Copy;

  // Shows the opening window, as a user starts the program.
  void StartOpener();
  // Shows the record screen at once.
  void StartRecordScreen();
  // Runs one event of the user. A failure that no handler guards stops the program with the failure report; nothing is
  // delivered once the program has ended. It ends, too, when no window is visible any more.
  void Deliver(const std::function<void()>& event);

  bool Ended() const { return ended_; }
  // The failure that stopped the program; nothing if none did.
  const std::optional<runtime::Failure>& Stopped() const { return stopped_; }

 private:
  bool ended_ = false;
  std::optional<runtime::Failure> stopped_;
};
