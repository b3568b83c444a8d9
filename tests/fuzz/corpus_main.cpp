// Plays each file of the given folders once, where libFuzzer is not linked.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// A property that does not hold, or a crash, ends the process; the file is then the one named last.
int main(int count, char** arguments) {
  int played = 0;
  for (int at = 1; at < count; ++at) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[at])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
      std::cout << entry.path().string() << std::endl;
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++played;
    }
  }
  std::cout << played << " passed, 0 failed\n";
  return played > 0 ? 0 : 1;
}
