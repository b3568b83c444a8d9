// Makes master files of any size from a smaller collection.
#pragma once

#include <cstdint>
#include <string>

namespace tools {

// Writes `count` films by repeating those of the source; from the second round on each title ends in the number of the
// round. Throws runtime::Failure.
void GenerateFilms(const std::string& source_path, const std::string& target_path, std::int64_t count);

}  // namespace tools
