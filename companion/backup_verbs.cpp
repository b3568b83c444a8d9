// backup makes a copy of the collection, backups lists the copies, restore-backup puts one back.
#include <filesystem>

#include "companion/copies.h"
#include "companion/json.h"
#include "companion/new_collection.h"
#include "companion/printable.h"
#include "companion/reading.h"
#include "companion/table.h"
#include "companion/verbs.h"
#include "companion/writing.h"
#include "launcher/copies.h"
#include "runtime/clock.h"
#include "runtime/whole_io.h"
#include "store/history.h"
#include "store/master_file.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view BackupIsBusy = "Another backup is being written there.";

std::int64_t CountFilms(const FilesByName& files) {
  const std::string& bytes = files.at(std::string(store::MasterFileName));
  std::int64_t films = 0;
  for (std::size_t at = 0; at < bytes.size(); at += store::RecordLength) {
    store::FilmRecord film;
    bytes.copy(film.Bytes.data(), store::RecordLength, at);
    films += HasTitle(film);
  }
  return films;
}

int TooLarge(Output& output) {
  output.Errors << "The collection is too large for a copy.\n";
  return Found;
}

void MakeCopiesFolder(runtime::Disk& disk) {
  const std::string name(launcher::CopiesFolder);
  runtime::RetryInterrupted(name, [&] { return disk.MakeFolder(name); });
  runtime::RetryInterrupted(name, [&] { return disk.SyncFolder(""); });
}

int TellCopy(const Invocation& invocation, const std::string& name, const FilesByName& files, bool written,
             Output& output) {
  if (invocation.Json) {
    Json json(output.Text);
    json.BeginObject();
    json.Add("name", name);
    json.Add("films", CountFilms(files));
    json.Add("files", static_cast<std::int64_t>(files.size()));
    json.AddTruth("written", written);
    return Done;
  }
  output.Text << Counted(CountFilms(files), "film") << " in "
              << Counted(static_cast<std::int64_t>(files.size()), "file");
  if (written) {
    output.Text << ", copied to \"" << name << "\" and read back.\n";
  } else {
    output.Text << " would be copied.\n" << NothingWritten;
  }
  return Done;
}

int WriteBackup(runtime::Disk& disk, const Invocation& invocation, Output& output) {
  const std::optional<FilesByName> files = ReadCollection(disk);
  if (!files) return TooLarge(output);
  const std::optional<std::string> elsewhere = invocation.Value("to");
  if (!elsewhere) MakeCopiesFolder(disk);
  const std::string folder = elsewhere.value_or(CopiesIn(invocation.Folder));
  const CopyKind kind = invocation.Has("zip") ? CopyKind::Zip : CopyKind::Folder;
  const NewCopy copy = WriteCopy(invocation, folder, *files, kind);
  if (copy.Name) return TellCopy(invocation, *copy.Name, *files, true, output);
  output.Errors << (copy.IsBusy ? BackupIsBusy : "The copy cannot be read back.") << "\n";
  return Found;
}

constexpr std::string_view KindWords[] = {"films", "folder", "zip"};

struct ListedCopy {
  NamedCopy Copy;
  std::optional<std::int64_t> Films;  // nothing if it cannot be read
};

void PrintCopies(const std::vector<ListedCopy>& copies, Output& output) {
  const std::vector<Column> columns = {{"Copy"}, {"Made"}, {"Kind"}, {"Films", true}};
  std::vector<std::vector<std::string>> rows;
  rows.reserve(copies.size());
  for (const ListedCopy& listed : copies) {
    rows.push_back({listed.Copy.Name, runtime::StampText(listed.Copy.When),
                    std::string(KindWords[static_cast<std::size_t>(listed.Copy.Kind)]),
                    listed.Films ? std::to_string(*listed.Films) : "damaged"});
  }
  if (output.Columns)
    PrintTable(columns, rows, static_cast<std::size_t>(output.Columns), output.Text);
  else
    PrintTabs(columns, rows, output.Text);
}

void AddCopies(const std::vector<ListedCopy>& copies, Output& output) {
  Json json(output.Text);
  json.BeginList();
  for (const ListedCopy& listed : copies) {
    json.BeginObject();
    json.Add("name", listed.Copy.Name);
    json.Add("made", runtime::StampText(listed.Copy.When));
    json.Add("kind", KindWords[static_cast<std::size_t>(listed.Copy.Kind)]);
    if (listed.Films) json.Add("films", *listed.Films);
    json.AddTruth("damaged", !listed.Films);
    json.End();
  }
}

