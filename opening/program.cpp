// The program's events: delivered one by one, with the one catch of failures around them.
#include "opening/program.h"

#include <algorithm>

#include "forms/window.h"
#include "runtime/whole_io.h"

Program::Program(forms::Desk& desk, runtime::Disk& disk)
    : Screen(desk),
      Files(disk),
      RecordScreen(Screen, Files),
      Road(RecordScreen),
      Opener(Screen, Road),
      Info(Screen, Road),
      QuickStart(Screen, Road),
      Copy(Screen, RecordScreen) {
  Road.frmOpener = &Opener;
  Road.frmInfo = &Info;
  Road.frmQuickStart = &QuickStart;
  RecordScreen.frmQuickStart = &QuickStart;
  RecordScreen.frmCopy = &Copy;
  runtime::RemoveLeftovers(disk);
}

void Program::StartOpener() {
  Deliver([this] { Opener.Show(); });
}

void Program::StartRecordScreen() {
  Deliver([this] { RecordScreen.Show(); });
}

void Program::Deliver(const std::function<void()>& event) {
  if (ended_) return;
  try {
    event();
  } catch (const runtime::Failure& failure) {
    ended_ = true;
    stopped_ = failure;
    Screen.Desk.FailureReport(failure.Name, failure.File);
    return;
  }
  if (!Screen.Desk.Ended() && Screen.Front()) return;
  ended_ = true;
  Screen.Desk.Closed();
}
