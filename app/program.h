// The whole program on a desk and a disk: its windows and files. Failures that stop the program are caught here.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "app/draft_keeper.h"
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

  // Asks about drafts and shows the opening window, as when a user starts the program.
  void StartOpener();
  // Shows the record screen directly.
  void StartRecordScreen();
  // Runs one event of the user. A failure that no handler catches, or running out of memory, stops the program with the
  // failure report. The program also ends when no window is visible. After the end, events are ignored.
  void Deliver(const std::function<void()>& event);
  // Stops the program; memory ran out in an event or outside of all.
  void RunOutOfMemory();

  // The end of the session, as closing with that answer: the open film is saved or given up, and the program ends.
  void EndSession(bool save);

  // Whether a film is open for typing.
  bool HasOpenFilm() const { return !ended_ && RecordScreen.EditMode == 1; }
  bool Ended() const { return ended_; }
  // The failure that stopped the program, if any.
  const std::optional<runtime::Failure>& Stopped() const { return stopped_; }

 private:
  void Stop(const runtime::Failure& failure);

  DraftKeeper drafts_;
  bool ended_ = false;
  std::optional<runtime::Failure> stopped_;
  // Given up when memory runs out, so that the report can be shown.
  std::unique_ptr<char[]> reserve_;
};
