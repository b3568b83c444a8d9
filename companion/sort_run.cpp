#include "companion/sort_run.h"

#include <iomanip>

#include "companion/bar.h"
#include "companion/printable.h"
#include "runtime/text.h"
#include "store/master_file.h"
#include "store/sort_pass.h"

namespace companion {
namespace {

constexpr int MasterNo = 1, KeyFileNo = 2, CountFileNo = 3;

std::string_view Reason(sort::Status status) {
  switch (status) {
    case sort::Status::InputUnreadable:
      return "the films cannot be read, or are too many";
    case sort::Status::WeightsUnreadable:
      return "UPPER.ALT is missing, or is not 256 bytes";
    default:
      return "the file cannot be written";
  }
}

// A pass that fails leaves its old key file and its old count.
sort::Result MakePass(runtime::Files& files, const store::SortPass& pass, sort::Sorter& sorter) {
  files.OpenRandom(KeyFileNo, pass.Keys.Name, store::KeyLength);
  const sort::Result result =
      sorter.Sort(store::MasterFileName, pass.Keys.Name, store::StatementOf(pass), store::StatementAfter(pass));
  if (result.Status == sort::Status::Done) files.Replaced(pass.Keys.Name);
  files.Close(KeyFileNo);
  if (result.Status != sort::Status::Done) return result;
  files.OpenOutput(CountFileNo, pass.Keys.CountFile);
  files.WriteLine(CountFileNo, runtime::NumberText(result.Records));
  files.Close(CountFileNo);
  return result;
}

}  // namespace

std::vector<SortedFile> SortCollection(runtime::Files& files, Output& output) {
  store::OpenMaster(files, MasterNo);
  std::vector<SortedFile> sorted;
  Bar bar(output, "Sorting");
  sort::Sorter sorter(files.Disk());
  sorter.Progress = [&](double read) {
    bar.Show((static_cast<double>(sorted.size()) + read) / store::SortPasses.size());
  };
  files.ReplaceTogether([&] {
    for (const store::SortPass& pass : store::SortPasses) {
      sorted.push_back({&pass.Keys, MakePass(files, pass, sorter)});
    }
  });
  files.Close(MasterNo);
  return sorted;
}

int PrintSorted(const std::vector<SortedFile>& sorted, Output& output) {
  int status = Done;
  for (const SortedFile& file : sorted) {
    if (file.Result.Status == sort::Status::Done) {
      output.Text << std::left << std::setw(14) << file.Keys->Name << Counted(file.Result.Records, "film") << "\n";
    } else {
      output.Errors << file.Keys->Name << " was not sorted: " << Reason(file.Result.Status) << ".\n";
      status = Found;
    }
  }
  return status;
}

}  // namespace companion
