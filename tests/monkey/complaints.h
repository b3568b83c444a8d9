// What a look at a single file of the folder or at a failure says; each returns what is wrong, "" if nothing.
// Disturbed: a fault may have hit a disk call.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "runtime/failure.h"

namespace monkey {

// A master file in which only `slot` was written: the others are as before, blanks fill the gap before it, and it ends
// in CR LF. Disturbed: its slot may be blank to the end.
std::string SlotComplaint(const std::string& before, const std::string& after, std::int64_t slot, bool disturbed);
// A history to which the film that was overwritten in the slot was added, perhaps with versions in between. Nothing: no
// slot was written.
std::string HistoryComplaint(const std::string& before, const std::string& after, std::optional<std::int64_t> slot,
                             const std::string& master_before, const std::string& master_after, bool disturbed);
// A journal whose block is done and holds the slot's record.
std::string JournalComplaint(const std::string& journal, const std::set<std::int64_t>& slots,
                             const std::string& master);
// Whether two journals differ in their mark at most, as an opening of the master file leaves one of an earlier stop.
bool HasSameBlock(std::string_view one, std::string_view other);
// A key file, a file of one line or a temporary one; any other file is written by nobody. Nothing: it was removed.
std::string OtherFileComplaint(const std::string& name, const std::optional<std::string>& content, bool disturbed);

// A failure that may stop the program.
std::string NameComplaint(const runtime::Failure& failure);

std::string SlotText(std::int64_t slot);
// The record as a reader sees it; "" past the end of the file.
std::string RecordIn(const std::string& master, std::int64_t slot);

}  // namespace monkey
