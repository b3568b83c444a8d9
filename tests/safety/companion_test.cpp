// The companion's verbs write on a disk whose calls fail, or whose power does: each film and each file is the old or
// the new one, no film is lost, the failure is named, and the next try succeeds.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "companion/copies.h"
#include "store/draft.h"
#include "store/master_file.h"
#include "tests/companion/command_test.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/passing_disk.h"
#include "tests/kit/source_tree.h"
#include "tests/kit/subfolder_disk.h"
#include "tests/safety/fault_rows.h"
#include "tests/safety/scenario_run.h"
#include "tests/safety/soundness.h"

namespace safety {
namespace {

// Nine films, of which slot 7 straddles a page; it was edited.
kit::Folder Edited() {
  kit::MemoryDisk memory(kit::FolderOfFilms(9));
  RunScenario({"", {}, {EditFilm(7, 1)}}, memory);
  return memory.Content();
}

// Of what needs no judgement.
kit::Folder Disordered() {
  kit::Folder folder = Edited();
  store::FilmRecord film;
  std::string& master = folder.at(std::string(store::MasterFileName));
  for (int slot : {2, 7}) {
    char* bytes = master.data() + (slot - 1) * store::RecordLength;
    bytes[store::RowOf(store::FilmField::Format).Offset] = 'v';
    bytes[store::RowOf(store::FilmField::Tail).Offset] = ' ';
  }
  folder.at("AutoSave") = "no\r\n";
  return folder;
}

// One film was typed over, another is new.
kit::Folder WithDrafts() {
  kit::MemoryDisk memory(Edited());
  store::FilmRecord before, film;
  kit::FilmBytes(7, 1).copy(before.Bytes.data(), before.Bytes.size());
  kit::FilmBytes(7, 2).copy(film.Bytes.data(), film.Bytes.size());
  store::WriteDraft(memory, "draft", {7, false, std::string(film.Get(store::FilmField::Title)), before, film});
  return memory.Content();
}

// The delivered files are there, since the starts of this test need them.
kit::Folder WithoutAMasterFile() {
  kit::Folder folder = kit::FolderOfFilms(0);
  folder.erase(std::string(store::MasterFileName));
  return folder;
}

// With a copy of other films.
kit::Folder WithCopy(kit::Folder folder) {
  folder["backups/Recpra 2026-11-22 05-31-34.Dat"] = kit::Films(20, 31);
  return folder;
}
kit::Folder WithCopy() { return WithCopy(Edited()); }
kit::Folder LostWithCopy() { return WithCopy(WithoutAMasterFile()); }

// Without a master file, it has no films.
companion::FilesByName FilesOf(kit::MemoryDisk& collection) {
  companion::FilesByName files = *companion::ReadCollection(collection);
  files.try_emplace(std::string(store::MasterFileName));
  return files;
}

// With a whole copy and what stops have left of two others.
kit::Folder WithUnfinishedCopies() {
  kit::Folder folder = Edited();
  kit::MemoryDisk memory(folder);
  for (const auto& [name, bytes] : FilesOf(memory)) {
    folder["backups/Collection 2026-11-22 05-31-34/" + name] = bytes;
    folder["backups/Collection 2026-11-22 05-31-35/" + name + ".new"] = bytes;
  }
  folder["backups/Collection 2026-11-22 05-31-36.zip.new"] = "PK";
  return folder;
}

kit::Folder WithExport() {
  kit::Folder folder = Edited();
  folder["films.csv"] = "Title\r\nOld\r\n";
  return folder;
}

// The folders that copies go to; all begin like the first.
const std::string CopiesFolders[] = {"backups", "backups of mine"};

kit::Folder WithCopiesFolder() {
  kit::Folder folder = Edited();
  folder[CopiesFolders[1] + "/notes.txt"] = "mine";
  return folder;
}

// Without the copies of the collection.
kit::Folder Collection(const kit::Folder& content) {
  kit::Folder collection = Visible(content);
  std::erase_if(collection, [](const auto& file) { return file.first.starts_with(CopiesFolders[0]); });
  return collection;
}

// By name; nothing for one that cannot be read.
using Copies = std::map<std::string, std::optional<companion::FilesByName>>;

// What is wrong if those that were there have to stay, and one of the collection may be new, or must be.
std::string ComplaintAbout(const Copies& copies, const Copies& before, const companion::FilesByName& collection,
                           bool must_be_new) {
  std::size_t added = 0;
  for (const auto& [name, files] : before) {
    const auto found = copies.find(name);
    if (files && (found == copies.end() || found->second != files)) return name + " is not as it was";
  }
  for (const auto& [name, files] : copies) {
    if (!files && name.ends_with(".zip")) return name + " is damaged";
    const auto old = before.find(name);
    if (!files || (old != before.end() && old->second)) continue;
    if (files != collection) return name + " is no copy of the collection";
    ++added;
  }
  if (added > 1) return "there is more than one new copy";
  return must_be_new && added == 0 ? "there is no new copy" : "";
}

// A part of a copy that is left.
std::string Unfinished(const Copies& copies, const kit::Folder& content) {
  for (const auto& [name, files] : copies) {
    if (!files) return name;
  }
  for (const auto& [name, bytes] : content) {
    if (name.starts_with(CopiesFolders[0]) && name.ends_with(".new")) return name;
  }
  return "";
}

struct Writing {
  const char* Name;
  std::vector<std::string> Arguments;
  kit::Folder (*Before)();
  std::size_t MostStates;  // of a loss of power, at each moment
  std::size_t Step = 1;    // between the calls that fail
  bool Repeats = true;     // done twice, it leaves the same
  bool KeepsFilms = true;  // in their slots or in the history; not only in a copy
  bool Copies = false;     // makes a copy of the collection before it changes anything
};

void PrintTo(const Writing& writing, std::ostream* text) { *text << writing.Name; }

const std::vector<Writing>& Writings() {
  static const std::filesystem::path films = kit::SourceFolder() / "tests/safety/two_films.csv";
  static const std::vector<Writing> writings = {
      {"Restore", {"restore", "1", "--write"}, Edited, 128},
      {"RestoreToAFreeRecord", {"restore", "1", "--free", "--write"}, Edited, 128, 1, false},
      {"Draft", {"draft", "--keep", "--write"}, WithDrafts, 32, 1, false},
      // Updates the film of slot 7 and adds one.
      {"Import", {"import", films.string(), "--doubles", "update", "--write"}, Edited, 32},
      {"ImportAndSort", {"import", films.string(), "--doubles", "update", "--sort", "--write"}, Edited, 4, 5},
      {"ImportIntoANewCollection", {"import", films.string(), "--write"}, WithoutAMasterFile, 16, 1, true, false},
      {"FirstBackup", {"backup", "--write"}, Edited, 2, 13, true, true, true},
      {"Backup", {"backup", "--write"}, WithUnfinishedCopies, 2, 11, true, true, true},
      {"BackupTo", {"backup", "--to", "HOME/backups of mine", "--write"}, WithCopiesFolder, 2, 17, true, true, true},
      {"BackupAsZip", {"backup", "--zip", "--write"}, WithUnfinishedCopies, 4, 5, true, true, true},
      {"RestoreBackup",
       {"restore-backup", "Recpra 2026-11-22 05-31-34.Dat", "--write"},
       WithCopy,
       4,
       5,
       true,
       false,
       true},
      {"RestoreLostBackup",
       {"restore-backup", "Recpra 2026-11-22 05-31-34.Dat", "--write"},
       LostWithCopy,
       4,
       5,
       true,
       false,
       true},
      {"Merge", {"merge", "Recpra 2026-11-22 05-31-34.Dat", "--write"}, WithCopy, 4, 5},
      {"Export", {"export", "--output", "HOME/films.csv"}, WithExport, 16},
      {"Sort", {"sort", "--write"}, Edited, 4, 3},
      {"Check", {"check", "--fix", "--write", "--yes"}, Disordered, 2, 7},
  };
  return writings;
}

// Whether the file is the old or the new one; of films, whether each is.
bool IsOldOrNew(const std::string& name, const std::string& found, const std::string& before,
                const std::string& after) {
  if (found == before || found == after) return true;
  if (name != store::MasterFileName) return false;
  for (std::size_t at = 0; at < found.size(); at += store::RecordLength) {
    const auto film = [at](const std::string& file) {
      return at < file.size() ? file.substr(at, store::RecordLength) : std::string();
    };
    if (film(found) != film(before) && film(found) != film(after)) return false;
  }
  return found.size() % store::RecordLength == 0 && found.size() >= before.size() && found.size() <= after.size();
}

// Whether to try every call and 32 states instead of a sample: minutes instead of seconds.
bool TriesEverything() { return std::getenv("REELORA_EVERY_CALL") != nullptr; }

class CompanionOnABadDisk : public testing::TestWithParam<Writing> {
 protected:
  static std::size_t Step() { return TriesEverything() ? 1 : GetParam().Step; }
  static std::size_t MostStates() { return std::max<std::size_t>(GetParam().MostStates, TriesEverything() ? 32 : 0); }
  // The lock is in a real folder.
  int Write(runtime::Disk& disk) {
    std::vector<std::string> arguments = GetParam().Arguments;
    for (std::string& argument : arguments) {
      if (argument.starts_with("HOME/")) argument.replace(0, 4, Locked.Path());
    }
    const companion::Ran ran = companion::RunIn(Locked.Path(), arguments, PartsOf(disk));
    Complaints = ran.Errors;
    if (ran.Text.find("the folder cannot be listed") != std::string::npos) Complaints += ran.Text;  // a finding
    return ran.Status;
  }
  companion::DiskIn PartsOf(runtime::Disk& disk) const {
    return [&disk, home = Locked.Path().string()](const std::string& folder) -> std::unique_ptr<runtime::Disk> {
      if (folder == home) return std::make_unique<kit::PassingDisk>(disk);
      return std::make_unique<kit::SubfolderDisk>(disk, folder.substr(home.size() + 1));
    };
  }
  Copies CopiesOn(runtime::Disk& disk) const {
    companion::Invocation invocation;
    invocation.Folder = Locked.Path();
    invocation.MakeDisk = PartsOf(disk);
    Copies copies;
    for (const std::string& name : CopiesFolders) {
      const std::string folder = invocation.Folder + "/" + name;
      for (const companion::NamedCopy& copy : companion::ListCopies(*invocation.MakeDisk(folder))) {
        copies[name + "/" + copy.Name] = companion::ReadOther(invocation, folder + "/" + copy.Name);
      }
    }
    return copies;
  }
  kit::Folder Written() {
    kit::MemoryDisk memory(Before);
    EXPECT_EQ(Write(memory), companion::Done) << Complaints;
    return Collection(memory.Content());
  }
  std::size_t Calls() {
    kit::MemoryDisk memory(Before);
    kit::FaultyDisk counting(memory);
    EXPECT_EQ(Write(counting), companion::Done) << Complaints;
    return counting.Calls();
  }
  // "" if they are missing.
  static std::string FilmsOf(const kit::Folder& folder) {
    const auto films = folder.find(std::string(store::MasterFileName));
    return films == folder.end() ? "" : films->second;
  }
  // What is wrong with a folder in which the verb may have written, or must have.
  std::string ComplaintAfter(kit::MemoryDisk& memory, bool done) {
    if (StartedProgram started(memory); started.Program.Stopped()) return "the next start fails";
    const kit::Folder found = Collection(memory.Content());
    for (const auto& [name, bytes] : found) {
      const auto before = Old.find(name), after = New.find(name);
      const std::string& old_bytes = before == Old.end() ? std::string() : before->second;
      if (after == New.end() || !IsOldOrNew(name, bytes, old_bytes, after->second)) return name + " is a mixture";
    }
    if (done && found != New) return "it was not written";
    const bool must_be_copied = GetParam().Copies && (done || FilmsOf(found) != FilmsOf(Old));
    const Copies copies = CopiesOn(memory);
    std::string wrong = ComplaintAbout(copies, OldCopies, OldFiles, must_be_copied);
    if (!wrong.empty()) return wrong;
    std::string lost = GetParam().KeepsFilms ? Complaint(memory, {Visible(memory.Content())}, Before) : "";
    if (!lost.empty()) return lost;
    if (!GetParam().Repeats && found == New) return "";
    const companion::FilesByName files = FilesOf(memory);
    if (Write(memory) != companion::Done) return "the next try fails: " + Complaints;
    if (Collection(memory.Content()) != New) return "the next try leaves another folder";
    if (!GetParam().Copies) return "";
    const Copies more = CopiesOn(memory);
    const std::string left = Unfinished(more, memory.Content());
    return left.empty() ? ComplaintAbout(more, copies, files, true) : left + " is left";
  }

