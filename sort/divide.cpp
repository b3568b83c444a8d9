// Each worker counts and copies half of the items.
#include "sort/divide.h"

#include <utility>

namespace sort {
namespace {

std::uint32_t FirstByte(const Item& item) { return item.Upper >> 24; }

}  // namespace

Division Divide(std::span<const Item> items, std::span<Item> target, Workers* workers) {
  const std::array halves = {items.first(items.size() / 2), items.subspan(items.size() / 2)};
  // By half: how many items each byte has, then the place of the next one.
  std::array<std::array<std::size_t, 256>, 2> places{};
  RunHalves(workers, [&](int half) {
    auto& counts = places.at(half);
    for (const Item& item : halves.at(half)) ++counts[FirstByte(item)];
  });
  Division division{};
  std::size_t place = 0;
  for (std::size_t byte = 0; byte < places[0].size(); ++byte) {
    division[byte] = place;
    for (auto& next : places) place += std::exchange(next[byte], place);
  }
  division.back() = place;
  RunHalves(workers, [&](int half) {
    auto& next = places.at(half);
    for (const Item& item : halves.at(half)) target[next[FirstByte(item)]++] = item;
  });
  return division;
}

}  // namespace sort
