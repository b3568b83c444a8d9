// The reference of the sort on a few films, byte for byte.
#include "tests/story/sort_reference.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace story {
namespace {

std::string Film(std::string_view title, char format) {
  std::string record(647, ' ');
  record.replace(0, title.size(), title);
  record[265] = format;
  return record + "\r\n";
}

std::string Key(std::string title, std::string_view number) {
  title.resize(40, ' ');
  return title.append(number).append("\r\n");
}

// Each character weighs what its capital does.
std::string CapitalWeights() {
  std::string weights;
  for (int code = 0; code < 256; ++code) {
    bool small = (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7);
    weights += static_cast<char>(small ? code - 0x20 : code);
  }
  return weights;
}

const SortedPair& PairOf(const std::vector<SortedPair>& pairs, std::string_view count_file) {
  for (const SortedPair& pair : pairs) {
    if (pair.CountFile == count_file) return pair;
  }
  throw std::out_of_range("no pair of that name");
}

TEST(SortReference, GivesFourPairsForAnEmptyFile) {
  std::vector<SortedPair> pairs = SortedPairs("", CapitalWeights());
  ASSERT_EQ(pairs.size(), 4u);
  for (const char* name : {"Titlepra", "DVDpra", "Laserpra", "VHSpra"}) {
    EXPECT_EQ(PairOf(pairs, name).KeyFile, std::string(name) + ".Dat");
    EXPECT_EQ(PairOf(pairs, name).KeyBytes, "");
    EXPECT_EQ(PairOf(pairs, name).CountBytes, " 0\r\n");
  }
}

TEST(SortReference, FoldsCaseAndAccents) {
  std::string master =
      Film("zulu", 'V') + Film("\xE9toile", 'V') + Film("Alien", 'V') + Film("\xC9tat", 'V') + Film("brazil", 'V');
  SortedPair titles = PairOf(SortedPairs(master, CapitalWeights()), "Titlepra");
  EXPECT_EQ(titles.KeyBytes, Key("Alien", "0000003") + Key("brazil", "0000005") + Key("zulu", "0000001") +
                                 Key("\xC9tat", "0000004") + Key("\xE9toile", "0000002"));
  EXPECT_EQ(titles.CountBytes, " 5\r\n");
}

TEST(SortReference, KeepsEqualTitlesInRecordOrder) {
  std::string master = Film("SOLARIS", 'D') + Film("Alien", 'D') + Film("solaris", 'D') + Film("Solaris", 'D');
  EXPECT_EQ(
      PairOf(SortedPairs(master, CapitalWeights()), "DVDpra").KeyBytes,
      Key("Alien", "0000002") + Key("SOLARIS", "0000001") + Key("solaris", "0000003") + Key("Solaris", "0000004"));
}

TEST(SortReference, LeavesOutTitlesUpToSixZeros) {
  std::string master = Film("", 'V') + Film("\"Quoted\"", 'V') + Film("000000", 'V') + Film("000000 ", 'V') +
                       Film("000000!", 'V') + Film("1984", 'V');
  EXPECT_EQ(PairOf(SortedPairs(master, CapitalWeights()), "Titlepra").KeyBytes,
            Key("000000!", "0000005") + Key("1984", "0000006"));
}

TEST(SortReference, TakesABlankTitleIntoTheFileOfItsFormat) {
  std::string master = Film("Brazil", 'L') + Film("", 'L') + Film("Alien", 'V');
  std::vector<SortedPair> pairs = SortedPairs(master, CapitalWeights());
  EXPECT_EQ(PairOf(pairs, "Laserpra").KeyBytes, Key("", "0000002") + Key("Brazil", "0000001"));
  EXPECT_EQ(PairOf(pairs, "Laserpra").CountBytes, " 2\r\n");
  EXPECT_EQ(PairOf(pairs, "VHSpra").CountBytes, " 1\r\n");
  EXPECT_EQ(PairOf(pairs, "DVDpra").CountBytes, " 0\r\n");
}

TEST(SortReference, PassesOverATrailingPart) {
  std::string master = Film("Alien", 'V') + Film("Brazil", 'V').substr(0, 648);
  EXPECT_EQ(PairOf(SortedPairs(master, CapitalWeights()), "VHSpra").KeyBytes, Key("Alien", "0000001"));
}

}  // namespace
}  // namespace story
