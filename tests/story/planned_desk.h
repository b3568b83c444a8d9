// The desk of the stories: it plays the effects that a story plans for an action, in their order, and keeps the first
// difference. It never throws into a handler: after a difference it answers OK, No, nothing or cancel.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "forms/desk.h"
#include "tests/story/story_file.h"
#include "tests/story/world.h"

namespace story {

// One desk serves one run of the program.
class PlannedDesk final : public forms::Desk {
 public:
  explicit PlannedDesk(World& world) : world_(world) {}

  // The effects that the action of that line has to bring.
  void Plan(int action_line, std::vector<Line> effects);
  // The action is over: a planned effect that has not come is a difference.
  void Finish();
  const std::optional<Difference>& First() const { return first_; }

  std::string InputBox(std::string_view title, std::string_view prompt) override;
  void Beep() override;
  std::optional<std::uint32_t> ColourDialog(std::uint32_t start) override;
  void PrinterDialog() override;
  void Print(const runtime::PrintJob& job) override;
  void Help(int topic) override;
  std::chrono::local_seconds Now() override;
  std::string DriveLetters() override;
  std::optional<std::string> DriveFolder(char letter) override;
  void Repaint() override {}
  void RepaintNow() override {}
  void Closed() override;
  void FailureReport(const runtime::Failure& failure) override;

 protected:
  forms::Answer AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                              forms::Buttons buttons) override;

 private:
  // The planned line of an effect; nothing if another one was due.
  std::optional<Line> Take(const Line& got, std::string_view remark = "");
  void Note(int line, std::string what);

  World& world_;
  int action_line_ = 0;
  std::deque<Line> planned_;
  std::optional<Difference> first_;
};

}  // namespace story
