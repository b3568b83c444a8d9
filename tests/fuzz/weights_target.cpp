// Any file of weights: only one of 256 bytes sorts, and as it says; otherwise nothing is written.
#include "runtime/whole_io.h"
#include "sort/operation.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/plain_disk.h"
#include "tests/sort/plain_sort.h"

namespace {

constexpr std::string_view Records = "aBc Abc\xE9 \xC9x  zZ#\x01\xFF\0\x80 b";
constexpr std::string_view Text =
    "S(1,2,C,A,3,1,C,D) ALTSEQ(weights) OUTREC(1,3,Arrn) Include(1,1,C,GE,\"B\") Record(3)";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::size_t kind = input.Byte();
  std::string bytes(input.Rest());
  // A short input reaches the one length that counts too.
  if (kind < 128) bytes.resize(sort::Weights().size(), static_cast<char>(kind));
  fuzz::PlainDisk disk({{"in", std::string(Records)}, {"out", "old"}, {"weights", bytes}});
  if (kind == 255) disk.SetLength("weights", std::int64_t{1} << 40);
  const sort::Result result = sort::Sorter(disk).Sort("in", "out", Text);
  sort::Weights weights{};
  const bool right = bytes.size() == weights.size() && kind != 255;
  fuzz::Require((result.Status == sort::Status::Done) == right, "weights are 256 bytes");
  if (right) {
    std::copy(bytes.begin(), bytes.end(), weights.begin());
    fuzz::Require(disk.Content("out") == sort::PlainlySorted(*sort::ParseStatement(Text), weights, Records).Bytes,
                  "the output is in the order of the weights");
  } else {
    fuzz::Require(result.Status == sort::Status::WeightsUnreadable && disk.Changes() == 0,
                  "without weights nothing is written");
  }
  return 0;
}
