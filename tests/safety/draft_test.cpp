// What was typed survives a kill, a fault or a loss of power at any disk call, and the next start puts the film where a
// save would have put it.
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "store/draft.h"
#include "store/master_file.h"
#include "tests/kit/draft_desk.h"
#include "tests/kit/faulty_disk.h"
#include "tests/kit/films.h"
#include "tests/safety/steps.h"

namespace safety {
namespace {

const std::string Master(store::MasterFileName);

using Event = std::function<void(frmPage1&)>;

Event Type(forms::TextBox frmPage1::*box, const std::string& text) {
  return [box, text](frmPage1& screen) { (screen.*box).SetText(text); };
}

// A film is opened, then typed by events of one box each.
struct Typing {
  std::string Name;
  kit::Folder Before;
  int Slot;  // 0: a new film
  std::vector<Event> Events;
};

const std::vector<Event> TypedFilm = {
    Type(&frmPage1::txtTitle, "The Keeper"),  Type(&frmPage1::txtDirector, "Jane Doe"),
    Type(&frmPage1::txtAwards, "none yet"),   Type(&frmPage1::txtTitle, "The Keeper of Forty Characters and Many More"),
    Type(&frmPage1::txtTitle, "The Keepers"),
};

kit::Folder WithFreeSlot(int slot, int films) {
  kit::Folder folder = kit::FolderOfFilms(films);
  folder[Master].replace(static_cast<std::size_t>(slot - 1) * store::RecordLength, store::RecordLength,
                         std::string(store::RecordLength - 2, ' ') + "\r\n");
  return folder;
}

void PrintTo(const Typing& typing, std::ostream* out) { *out << typing.Name; }

const Typing Typings[] = {
    {"a new film at the end", kit::FolderOfFilms(12), 0, TypedFilm},
    {"a new film in a free slot", WithFreeSlot(7, 9), 0, TypedFilm},
    {"the first film", kit::FolderOfFilms(0), 0, TypedFilm},
    {"an edited film", kit::FolderOfFilms(9), 7, TypedFilm},
};

// Opens the film and runs the first `events` events.
void Play(Program& program, const Typing& typing, std::size_t events, std::size_t* finished = nullptr) {
  program.StartRecordScreen();
  frmPage1& screen = program.RecordScreen;
  if (typing.Slot > 0) GoTo(program, typing.Slot);
  program.Deliver([&] { screen.UserClick(typing.Slot > 0 ? screen.cmdEdit : screen.cmdNew); });
  for (std::size_t event = 0; event < events; ++event) {
    program.Deliver([&] { typing.Events[event](screen); });
    if (finished) ++*finished;
  }
}

// The master file after those events and a save; after no event as it was.
std::string Saved(const Typing& typing, std::size_t events) {
  if (events == 0) return typing.Before.at(Master);
  kit::MemoryDisk memory(typing.Before);
  kit::DraftDesk desk;
  Program program(desk, memory);
  Play(program, typing, events);
  program.Deliver([&] { program.RecordScreen.cmdSave_Click(); });
  return memory.Content().at(Master);
}

// The next start, at which the user keeps the film; false if it stopped.
bool StartAndKeep(runtime::Disk& disk) {
  kit::DraftDesk desk;
  desk.Draft = forms::DraftAnswer::Keep;
  Program program(desk, disk);
  program.StartOpener();
  return !program.Stopped() && program.Opener.Visible();
}

bool HasDraft(const kit::MemoryDisk& disk) { return disk.Content().contains(".reelora/draft"); }

class TypedFilms : public testing::TestWithParam<Typing> {
 protected:
  const Typing& Tested = GetParam();
  std::vector<std::string> SavedAfter = [this] {
    std::vector<std::string> saved;
    for (std::size_t events = 0; events <= Tested.Events.size(); ++events) saved.push_back(Saved(Tested, events));
    return saved;
  }();

