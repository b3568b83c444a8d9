// How every verb writes: only if asked to, and only while no other program has the collection open.
#pragma once

#include <functional>
#include <string_view>

#include "companion/verb.h"

namespace companion {

inline constexpr std::string_view NothingWritten = "Nothing was written; --write does it.\n";
inline constexpr std::string_view SortAfterwards = "Sort afterwards, so that views and lists show it.\n";

// Locks the collection, finishes a save that was cut off, runs the call on the disk and returns its result. If another
// program has the lock, says so and returns Found.
int WriteLocked(const Invocation& invocation, Output& output, const std::function<int(runtime::Disk&)>& call);

}  // namespace companion
