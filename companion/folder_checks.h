// What is wrong in the files of a collection, apart from the films.
#pragma once

#include <vector>

#include "companion/finding.h"
#include "companion/reading.h"
#include "sort/statement.h"

namespace companion {

// The weights of the sort. If the file is missing or has another length: the values of the bytes, and a finding.
sort::Weights ReadWeights(runtime::Disk& disk, Findings& findings);
// The length of the master file.
void CheckLength(const Reading& reading, Findings& findings);
// Films: of all records.
void CheckKeys(const Reading& reading, const std::vector<store::FilmRecord>& films, const sort::Weights& weights,
               Findings& findings);
void CheckSettings(runtime::Disk& disk, Findings& findings);
// Journal, history and drafts.
void CheckSafetyFolder(runtime::Disk& disk, Findings& findings);

// The bytes of a file, at most a megabyte; nothing if it is missing.
std::optional<std::string> ReadSmall(runtime::Disk& disk, std::string_view name);

}  // namespace companion
