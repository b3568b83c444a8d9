// A copy's name holds its time, so that copies need no list; any other name in the folder is left alone.
#include "launcher/copies.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>

#include "runtime/copy_file.h"
#include "runtime/files.h"
#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace launcher {
namespace {

using std::chrono::days;
using std::chrono::local_seconds;

constexpr std::size_t AlwaysKept = 10;
constexpr days Month(31);
constexpr days Year(366);
// A copy from further ahead was made while the clock was wrong.
constexpr days FurthestAhead(1);
// The last time that a name can hold.
constexpr local_seconds LastTime =
    std::chrono::local_days(std::chrono::year(9999) / std::chrono::December / 31) + days(1) - std::chrono::seconds(1);
constexpr std::size_t BlockBytes = 256 * 1024;

struct Copy {
  local_seconds When;
  std::string Name;
};

// The newest first, without those from too far ahead.
std::vector<Copy> Copies(const std::vector<std::string>& names, local_seconds now) {
  std::vector<Copy> copies;
  for (const std::string& name : names) {
    std::optional<local_seconds> when = TimeOfCopy(name);
    if (when && *when <= now + FurthestAhead) copies.push_back({*when, name});
  }
  std::ranges::sort(copies, std::ranges::greater(), &Copy::When);
  return copies;
}

bool AreEqual(const runtime::OpenFile& left, const runtime::OpenFile& right) {
  if (left.Length() != right.Length()) return false;
  std::string left_block(BlockBytes, '\0');
  std::string right_block(BlockBytes, '\0');
  for (std::int64_t offset = 0;; offset += static_cast<std::int64_t>(BlockBytes)) {
    std::size_t read = left.Read(left_block.data(), BlockBytes, offset);
    if (right.Read(right_block.data(), BlockBytes, offset) != read) return false;
    if (!std::equal(left_block.begin(), left_block.begin() + static_cast<std::ptrdiff_t>(read), right_block.begin()))
      return false;
    if (read < BlockBytes) return true;
  }
}

// That time, or the next one that no copy has; before the last time the one before it.
local_seconds FreeTime(const std::vector<std::string>& names, local_seconds when) {
  std::chrono::seconds step(1);
  when = std::min(when, LastTime);
  while (std::ranges::find(names, NameOfCopy(when)) != names.end()) {
    if (when == LastTime) step = -step;
    when += step;
  }
  return when;
}

// Whether the master file differs from that copy.
bool NeedsCopy(runtime::Disk& collection, runtime::Disk& copies, const std::string& newest) {
  if (newest.empty()) return true;
  runtime::OpenFile master(collection, std::string(store::MasterFileName), runtime::Disk::Mode::Read);
  runtime::OpenFile copy(copies, newest, runtime::Disk::Mode::Read);
  return !AreEqual(master, copy);
}

// A stop may have left a film half written. Opening the file finishes it, so that no copy has such a film.
void FinishStoppedSave(runtime::Disk& collection) {
  constexpr int AnyNumber = 1;
  runtime::Files files(collection);
  store::OpenMaster(files, AnyNumber);
}

}  // namespace

std::string NameOfCopy(local_seconds when) {
  auto day = std::chrono::floor<days>(when);
  std::chrono::year_month_day date(day);
  std::chrono::hh_mm_ss time(when - day);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "Recpra %04d-%02u-%02u %02d-%02d-%02d.Dat", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                static_cast<int>(time.seconds().count()));
  return text.data();
}

std::optional<local_seconds> TimeOfCopy(std::string_view name) {
  int year = 0, hour = 0, minute = 0, second = 0;
  unsigned month = 0, day = 0;
  if (std::sscanf(std::string(name).c_str(), "Recpra %4d-%2u-%2u %2d-%2d-%2d.Dat", &year, &month, &day, &hour, &minute,
                  &second) != 6)
    return std::nullopt;
  std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
  if (!date.ok()) return std::nullopt;
  local_seconds when = std::chrono::local_days(date) + std::chrono::hours(hour) + std::chrono::minutes(minute) +
                       std::chrono::seconds(second);
  // The one way to write it; anything else is somebody else's file.
  return NameOfCopy(when) == name ? std::optional(when) : std::nullopt;
}

std::vector<std::string> Superseded(const std::vector<std::string>& names, local_seconds now) {
  std::vector<std::string> superseded;
  std::set<std::chrono::local_days> seen_days;
  std::set<std::chrono::year_month> seen_months;
  std::size_t count = 0;
  for (const Copy& copy : Copies(names, now)) {
    auto day = std::chrono::floor<days>(copy.When);
    std::chrono::year_month_day date(day);
    bool first_of_day = seen_days.insert(day).second;
    bool first_of_month = seen_months.insert(date.year() / date.month()).second;
    bool stays = ++count <= AlwaysKept || (first_of_day && copy.When > now - Month) ||
                 (first_of_month && copy.When > now - Year);
    if (!stays) superseded.push_back(copy.Name);
  }
  return superseded;
}

bool HasFilms(runtime::Disk& collection) {
  try {
    runtime::OpenFile master(collection, std::string(store::MasterFileName), runtime::Disk::Mode::Read);
    return master.Length() > 0;
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
    return false;
  }
}

std::string KeepCopy(runtime::Disk& collection, runtime::Disk& copies, local_seconds now) {
  if (!HasFilms(collection)) return "";
  FinishStoppedSave(collection);
  const std::vector<std::string> names = copies.List("");
  const std::vector<Copy> before = Copies(names, now);
  if (!NeedsCopy(collection, copies, before.empty() ? "" : before.front().Name)) return "";
  // Two starts in one second, or a clock that was put back: the new copy must be the newest.
  local_seconds when = before.empty() ? now : std::max(now, before.front().When + std::chrono::seconds(1));
  std::string name = NameOfCopy(FreeTime(names, when));
  runtime::Copied copied = runtime::CopyFile(collection, std::string(store::MasterFileName), copies, name);
  // What a loss of power may take replaces nothing.
  if (copied == runtime::Copied::Unconfirmed) return name;
  for (const std::string& superseded : Superseded(copies.List(""), now)) runtime::Discard(copies, superseded);
  return name;
}

}  // namespace launcher
