// A desk that answers by the dice, as a user might, and keeps each effect of an event as a line of a story.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms/desk.h"
#include "tests/monkey/dice.h"

namespace monkey {

// The folder that the desk gives for the disk in drive A.
inline constexpr std::string_view DriveFolderName = "a";

class RandomDesk final : public forms::Desk {
 public:
  std::chrono::local_seconds Clock{};
  std::vector<std::string> Effects;
  // Called before each message box is answered; not set if nobody looks.
  std::function<void()> BeforeAnswer;
  // How often the program has reported a failure.
  int Reports = 0;

  // The same seed gives the same answers to the same questions.
  void BeginEvent(std::uint64_t answers) {
    dice_ = Dice(answers);
    Effects.clear();
  }

  std::string InputBox(std::string_view title, std::string_view prompt) override;
  void Beep() override { Effects.emplace_back("beep"); }
  std::optional<std::uint32_t> ColourDialog(std::uint32_t start) override;
  void PrinterDialog() override { Effects.emplace_back("printer-setup"); }
  void Print(const runtime::PrintJob& job) override;
  void Help(int topic) override;
  std::chrono::local_seconds Now() override { return Clock; }
  std::string DriveLetters() override { return "abc"; }
  std::optional<std::string> DriveFolder(char letter) override;
  void Repaint() override {}
  void RepaintNow() override {}
  forms::DraftAnswer AskDraft(std::string_view title) override;
  void Closed() override { Effects.emplace_back("end"); }
  void FailureReport(const runtime::Failure& failure) override;

 protected:
  forms::Answer AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                              forms::Buttons buttons) override;

 private:
  Dice dice_{0};
};

}  // namespace monkey
