// The output is built in a temporary file. If the input does not fit into memory, sorted runs go to a second one and
// are merged. Temporary files are removed after the sort or at the next start.
#include "sort/operation.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <optional>
#include <string>
#include <utility>
#include <vector>

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

// Without a file, weight = value.
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

// Records that fit into memory; each of two workers needs room for one.
std::int64_t RoomFor(const Layout& layout, std::int64_t records, const Limits& limits) {
  auto in_memory = static_cast<std::int64_t>(limits.MemoryBytes / Table::BytesPerRecord(layout));
  return std::min(records, std::max<std::int64_t>(2, in_memory));
}

Reading ReadingOf(const OpenFile& input, std::string_view statement) {
  return {input.Identity(), input.Modified(), std::string(statement)};
}

// State of one Sort call.
class Operation {
 public:
  Operation(Disk& disk, std::string_view input, std::string_view output, const Limits& limits, Workers& workers,
            std::optional<Table>& last, const sort::Progress& progress)
      : disk_(disk),
        input_(input),
        output_(output),
        limits_(limits),
        workers_(workers),
        last_(last),
        progress_(progress) {}

  // Replaces the output. Unless done, the output is unchanged and no temporary file is left.
  Result Run(std::string_view statement, std::string_view next);

 private:
  Result BuildAside(std::string_view statement, std::string_view next);
  // Writes the whole output to an empty file, beginning with a sorted table; returns the record count.
  std::int64_t WriteThroughRuns(Table& table, const IncludeFilter& include, const OpenFile& input,
                                const OpenFile& output, Workers* workers);
  // Syncs the output and meanwhile reads the input for the next sort, if that can take over the table.
  void SyncReadingAhead(const OpenFile& aside, const OpenFile& input, Table& table, const Weights& weights,
                        std::string_view next);
  // A temporary file, discarded at the end of the run if it is still there.
  OpenFile CreateTemporary(const std::string& base);

  Disk& disk_;
  std::string input_, output_;
  std::vector<std::string> temporary_;  // names; the first is the one of the output
  const Limits& limits_;
  Workers& workers_;
  std::optional<Table>& last_;
  const sort::Progress& progress_;
};

OpenFile Operation::CreateTemporary(const std::string& base) {
  OpenFile file = runtime::CreateFresh(disk_, runtime::InSafetyFolder(base));
  temporary_.push_back(file.Name());
  return file;
}

std::int64_t Operation::WriteThroughRuns(Table& table, const IncludeFilter& include, const OpenFile& input,
                                         const OpenFile& output, Workers* workers) {
  Runs runs(table.EntryLayout(), CreateTemporary(output_ + ".runs"));
  for (;;) {
    runs.Add(table.WriteEntries(runs.File(), runs.Count()));
    if (table.AtEnd()) break;
    table.Load(input, include, progress_);
    table.Sort();
  }
  runs.Merge(output, limits_.MemoryBytes, limits_.BlockBytes, workers);
  return runs.Count();
}

void Operation::SyncReadingAhead(const OpenFile& aside, const OpenFile& input, Table& table, const Weights& weights,
                                 std::string_view next) {
  const std::optional<Statement> parsed = ParseStatement(next);
  if (!parsed || !table.Suits(Layout(*parsed, weights), table.Records())) {
    aside.Sync();
    return;
  }
  std::atomic<bool> synced = false;
  // In a thread of its own; if the system refuses one, after the reading.
  auto sync = std::async([&] {
    aside.Sync();
    synced = true;
  });
  table.ReadAhead(input, IncludeFilter(parsed->Include, weights), ReadingOf(input, next), synced);
  sync.get();
}

Result Operation::BuildAside(std::string_view statement, std::string_view next) {
  std::optional<Statement> parsed = ParseStatement(statement);
  if (!parsed) return {Status::StatementUnreadable};
  OpenFile input(disk_, input_, Disk::Mode::Read);
  std::optional<Weights> weights = ReadWeights(disk_, parsed->WeightsFile);
  if (!weights) return {Status::WeightsUnreadable};
  const Layout layout(*parsed, *weights);
  const IncludeFilter include(parsed->Include, *weights);
  const std::int64_t records = input.Length() / static_cast<std::int64_t>(layout.RecordLength());
  if (records > MaxRecords) return {Status::InputUnreadable};
  runtime::MakeSafetyFolder(disk_);
  OpenFile aside = CreateTemporary(output_);
  Workers* workers = records >= limits_.TwoWorkersFrom ? &workers_ : nullptr;
  std::optional<Table> table = std::exchange(last_, std::nullopt);
  if (!table || !table->Suits(layout, records) ||
      !table->Reload(input, include, ReadingOf(input, statement), progress_)) {
    table.emplace(layout, records, RoomFor(layout, records, limits_), limits_.BlockBytes, workers);
    table->Load(input, include, progress_);
    table->Sort();
  }
  const std::int64_t written =
      table->AtEnd() ? table->WriteOutput(aside) : WriteThroughRuns(*table, include, input, aside, workers);
  SyncReadingAhead(aside, input, *table, *weights, workers ? next : "");
  if (table->HoldsAll()) last_ = std::move(table);
  return {Status::Done, static_cast<std::int32_t>(written)};
}

Result Operation::Run(std::string_view statement, std::string_view next) {
  Result result;
  try {
    result = BuildAside(statement, next);
    if (result.Status != Status::Done) return result;
    const std::string& aside = temporary_.front();
    runtime::RetryInterrupted(aside, [&] { return disk_.Rename(aside, output_); });
    temporary_.erase(temporary_.begin());
  } catch (const runtime::Failure& failure) {
    result = {failure.File == input_ ? Status::InputUnreadable : Status::OutputUnwritable};
  }
  for (const std::string& name : temporary_) runtime::Discard(disk_, name);
  return result;
}

}  // namespace

Result Sorter::Sort(std::string_view input, std::string_view output, std::string_view statement,
                    std::string_view next) {
  return Operation(disk_, input, output, limits_, workers_, last_, Progress).Run(statement, next);
}

}  // namespace sort
