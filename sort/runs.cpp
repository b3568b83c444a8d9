// The runs are merged through a heap of their first entries. Two workers split at a middle entry, found in each run by
// binary search.
#include "sort/runs.h"

#include <algorithm>
#include <memory>

#include "sort/blocks.h"

namespace sort {
namespace {

// The first remaining entry of a run that is being merged.
struct Head {
  std::uint64_t Window;
  const char* Entry;
  std::size_t Run;
};

// The first remaining entries of all runs, as a heap.
class Heads {
 public:
  Heads(const Layout& layout, std::size_t runs) : layout_(layout) { heads_.reserve(runs); }

  bool Empty() const { return heads_.empty(); }
  const Head& Foremost() const { return heads_.front(); }
  void Add(std::size_t run, const char* entry) {
    heads_.push_back({layout_.Window(entry, 0), entry, run});
    std::push_heap(heads_.begin(), heads_.end(),
                   [this](const Head& left, const Head& right) { return Before(right, left); });
  }
  // Replaces the foremost entry by the next one of its run; nullptr at the run's end.
  void Replace(const char* entry) {
    if (entry) {
      heads_.front() = {layout_.Window(entry, 0), entry, heads_.front().Run};
    } else {
      heads_.front() = heads_.back();
      heads_.pop_back();
    }
    SinkFirst();
  }

 private:
  bool Before(const Head& left, const Head& right) const {
    if (left.Window != right.Window) return left.Window < right.Window;
    int order = layout_.Compare(left.Entry, right.Entry, 1);
    return order != 0 ? order < 0 : layout_.CompareNumbers(left.Entry, right.Entry) < 0;
  }
  void SinkFirst() {
    for (std::size_t at = 0;;) {
      std::size_t child = 2 * at + 1;
      if (child >= heads_.size()) return;
      if (child + 1 < heads_.size() && Before(heads_[child + 1], heads_[child])) ++child;
      if (!Before(heads_[child], heads_[at])) return;
      std::swap(heads_[child], heads_[at]);
      at = child;
    }
  }

  const Layout& layout_;
  std::vector<Head> heads_;
};

}  // namespace

void Runs::Add(std::int64_t count) { runs_.push_back({Count(), Count() + count}); }

void Runs::Merge(const runtime::OpenFile& output, std::size_t memory, std::size_t block_bytes, Workers* workers) const {
  std::size_t block = std::min(block_bytes, memory / (2 * (runs_.size() + 1)));
  if (!workers) {
    MergeRanges(runs_, output, 0, block);
    return;
  }
  const std::array<Ranges, 2> halves = Halves();
  std::int64_t lower_count = 0;
  for (const EntryRange& range : halves[0]) lower_count += range.End - range.First;
  workers->RunHalves([&](int half) { MergeRanges(halves.at(half), output, half == 0 ? 0 : lower_count, block); });
}

void Runs::MergeRanges(const Ranges& ranges, const runtime::OpenFile& output, std::int64_t place,
                       std::size_t block) const {
  const std::size_t length = std::max(block, layout_.EntryLength());
  auto blocks = std::make_unique_for_overwrite<char[]>(length * (ranges.size() + 1));
  char* next_block = blocks.get();
  std::vector<BlockReader> readers;
  Heads heads(layout_, ranges.size());
  for (const EntryRange& range : ranges) {
    readers.emplace_back(file_, layout_.EntryLength(), range.First, range.End - range.First,
                         std::span(next_block, length));
    next_block += length;
    if (const char* entry = readers.back().Next()) heads.Add(readers.size() - 1, entry);
  }
  BlockWriter writer(output, layout_.OutputLength(), place, {next_block, length});
  while (!heads.Empty()) {
    std::copy_n(heads.Foremost().Entry, layout_.OutputLength(), writer.Next());
    heads.Replace(readers[heads.Foremost().Run].Next());
  }
  writer.Flush();
}

std::string Runs::EntryAt(std::int64_t entry) const {
  std::string bytes(layout_.EntryLength(), '\0');
  BlockReader(file_, bytes.size(), entry, 1, bytes).Next();
  return bytes;
}

std::array<Runs::Ranges, 2> Runs::Halves() const {
  auto longest = std::max_element(runs_.begin(), runs_.end(), [](const EntryRange& left, const EntryRange& right) {
    return left.End - left.First < right.End - right.First;
  });
  if (longest == runs_.end() || longest->First == longest->End) return {runs_, {}};
  const std::string middle = EntryAt((longest->First + longest->End) / 2);
  std::array<Ranges, 2> halves;
  for (const EntryRange& run : runs_) {
    EntryRange rest = run;
    while (rest.First < rest.End) {
      std::int64_t probe = (rest.First + rest.End) / 2;
      if (layout_.Compare(EntryAt(probe).data(), middle.data(), 0) < 0) {
        rest.First = probe + 1;
      } else {
        rest.End = probe;
      }
    }
    halves[0].push_back({run.First, rest.First});
    halves[1].push_back({rest.First, run.End});
  }
  return halves;
}

}  // namespace sort
