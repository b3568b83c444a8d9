// What must hold after every event, whatever the user did: which files an event may change, and how.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "app/program.h"
#include "store/film_record.h"
#include "tests/kit/memory_disk.h"

namespace monkey {

// What happened between two looks at the disk.
enum class Passed {
  Event,      // of a user
  Start,      // of the program, which asks about no draft
  DraftStart  // which asks about drafts
};

class Guard {
 public:
  explicit Guard(const kit::MemoryDisk& disk);

  // Notes which slot the program may write, and what is in its boxes.
  void Before(const Program& program);
  // A slot that is current while the event runs may be written, too: some handlers move on to another record and ask
  // there whether to save. Also called if a fault has cut the event off and the files count after the next start.
  void NoteSlot(const Program& program);
  // What is wrong, "" if nothing. Disturbed: a fault may have hit a disk call, so that some files may be old or torn.
  std::string After(const Program& program, Passed passed, bool disturbed);

 private:
  struct Change;
  std::string Compare(const Change& change) const;
  std::string MasterComplaint(const Change& change) const;
  std::string TypingComplaint(const Program& program) const;
  std::string DraftComplaint(const Change& change, const Program& program) const;

  const kit::MemoryDisk& disk_;
  std::size_t moments_;
  kit::Folder last_;
  std::set<std::int64_t> slots_;            // that the event may write
  std::optional<store::FilmRecord> boxes_;  // of an open film, before the event
  std::int64_t open_slot_ = 0;
};

}  // namespace monkey
