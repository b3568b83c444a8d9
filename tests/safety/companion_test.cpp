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

struct Writing {
  const char* Name;
  std::vector<std::string> Arguments;
  kit::Folder (*Before)();
  std::size_t MostStates;  // of a loss of power, at each moment
  std::size_t Step = 1;    // between the calls that fail
  bool Repeats = true;     // done twice, it leaves the same
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
      {"Sort", {"sort", "--write"}, Edited, 4},
      {"Check", {"check", "--fix", "--write", "--yes"}, Disordered, 2, 3},
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
  return found.size() == before.size() || found.size() == after.size();
}

class CompanionOnABadDisk : public testing::TestWithParam<Writing> {
 protected:
  // The lock is in a real folder.
  int Write(runtime::Disk& disk) {
    const companion::Ran ran = companion::RunIn(Locked.Path(), GetParam().Arguments, [&](const std::string&) {
      return std::make_unique<kit::PassingDisk>(disk);
    });
    Complaints = ran.Errors;
    return ran.Status;
  }
  kit::Folder Written() {
    kit::MemoryDisk memory(Before);
    EXPECT_EQ(Write(memory), companion::Done) << Complaints;
    return Visible(memory.Content());
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
    const kit::Folder found = Visible(memory.Content());
    for (const auto& [name, bytes] : found) {
      const auto before = Old.find(name), after = New.find(name);
      const std::string& old_bytes = before == Old.end() ? std::string() : before->second;
      if (after == New.end() || !IsOldOrNew(name, bytes, old_bytes, after->second)) return name + " is a mixture";
    }
    if (done && found != New) return "it was not written";
    const std::string lost = Complaint(memory, {found}, Before);
    if (!lost.empty()) return lost;
    if (!GetParam().Repeats && found == New) return "";
    if (Write(memory) != companion::Done) return "the next try fails: " + Complaints;
    return Visible(memory.Content()) == New ? "" : "the next try leaves another folder";
  }

  const kit::FreshFolder Locked;
  std::string Complaints;
  const kit::Folder Before = GetParam().Before();
  const kit::Folder Old = Visible(Before), New = Written();
};

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