  // Calls of the disk up to the last event.
  std::size_t Calls() {
    kit::MemoryDisk memory(Tested.Before);
    kit::FaultyDisk counting(memory);
    kit::DraftDesk desk;
    Program program(desk, counting);
    Play(program, Tested, Tested.Events.size());
    return counting.Calls();
  }
};

TEST_P(TypedFilms, OutliveAKillAtAnyCall) {
  std::size_t calls = Calls();
  for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway}) {
    for (std::size_t at = 0; at <= calls; ++at) {
      SCOPED_TRACE("killed at call " + std::to_string(at));
      kit::MemoryDisk memory(Tested.Before);
      kit::FaultyDisk faulty(memory, {fault, at});
      std::size_t finished = 0;
      try {
        kit::DraftDesk desk;
        Program program(desk, faulty);
        Play(program, Tested, Tested.Events.size(), &finished);
      } catch (const kit::Killed&) {
      }
      ASSERT_TRUE(StartAndKeep(memory));
      std::string kept = memory.Content().at(Master);
      bool has_next = finished < Tested.Events.size() && kept == SavedAfter[finished + 1];
      ASSERT_TRUE(kept == SavedAfter[finished] || has_next) << "after " << finished << " events";
      ASSERT_FALSE(HasDraft(memory));
    }
  }
}

TEST_P(TypedFilms, OutliveAKillWhileTheyAreKept) {
  kit::MemoryDisk typed(Tested.Before);
  {
    kit::DraftDesk desk;
    Program program(desk, typed);
    Play(program, Tested, Tested.Events.size());
  }
  for (kit::Fault fault : {kit::Fault::Kill, kit::Fault::KillHalfway, kit::Fault::Full, kit::Fault::Error}) {
    bool reached = true;
    for (std::size_t at = 0; reached; ++at) {
      SCOPED_TRACE(std::string(kit::NameOf(fault)) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(typed.Content());
      kit::FaultyDisk faulty(memory, {fault, at});
      try {
        StartAndKeep(faulty);
      } catch (const kit::Killed&) {
      }
      reached = faulty.Calls() > at;
      ASSERT_TRUE(StartAndKeep(memory));
      ASSERT_EQ(memory.Content().at(Master), SavedAfter.back());
      ASSERT_FALSE(HasDraft(memory));
    }
  }
}

// The draft has reached the disk; the power fails while the film is kept.
TEST_P(TypedFilms, OutliveALossOfPowerWhileTheyAreKept) {
  constexpr std::size_t MostStates = 64;
  kit::MemoryDisk typed(Tested.Before);
  {
    kit::DraftDesk desk;
    Program program(desk, typed);
    Play(program, Tested, Tested.Events.size());
  }
  kit::MemoryDisk memory(typed.Content());
  ASSERT_TRUE(StartAndKeep(memory));
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, MostStates)) {
      kit::MemoryDisk left(state);
      ASSERT_TRUE(StartAndKeep(left));
      ASSERT_EQ(left.Content().at(Master), SavedAfter.back()) << "at moment " << moment;
      ASSERT_FALSE(HasDraft(left));
    }
  }
}

// The disk fails from a call on while the film is typed; the save then stops by name and the old film stays.
TEST_P(TypedFilms, AreNotSavedOnADiskThatHasFailed) {
  const std::size_t typed = Calls();
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused}) {
    for (std::size_t at = typed - 1; at + 12 > typed; --at) {
      SCOPED_TRACE(std::string(kit::NameOf(fault)) + " from call " + std::to_string(at));
      kit::MemoryDisk memory(Tested.Before);
      kit::FaultyDisk faulty(memory, {fault, at, true});
      kit::DraftDesk desk;
      Program program(desk, faulty);
      Play(program, Tested, Tested.Events.size());
      ASSERT_FALSE(program.Stopped()) << "stopped by a draft";
      ASSERT_EQ(desk.Notices.size(), 1u);
      program.Deliver([&] { program.RecordScreen.cmdSave_Click(); });
      ASSERT_TRUE(program.Stopped());
      ASSERT_NE(desk.Reported, "");
      ASSERT_EQ(memory.Content().at(Master), Tested.Before.at(Master));
      kit::MemoryDisk left(memory.Content());
      ASSERT_TRUE(StartAndKeep(left));
    }
  }
}

