// The work measured side by side on one master file: the four passes of the sort and their baselines.
#pragma once

#include <string>

#include "bench/measured.h"

namespace bench {

// All use the files of one folder, which contains the master file, and free their memory. Each returns its seconds.

// A plain sequential read of the master file.
double ReadMaster(const std::string& folder);
// The four passes. Synced: with the syncs of the real disk.
double SortPasses(const std::string& folder, bool synced);
// What four passes cannot go without: four plain reads, each followed by a plain writing of its output, in one thread.
// Needs the outputs of a sort.
double SortFloor(const std::string& folder, bool synced);

// The lines of the first pass, title and number, in record order.
void PrepareLines(const std::string& folder);
// GNU sort with two threads on those lines, as a process.
double SortLines(const std::string& folder);

#ifdef REELORA_SQLITE
// A table of the films in record order, a column for each field.
void PrepareTable(const std::string& folder);
// The four indexes on that table, without syncs.
double MakeIndexes(const std::string& folder);
#endif

}  // namespace bench
