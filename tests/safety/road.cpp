// The films, the steps and the roads.
#include "tests/safety/road.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "runtime/record_journal.h"
#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/safety/passing_disk.h"

namespace safety {
namespace {

using store::FilmField;

struct TypedField {
  FilmField Field;
  forms::TextBox frmPage1::*Box;
};
// clang-format off
constexpr TypedField TypedFields[] = {
  { FilmField::Title,           &frmPage1::txtTitle },
  { FilmField::Director,        &frmPage1::txtDirector },
  { FilmField::Star1,           &frmPage1::txtStar1 },
  { FilmField::Star2,           &frmPage1::txtStar2 },
  { FilmField::Star3,           &frmPage1::txtStar3 },
  { FilmField::Star4,           &frmPage1::txtStar4 },
  { FilmField::Star5,           &frmPage1::txtStar5 },
  { FilmField::Star6,           &frmPage1::txtStar6 },
  { FilmField::Label,           &frmPage1::txtLabel },
  { FilmField::Producer,        &frmPage1::txtProducer },
  { FilmField::Cinematographer, &frmPage1::txtCinematographer },
  { FilmField::Written,         &frmPage1::txtWritten },
  { FilmField::Music,           &frmPage1::txtMusic },
  { FilmField::Choreography,    &frmPage1::txtChoreography },
  { FilmField::SetDirection,    &frmPage1::txtSetDirection },
  { FilmField::Costume,         &frmPage1::txtCostume },
  { FilmField::Sound,           &frmPage1::txtSound },
  { FilmField::Awards,          &frmPage1::txtAwards },
  { FilmField::Package,         &frmPage1::txtPackage },
  { FilmField::Purchase,        &frmPage1::txtPurchase },
  { FilmField::Cost,            &frmPage1::txtCost },
  { FilmField::Ratings,         &frmPage1::txtRatings },
};
// clang-format on

const std::string MasterName(store::MasterFileName);

std::string TextOf(FilmField field, int slot, int version) {
  auto width = static_cast<std::size_t>(store::RowOf(field).Width);
  std::string text =
      field == FilmField::Title ? "Film " + std::to_string(slot) + "." + std::to_string(version) + "." : "";
  return text + std::string(width - text.size(), static_cast<char>('a' + version % 26));
}

void Type(Program& program, int slot, int version) {
  program.Deliver([&] {
    for (const TypedField& typed : TypedFields)
      (program.RecordScreen.*typed.Box).SetText(TextOf(typed.Field, slot, version));
    program.RecordScreen.txtFormat.SetText("VHS");
  });
}

void Click(Program& program, forms::Button& button) {
  program.Deliver([&] { program.RecordScreen.UserClick(button); });
}

Step EditAndClose(int slot, int version) {
  return [slot, version](Program& program) {
    GoTo(program, slot);
    Click(program, program.RecordScreen.cmdEdit);
    Type(program, slot, version);
    program.Deliver([&] { program.RecordScreen.UserClose(); });
  };
}

Folder Delivered() {
  Folder folder;
  for (const auto& entry : std::filesystem::directory_iterator(REELORA_SOURCE "/delivered")) {
    if (!entry.is_regular_file()) continue;
    std::ifstream file(entry.path(), std::ios::binary);
    folder[entry.path().filename()] = std::string(std::istreambuf_iterator<char>(file), {});
  }
  for (const char* name : {"AutoSave", "AutoSort", "Fo1"}) folder[name] = "NO\r\n";
  return folder;
}

// Keeps the folder of each moment at which a file of the user's was made safe or replaced.
class WatchingDisk final : public PassingDisk {
 public:
  WatchingDisk(MemoryDisk& below, std::vector<Folder>& seen) : PassingDisk(below), memory_(below), seen_(seen) {}
  int Sync(int handle) override {
    int result = PassingDisk::Sync(handle);
    if (FolderOf(NameOf(handle)).empty()) seen_.push_back(Visible(memory_.Content()));
    return result;
  }
  int Rename(const std::string& from, const std::string& to) override {
    int result = PassingDisk::Rename(from, to);
    seen_.push_back(Visible(memory_.Content()));
    return result;
  }

