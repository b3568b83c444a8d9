// The output is built aside. What fits into memory is sorted there; else the sorted runs go to a second file aside and
// are merged. Neither file outlives the sort, or after a stop the next start.
#include "sort/operation.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>
#include <utility>

#include "runtime/whole_io.h"
#include "sort/blocks.h"
#include "sort/layout.h"
#include "sort/runs.h"
#include "sort/statement.h"
#include "sort/table.h"

namespace sort {
namespace {

using runtime::Disk;
using runtime::OpenFile;

OpenFile OpenEmpty(Disk& disk, const std::string& name) {
  OpenFile file(disk, name, Disk::Mode::Create);
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
    OpenFile file(disk, *name, Disk::Mode::Read);
    std::string bytes(weights.size() + 1, '\0');
    if (file.Read(bytes.data(), bytes.size(), 0) != weights.size()) return std::nullopt;
    std::copy_n(bytes.begin(), weights.size(), weights.begin());
    return weights;
  } catch (const runtime::Failure&) {
    return std::nullopt;
  }
}

// Records that memory holds at a time; each of two workers needs room for one.
std::int64_t RoomFor(const SortLayout& layout, std::int64_t records, const SortLimits& limits) {
  auto in_memory = static_cast<std::int64_t>(limits.MemoryBytes / SortTable::BytesPerRecord(layout));
  return std::min(records, std::max<std::int64_t>(2, in_memory));
}

// One call of the operation: its files and what has come of it.
class SortCall {
 public:
  SortCall(Disk& disk, std::string_view input, std::string_view output, const SortLimits& limits, SortWorkers& workers,
           std::optional<SortTable>& last)
      : disk_(disk),
        input_(input),
        output_(output),
        aside_(runtime::InSafetyFolder(output_ + std::string(runtime::AsideEnding))),
        runs_(runtime::InSafetyFolder(output_ + ".runs" + std::string(runtime::AsideEnding))),
        limits_(limits),
        workers_(workers),
        last_(last) {}

  // The status; unless it is SortDone, the output is as it was and nothing is left aside.
  std::int32_t Replace(std::string_view statement);
  // Of the new output.
  std::int64_t Records() const { return written_; }

 private:
  std::int32_t BuildAside(std::string_view statement);
  // Writes the whole output to an empty file, from a sorted table on, and tells how many records.
  std::int64_t WriteThroughRuns(SortTable& table, const SortInclude& include, const OpenFile& input,
                                const OpenFile& output, SortWorkers* workers) const;
  // A file that cannot be removed now goes at the next start.
  void Drop(const std::string& name) {
    while (disk_.Remove(name) == -EINTR) {
    }
  }

  Disk& disk_;
  std::string input_, output_, aside_, runs_;
  const SortLimits& limits_;
  SortWorkers& workers_;
  std::optional<SortTable>& last_;
  std::int64_t written_ = 0;
};

std::int64_t SortCall::WriteThroughRuns(SortTable& table, const SortInclude& include, const OpenFile& input,
                                        const OpenFile& output, SortWorkers* workers) const {
  SortRuns runs(table.Layout(), OpenEmpty(disk_, runs_));
  for (;;) {
    runs.Add(table.WriteEntries(runs.File(), runs.Count()));
    if (table.AtEnd()) break;
    table.Load(input, include);
    table.Sort();
  }
  runs.Merge(output, limits_.MemoryBytes, workers);
  return runs.Count();
}

std::int32_t SortCall::BuildAside(std::string_view statement) {
  std::optional<SortStatement> parsed = ParseSortStatement(statement);
  if (!parsed) return SortStatementUnreadable;
  OpenFile input(disk_, input_, Disk::Mode::Read);
  std::optional<Weights> weights = ReadWeights(disk_, parsed->WeightsFile);
  if (!weights) return SortWeightsUnreadable;
  const SortLayout layout(*parsed, *weights);
  const SortInclude include(parsed->Include, *weights);
  const std::int64_t records = input.Length() / static_cast<std::int64_t>(layout.RecordLength());
  if (records > MaxSortRecords) return SortInputUnreadable;
  runtime::MakeSafetyFolder(disk_);
  OpenFile aside = OpenEmpty(disk_, aside_);
  SortWorkers* workers = records >= limits_.TwoWorkersFrom ? &workers_ : nullptr;
  std::optional<SortTable> table = std::exchange(last_, std::nullopt);
  if (!table || !table->Suits(layout, records) || !table->Reload(input, include)) {
    table.emplace(layout, records, RoomFor(layout, records, limits_), workers);
    table->Load(input, include);
    table->Sort();
  }
  written_ = table->AtEnd() ? table->WriteOutput(aside) : WriteThroughRuns(*table, include, input, aside, workers);
  aside.Sync();
  if (table->HoldsAll()) last_ = std::move(table);
  return SortDone;
}

std::int32_t SortCall::Replace(std::string_view statement) {
  std::int32_t status = SortDone;
  try {
    status = BuildAside(statement);
    if (status != SortDone) return status;
    runtime::RetryInterrupted(aside_, [&] { return disk_.Rename(aside_, output_); });
  } catch (const runtime::Failure& failure) {
    status = failure.File == input_ ? SortInputUnreadable : SortOutputUnwritable;
    Drop(aside_);
  }
  Drop(runs_);
  return status;
}

}  // namespace

void Sorter::Sort(std::string_view input, std::string_view output, std::string_view statement, std::int32_t& Numrec,
                  std::int32_t& Retcode) {
  SortCall call(disk_, input, output, limits_, workers_, last_);
  Retcode = call.Replace(statement);
  if (Retcode != SortDone) return;
  Numrec = static_cast<std::int32_t>(call.Records());
  runtime::SyncFolders(disk_, output);
}

}  // namespace sort
