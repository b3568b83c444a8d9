// What surrounds the program in a story: its working folder, the disks beside it, the clock, and the last document on
// paper.
#pragma once

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/print_job.h"

namespace story {

struct World {
  // The working folder; the disks of the drives lie beside it.
  std::filesystem::path Folder;
  // Nothing: the clock of this machine.
  std::optional<std::chrono::local_seconds> Clock = {};
  // By small letter; nothing where the drive holds no disk. The working folder's own disk is c unless the story says
  // otherwise.
  std::map<char, std::optional<std::filesystem::path>> Drives = {};
  // The last document that was released to the printer.
  std::optional<runtime::PrintJob> Document = {};
};

// All bytes of a file; nothing where it cannot be read.
std::optional<std::string> ReadBytes(const std::filesystem::path& path);
// Throws std::filesystem::filesystem_error where the file cannot be written.
void WriteBytes(const std::filesystem::path& path, std::string_view bytes);

// A drive's letter as the table of drives has it.
char DriveLetter(std::string_view letter);

}  // namespace story
