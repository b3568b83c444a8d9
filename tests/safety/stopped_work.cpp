// Each check plays one program on one disk.
#include "tests/safety/stopped_work.h"

#include "runtime/whole_io.h"
#include "store/master_file.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/films.h"
#include "tests/safety/steps.h"

namespace safety {
namespace {

const std::string Master(store::MasterFileName);
constexpr int Slot = 7;
constexpr int Versions = 3;

// Types the film in one version after the other; returns how many were typed before the kill.
int TypeUntilKilled(runtime::Disk& disk) {
  int typed = 0;
  try {
    StartedProgram started(disk);
    for (; typed < Versions; ++typed) TypeFilm(Slot, typed + 1)(started.Program);
  } catch (const kit::Killed&) {
  }
  return typed;
}

std::string FilmOf(const kit::MemoryDisk& memory) {
  return memory.Content().at(Master).substr((Slot - 1) * store::RecordLength, store::RecordLength);
}

}  // namespace

std::string StoppedTypingComplaint(const DiskWrapper& wrapper) {
  for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway}) {
    bool reached = true;
    for (std::size_t at = 0; reached; ++at) {
      kit::MemoryDisk memory(kit::FolderOfFilms(9));
      kit::FaultyDisk faulty(memory, {fault, at});
      const int typed = TypeUntilKilled(*Wrapped(faulty, wrapper));
      reached = faulty.Calls() > at;
      StartedProgram kept(memory, StartedProgram::At::Opener);
      const std::string film = FilmOf(memory);
      if (film != kit::FilmBytes(Slot, typed) && film != kit::FilmBytes(Slot, typed + 1))
        return "typing is lost by a kill at call " + std::to_string(at);
    }
  }
  return "";
}

std::string RemainsComplaint(const DiskWrapper& wrapper) {
  kit::Folder folder = kit::FolderOfFilms(2);
  folder[runtime::InSafetyFolder("Last.new")] = folder[std::string(Drive) + "/.reelora-copy.new"] = "remains";
  const std::string in_use = std::string(Drive) + "/.reelora-copy.2.new";
  folder[in_use] = "of another program";
  kit::MemoryDisk memory(folder);
  const runtime::OpenFile used(memory, in_use, runtime::Disk::Mode::ReadWrite);
  used.Lock();
  auto wrapped = Wrapped(memory, wrapper);
  StartedProgram started(*wrapped);
  CopyMaster()(started.Program);
  if (!memory.Content().contains(in_use)) return in_use + " is removed while it is written";
  for (const auto& [name, content] : memory.Content()) {
    if (content == "remains") return name + " is left";
  }
  return "";
}

}  // namespace safety
