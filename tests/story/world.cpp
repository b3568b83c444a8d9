// Whole files of a story's folders.
#include "tests/story/world.h"

#include <cctype>
#include <fstream>
#include <iterator>
#include <system_error>

namespace story {

std::optional<std::string> ReadBytes(const std::filesystem::path& path) {
  if (!std::filesystem::is_regular_file(path)) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return file ? std::optional(bytes) : std::nullopt;
}

void WriteBytes(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) {
    throw std::filesystem::filesystem_error("the file cannot be written", path,
                                            std::make_error_code(std::errc::io_error));
  }
}

char DriveLetter(std::string_view letter) {
  return letter.empty() ? '\0' : static_cast<char>(std::tolower(static_cast<unsigned char>(letter[0])));
}

}  // namespace story
