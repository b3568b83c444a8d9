// Keeps the film that is being typed in a draft, and asks at the start about the drafts that a stop has left.
#pragma once

#include <optional>
#include <string>

#include "screen/frmPage1.h"
#include "store/draft.h"

class DraftKeeper {
 public:
  explicit DraftKeeper(frmPage1& screen) : screen_(screen) {}

  // Before the first window: one box for each draft. What is kept is written to the master file; a failure of that is
  // thrown. A draft that was saved already goes unasked.
  void AskAboutDrafts();
  // After each event: writes the draft if the event changed a box of an open film, and removes it once that film was
  // saved, deleted, or given up by a No. A draft that cannot be written is told once.
  void AfterEvent();
  // The user gives the open film up.
  void GiveUp() { given_up_ = true; }

 private:
  std::optional<store::Draft> Read(const std::string& name);
  store::Draft Typed() const;
  std::optional<store::FilmRecord> Stored(std::int64_t slot);
  bool IsSettled();
  void Leave();
  void Write();

  frmPage1& screen_;
  std::optional<store::Draft> open_;  // of the film open for typing, as after the last event
  std::string name_;                  // of its file; "" if nothing was typed yet
  unsigned no_answers_ = 0;           // of the desk, up to the last event
  bool given_up_ = false;
  bool told_ = false;
};
