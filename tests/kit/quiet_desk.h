// A desk that answers OK or Yes, draws nothing and keeps the failure that stopped the program.
#pragma once

#include "forms/desk.h"
#include "runtime/clock.h"
#include "runtime/failure.h"

namespace kit {

class QuietDesk : public forms::Desk {
 public:
  // The answer to every input box.
  std::string NextAnswer;
  // The failure that stopped the program and its file, "" if none did.
  std::string Reported;
  std::string ReportedFile;

  std::string InputBox(std::string_view, std::string_view) override { return NextAnswer; }
  void Beep() override {}
  std::optional<std::uint32_t> ColourDialog(std::uint32_t) override { return std::nullopt; }
  void PrinterDialog() override {}
  void Print(const runtime::PrintJob&) override {}
  void Help(int) override {}
  std::chrono::local_seconds Now() override { return runtime::LocalTime(); }
  std::string DriveLetters() override { return ""; }
  std::optional<std::string> DriveFolder(char) override { return std::nullopt; }
  void Repaint() override {}
  void RepaintNow() override {}
  void Closed() override {}
  void FailureReport(const runtime::Failure& failure) override {
    Reported = failure.Name;
    ReportedFile = failure.File;
  }

 protected:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons buttons) override {
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::Yes;
  }
};

}  // namespace kit
