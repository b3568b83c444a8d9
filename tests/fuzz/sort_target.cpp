// Any statement on small records, with little memory and with enough, three times with one sorter: the output is that
// of a plain stable sort.
#include <algorithm>

#include "runtime/text.h"
#include "sort/operation.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/plain_disk.h"
#include "tests/sort/plain_sort.h"

namespace {

sort::RecordSpan Span(fuzz::Input& input, std::size_t record) {
  const std::size_t offset = input.Below(record);
  return {offset, 1 + input.Below(record - offset)};
}

sort::IncludeTest Include(fuzz::Input& input, std::size_t record) {
  sort::IncludeTest test;
  test.Span = Span(input, record);
  const std::size_t relation = 1 + input.Below(6);  // neither none of the three nor all
  test.KeepsLess = (relation & 1) != 0;
  test.KeepsEqual = (relation & 2) != 0;
  test.KeepsGreater = (relation & 4) != 0;
  test.Constant = input.Bytes(input.Below(4));
  std::erase(test.Constant, '"');
  return test;
}

sort::Statement AnyStatement(fuzz::Input& input) {
  sort::Statement statement;
  statement.RecordLength = 1 + input.Below(24);
  for (std::size_t count = 1 + input.Below(3); count > 0; --count)
    statement.Fields.push_back({Span(input, statement.RecordLength), input.Flag()});
  for (std::size_t count = 1 + input.Below(4); count > 0; --count)
    statement.Output.push_back({sort::OutputPiece::Kind(input.Below(3)), Span(input, statement.RecordLength)});
  if (input.Flag()) statement.WeightsFile = "weights";
  if (input.Flag()) statement.Include = Include(input, statement.RecordLength);
  return statement;
}

// Capitals for small letters, all characters backward, many equal, or every one as it is.
sort::Weights AnyWeights(fuzz::Input& input) {
  const std::size_t kind = input.Below(4);
  sort::Weights weights{};
  for (std::size_t at = 0; at < weights.size(); ++at) {
    const auto character = static_cast<unsigned char>(at);
    const auto capital = static_cast<unsigned char>(runtime::Upper(static_cast<char>(character)));
    const std::size_t choices[] = {capital, 255 - at, at / 64, at};
    weights.at(at) = static_cast<unsigned char>(choices[kind]);
  }
  return weights;
}

void SortAndCompare(sort::Sorter& sorter, const fuzz::PlainDisk& disk, const sort::Statement& statement,
                    const sort::Weights& weights, std::string_view next = "") {
  const sort::Result result = sorter.Sort("in", "out", sort::Written(statement), next);
  fuzz::Require(result.Status == sort::Status::Done, "the sort is done");
  const sort::Sorted sorted =
      sort::PlainlySorted(statement, statement.WeightsFile ? weights : sort::PlainWeights(), disk.Content("in"));
  fuzz::Require(result.Records == static_cast<std::int32_t>(sorted.Records), "the sort counts its records");
  fuzz::Require(disk.Content("out") == sorted.Bytes, "the output is that of a plain stable sort");
  fuzz::Require(disk.Content().size() == 3, "the sort leaves no file behind");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  sort::Limits limits;
  const std::size_t memory = input.Below(1 << 16);
  if (memory % 4 != 0) limits.MemoryBytes = 1 + memory / 16;
  // Small, so that it costs little and records lie on the ends of blocks.
  limits.BlockBytes = 1 + memory % 256;
  if (input.Byte() == 255) limits.TwoWorkersFrom = 0;
  const sort::Statement statement = AnyStatement(input);
  const sort::Weights weights = AnyWeights(input);
  const std::size_t changed = input.Below(1 << 16);
  std::string records(input.Rest());
  fuzz::PlainDisk disk({{"in", records}, {"weights", {weights.begin(), weights.end()}}});
  sort::Sorter sorter(disk, limits);
  sort::Statement all = statement;
  all.Include.reset();
  SortAndCompare(sorter, disk, statement, weights, sort::Written(all));
  SortAndCompare(sorter, disk, all, weights);
  if (records.empty()) return 0;
  const runtime::OpenFile file(disk, "in", runtime::Disk::Mode::ReadWrite);
  file.Write("x", static_cast<std::int64_t>(changed % records.size()));
  SortAndCompare(sorter, disk, all, weights);
  return 0;
}
