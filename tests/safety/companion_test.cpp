// The companion's verbs write on a disk whose calls fail, or whose power does: each film and each file is the old or
// the new one, no film is lost, the failure is named, and the next try succeeds.
#include <gtest/gtest.h>

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
kit::Folder WithCopy() {
  kit::Folder folder = Edited();
  folder["backups/Recpra 2026-11-22 05-31-34.Dat"] = kit::Films(20, 31);
  return folder;
}

// Without the copies of the collection.
kit::Folder Collection(const kit::Folder& content) {
  kit::Folder collection = Visible(content);
  std::erase_if(collection, [](const auto& file) { return file.first.starts_with("backups/"); });
  return collection;
}

// The films of each copy in the folder that a stop may have left; a copy is one only if it has films.
std::vector<std::string> CopiedFilms(const kit::Folder& content) {
  std::vector<std::string> films;
  for (const auto& [name, bytes] : content) {
    if (name.starts_with("backups/Collection") && name.ends_with("/Recpra.Dat")) films.push_back(bytes);
  }
  return films;
}

struct Writing {
  const char* Name;
  std::vector<std::string> Arguments;
  kit::Folder (*Before)();
  std::size_t MostStates;  // of a loss of power, at each moment
  std::size_t Step = 1;    // between the calls that fail
  bool Repeats = true;     // done twice, it leaves the same
  bool KeepsFilms = true;  // in their slots or in the history; not only in a copy
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
      {"ImportIntoANewCollection", {"import", films.string(), "--write"}, WithoutAMasterFile, 16, 1, true, false},
      {"Backup", {"backup", "--write"}, Edited, 2, 7},
      {"BackupAsZip", {"backup", "--zip", "--write"}, Edited, 8, 5},
      {"RestoreBackup", {"restore-backup", "Recpra 2026-11-22 05-31-34.Dat", "--write"}, WithCopy, 4, 5, true, false},
      {"Merge", {"merge", "Recpra 2026-11-22 05-31-34.Dat", "--write"}, WithCopy, 4, 5},
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

class CompanionOnABadDisk : public testing::TestWithParam<Writing> {
 protected:
  // The lock is in a real folder.
  int Write(runtime::Disk& disk) {
    const std::string home = Locked.Path();
    const companion::Ran ran = companion::RunIn(home, GetParam().Arguments, [&](const std::string& folder) {
      std::unique_ptr<runtime::Disk> part = std::make_unique<kit::PassingDisk>(disk);
      if (folder != home) part = std::make_unique<kit::SubfolderDisk>(disk, folder.substr(home.size() + 1));
      return part;
    });
    Complaints = ran.Errors;
    return ran.Status;
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
    for (const std::string& films : CopiedFilms(memory.Content())) {
      if (films != Before.at("Recpra.Dat") && films != New.at("Recpra.Dat")) return "a copy has other films";
    }
    const std::string lost = GetParam().KeepsFilms ? Complaint(memory, {Visible(memory.Content())}, Before) : "";
    if (!lost.empty()) return lost;
    if (!GetParam().Repeats && found == New) return "";
    if (Write(memory) != companion::Done) return "the next try fails: " + Complaints;
    return Collection(memory.Content()) == New ? "" : "the next try leaves another folder";
  }

  const kit::FreshFolder Locked;
  std::string Complaints;
  const kit::Folder Before = GetParam().Before();
  const kit::Folder Old = Collection(Before), New = Written();
};

// What a test without faults leaves is another collection, or a copy of it.
TEST_P(CompanionOnABadDisk, WritesWithoutFaults) {
  kit::MemoryDisk memory(Before);
  ASSERT_EQ(Write(memory), companion::Done);
  EXPECT_TRUE(New != Old || Visible(memory.Content()).size() > Visible(Before).size());
}

TEST_P(CompanionOnABadDisk, FailsNamedAndLeavesTheOldOrTheNew) {
  const std::size_t calls = Calls();
  for (const FaultRow& fault : Faults) {
    for (std::size_t at = 0; at < calls; at += GetParam().Step) {
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
    for (std::size_t at = 0; at < calls; at += GetParam().Step) {
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
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, GetParam().MostStates)) {
      kit::MemoryDisk left(state);
      ASSERT_EQ(ComplaintAfter(left, moment == memory.Moments()), "") << moment;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Verbs, CompanionOnABadDisk, testing::ValuesIn(Writings()),
                         [](const auto& writing) { return writing.param.Name; });

}  // namespace
}  // namespace safety
