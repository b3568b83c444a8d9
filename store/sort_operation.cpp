// The output is built aside. What fits into memory is sorted there; else the sorted runs go to a second file aside and
// are merged. Neither file outlives the sort, or after a stop the next start.
#include "store/sort_operation.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>

#include "runtime/whole_io.h"
#include "store/sort_blocks.h"
#include "store/sort_chunk.h"
#include "store/sort_layout.h"
#include "store/sort_runs.h"
#include "store/sort_statement.h"

namespace store {
namespace {

using runtime::Disk;
using runtime::Opened;

Opened OpenEmpty(Disk& disk, const std::string& name) {
  Opened file(disk, name, Disk::Mode::Create);
  if (file.Length() > 0) file.Truncate(0);
  return file;
}

// Without a file every byte weighs what it is.
std::optional<Weights> ReadWeights(Disk& disk, const std::optional<std::string>& name) {
  Weights weights{};
  for (std::size_t character = 0; character < weights.size(); ++character)
    weights.at(character) = static_cast<unsigned char>(character);
  if (!name) return weights;
  try {
    Opened file(disk, *name, Disk::Mode::Read);
    std::string bytes(weights.size() + 1, '\0');
    if (file.Read(bytes.data(), bytes.size(), 0) != weights.size()) return std::nullopt;
    std::copy_n(bytes.begin(), weights.size(), weights.begin());
    return weights;
  } catch (const runtime::Failure&) {
    return std::nullopt;
  }
}

class SortRun {
 public:
  SortRun(Disk& disk, const SortLayout& layout, const Opened& input, const SortLimits& limits)
      : disk_(disk),
        layout_(layout),
        input_(input),
        limits_(limits),
        records_(input.Length() / static_cast<std::int64_t>(layout.RecordLength())),
        two_workers_(records_ >= limits.TwoWorkersFrom) {}

  std::int64_t Records() const { return records_; }
  // Writes the whole output to an empty file and tells how many records; runs_name: of the file of the runs.
  std::int64_t Write(const Opened& output, const std::string& runs_name) const;

 private:
  std::int64_t WriteThroughRuns(const Opened& output, SortRuns runs, std::int64_t room) const;

  Disk& disk_;
  const SortLayout& layout_;
  const Opened& input_;
  const SortLimits& limits_;
  std::int64_t records_;
  bool two_workers_;
};

std::int64_t SortRun::Write(const Opened& output, const std::string& runs_name) const {
  auto in_memory = static_cast<std::int64_t>(limits_.MemoryBytes / SortChunk::BytesPerRecord(layout_));
  std::int64_t room = std::min(records_, std::max<std::int64_t>(1, in_memory));
  if (room < records_) return WriteThroughRuns(output, SortRuns(layout_, OpenEmpty(disk_, runs_name)), room);
  SortChunk chunk(layout_, room, two_workers_);
  chunk.Load(input_, 0, records_);
  chunk.Sort([&](std::span<const SortItem> items, const char* entries, std::int64_t place) {
    BlockWriter writer(output, layout_.OutputLength(), place);
    ForEachEntry(items, entries, layout_.EntryLength(),
                 [&](const char* entry) { layout_.WriteOutput(entry, writer.Next()); });
    writer.Flush();
  });
  return chunk.Kept();
}

std::int64_t SortRun::WriteThroughRuns(const Opened& output, SortRuns runs, std::int64_t room) const {
  {
    SortChunk chunk(layout_, room, two_workers_);
    for (std::int64_t first = 0; first < records_; first += room) {
      chunk.Load(input_, first, std::min(room, records_ - first));
      chunk.Sort([&](std::span<const SortItem> items, const char* entries, std::int64_t place) {
        const std::size_t length = layout_.EntryLength();
        BlockWriter writer(runs.File(), length, runs.Count() + place);
        ForEachEntry(items, entries, length, [&](const char* entry) { std::copy_n(entry, length, writer.Next()); });
        writer.Flush();
      });
      runs.Add(chunk.Kept());
    }
  }
  runs.Merge(output, limits_.MemoryBytes, two_workers_);
  return runs.Count();
}

// One call of the operation: its files and what has come of it.
class SortCall {
 public:
  SortCall(Disk& disk, std::string_view input, std::string_view output, const SortLimits& limits)
      : disk_(disk),
        input_(input),
        output_(output),
        aside_(runtime::InSafetyFolder(output_ + std::string(runtime::AsideEnding))),
        runs_(runtime::InSafetyFolder(output_ + ".runs" + std::string(runtime::AsideEnding))),
        limits_(limits) {}

  // The status; unless it is SortDone, the output is as it was and nothing is left aside.
  std::int32_t Replace(std::string_view statement);
  // Of the new output.
  std::int64_t Records() const { return written_; }

 private:
  std::int32_t BuildAside(std::string_view statement);
  // A file that cannot be removed now goes at the next start.
  void Drop(const std::string& name) {
    while (disk_.Remove(name) == -EINTR) {
    }
  }

  Disk& disk_;
  std::string input_, output_, aside_, runs_;
  const SortLimits& limits_;
  std::int64_t written_ = 0;
};

std::int32_t SortCall::BuildAside(std::string_view statement) {
  std::optional<SortStatement> parsed = ParseSortStatement(statement);
  if (!parsed) return SortStatementUnreadable;
  Opened input(disk_, input_, Disk::Mode::Read);
  std::optional<Weights> weights = ReadWeights(disk_, parsed->WeightsFile);
  if (!weights) return SortWeightsUnreadable;
  const SortLayout layout(*parsed, *weights);
  const SortRun run(disk_, layout, input, limits_);
  if (run.Records() > MostSortRecords) return SortInputUnreadable;
  runtime::MakeSafetyFolder(disk_);
  Opened aside = OpenEmpty(disk_, aside_);
  written_ = run.Write(aside, runs_);
  aside.Sync();
  return SortDone;
}

std::int32_t SortCall::Replace(std::string_view statement) {
  std::int32_t status = SortDone;
  try {
    status = BuildAside(statement);
    if (status != SortDone) return status;
    runtime::Called(aside_, [&] { return disk_.Rename(aside_, output_); });
  } catch (const runtime::Failure& failure) {
    status = failure.File == input_ ? SortInputUnreadable : SortOutputUnwritable;
    Drop(aside_);
  }
  Drop(runs_);
  return status;
}

}  // namespace

void Sort(Disk& disk, std::string_view input, std::string_view output, std::string_view statement, std::int32_t& Numrec,
          std::int32_t& Retcode, const SortLimits& limits) {
  SortCall call(disk, input, output, limits);
  Retcode = call.Replace(statement);
  if (Retcode != SortDone) return;
  Numrec = static_cast<std::int32_t>(call.Records());
  runtime::SyncFolders(disk, output);
}

}  // namespace store