// The history stays: films were overwritten since the copy was made. The films come first, so that the keys are newer.
void PutBack(runtime::Disk& disk, const FilesByName& copy) {
  const std::string master(store::MasterFileName), history = runtime::InSafetyFolder(store::HistoryFile);
  runtime::ReplaceFile(disk, master, copy.at(master));
  runtime::SyncFolders(disk, master);
  for (const auto& [name, bytes] : copy) {
    if (name != master && name != history) runtime::ReplaceFile(disk, name, bytes);
  }
  runtime::SyncFolders(disk, master);
}

int AddRestored(const FilesByName& copy, const std::string& kept, bool written, Output& output) {
  Json json(output.Text);
  json.BeginObject();
  json.Add("films", CountFilms(copy));
  json.Add("files", static_cast<std::int64_t>(copy.size()));
  if (written) json.Add("keptAs", kept);
  json.AddTruth("written", written);
  return Done;
}

// A file that is put back replaces the one of its name: the film file that a link leads to would stay as it is, and the
// collection would no longer be there.
bool IsALink(const Invocation& invocation) {
  std::error_code none;
  return fs::is_symlink(fs::path(invocation.Folder) / store::MasterFileName, none);
}

int RefuseALink(Output& output) {
  output.Errors << store::MasterFileName
                << " is a link, which a copy would replace. Nothing was put back. Move the file that it leads to here "
                   "first, in its place.\n";
  return Found;
}

int WriteRestored(runtime::Disk& disk, const Invocation& invocation, const FilesByName& copy, Output& output) {
  std::optional<FilesByName> present = ReadCollection(disk);
  if (!present) return TooLarge(output);
  present->try_emplace(std::string(store::MasterFileName));  // a lost master file has no films
  MakeCopiesFolder(disk);
  const NewCopy kept = WriteCopy(invocation, CopiesIn(invocation.Folder), *present, CopyKind::Folder);
  if (!kept.Name) {
    output.Errors << (kept.IsBusy ? BackupIsBusy : "The present collection cannot be copied first.")
                  << " Nothing was put back.\n";
    return Found;
  }
  PutBack(disk, copy);
  if (invocation.Json) return AddRestored(copy, *kept.Name, true, output);
  output.Text << Counted(CountFilms(copy), "film") << " put back. What was there, "
              << Counted(CountFilms(*present), "film") << ", is in \"" << *kept.Name << "\".\n";
  if (copy.size() == 1) output.Text << "Sort afterwards, so that views and lists show them.\n";
  return Done;
}

}  // namespace

int Backup(const Invocation& invocation, Output& output) {
  const Reading reading(invocation);
  if (invocation.Write) {
    return WriteLocked(invocation, output, [&](runtime::Disk& disk) { return WriteBackup(disk, invocation, output); });
  }
  const std::optional<FilesByName> files = ReadCollection(reading.Disk());
  return files ? TellCopy(invocation, "", *files, false, output) : TooLarge(output);
}

int Backups(const Invocation& invocation, Output& output) {
  const std::string folder = invocation.Value("from").value_or(CopiesIn(invocation.Folder));
  std::vector<ListedCopy> copies;
  if (!runtime::CanBeListed(*invocation.MakeDisk(folder), "")) return RefuseFolder(folder, output);
  for (const NamedCopy& copy : ListCopies(*invocation.MakeDisk(folder))) {
    const std::optional<FilesByName> files = ReadOther(invocation, folder + "/" + copy.Name);
    copies.push_back({copy, files ? std::optional(CountFilms(*files)) : std::nullopt});
  }
  if (invocation.Json)
    AddCopies(copies, output);
  else
    PrintCopies(copies, output);
  return Done;
}

int RestoreBackup(const Invocation& invocation, Output& output) {
  if (IsALink(invocation)) return RefuseALink(output);
  const bool is_lost = !HasMasterFile(*invocation.MakeDisk(invocation.Folder));
  if (is_lost && !MayBecomeCollection(invocation, output)) return Found;
  const std::optional<FilesByName> copy = ReadOther(invocation, invocation.Arguments[0]);
  if (!copy) {
    output.Errors << "There is no copy \"" << invocation.Arguments[0] << "\" that can be read.\n";
    return Found;
  }
  if (invocation.Write) {
    return WriteLocked(invocation, output,
                       [&](runtime::Disk& disk) { return WriteRestored(disk, invocation, *copy, output); });
  }
  if (invocation.Json) return AddRestored(*copy, "", false, output);
  output.Text << Counted(CountFilms(*copy), "film") << " in "
              << Counted(static_cast<std::int64_t>(copy->size()), "file")
              << " would be put back, after a copy of what is there now.\n"
              << NothingWritten;
  return Done;
}

}  // namespace companion
