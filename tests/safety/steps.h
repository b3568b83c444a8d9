// The program as a user without an opinion runs it: every question is answered with Yes.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "forms/desk.h"
#include "opening/program.h"

namespace safety {

class YesDesk final : public forms::Desk {
 public:
  std::string InputBox(std::string_view, std::string_view) override { return ""; }
  void Beep() override {}
  std::optional<std::uint32_t> ColourDialog(std::uint32_t) override { return std::nullopt; }
  void PrinterDialog() override {}
  void Print(const runtime::PrintJob&) override {}
  void Help(int) override {}
  std::chrono::local_seconds Now() override { return {}; }
  std::string DriveLetters() override { return ""; }
  std::optional<std::string> DriveFolder(char) override { return std::nullopt; }
  void Repaint() override {}
  void RepaintNow() override {}
  void Closed() override {}
  void FailureReport(std::string_view failure, std::string_view) override { Reported = failure; }
  // What the last failure report named, "" for none.
  std::string Reported;

 protected:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons buttons) override {
    return buttons == forms::Buttons::YesNo ? forms::Answer::Yes : forms::Answer::Ok;
  }
};

// A started program with its desk.
struct Running {
  explicit Running(runtime::Disk& disk) : Program(Desk, disk) { Program.StartRecordScreen(); }
  YesDesk Desk;
  ::Program Program;
};

// What a user does; nothing happens in a program that has stopped.
using Step = std::function<void(Program&)>;

// New, typed and saved; Edit, typed and saved, or the window closed instead; Delete. The slot of a new film is the one
// that the program finds.
Step NewFilm(int slot, int version);
Step EditFilm(int slot, int version);
Step EditAndClose(int slot, int version);
Step DeleteFilm(int slot);
Step SortFilms();
// One line into a file opened for output, as settings and counts are written.
Step WriteSmallFile(const std::string& name, const std::string& line);
// Goes on to the slot.
void GoTo(Program& program, int slot);

}  // namespace safety
