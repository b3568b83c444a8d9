// The items of each first byte are together, in the old order.
#include "sort/divide.h"

#include <gtest/gtest.h>

#include <vector>

namespace sort {
namespace {

Item MakeItem(std::uint64_t window, std::uint32_t entry) {
  Item item{};
  item.SetWindow(window);
  item.Entry = entry;
  return item;
}

// Of each first byte, lowest windows last; every third item has the byte 7.
std::vector<Item> Items(std::uint32_t count) {
  std::vector<Item> items;
  for (std::uint32_t at = 0; at < count; ++at) {
    const std::uint64_t byte = at % 3 == 0 ? 7 : at * 37 % 256;
    items.push_back(MakeItem(byte << 56 | (count - at), at));
  }
  return items;
}

void ExpectDivided(const std::vector<Item>& items, Workers* workers) {
  std::vector<Item> divided(items.size());
  const Division division = Divide(items, divided, workers);
  std::size_t place = 0;
  for (std::uint32_t byte = 0; byte < 256; ++byte) {
    EXPECT_EQ(division.at(byte), place) << byte;
    for (const Item& item : items) {
      if (item.Upper >> 24 != byte) continue;
      ASSERT_EQ(divided.at(place).Entry, item.Entry) << byte;
      ASSERT_EQ(divided.at(place).Window(), item.Window()) << byte;
      ++place;
    }
  }
  EXPECT_EQ(division.back(), items.size());
  EXPECT_EQ(place, items.size());
}

TEST(SortDivideTest, KeepsTheItemsOfEachByteTogetherInTheirOldOrder) {
  Workers workers;
  for (std::uint32_t count : {0U, 1U, 2U, 3U, 1000U, 4001U}) {
    ExpectDivided(Items(count), nullptr);
    ExpectDivided(Items(count), &workers);
  }
}

}  // namespace
}  // namespace sort
