// A user who always answers Yes.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/program.h"
#include "tests/kit/quiet_desk.h"

namespace safety {

// A started program and its desk.
struct StartedProgram {
  explicit StartedProgram(runtime::Disk& disk) : Program(Desk, disk) { Program.StartRecordScreen(); }
  kit::QuietDesk Desk;
  ::Program Program;
};

// One step of the user; a stopped program ignores it.
using Step = std::function<void(Program&)>;

// New and Edit type the film and save it; EditAndClose closes the window instead. `slot` is the one that the program
// will give a new film.
Step NewFilm(int slot, int version);
Step EditFilm(int slot, int version);
Step EditAndClose(int slot, int version);
Step DeleteFilm(int slot);
Step SortFilms();
// Restores the film overwritten last.
Step PutFilmBack();
// Writes one line to a file opened for output, as settings and counts are.
Step WriteSmallFile(const std::string& name, const std::string& line);
// Steps forward to the slot.
void GoTo(Program& program, int slot);

}  // namespace safety