  const kit::FreshFolder Locked;
  std::string Complaints;
  const kit::Folder Before = GetParam().Before();
  kit::MemoryDisk Start{Before};
  const Copies OldCopies = CopiesOn(Start);
  const companion::FilesByName OldFiles = FilesOf(Start);
  const kit::Folder Old = Collection(Before), New = Written();
};

// What a test without faults leaves is another collection, or a copy of it.
TEST_P(CompanionOnABadDisk, WritesWithoutFaults) {
  kit::MemoryDisk memory(Before);
  ASSERT_EQ(Write(memory), companion::Done);
  EXPECT_TRUE(New != Old || GetParam().Copies);
  EXPECT_EQ(ComplaintAbout(CopiesOn(memory), OldCopies, OldFiles, GetParam().Copies), "");
}

TEST_P(CompanionOnABadDisk, FailsNamedAndLeavesTheOldOrTheNew) {
  const std::size_t calls = Calls();
  for (const FaultRow& fault : Faults) {
    for (std::size_t at = 0; at < calls; at += Step()) {
      SCOPED_TRACE(std::string(fault.Name) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Before);
      kit::FaultyDisk faulty(memory, {fault.As, at, fault.FromThenOn});
      const bool done = Write(faulty) == companion::Done;
      if (!done) {
        ASSERT_FALSE(fault.Failure.empty());
        ASSERT_NE(Complaints, "");
      }
      ASSERT_EQ(ComplaintAfter(memory, done), "");
    }
  }
}

TEST_P(CompanionOnABadDisk, OutlivesAKillAtAnyCall) {
  const std::size_t calls = Calls();
  for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t at = 0; at < calls; at += Step()) {
      SCOPED_TRACE("killed at call " + std::to_string(at));
      kit::MemoryDisk memory(Before);
      kit::FaultyDisk faulty(memory, {fault, at});
      ASSERT_THROW(Write(faulty), kit::Killed);
      ASSERT_EQ(ComplaintAfter(memory, false), "");
    }
  }
}

TEST_P(CompanionOnABadDisk, OutlivesALossOfPowerAtAnyMoment) {
  kit::MemoryDisk memory(Before);
  ASSERT_EQ(Write(memory), companion::Done);
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, MostStates())) {
      kit::MemoryDisk left(state);
      ASSERT_EQ(ComplaintAfter(left, moment == memory.Moments()), "") << moment;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Verbs, CompanionOnABadDisk, testing::ValuesIn(Writings()),
                         [](const auto& writing) { return writing.param.Name; });

}  // namespace
}  // namespace safety
