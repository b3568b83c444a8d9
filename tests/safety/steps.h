// A user who always answers Yes.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/program.h"
#include "tests/kit/quiet_desk.h"

namespace safety {

// The folder of the disk in drive A, in the collection's, so that the faults of one disk meet both.
inline constexpr std::string_view Drive = "drive";

// A desk with a disk in drive A, whose user keeps every draft.
class UserDesk final : public kit::QuietDesk {
 public:
  std::string Warned;  // by the last box of a warning

  std::string DriveLetters() override { return "a"; }
  std::optional<std::string> DriveFolder(char) override { return std::string(Drive); }
  forms::DraftAnswer AskDraft(std::string_view) override { return forms::DraftAnswer::Keep; }

 protected:
  forms::Answer AskMessageBox(forms::Icon icon, std::string_view title, std::string_view text,
                              forms::Buttons buttons) override {
    if (icon == forms::Icon::Warning) Warned = text;
    return QuietDesk::AskMessageBox(icon, title, text, buttons);
  }
};

// A started program and its desk.
struct StartedProgram {
  enum class At { RecordScreen, Opener };  // only at the opener drafts are asked about
  explicit StartedProgram(runtime::Disk& disk, At at = At::RecordScreen);
  UserDesk Desk;
  ::Program Program;
};

// One step of the user; a stopped program ignores it.
using Step = std::function<void(Program&)>;

// Thrown by a step that the program has told the user it could not do, and that did not stop it.
struct Refused {
  std::string Told;
};

// New and Edit type the film and save it; EditAndClose closes the window instead. `slot` is the one that the program
// will give a new film.
Step NewFilm(int slot, int version);
Step EditFilm(int slot, int version);
Step EditAndClose(int slot, int version);
// Opens the film, unless it is open already, and types it.
Step TypeFilm(int slot, int version);
Step DeleteFilm(int slot);
Step SortFilms();
// Restores the film overwritten last, as the companion does.
Step PutFilmBack();
// Deletes the film and restores it by the button of the notice.
Step DeleteAndPutBack(int slot);
// Copies the master file to drive A.
Step CopyMaster();
// Writes one line to a file opened for output, as settings and counts are.
Step WriteSmallFile(const std::string& name, const std::string& line);
// Steps forward to the slot.
void GoTo(Program& program, int slot);

}  // namespace safety
