// The work measured side by side on one master file: the four passes of the sort and their baselines.
#pragma once

#include <string>

#include "bench/measured.h"

namespace bench {

// All use the files of one folder, which contains the master file, and free their memory. Each call is one piece of
// work for Best and returns the seconds of its parts.

// A plain sequential read of the master file.
std::vector<double> ReadMaster(const std::string& folder);
// The four passes, one part each. Synced: with the syncs of the real disk.
std::vector<double> SortPasses(const std::string& folder, bool synced);

// The lines of the first pass, title and number, in record order.
void PrepareLines(const std::string& folder);
// GNU sort with two threads on those lines, as a process.
std::vector<double> SortLines(const std::string& folder);

#ifdef REELORA_SQLITE
// A table of the films in record order, a column for each field.
void PrepareTable(const std::string& folder);
// The four indexes on that table, one part each, without syncs.
std::vector<double> MakeIndexes(const std::string& folder);
#endif

}  // namespace bench
