// Dated copies of the films, made before a start and thinned out as they age.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/disk.h"

namespace launcher {

// A folder of the collection.
inline constexpr std::string_view CopiesFolder = "backups";

// "Recpra 2026-11-22 05-31-34.Dat"; local time.
std::string NameOfCopy(std::chrono::local_seconds when);
// Nothing for a file that is not a copy.
std::optional<std::chrono::local_seconds> TimeOfCopy(std::string_view name);

// Which copies to remove. The last ten stay, the newest of each day of the month before now, and the newest of each
// month of the year before now. Names that are not copies are never among them, nor copies from more than a day ahead:
// the clock was wrong when they were made.
std::vector<std::string> Superseded(const std::vector<std::string>& names, std::chrono::local_seconds now);

// Whether there is a master file that is not empty.
bool HasFilms(runtime::Disk& collection);

// Copies the master file if it differs from the newest copy that is not from more than a day ahead, and removes what is
// superseded. No file is replaced. The folder must be locked: a save that a stop has cut off is finished first. Returns
// the new copy's name, "" if none was needed or there are no films yet. Throws the Failure of a copy that could not be
// made; a superseded copy that cannot be removed stays.
std::string KeepCopy(runtime::Disk& collection, runtime::Disk& copies, std::chrono::local_seconds now);

}  // namespace launcher