// The disk fails while the film is typed and saved: the next start has it, or the save went through.
TEST_P(TypedFilms, OutliveAFailedSave) {
  std::size_t typing = Calls();
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused, kit::Fault::ShortThenFull}) {
    for (bool from_then_on : {false, true}) {
      bool reached = true;
      for (std::size_t at = typing; reached; ++at) {
        SCOPED_TRACE(std::string(kit::NameOf(fault)) + " at call " + std::to_string(at));
        kit::MemoryDisk memory(Tested.Before);
        kit::FaultyDisk faulty(memory, {fault, at, from_then_on});
        kit::DraftDesk desk;
        {
          Program program(desk, faulty);
          Play(program, Tested, Tested.Events.size());
          program.Deliver([&] { program.RecordScreen.cmdSave_Click(); });
        }
        reached = faulty.Calls() > at;
        ASSERT_TRUE(StartAndKeep(memory));
        ASSERT_EQ(memory.Content().at(Master), SavedAfter.back());
      }
    }
  }
}

// A draft that cannot be written stops nothing and is told.
TEST_P(TypedFilms, AreSavedWhateverCallOfTheDraftFails) {
  kit::MemoryDisk first(Tested.Before);
  kit::FaultyDisk counting(first);
  std::size_t opened = 0;
  {
    kit::DraftDesk desk;
    Program program(desk, counting);
    Play(program, Tested, 0);
    opened = counting.Calls();
  }
  std::size_t typed = Calls();
  ASSERT_GT(typed, opened);
  for (kit::Fault fault : {kit::Fault::Full, kit::Fault::Error, kit::Fault::Refused, kit::Fault::Interrupted,
                           kit::Fault::Short, kit::Fault::ShortThenFull}) {
    bool harmless = fault == kit::Fault::Interrupted || fault == kit::Fault::Short;
    for (std::size_t at = opened; at < typed; ++at) {
      SCOPED_TRACE(std::string(kit::NameOf(fault)) + " at call " + std::to_string(at));
      kit::MemoryDisk memory(Tested.Before);
      kit::FaultyDisk faulty(memory, {fault, at});
      kit::DraftDesk desk;
      Program program(desk, faulty);
      Play(program, Tested, Tested.Events.size());
      ASSERT_FALSE(program.Stopped());
      ASSERT_LE(desk.Notices.size(), harmless ? 0u : 1u);
      program.Deliver([&] { program.RecordScreen.cmdSave_Click(); });
      ASSERT_FALSE(program.Stopped());
      ASSERT_EQ(memory.Content().at(Master), SavedAfter.back());
    }
  }
}

// Nothing is synced, so a loss of power may take the draft: whole, or not at all.
TEST_P(TypedFilms, LeaveASoundFolderAfterALossOfPower) {
  constexpr std::size_t MostStates = 64;
  kit::MemoryDisk memory(Tested.Before);
  {
    kit::DraftDesk desk;
    Program program(desk, memory);
    Play(program, Tested, Tested.Events.size());
  }
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, MostStates)) {
      kit::MemoryDisk left(state);
      ASSERT_TRUE(StartAndKeep(left));
      auto found = std::find(SavedAfter.begin(), SavedAfter.end(), left.Content().at(Master));
      ASSERT_NE(found, SavedAfter.end()) << "at moment " << moment;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Typings, TypedFilms, testing::ValuesIn(Typings), [](const auto& typing) {
  std::string name = typing.param.Name;
  std::replace(name.begin(), name.end(), ' ', '_');
  return name;
});

}  // namespace
}  // namespace safety
