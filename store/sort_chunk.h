// As many records of the input as memory holds at a time: read, sorted, and handed on.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

#include "runtime/whole_io.h"
#include "store/sort_items.h"
#include "store/sort_layout.h"

namespace store {

class SortChunk {
 public:
  // Bytes that each record takes while it is sorted.
  static std::size_t BytesPerRecord(const SortLayout& layout) { return layout.EntryLength() + 2 * sizeof(SortItem); }

  // Room for that many records. Two workers halve the work where wanted.
  SortChunk(const SortLayout& layout, std::int64_t room, bool two_workers);

  // Reads records first to first + count - 1 (from 0), as many as there is room for, and keeps what the layout keeps.
  void Load(const runtime::Opened& input, std::int64_t first, std::int64_t count);
  // How many of them were kept.
  std::int64_t Kept() const { return static_cast<std::int64_t>(kept_[0] + kept_[1]); }

  // Takes entries in their order; place: of the first of them among the kept ones, from 0. Called for parts of the
  // whole, by both workers.
  using Taker = std::function<void(std::span<const SortItem> items, const char* entries, std::int64_t place)>;
  // Sorts what was loaded; once only.
  void Sort(const Taker& take);

 private:
  std::span<SortItem> Loaded(int worker) { return {items_.get() + begin_.at(worker), kept_.at(worker)}; }
  void LoadPart(const runtime::Opened& input, std::int64_t first, std::int64_t count, int worker);
  std::uint64_t MiddleWindow();
  void SortHalves(const Taker& take);

  const SortLayout& layout_;
  bool two_workers_;
  std::unique_ptr<char[]> entries_;
  std::unique_ptr<SortItem[]> items_, scratch_;
  // Where the items of each worker begin, and how many there are.
  std::array<std::size_t, 2> begin_{}, kept_{};
};

}  // namespace store
