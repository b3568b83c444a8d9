// Where the sources of this build are.
#pragma once

#include <filesystem>

namespace kit {

std::filesystem::path SourceFolder();
// The files that ship with the program.
std::filesystem::path DeliveredFolder();
// The master file of the sample collection.
std::filesystem::path SampleFile();

}  // namespace kit
