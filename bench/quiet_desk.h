// A desk on which nobody sits: boxes are answered with their affirmative, nothing is drawn.
#pragma once

#include <utility>

#include "forms/desk.h"
#include "runtime/clock.h"

namespace bench {

class QuietDesk : public forms::Desk {
 public:
  // What the next input box gets as its answer.
  std::string NextAnswer;

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
  void FailureReport(std::string_view failure, std::string_view file) override {
    Failure = std::string(failure) + " " + std::string(file);
  }
  // What stopped the program, "" if nothing did.
  std::string Failure;

 private:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons buttons) override {
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::Yes;
  }
};

}  // namespace bench
