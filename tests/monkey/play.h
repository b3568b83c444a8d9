// One run while it is played: the program on a disk in memory, perhaps a second one on the drawn widgets beside it, and
// the guard that looks at the files after every event.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/monkey/events.h"
#include "tests/monkey/guard.h"
#include "tests/monkey/handler_counts.h"
#include "tests/safety/soundness.h"
#include "tests/story/player.h"

namespace monkey {

struct Setting {
  // Makes the player of the drawn widgets; empty: the bare forms only.
  story::PlayerFactory MakePlayer = {};
  // Puts a disk of a test's under the program; empty: none.
  safety::DiskWrapper Wrapper = {};
};

// What has been played so far.
struct Figures {
  std::uint64_t Events = 0;
  std::uint64_t Runs = 0;
  std::uint64_t FaultyRuns = 0;
  std::uint64_t Starts = 0;
  std::uint64_t Kills = 0;
  // Walks back over blank keys before a film of another genre: the design has no end for them.
  std::uint64_t EndlessWalks = 0;
  std::map<std::string, std::uint64_t> Failures;  // by name
  HandlerCounts Handlers;
};

struct Session;

class Play {
 public:
  Play(const Script& script, const Setting& setting, Figures& figures);
  ~Play();

  // Each returns what is wrong, "" if nothing.
  std::string Start();
  // Events that cannot be played, because what they name is not there, are passed over.
  std::string Do(const Event& event);
  // The last look: the next start is possible.
  std::string Finish();

  // The program on the bare forms.
  const Program& Running() const;
  // Only a new start goes on.
  bool NeedsStart() const;
  // Not even a start goes on: the collection is too damaged for one.
  bool Over() const { return over_; }
  // Of the last event, as lines of a story.
  const std::vector<std::string>& Effects() const;

 private:
  // A disk, the disk in drive A, and the program on them.
  struct Side {
    explicit Side(const kit::Folder& folder);
    ~Side();
    kit::MemoryDisk Disk, Drive;
    std::unique_ptr<Session> Now;
  };
  enum class How { Ended, PassedOver, Killed, Endless };

  void Open(Side& side, const story::PlayerFactory& make_player);
  std::string StartAgain(bool at_opener, std::uint64_t answers);
  void Launch(Side& side, bool at_opener, std::uint64_t answers);
  std::string Deliver(const Event& event, How& how);
  void Apply(Side& side, const Event& event);
  std::string EndlessComplaint();
  std::string FailureComplaint();
  std::string DrawnComplaint() const;

  const Setting& setting_;
  Figures& figures_;
  const Script& script_;
  std::int64_t clock_;
  Side bare_;
  std::optional<Side> drawn_;
  Guard guard_;
  bool armed_ = false;    // a fault may have come since the last start
  bool pending_ = false;  // an event was cut off; the files count after the next start
  bool dead_ = false;     // the program was killed, or hangs
  bool was_up_ = false;   // the record screen came up once
  bool over_ = false;
};

}  // namespace monkey
