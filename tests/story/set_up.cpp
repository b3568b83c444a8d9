// The master file and the key files are written byte by byte here, not through the program's own files by number.
#include "tests/story/set_up.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <map>
#include <optional>
#include <system_error>

#include "store/film_record.h"
#include "tests/story/sort_reference.h"

namespace story {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view MasterFile = "Recpra.Dat";
constexpr std::string_view WeightsFile = "UPPER.ALT";

std::string BytesOf(const World& world, std::string_view name) { return ReadBytes(world.Folder / name).value_or(""); }

// The copies are written anew, so that they can be written to whatever the rights of the originals are.
void CopyFiles(const fs::path& source, const fs::path& target) {
  for (const fs::directory_entry& entry : fs::directory_iterator(source)) {
    if (!entry.is_regular_file()) continue;
    std::optional<std::string> bytes = ReadBytes(entry.path());
    if (!bytes)
      throw fs::filesystem_error("the file cannot be read", entry.path(), std::make_error_code(std::errc::io_error));
    WriteBytes(target / entry.path().filename(), *bytes);
  }
}

std::string EmptyRecord() { return std::string(store::RecordLength - 2, ' ') + "\r\n"; }

const store::FilmFieldRow& FieldNamed(const Line& line, std::string_view name) {
  for (const store::FilmFieldRow& row : store::FilmFields) {
    if (row.Name == name) return row;
  }
  throw Difference{line.Number, Differs("a field of the film record", name)};
}

// The text with each run of # signs replaced by the number, padded with zeros to the length of the run.
std::string Numbered(std::string_view text, int number) {
  std::string numbered;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = std::min(text.find_first_not_of('#', at), text.size());
    if (end == at) {
      numbered += text[at++];
      continue;
    }
    std::array<char, 16> digits{};
    int width = static_cast<int>(std::min<std::size_t>(end - at, digits.size() - 1));
    std::snprintf(digits.data(), digits.size(), "%0*d", width, number);
    numbered += digits.data();
    at = end;
  }
  return numbered;
}

void WriteFilm(std::string& master, int slot, const Line& line, bool numbered) {
  if (slot < 1) throw Difference{line.Number, Differs("a slot of 1 or more", std::to_string(slot))};
  std::string record = EmptyRecord();
  for (const Argument& field : line.Arguments) {
    if (field.As != Argument::Form::Field) continue;
    const store::FilmFieldRow& row = FieldNamed(line, field.Field);
    std::string text = numbered ? Numbered(field.Text, slot) : field.Text;
    text.resize(static_cast<std::size_t>(row.Width), ' ');
    record.replace(static_cast<std::size_t>(row.Offset), text.size(), text);
  }
  auto offset = static_cast<std::size_t>(slot - 1) * store::RecordLength;
  while (master.size() < offset) master += EmptyRecord().substr(master.size() % store::RecordLength);
  master.replace(offset, record.size(), record);
}

void WriteFilms(World& world, const Line& line, int first, int last, bool numbered) {
  if (last < first) throw Difference{line.Number, Differs("slots in rising order", line.Notation())};
  std::string master = BytesOf(world, MasterFile);
  for (int slot = first; slot <= last; ++slot) WriteFilm(master, slot, line, numbered);
  WriteBytes(world.Folder / MasterFile, master);
}

void PlayFilm(World& world, const Line& line, const fs::path&) {
  WriteFilms(world, line, line.Number32(0), line.Number32(0), false);
}

void PlayFilms(World& world, const Line& line, const fs::path&) {
  WriteFilms(world, line, line.Number32(0), line.Number32(1), true);
}

void PlaySorted(World& world, const Line& line, const fs::path&) {
  std::string weights = BytesOf(world, WeightsFile);
  if (weights.size() != 256) throw Difference{line.Number, "expected the 256 weights of UPPER.ALT, got another file"};
  for (const SortedPair& pair : SortedPairs(BytesOf(world, MasterFile), weights)) {
    WriteBytes(world.Folder / pair.KeyFile, pair.KeyBytes);
    WriteBytes(world.Folder / pair.CountFile, pair.CountBytes);
  }
}

void PlayKey(World& world, const Line& line, const fs::path&) {
  std::string title = line.Text(1);
  title.resize(40, ' ');
  std::array<char, 24> number{};
  std::snprintf(number.data(), number.size(), "%07d\r\n", line.Number32(2));
  WriteBytes(world.Folder / line.Text(0), BytesOf(world, line.Text(0)) + title + number.data());
}

