// The scenarios, and the folders through which an undisturbed run passes.
#include "tests/safety/scenario.h"

#include <algorithm>
#include <cctype>

#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/passing_disk.h"
#include "tests/safety/soundness.h"

namespace safety {
namespace {

// Keeps the folder each time a file of the user's is synced or replaced.
class WatchingDisk final : public kit::PassingDisk {
 public:
  WatchingDisk(kit::MemoryDisk& below, std::vector<kit::Folder>& seen)
      : kit::PassingDisk(below), memory_(below), seen_(seen) {}
  int Sync(int handle) override {
    int result = kit::PassingDisk::Sync(handle);
    if (kit::FolderOf(NameOf(handle)) != runtime::SafetyFolder) seen_.push_back(Visible(memory_.Content()));
    return result;
  }
  int Rename(const std::string& from, const std::string& to) override {
    int result = kit::PassingDisk::Rename(from, to);
    seen_.push_back(Visible(memory_.Content()));
    return result;
  }

 private:
  kit::MemoryDisk& memory_;
  std::vector<kit::Folder>& seen_;
};

// Two films, so that not too many sectors of the copy are unsynced at a time. The old copy is so short that it never
// gives way to the new one on a full disk.
kit::Folder WithDrive(const kit::Folder& on_drive) {
  kit::Folder folder = kit::FolderOfFilms(2);
  folder.insert(on_drive.begin(), on_drive.end());
  return folder;
}

}  // namespace

const std::vector<Scenario>& Scenarios() {
  static const std::vector<Scenario> scenarios = [] {
    kit::Folder no_master = kit::FolderOfFilms(0);
    no_master.erase(std::string(store::MasterFileName));
    std::string half = kit::FilmBytes(13, 3);
    return std::vector<Scenario>{
        {"new films at the end", kit::FolderOfFilms(12), {NewFilm(13, 1), NewFilm(14, 2)}},
        {"edited films", kit::FolderOfFilms(9), {EditFilm(7, 1), EditFilm(8, 2), EditFilm(8, 3)}},
        {"a deleted film and a new one in its slot", kit::FolderOfFilms(9), {DeleteFilm(7), NewFilm(7, 1)}},
        {"an edited film put back", kit::FolderOfFilms(9), {EditFilm(7, 1), PutFilmBack(), PutFilmBack()}},
        {"a new film over a short trailing part", kit::FolderOfFilms(12, half.substr(0, 200)), {NewFilm(13, 1)}},
        {"a new film after a long trailing part", kit::FolderOfFilms(12, half.substr(0, 500)), {NewFilm(14, 1)}},
        {"the first film of an empty file", kit::FolderOfFilms(0), {NewFilm(1, 1), NewFilm(2, 2)}},
        {"the first film of a missing file", no_master, {NewFilm(1, 1)}},
        {"an edited film saved on closing", kit::FolderOfFilms(8), {EditAndClose(7, 1)}},
        {"a deleted film put back from its notice", kit::FolderOfFilms(9), {DeleteAndPutBack(7)}},
        {"a first copy", WithDrive({{"drive/Notes", "theirs"}}), {CopyMaster()}},
        {"a copy over an older one", WithDrive({{"drive/Recpra.Dat", kit::Films(1, 1)}}), {CopyMaster()}},
        {"small files", kit::FolderOfFilms(8), {WriteSmallFile("AutoSave", "YES"), WriteSmallFile("Last", " 7 ")}},
    };
  }();
  return scenarios;
}

std::vector<std::vector<kit::Folder>> AllowedFolders(const Scenario& scenario) {
  kit::MemoryDisk memory(scenario.Before);
  std::vector<kit::Folder> seen;
  WatchingDisk watching(memory, seen);
  StartedProgram started(watching);
  std::vector<std::vector<kit::Folder>> allowed_after;
  for (const Step& step : scenario.Steps) {
    seen = {Visible(memory.Content())};
    step(started.Program);
    seen.push_back(Visible(memory.Content()));
    allowed_after.push_back(seen);
  }
  allowed_after.push_back({Visible(memory.Content())});
  return allowed_after;
}

std::string TestNameOf(const Scenario& scenario) {
  std::string name = scenario.Name;
  std::replace_if(
      name.begin(), name.end(), [](unsigned char letter) { return std::isalnum(letter) == 0; }, '_');
  return name;
}

}  // namespace safety
