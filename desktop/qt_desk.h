// The desk of the desktop program: boxes, dialogs, printer, help viewer, clock and drives of this machine.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "desktop/help_viewer.h"
#include "desktop/run_printer.h"
#include "forms/desk.h"

namespace desktop {

class StackView;

class QtDesk final : public forms::Desk {
 public:
  // The folder of the collection.
  explicit QtDesk(std::string folder);
  // The view to repaint; boxes open over its front window.
  void DrawOn(StackView& view) { view_ = &view; }
  // The program ends now. A box that a handler has put up closes and throws SessionEnded; a handler without one runs to
  // its end.
  void EndSession();
  bool SessionHasEnded() const { return session_ended_; }

  std::string InputBox(std::string_view title, std::string_view prompt) override;
  void Beep() override;
  std::optional<std::uint32_t> ColourDialog(std::uint32_t start) override;
  void PrinterDialog() override;
  void Print(const runtime::PrintJob& job) override;
  void Help(int topic) override;
  std::chrono::local_seconds Now() override;
  std::string DriveLetters() override;
  std::optional<std::string> DriveFolder(char letter) override;
  void Repaint() override;
  void RepaintNow() override;
  void Progress(std::string_view work, double done) override;
  void Copied(std::string_view file, char drive, std::int64_t bytes) override;
  void Notice(std::string_view text) override;
  forms::DraftAnswer AskDraft(std::string_view title) override;
  void Closed() override;
  void FailureReport(const runtime::Failure& failure) override;

  // The user chose "Start again" in the failure report.
  bool StartAgain() const { return start_again_; }

 protected:
  forms::Answer AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                              forms::Buttons buttons) override;

 private:
  QWidget* FrontWindow();
  void ShowPrinted(const PrintedTo& printed);
  void StopIfSessionEnded() const;

  std::string folder_;
  StackView* view_ = nullptr;
  bool session_ended_ = false;
  RunPrinter printer_;
  std::unique_ptr<HelpViewer> help_;
  std::chrono::steady_clock::time_point painted_;
  bool start_again_ = false;
};

}  // namespace desktop
