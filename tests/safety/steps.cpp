// Each step is one or more events of the user.
#include "tests/safety/steps.h"

#include <algorithm>

#include "app/overwritten_films.h"
#include "store/history.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/subfolder_disk.h"

namespace safety {
namespace {

void Click(Program& program, forms::Control& control) {
  program.Deliver([&] { program.RecordScreen.UserClick(control); });
}

void TypeInto(Program& program, int slot, int version) {
  program.Deliver([&] { kit::TypeFilm(program.RecordScreen, slot, version); });
}

// A list that could not be read does not have the item.
void Pick(Program& program, forms::ListBox& list, std::string_view item) {
  auto found = std::find(list.Items().begin(), list.Items().end(), item);
  if (program.Ended()) return;
  if (found == list.Items().end()) throw Refused{std::string(item) + " is not listed"};
  program.Deliver([&] { program.Copy.UserPick(list, static_cast<int>(found - list.Items().begin())); });
}

}  // namespace

StartedProgram::StartedProgram(runtime::Disk& disk, At at) : Program(Desk, disk) {
  Program.Copy.DiskIn = [&disk](const std::string& folder) {
    return std::make_unique<kit::SubfolderDisk>(disk, folder);
  };
  if (at == At::Opener) {
    Program.StartOpener();
  } else {
    Program.StartRecordScreen();
  }
}

void GoTo(Program& program, int slot) {
  while (!program.Ended() && program.RecordScreen.CurrentRecNo < slot) Click(program, program.RecordScreen.cmdNext);
}

Step NewFilm(int slot, int version) {
  return [slot, version](Program& program) {
    Click(program, program.RecordScreen.cmdNew);
    TypeInto(program, slot, version);
    Click(program, program.RecordScreen.cmdSave);
  };
}

Step EditFilm(int slot, int version) {
  return [slot, version](Program& program) {
    GoTo(program, slot);
    Click(program, program.RecordScreen.cmdEdit);
    TypeInto(program, slot, version);
    Click(program, program.RecordScreen.cmdSave);
  };
}

Step EditAndClose(int slot, int version) {
  return [slot, version](Program& program) {
    GoTo(program, slot);
    Click(program, program.RecordScreen.cmdEdit);
    TypeInto(program, slot, version);
    program.Deliver([&] { program.RecordScreen.UserClose(); });
  };
}

Step TypeFilm(int slot, int version) {
  return [slot, version](Program& program) {
    GoTo(program, slot);
    if (!program.HasOpenFilm()) Click(program, program.RecordScreen.cmdEdit);
    TypeInto(program, slot, version);
  };
}

Step DeleteFilm(int slot) {
  return [slot](Program& program) {
    GoTo(program, slot);
    Click(program, program.RecordScreen.cmdDelete);
  };
}

Step SortFilms() {
  return [](Program& program) { Click(program, program.RecordScreen.cmdSort); };
}

Step PutFilmBack() {
  return [](Program& program) {
    program.Deliver([&] {
      runtime::Files files(program.Files.Disk());
      store::PutBack(files, store::ReadHistory(files.Disk()).back());
    });
  };
}

Step DeleteAndPutBack(int slot) {
  return [slot](Program& program) {
    std::optional<OverwrittenFilms> films;
    program.Deliver([&] {
      films.emplace(program);
      films->TakeLost();  // as after each event
    });
    GoTo(program, slot);
    program.Deliver([&] { program.RecordScreen.UserClick(program.RecordScreen.cmdDelete); });
    program.Deliver([&] {
      for (const store::KeptFilm& lost : films->TakeLost()) films->PutBack(lost);
    });
  };
}

Step CopyMaster() {
  return [](Program& program) {
    auto& desk = static_cast<UserDesk&>(program.RecordScreen.Desk);
    desk.Warned.clear();
    Click(program, program.RecordScreen.mnuCopy);
    Pick(program, program.Copy.File1, store::MasterFileName);
    Pick(program, program.Copy.Drive1, "a:");
    if (!program.Ended() && !desk.Warned.empty()) throw Refused{desk.Warned};
  };
}

Step WriteSmallFile(const std::string& name, const std::string& line) {
  return [name, line](Program& program) {
    program.Deliver([&] {
      program.Files.OpenOutput(SettingFileNo, name);
      program.Files.WriteLine(SettingFileNo, line);
      program.Files.Close(SettingFileNo);
    });
  };
}

}  // namespace safety
