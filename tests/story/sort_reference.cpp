// Keys are 40 bytes of title, 7 digits of record number, CR LF; they stand in the order of their weighted titles, and
// equal ones in that of their records.
#include "tests/story/sort_reference.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace story {
namespace {

constexpr std::size_t RecordBytes = 649;
constexpr std::size_t TitleBytes = 40;
constexpr std::size_t FormatByte = 265;

struct Key {
  std::string Weighted;
  std::string Bytes;
};

std::string Weighted(std::string_view text, std::string_view weights) {
  std::string weighted;
  for (char character : text) weighted += weights.at(static_cast<unsigned char>(character));
  return weighted;
}

bool Less(std::string_view left, std::string_view right) {
  return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(), [](char one, char other) {
    return static_cast<unsigned char>(one) < static_cast<unsigned char>(other);
  });
}

// The bytes of the key file of one format, or for '\0' of all films that have a title.
std::string KeysOf(std::string_view master, std::string_view weights, char format) {
  std::string least = "000000";
  least.resize(TitleBytes, ' ');
  least = Weighted(least, weights);
  std::vector<Key> keys;
  for (std::size_t record = 0; (record + 1) * RecordBytes <= master.size(); ++record) {
    std::string_view bytes = master.substr(record * RecordBytes, RecordBytes);
    std::string_view title = bytes.substr(0, TitleBytes);
    std::string weighted = Weighted(title, weights);
    if (format == '\0' ? !Less(least, weighted)
                       : weights.at(static_cast<unsigned char>(bytes[FormatByte])) !=
                             weights.at(static_cast<unsigned char>(format)))
      continue;
    std::array<char, 24> number{};
    std::snprintf(number.data(), number.size(), "%07zu\r\n", record + 1);
    keys.push_back({weighted, std::string(title) + number.data()});
  }
  std::stable_sort(keys.begin(), keys.end(),
                   [](const Key& left, const Key& right) { return Less(left.Weighted, right.Weighted); });
  std::string file;
  for (const Key& key : keys) file += key.Bytes;
  return file;
}

}  // namespace

std::vector<SortedPair> SortedPairs(std::string_view master, std::string_view weights) {
  constexpr std::pair<const char*, char> passes[] = {
      {"Titlepra", '\0'}, {"DVDpra", 'D'}, {"Laserpra", 'L'}, {"VHSpra", 'V'}};
  std::vector<SortedPair> pairs;
  for (const auto& [stem, format] : passes) {
    std::string keys = KeysOf(master, weights, format);
    std::string count = " " + std::to_string(keys.size() / (TitleBytes + 9)) + "\r\n";
    pairs.push_back({std::string(stem) + ".Dat", std::move(keys), stem, std::move(count)});
  }
  return pairs;
}

}  // namespace story
