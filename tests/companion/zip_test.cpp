// Zips are read whole or not at all, and take no more memory than they may.
#include "companion/zip.h"

#include <gtest/gtest.h>

#include <random>

namespace companion {
namespace {

constexpr std::size_t Plenty = 1 << 20;

bool All(std::string_view) { return true; }

const FilesByName Files = {{"AutoSave", "YES\r\n"}, {"Recpra.Dat", std::string(5000, 'x')}, {".reelora/history", ""}};

TEST(Zip, BringsBackEachByte) {
  std::mt19937 random(7);
  FilesByName files = Files;
  for (char& byte : files["Recpra.Dat"]) byte = static_cast<char>(random());
  EXPECT_EQ(Unzipped(*Zipped(files), All, Plenty), files);
}

TEST(Zip, HasOnlyTheNamesThatAreWanted) {
  FilesByName files = Files;
  files["../outside"] = "x";
  files[std::string(200, 'n')] = "x";
  const auto wanted = [](std::string_view name) { return name == "AutoSave"; };
  EXPECT_EQ(Unzipped(*Zipped(files), wanted, Plenty), (FilesByName{{"AutoSave", "YES\r\n"}}));
}

TEST(Zip, IsRefusedIfItHoldsTooMuch) {
  const std::string zip = *Zipped(Files);
  EXPECT_EQ(Unzipped(zip, All, 5005), Files);
  EXPECT_EQ(Unzipped(zip, All, 5004), std::nullopt);
  const std::string bomb = *Zipped({{"Recpra.Dat", std::string(64 << 20, ' ')}});
  EXPECT_LT(bomb.size(), Plenty);
  EXPECT_EQ(Unzipped(bomb, All, Plenty), std::nullopt);
}

// Some bytes of a zip say nothing about its files.
TEST(Zip, IsRefusedOrWholeIfItIsDamaged) {
  const std::string zip = *Zipped(Files);
  for (std::size_t length = 0; length < zip.size(); ++length) {
    const auto files = Unzipped(zip.substr(0, length), All, Plenty);
    EXPECT_TRUE(!files || *files == Files) << length;
    EXPECT_TRUE(!files || length > zip.size() - 10) << length;
  }
  for (std::size_t at = 0; at < zip.size(); ++at) {
    std::string damaged = zip;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x20);
    const auto read = Unzipped(damaged, All, Plenty);
    for (const auto& [name, bytes] : read.value_or(FilesByName{})) {
      EXPECT_TRUE(!Files.contains(name) || Files.at(name) == bytes) << at;
    }
  }
}

}  // namespace
}  // namespace companion
