// film_generator SOURCE TARGET N: writes a master file of N films made from those of the source.
#include <charconv>
#include <cstring>
#include <iostream>

#include "runtime/failure.h"
#include "tools/film_generator.h"

int main(int argc, char** argv) {
  std::int64_t count = 0;
  bool readable = argc == 4;
  if (readable) {
    const char* end = argv[3] + std::strlen(argv[3]);
    auto [stop, error] = std::from_chars(argv[3], end, count);
    readable = error == std::errc() && stop == end && count >= 0;
  }
  if (!readable) {
    std::cerr << "usage: film_generator SOURCE TARGET N\n";
    return 2;
  }
  try {
    tools::GenerateFilms(argv[1], argv[2], count);
  } catch (const runtime::Failure& failure) {
    std::cerr << failure.Name << ": " << failure.File << "\n";
    return 1;
  }
  return 0;
}
