// sort makes the key and count files of the collection.
#include <algorithm>

#include "companion/json.h"
#include "companion/printable.h"
#include "companion/reading.h"
#include "companion/sort_run.h"
#include "companion/verbs.h"
#include "companion/writing.h"

namespace companion {

namespace {

void PrintJson(const std::vector<SortedFile>& sorted, Output& output) {
  Json json(output.Text);
  json.BeginList();
  for (const SortedFile& file : sorted) {
    json.BeginObject();
    json.Add("file", file.Keys->Name);
    json.Add("films", file.Result.Records);
    json.Add("status", static_cast<std::int64_t>(file.Result.Status));
    json.End();
  }
}

int WriteSorted(runtime::Disk& disk, const Invocation& invocation, Output& output) {
  runtime::Files files(disk);
  const std::vector<SortedFile> sorted = SortCollection(files, output);
  if (!invocation.Json) return PrintSorted(sorted, output);
  PrintJson(sorted, output);
  const bool done = std::all_of(sorted.begin(), sorted.end(),
                                [](const SortedFile& file) { return file.Result.Status == sort::Status::Done; });
  return done ? Done : Found;
}

}  // namespace

int Sort(const Invocation& invocation, Output& output) {
  const Reading reading(invocation);
  if (invocation.Write) {
    return WriteLocked(invocation, output, [&](runtime::Disk& disk) { return WriteSorted(disk, invocation, output); });
  }
  std::int64_t films = 0;
  if (!reading.EachSlot([&](const NumberedFilm& film) { films += HasTitle(film.Film); })) {
    return RefuseLength(reading, output);
  }
  if (invocation.Json) {
    Json json(output.Text);
    json.BeginObject();
    json.Add("films", films);
    json.AddTruth("written", false);
  } else {
    output.Text << Counted(films, "film") << " would be sorted into the four key files.\n" << NothingWritten;
  }
  return Done;
}

}  // namespace companion
