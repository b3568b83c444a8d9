// What a sort run has to make of a master file, worked out in the plainest way and apart from the program's own sort.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace story {

// A key file and the count file that goes with it.
struct SortedPair {
  std::string KeyFile;
  std::string KeyBytes;
  std::string CountFile;
  std::string CountBytes;
};

// The four pairs for the bytes of a master file; weights: the weight of each of the 256 characters.
std::vector<SortedPair> SortedPairs(std::string_view master, std::string_view weights);

}  // namespace story
