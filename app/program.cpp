// Delivers events one at a time and catches failures.
#include "app/program.h"

#include <algorithm>
#include <new>

#include "forms/window.h"
#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace {

constexpr std::size_t ReserveBytes = std::size_t{4} << 20;

}  // namespace

Program::Program(forms::Desk& desk, runtime::Disk& disk)
    : Windows(desk),
      Files(disk),
      RecordScreen(Windows, Files),
      Opening(RecordScreen),
      Opener(Windows, Opening),
      Info(Windows, Opening),
      QuickStart(Windows, Opening),
      Copy(Windows, RecordScreen),
      drafts_(RecordScreen),
      reserve_(std::make_unique_for_overwrite<char[]>(ReserveBytes)) {
  Opening.frmOpener = &Opener;
  Opening.frmInfo = &Info;
  Opening.frmQuickStart = &QuickStart;
  RecordScreen.frmQuickStart = &QuickStart;
  for (forms::Window* window : {static_cast<forms::Window*>(&Opener), static_cast<forms::Window*>(&Info)})
    window->HiddenBehind = &RecordScreen;
  RecordScreen.OpenCopyWindow = [this] { Copy.Open(); };
  disk.NewFilesLike(std::string(store::MasterFileName));
  runtime::RemoveLeftovers(disk);
}

void Program::StartOpener() {
  Deliver([this] {
    drafts_.AskAboutDrafts();
    Opener.Show();
  });
}

void Program::StartRecordScreen() {
  Deliver([this] { RecordScreen.Show(); });
}

void Program::Deliver(const std::function<void()>& event) {
  if (ended_) return;
  try {
    event();
    drafts_.AfterEvent();
  } catch (const forms::SessionEnded&) {
    ended_ = true;
    Windows.Desk.Closed();
    return;
  } catch (const runtime::Failure& failure) {
    Stop(failure);
    return;
  } catch (const std::bad_alloc&) {
    RunOutOfMemory();
    return;
  }
  if (!Windows.Desk.Ended() && Windows.Front()) return;
  ended_ = true;
  Windows.Desk.Closed();
}

void Program::RunOutOfMemory() {
  reserve_.reset();
  Stop({runtime::OutOfMemory, ""});
}

void Program::Stop(const runtime::Failure& failure) {
  ended_ = true;
  stopped_ = failure;
  Windows.Desk.FailureReport(failure);
}

void Program::EndSession(bool save) {
  Deliver([this, save] {
    if (save) {
      RecordScreen.SaveRecord();
    } else {
      drafts_.GiveUp();
    }
    Windows.Desk.End();
  });
}
