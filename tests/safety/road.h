// The roads on which the program writes: for each the folder before, the steps of the user, and the folders that may be
// found while they are walked. Every question is answered with Yes.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/desk.h"
#include "opening/program.h"
#include "tests/safety/memory_disk.h"

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

using Step = std::function<void(Program&)>;

struct Road {
  std::string Name;
  Folder Before;
  std::vector<Step> Steps;
};

// The film that slot holds in its version; every byte of a long field differs between two versions.
std::string FilmBytes(int slot, int version);
// The files that a start needs, as delivered, and a master file of that many films in version 0, with that behind them.
Folder FolderOfFilms(int films, const std::string& behind = "");

// The steps of the user.
Step NewFilm(int slot, int version);
Step EditFilm(int slot, int version);
Step DeleteFilm(int slot);
Step SortFilms();
// One line into a file opened for output, as settings and counts are written.
Step WriteSmallFile(const std::string& name, const std::string& line);
void GoTo(Program& program, int slot);

// Slot 7 is the first that straddles a page; each road that changes a film goes through such a slot.
const std::vector<Road>& Roads();

// The folder without the safety folder.
Folder Visible(const Folder& content);
// What may be found after so many finished steps: where the step ended, and where the next one passes through.
std::vector<std::vector<Folder>> Stations(const Road& road);

// Makes the program's disk from the one below it, new for each run of the program.
using Fitting = std::function<std::unique_ptr<runtime::Disk>(runtime::Disk&)>;

// Starts the program on what was found and tells what is wrong with it: it does not start, the folder is none of those
// allowed, or a film that has gone is not in the history. "" where nothing is.
std::string Complaint(const Folder& found, const std::vector<Folder>& allowed, const Folder& before,
                      const Fitting& fit = {});
// The same for a disk on which things have happened, which stays as the start leaves it.
std::string Complaint(MemoryDisk& disk, const std::vector<Folder>& allowed, const Folder& before,
                      const Fitting& fit = {});

}  // namespace safety
