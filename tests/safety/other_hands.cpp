// Each check plays one program on one disk.
#include "tests/safety/other_hands.h"

#include <filesystem>

#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/safety/steps.h"
#include "tests/story/world.h"

namespace safety {
namespace {

const std::string Master(store::MasterFileName);

// The title in one sector, the last fields in the next.
std::string TwoSectors(char first, char second) {
  std::string record(store::RecordLength, ' ');
  record[0] = first;
  return record.replace(600, 1, 1, second).replace(store::RecordLength - 2, 2, "\r\n");
}

void Write(runtime::Disk& disk, const std::string& record) {
  runtime::Files files(disk);
  store::OpenMaster(files, 1);
  files.Put(1, 1, record.data());
}

std::string AfterTheSave(kit::MemoryDisk& memory, StartedProgram& started, const kit::Folder& left) {
  EditFilm(8, 2)(started.Program);
  if (!started.Program.Stopped()) return "the save was acknowledged";
  const runtime::Failure& failure = *started.Program.Stopped();
  if (failure.Name != runtime::PathError || failure.File != Master) return "the failure is not named";
  if (!memory.Content().at(runtime::InSafetyFolder("journal")).starts_with("REELDONE"))
    return "the next start would write the film into the other file";
  return Visible(memory.Content()) == left ? "" : "the folder was changed";
}

}  // namespace

std::string ReplacedMasterComplaint(const DiskWrapper& wrapper) {
  const std::string other = kit::Films(1, 12);
  for (bool removed : {false, true}) {
    kit::MemoryDisk memory(kit::FolderOfFilms(9));
    auto wrapped = Wrapped(memory, wrapper);
    StartedProgram started(*wrapped);
    EditFilm(7, 1)(started.Program);
    if (removed) {
      memory.Remove(Master);
    } else {
      runtime::OpenFile(memory, "Restored", runtime::Disk::Mode::Create).Write(other, 0);
      memory.Rename("Restored", Master);
    }
    const kit::Folder left = Visible(memory.Content());
    std::string complaint = AfterTheSave(memory, started, left);
    if (!complaint.empty()) return complaint + (removed ? ", master file removed" : ", master file replaced");
  }
  return "";
}

std::string RestoredBackupComplaint(const DiskWrapper& wrapper) {
  const std::string backup = TwoSectors('a', 'a');
  kit::MemoryDisk memory(kit::Folder{{Master, backup}});
  auto wrapped = Wrapped(memory, wrapper);
  Write(*wrapped, TwoSectors('a', 'b'));
  Write(*wrapped, TwoSectors('b', 'a'));
  runtime::OpenFile(memory, Master, runtime::Disk::Mode::ReadWrite).Write(backup, 0);
  runtime::Files files(*wrapped);
  store::OpenMaster(files, 1);
  return memory.Content().at(Master) == backup ? "" : "a restored backup was changed";
}

std::string PlantedFileComplaint(const DiskWrapper& wrapper) {
  const kit::FreshFolder fresh;
  for (const auto& [name, content] : kit::FolderOfFilms(2)) {
    if (kit::FolderOf(name).empty()) story::WriteBytes(fresh.Path() / name, content);
  }
  runtime::RealDisk real(fresh.Path().string());
  auto wrapped = Wrapped(real, wrapper);
  StartedProgram started(*wrapped);
  runtime::MakeSafetyFolder(real);
  story::WriteBytes(fresh.Path() / "precious", "precious");
  std::filesystem::create_hard_link(fresh.Path() / "precious", fresh.Path() / ".reelora/Last.new");
  WriteSmallFile("Last", "7")(started.Program);
  if (story::ReadBytes(fresh.Path() / "Last") != "7\r\n") return "the file was not written";
  return story::ReadBytes(fresh.Path() / "precious") == "precious" ? "" : "a planted file was written";
}

std::string EndedSortComplaint(const DiskWrapper& wrapper) {
  kit::MemoryDisk memory(kit::FolderOfFilms(9));
  auto wrapped = Wrapped(memory, wrapper);
  StartedProgram started(*wrapped);
  SortFilms()(started.Program);
  if (started.Program.Stopped()) return "the sort run stops";
  const kit::Folder sorted = Visible(memory.Content());
  for (const kit::Folder& state : memory.AfterPowerLoss(memory.Moments(), 256)) {
    if (Visible(state) != sorted) return "a loss of power takes back a sort run that has ended";
  }
  return "";
}

}  // namespace safety