void PlayCount(World& world, const Line& line, const fs::path&) {
  WriteBytes(world.Folder / line.Text(0), " " + line.Text(1) + "\r\n");
}

void PlayFile(World& world, const Line& line, const fs::path&) {
  fs::create_directories((world.Folder / line.Text(0)).parent_path());
  WriteBytes(world.Folder / line.Text(0), line.Text(1));
}

void PlayRemove(World& world, const Line& line, const fs::path&) {
  if (!fs::remove(world.Folder / line.Text(0)))
    throw Difference{line.Number, Differs("a file to remove", "none of that name")};
}

void PlayFolder(World& world, const Line& line, const fs::path& story_folder) {
  fs::path source = story_folder / line.Text(0);
  if (!fs::is_directory(source)) throw Difference{line.Number, Differs("a folder", source.string())};
  CopyFiles(source, world.Folder);
}

// The date and the time that begin at that argument.
std::chrono::local_seconds TimeOf(const Line& line, std::size_t at) {
  int year = 0;
  unsigned month = 0, day = 0, hour = 0, minute = 0, second = 0;
  std::string text = line.Text(at) + " " + line.Text(at + 1);
  std::array<char, 2> rest{};
  int parts = std::sscanf(text.c_str(), "%4d-%2u-%2u %2u:%2u:%2u%1s", &year, &month, &day, &hour, &minute, &second,
                          rest.data());
  std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
  if (parts != 6 || !date.ok() || hour > 23 || minute > 59 || second > 59)
    throw Difference{line.Number, Differs("YYYY-MM-DD HH:MM:SS", text)};
  return std::chrono::local_days(date) + std::chrono::hours(hour) + std::chrono::minutes(minute) +
         std::chrono::seconds(second);
}

void PlayClock(World& world, const Line& line, const fs::path&) { world.Clock = TimeOf(line, 0); }

void PlayTime(World& world, const Line& line, const fs::path&) {
  fs::path file = world.Folder / line.Text(0);
  std::chrono::local_seconds time = TimeOf(line, 1);
  if (!fs::is_regular_file(file)) throw Difference{line.Number, Differs("a file to date", "none of that name")};
  // The machine's own time zone, as the program reads the time of a file in it.
  auto day = std::chrono::floor<std::chrono::days>(time);
  std::chrono::year_month_day date{day};
  std::tm local{};
  local.tm_year = static_cast<int>(date.year()) - 1900;
  local.tm_mon = static_cast<int>(static_cast<unsigned>(date.month())) - 1;
  local.tm_mday = static_cast<int>(static_cast<unsigned>(date.day()));
  local.tm_sec = static_cast<int>((time - day).count());
  local.tm_isdst = -1;
  auto moment = std::chrono::system_clock::from_time_t(std::mktime(&local));
  fs::last_write_time(file, fs::file_time_type::clock::from_sys(moment));
}

void PlayDrive(World& world, const Line& line, const fs::path&) {
  if (line.Text(0).size() != 1) throw Difference{line.Number, Differs("the letter of a drive", line.Text(0))};
  auto& disk = world.Drives[DriveLetter(line.Text(0))];
  disk.reset();
  if (line.Arguments[1].Is("none")) return;
  fs::path name = line.Text(1);
  if (name != name.filename() || name == ".." || name == "." || name.empty() || name == world.Folder.filename())
    throw Difference{line.Number, Differs("the name of a folder beside the working folder", line.Text(1))};
  disk = world.Folder.parent_path() / name;
  fs::remove_all(*disk);
  fs::create_directories(*disk);
}

using Play = void (*)(World&, const Line&, const fs::path&);
const std::map<std::string_view, Play> Plays = {
    {"film", PlayFilm},   {"films", PlayFilms}, {"sorted", PlaySorted}, {"key", PlayKey},
    {"count", PlayCount}, {"file", PlayFile},   {"remove", PlayRemove}, {"folder", PlayFolder},
    {"clock", PlayClock}, {"drive", PlayDrive}, {"time", PlayTime},
};

}  // namespace

void LayOutFolder(World& world, const fs::path& delivered) {
  CopyFiles(delivered, world.Folder);
  for (const char* name : {"Fo", "Fo1", "AutoSave", "AutoSort"}) WriteBytes(world.Folder / name, "NO\r\n");
  world.Drives['c'] = world.Folder;
}

void SetUp(World& world, const Line& line, const fs::path& story_folder) {
  Plays.at(line.Verb)(world, line, story_folder);
}

}  // namespace story
