// A run of the record screen on a disk in memory, and on a desk that answers at once.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/window_stack.h"
#include "screen/frmPage1.h"
#include "tests/fuzz/plain_disk.h"
#include "tests/kit/quiet_desk.h"

namespace fuzz {

class Desk final : public kit::QuietDesk {
 public:
  // To every question.
  forms::Answer Question = forms::Answer::Yes;
  // Whether the film on the screen could be saved. A key that begins with "49" makes Reset ask that without any typing.
  bool AskedToSave = false;
  // Called with each document printed.
  std::function<void(const runtime::PrintJob&)> Printed = [](const runtime::PrintJob&) {};

  void Print(const runtime::PrintJob& job) override { Printed(job); }

 protected:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view text, forms::Buttons buttons) override {
    AskedToSave = AskedToSave || text.starts_with("You have not saved your work.");
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : Question;
  }
};

// What a start reads, and that many films: the delivered small files, each key file with a key of every film.
kit::Folder SmallCollection(std::size_t films);

class Session {
 public:
  explicit Session(PlainDisk& disk) : Files(disk), Screen(Windows, Files), disk_(disk) {}

  fuzz::Desk Desk;
  forms::WindowStack Windows{Desk};
  runtime::Files Files;
  frmPage1 Screen;

  // Whether the event ended: TooLong if it made more calls of the disk than events are allowed, Failed with Failure
  // set. After either no more events may follow.
  enum class End { Done, Failed, TooLong };
  End Start();
  End Click(forms::Control& control);
  const std::optional<runtime::Failure>& Failure() const { return failure_; }

 private:
  template <typename Event>
  End Deliver(Event event);

  PlainDisk& disk_;
  std::optional<runtime::Failure> failure_;
};

}  // namespace fuzz
