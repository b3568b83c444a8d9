// The middle window is estimated from a sample. Any value is correct; a good one balances the halves.
#include "sort/divide.h"

#include <algorithm>
#include <vector>

namespace sort {
namespace {

std::uint64_t MiddleWindow(std::span<const Item> items) {
  constexpr std::size_t SampleSize = 512;
  if (items.empty()) return 0;
  std::vector<std::uint64_t> sample;
  const std::size_t step = items.size() / SampleSize + 1;
  for (std::size_t at = 0; at < items.size(); at += step) sample.push_back(items[at].Window());
  const auto middle = sample.begin() + static_cast<std::ptrdiff_t>(sample.size() / 2);
  std::nth_element(sample.begin(), middle, sample.end());
  return *middle;
}

std::size_t CountBelow(std::span<const Item> items, std::uint64_t window) {
  std::size_t count = 0;
  for (const Item& item : items) count += item.Window() < window ? 1 : 0;
  return count;
}

}  // namespace

std::array<std::span<Item>, 2> Divide(std::span<const Item> items, Item* target, Workers& workers) {
  const std::uint64_t middle = MiddleWindow(items);
  const std::size_t half_way = items.size() / 2;
  std::array<std::size_t, 2> counts{};
  workers.RunHalves([&](int half) {
    counts.at(half) = CountBelow(half == 0 ? items.first(half_way) : items.subspan(half_way), middle);
  });
  const std::size_t below = counts[0] + counts[1];
  // The copying is branch-free: it may write one item past each half, hence the gap.
  const std::array halves = {std::span(target, below), std::span(target + below + 1, items.size() - below)};
  workers.RunHalves([&](int half) {
    Item* place = halves.at(half).data();
    for (const Item& item : items) {
      *place = item;
      place += (item.Window() < middle) == (half == 0) ? 1 : 0;
    }
  });
  return halves;
}

}  // namespace sort
