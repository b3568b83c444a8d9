// The program as a user without an opinion runs it: every question is answered with Yes.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/program.h"
#include "tests/kit/quiet_desk.h"

namespace safety {

// A started program with its desk.
struct Running {
  explicit Running(runtime::Disk& disk) : Program(Desk, disk) { Program.StartRecordScreen(); }
  kit::QuietDesk Desk;
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
// The film that was overwritten last goes back into its slot.
Step PutFilmBack();
// One line into a file opened for output, as settings and counts are written.
Step WriteSmallFile(const std::string& name, const std::string& line);
// Goes on to the slot.
void GoTo(Program& program, int slot);

}  // namespace safety