 private:
  MemoryDisk& memory_;
  std::vector<Folder>& seen_;
};

bool StandsIn(std::string_view history, std::string_view record) {
  constexpr std::size_t EntryLength = runtime::HistoryHeadLength + store::RecordLength;
  for (; history.size() >= EntryLength; history.remove_prefix(EntryLength)) {
    if (history.substr(runtime::HistoryHeadLength, record.size()) == record) return true;
  }
  return false;
}

// The first film of before that is neither in its slot nor in the history, as a complaint.
std::string FilmLost(const Folder& before, const Folder& found) {
  auto contents = [](const Folder& folder, const std::string& name) {
    auto file = folder.find(name);
    return file == folder.end() ? std::string() : file->second;
  };
  std::string old_master = contents(before, MasterName), master = contents(found, MasterName);
  std::string history = contents(found, runtime::InSafetyFolder("history"));
  for (std::size_t at = 0; at + store::RecordLength <= old_master.size(); at += store::RecordLength) {
    std::string film = old_master.substr(at, store::RecordLength);
    bool is_film = film.find_first_not_of(' ') < static_cast<std::size_t>(runtime::HistoryKeyWidth);
    if (!is_film || master.compare(at, film.size(), film) == 0 || StandsIn(history, film)) continue;
    return "the film of slot " + std::to_string(at / store::RecordLength + 1) + " is not in the history";
  }
  return "";
}

}  // namespace

std::string FilmBytes(int slot, int version) {
  store::FilmRecord film;
  for (const TypedField& typed : TypedFields) film.Set(typed.Field, TextOf(typed.Field, slot, version));
  film.Set(FilmField::Format, "V");
  film.Set(FilmField::Tail, "\r\n");
  return {film.Bytes.data(), film.Bytes.size()};
}

Folder FolderOfFilms(int films, const std::string& behind) {
  static const Folder delivered = Delivered();
  Folder folder = delivered;
  std::string& master = folder[MasterName];
  for (int slot = 1; slot <= films; ++slot) master += FilmBytes(slot, 0);
  master += behind;
  return folder;
}

void GoTo(Program& program, int slot) {
  while (!program.Ended() && program.RecordScreen.CurrentRecNo < slot) Click(program, program.RecordScreen.cmdNext);
}

Step NewFilm(int slot, int version) {
  return [slot, version](Program& program) {
    Click(program, program.RecordScreen.cmdNew);
    Type(program, slot, version);
    Click(program, program.RecordScreen.cmdSave);
  };
}

Step EditFilm(int slot, int version) {
  return [slot, version](Program& program) {
    GoTo(program, slot);
    Click(program, program.RecordScreen.cmdEdit);
    Type(program, slot, version);
    Click(program, program.RecordScreen.cmdSave);
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

Step WriteSmallFile(const std::string& name, const std::string& line) {
  return [name, line](Program& program) {
    program.Deliver([&] {
      program.Files.OpenOutput(SettingFileNo, name);
      program.Files.WriteLine(SettingFileNo, line);
      program.Files.Close(SettingFileNo);
    });
  };
}

const std::vector<Road>& Roads() {
  static const std::vector<Road> roads = [] {
    Folder no_master = FolderOfFilms(0);
    no_master.erase(MasterName);
    std::string half = FilmBytes(13, 3);
    return std::vector<Road>{
        {"new films at the end", FolderOfFilms(12), {NewFilm(13, 1), NewFilm(14, 2)}},
        {"edited films", FolderOfFilms(9), {EditFilm(7, 1), EditFilm(8, 2), EditFilm(8, 3)}},
        {"a deleted film and a new one in its slot", FolderOfFilms(9), {DeleteFilm(7), NewFilm(7, 1)}},
        {"a new film over a short trailing part", FolderOfFilms(12, half.substr(0, 200)), {NewFilm(13, 1)}},
        {"a new film behind a long trailing part", FolderOfFilms(12, half.substr(0, 500)), {NewFilm(14, 1)}},
        {"the first film of an empty file", FolderOfFilms(0), {NewFilm(1, 1), NewFilm(2, 2)}},
        {"the first film of a missing file", no_master, {NewFilm(1, 1)}},
        {"an edited film saved on closing", FolderOfFilms(8), {EditAndClose(7, 1)}},
        {"small files", FolderOfFilms(8), {WriteSmallFile("AutoSave", "YES"), WriteSmallFile("Last", " 7 ")}},
    };
  }();
  return roads;
}

Folder Visible(const Folder& content) {
  Folder visible;
  std::copy_if(content.begin(), content.end(), std::inserter(visible, visible.end()),
               [](const auto& file) { return FolderOf(file.first).empty(); });
  return visible;
}

std::vector<std::vector<Folder>> Stations(const Road& road) {
  MemoryDisk memory(road.Before);
  std::vector<Folder> seen;
  WatchingDisk watching(memory, seen);
  Running run(watching);
  std::vector<std::vector<Folder>> stations;
  for (const Step& step : road.Steps) {
    seen = {Visible(memory.Content())};
    step(run.Program);
    seen.push_back(Visible(memory.Content()));
    stations.push_back(seen);
  }
  stations.push_back({Visible(memory.Content())});
  return stations;
}

std::string Complaint(MemoryDisk& disk, const std::vector<Folder>& allowed, const Folder& before, const Fitting& fit) {
  std::unique_ptr<runtime::Disk> fitted = fit ? fit(disk) : nullptr;
  Running run(fitted ? *fitted : disk);
  if (run.Program.Stopped()) {
    const runtime::Failure& failure = *run.Program.Stopped();
    return "the start stops: " + std::string(failure.Name) + ", " + failure.File;
  }
  Folder found = disk.Content();
  Folder visible = Visible(found);
  if (std::find(allowed.begin(), allowed.end(), visible) != allowed.end())
    return FilmLost(before, found) + FilmLost(allowed.front(), found);
  std::string complaint = "a folder that is neither the old one nor the new one:";
  for (const auto& [name, content] : visible) {
    auto wanted = allowed.front().find(name);
    if (wanted == allowed.front().end() || wanted->second != content) complaint += " " + name;
  }
  return complaint;
}

std::string Complaint(const Folder& found, const std::vector<Folder>& allowed, const Folder& before,
                      const Fitting& fit) {
  MemoryDisk disk(found);
  return Complaint(disk, allowed, before, fit);
}

}  // namespace safety
