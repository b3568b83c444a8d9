// Each repetition writes the film in a version of its own number.
#include "tests/safety/repeated_actions.h"

#include <algorithm>
#include <map>
#include <utility>

#include "runtime/whole_io.h"
#include "store/film_record.h"
#include "store/key_file.h"
#include "store/master_file.h"
#include "tests/kit/films.h"

namespace safety {
namespace {

using namespace std::chrono_literals;

const std::string Master(store::MasterFileName);
const std::string Copied = std::string(Drive) + "/" + Master;

kit::Folder MasterOf(std::string master) { return {{Master, std::move(master)}}; }

kit::Folder AllFilms(int) { return kit::FolderOfFilms(LastSlotTried); }

std::string WithRecord(int slot, const std::string& record) {
  static const std::string films = kit::Films(1, LastSlotTried);
  return std::string(films).replace(static_cast<std::size_t>(slot - 1) * store::RecordLength, store::RecordLength,
                                    record);
}

std::string Blank(const std::string& tail) { return std::string(store::RecordLength - tail.size(), ' ') + tail; }

kit::Folder Edited(int slot, int times) { return MasterOf(WithRecord(slot, kit::FilmBytes(slot, times))); }

std::string WithNewFilms(int slot, int times) {
  std::string master = kit::FolderOfFilms(slot - 1).at(Master);
  for (int time = 1; time <= times; ++time) master += kit::FilmBytes(slot - 1 + time, time);
  return master;
}

// Odd repetitions delete (a blank record is written, then its line end); even ones write a new film.
kit::Folder Deleted(int slot, int times) {
  return times % 2 == 1 ? MasterOf(WithRecord(slot, Blank("\r\n"))) : Edited(slot, times);
}

kit::Folder HalfDeleted(int slot, int times) {
  return times % 2 == 0 ? MasterOf(WithRecord(slot, Blank(""))) : Deleted(slot, times);
}

// Odd repetitions edit the film; even ones restore what was there.
kit::Folder PutBack(int slot, int times) { return Edited(slot, times % 2 == 1 ? times : 0); }

std::string SettingAfter(int times) { return times == 0 ? "" : std::to_string(times) + "\r\n"; }

kit::Folder SortedFiles(const kit::Folder& folder) {
  kit::Folder files;
  for (const store::KeyFile& keys : {store::TitleKeys, store::DVDKeys, store::LaserKeys, store::VHSKeys}) {
    for (std::string_view name : {keys.Name, keys.CountFile}) {
      auto file = folder.find(std::string(name));
      files[std::string(name)] = file == folder.end() ? "" : file->second;
    }
  }
  return files;
}

// The key and count files that an undisturbed sort makes of that master file.
kit::Folder SortedFrom(const std::string& master) {
  kit::Folder before = kit::FolderOfFilms(0);
  before[Master] = master;
  kit::MemoryDisk memory(before);
  StartedProgram started(memory);
  SortFilms()(started.Program);
  return SortedFiles(memory.Content());
}

const kit::Folder& SortedAfter(int slot, int times) {
  static std::map<std::pair<int, int>, kit::Folder> made;
  kit::Folder& sorted = made[{slot, times}];
  if (sorted.empty()) sorted = times == 0 ? SortedFiles(kit::FolderOfFilms(0)) : SortedFrom(WithNewFilms(slot, times));
  return sorted;
}

kit::Folder NewAndSorted(int slot, int times) {
  kit::Folder files = SortedAfter(slot, times);
  files[Master] = WithNewFilms(slot, times);
  return files;
}

std::string Content(Program& program, const std::string& name) {
  runtime::OpenFile file(program.Files.Disk(), name, runtime::Disk::Mode::Read);
  std::string content(static_cast<std::size_t>(file.Length()), '\0');
  file.Read(content.data(), content.size(), 0);
  return content;
}

std::string UnlikeSorted(Program& program) {
  SortFilms()(program);
  if (program.Stopped()) return "the next sort stops: " + std::string(program.Stopped()->Name);
  static std::map<std::string, kit::Folder> made;
  const std::string master = Content(program, Master);
  kit::Folder& sorted = made[master];
  if (sorted.empty()) sorted = SortedFrom(master);
  for (const auto& [name, content] : sorted) {
    if (Content(program, name) != content) return "the next sort makes another " + name;
  }
  return "";
}

kit::Folder CopiedFolder(int) {
  kit::Folder folder = kit::FolderOfFilms(LastSlotTried);
  folder[Copied] = kit::Films(1, LastSlotTried);
  return folder;
}

kit::Folder EditedAndCopied(int slot, int times) {
  kit::Folder files = Edited(slot, times);
  files[Copied] = files[Master];
  return files;
}

std::string UnlikeCopied(Program& program) {
  CopyMaster()(program);
  if (Content(program, Copied) != Content(program, Master)) return "the next copy is another";
  return program.Files.Disk().List(std::string(Drive)).size() == 1 ? "" : "a stopped copy is left on the drive";
}

}  // namespace

const std::vector<RepeatedAction>& RepeatedActions() {
  constexpr auto AtOpener = StartedProgram::At::Opener;
  static const std::vector<RepeatedAction> actions = {
      {"New", 300us, [](int slot) { return kit::FolderOfFilms(slot - 1); }, nullptr,
       [](int slot, int time) { return NewFilm(slot - 1 + time, time); },
       [](int slot, int times) { return MasterOf(WithNewFilms(slot, times)); }},
      {"Edit", 450us, AllFilms, GoTo, EditFilm, Edited},
      {"Delete", 450us, AllFilms, GoTo,
       [](int slot, int time) { return time % 2 == 1 ? DeleteFilm(slot) : NewFilm(slot, time); }, Deleted, HalfDeleted},
      {"Setting", 200us, [](int) { return kit::FolderOfFilms(2); }, nullptr,
       [](int, int time) { return WriteSmallFile("Last", std::to_string(time)); },
       [](int, int times) {
         return kit::Folder{{"Last", SettingAfter(times)}};
       }},
      {"Sort",
       1200us,
       [](int slot) { return kit::FolderOfFilms(slot - 1); },
       nullptr,
       [](int slot, int time) {
         return [slot, time](Program& program) {
           NewFilm(slot - 1 + time, time)(program);
           SortFilms()(program);
         };
       },
       NewAndSorted,
       {},
       StartedProgram::At::RecordScreen,
       UnlikeSorted},
      {"Copy",
       1200us,
       CopiedFolder,
       GoTo,
       [](int slot, int time) {
         return [slot, time](Program& program) {
           EditFilm(slot, time)(program);
           CopyMaster()(program);
         };
       },
       EditedAndCopied,
       {},
       StartedProgram::At::RecordScreen,
       UnlikeCopied},
      {"PutBack", 450us, AllFilms, GoTo,
       [](int slot, int time) { return time % 2 == 1 ? EditFilm(slot, time) : PutFilmBack(); }, PutBack},
      {"Draft", 200us, AllFilms, GoTo, TypeFilm, Edited, {}, AtOpener},
  };
  return actions;
}

}  // namespace safety
