// Master files of any size for measurements, made from a smaller collection.
#pragma once

#include <cstdint>
#include <string>

namespace tools {

// Writes count films: those of the source in their order, again and again; from the second time on each title ends in
// the number of the round. Throws runtime::Failure.
void GenerateFilms(const std::string& source_path, const std::string& target_path, std::int64_t count);

}  // namespace tools
