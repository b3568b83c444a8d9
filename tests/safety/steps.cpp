// Each step is one or more events of the user.
#include "tests/safety/steps.h"

#include "store/history.h"
#include "tests/kit/films.h"

namespace safety {
namespace {

void Click(Program& program, forms::Button& button) {
  program.Deliver([&] { program.RecordScreen.UserClick(button); });
}

void TypeInto(Program& program, int slot, int version) {
  program.Deliver([&] { kit::TypeFilm(program.RecordScreen, slot, version); });
}

}  // namespace

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
