// The middle window is estimated from a sample. Any value is correct; a good one balances the halves.
#include "sort/divide.h"

#include <algorithm>
#include <vector>

namespace sort {
namespace {

std::uint64_t MiddleWindow(std::span<const Item> items, const unsigned char* included) {
  constexpr std::size_t SampleSize = 512;
  std::vector<std::uint64_t> sample;
  const std::size_t step = items.size() / SampleSize + 1;
  for (std::size_t at = 0; at < items.size(); at += step) {
    if (Sorts(items[at], included)) sample.push_back(items[at].Window());
  }
  if (sample.empty()) return 0;
  const auto middle = sample.begin() + static_cast<std::ptrdiff_t>(sample.size() / 2);
  std::nth_element(sample.begin(), middle, sample.end());
  return *middle;
}

struct Count {
  std::size_t Below = 0;  // the middle
  std::size_t Rest = 0;
};

Count CountOf(std::span<const Item> items, const unsigned char* included, std::uint64_t middle) {
  Count count;
  for (const Item& item : items) {
    const bool sorts = Sorts(item, included);
    const bool below = item.Window() < middle;
    count.Below += sorts && below ? 1 : 0;
    count.Rest += sorts && !below ? 1 : 0;
  }
  return count;
}

}  // namespace

std::array<std::span<Item>, 2> Divide(std::span<const Item> items, const unsigned char* included, Item* target,
                                      Workers& workers) {
  const std::uint64_t middle = MiddleWindow(items, included);
  const std::size_t half_way = items.size() / 2;
  std::array<Count, 2> counts;
  workers.RunHalves([&](int half) {
    counts.at(half) = CountOf(half == 0 ? items.first(half_way) : items.subspan(half_way), included, middle);
  });
  const std::size_t below = counts[0].Below + counts[1].Below;
  // The copying is branch-free: it may write one item past each half, hence the gap.
  const std::array halves = {std::span(target, below), std::span(target + below + 1, counts[0].Rest + counts[1].Rest)};
  workers.RunHalves([&](int half) {
    Item* place = halves.at(half).data();
    for (const Item& item : items) {
      *place = item;
      place += Sorts(item, included) && (item.Window() < middle) == (half == 0) ? 1 : 0;
    }
  });
  return halves;
}

}  // namespace sort
