// A program from its start to its end, with its desk, its disks and its player.
#pragma once

#include <memory>

#include "tests/kit/faulty_disk.h"
#include "tests/monkey/random_desk.h"
#include "tests/monkey/watched_disk.h"
#include "tests/safety/soundness.h"
#include "tests/story/bare_player.h"

namespace monkey {

// Members in the order in which they build on each other.
struct Session {
  Session(kit::MemoryDisk& disk, kit::MemoryDisk& drive, const safety::DiskWrapper& wrapper,
          const story::PlayerFactory& make_player)
      : Faulty(disk),
        Wrapped(wrapper ? wrapper(Faulty) : std::make_unique<kit::PassingDisk>(Faulty)),
        Disk(*Wrapped),
        Running(Desk, Disk) {
    Running.Copy.DiskIn = [&drive](const std::string&) { return std::make_unique<kit::PassingDisk>(drive); };
    if (make_player) {
      Player = make_player(Running);
    } else {
      Player = std::make_unique<story::BarePlayer>(Running);
    }
  }

  RandomDesk Desk;
  kit::FaultyDisk Faulty;
  std::unique_ptr<runtime::Disk> Wrapped;
  WatchedDisk Disk;
  Program Running;
  std::unique_ptr<story::Player> Player;
};

// Everything that a user sees of a program, a line for each thing.
std::string Seen(const Program& program);
// The first line in which the two differ, in both versions; "" if none does.
std::string FirstDifference(const std::string& bare, const std::string& drawn);

}  // namespace monkey
