// Every event goes to the bare forms first; what hangs there is spared the widgets.
#include "tests/monkey/play.h"

#include <exception>

#include "tests/monkey/complaints.h"
#include "tests/monkey/session.h"

namespace monkey {
namespace {

bool IsStart(Act act) { return act == Act::Restart || act == Act::RestartAtOpener; }

// The stamps of the history tell the seconds of the two programs' saves.
kit::Folder WithoutStamps(kit::Folder folder) {
  folder.erase(".reelora/history");
  return folder;
}

bool IsGenreWalk(const frmPage1& screen) {
  return screen.ViewKind == screen::GenreView && screen.NavDirection == screen::Backward;
}

}  // namespace

Play::Side::Side(const kit::Folder& folder) : Disk(folder), Drive({}) {}
Play::Side::~Side() = default;

Play::Play(const Script& script, const Setting& setting, Figures& figures)
    : setting_(setting),
      figures_(figures),
      script_(script),
      clock_(script.Clock),
      bare_(FolderOf(script.Films)),
      guard_(bare_.Disk) {
  if (setting.MakePlayer) drawn_.emplace(FolderOf(script.Films));
}
Play::~Play() = default;

const Program& Play::Running() const { return bare_.Now->Running; }
bool Play::NeedsStart() const { return dead_ || Running().Ended(); }
const std::vector<std::string>& Play::Effects() const { return bare_.Now->Desk.Effects; }

std::string Play::Start() { return StartAgain(script_.AtOpener, script_.Answers); }

void Play::Open(Side& side, const story::PlayerFactory& make_player) {
  side.Now.reset();
  side.Now = std::make_unique<Session>(side.Disk, side.Drive, setting_.Wrapper, make_player);
  side.Now->Desk.Clock = std::chrono::local_seconds(std::chrono::seconds(clock_));
}

void Play::Launch(Side& side, bool at_opener, std::uint64_t answers) {
  side.Now->Desk.BeginEvent(answers);
  side.Now->Disk.BeginEvent();
  at_opener ? side.Now->Running.StartOpener() : side.Now->Running.StartRecordScreen();
  side.Now->Player->Settle();
}

std::string Play::StartAgain(bool at_opener, std::uint64_t answers) {
  at_opener = at_opener && !pending_;  // what a fault left is looked at before drafts are kept
  const bool disturbed = std::exchange(pending_, false) || armed_;
  armed_ = dead_ = false;
  ++figures_.Starts;
  Open(bare_, {});
  bare_.Now->Desk.BeforeAnswer = [this] { guard_.NoteSlot(Running()); };
  figures_.Handlers.Watch(bare_.Now->Running);
  try {
    Launch(bare_, at_opener, answers);
    if (drawn_) {
      Open(*drawn_, setting_.MakePlayer);
      Launch(*drawn_, at_opener, answers);
    }
  } catch (const Endless&) {
    return "the start does not end";
  } catch (const story::Unplayable& unplayable) {
    return "the widgets after a start: " + unplayable.What;
  }
  if (std::string wrong = guard_.After(Running(), at_opener ? Passed::DraftStart : Passed::Start, disturbed);
      !wrong.empty())
    return wrong;
  if (Running().Stopped() && was_up_ && !bare_.Now->Disk.WasFull())
    return "the next start stops: " + std::string(Running().Stopped()->Name) + ", " + Running().Stopped()->File;
  over_ = Running().Ended();
  if (!Running().Ended() && Running().RecordScreen.Visible()) was_up_ = true;
  std::string wrong = FailureComplaint();
  return wrong.empty() ? DrawnComplaint() : wrong;
}

std::string Play::Do(const Event& event) {
  ++figures_.Events;
  if (IsStart(event.What)) return StartAgain(event.What == Act::RestartAtOpener, event.Answers);
  if (NeedsStart()) return "";
  How how = How::Ended;
  guard_.Before(Running());
  if (std::string wrong = Deliver(event, how); !wrong.empty()) return wrong;
  if (how == How::Endless) return EndlessComplaint();
  if (Running().RecordScreen.Visible()) was_up_ = true;
  pending_ = how == How::Killed || (armed_ && Running().Stopped());
  dead_ = how == How::Killed;
  if (dead_) ++figures_.Kills;
  if (pending_) {
    guard_.NoteSlot(Running());
    return FailureComplaint();
  }
  std::string wrong = guard_.After(Running(), Passed::Event, armed_ || bare_.Now->Disk.WasFull());
  if (wrong.empty()) wrong = FailureComplaint();
  return wrong.empty() ? DrawnComplaint() : wrong;
}

std::string Play::Deliver(const Event& event, How& how) {
  try {
    Apply(bare_, event);
  } catch (const kit::Killed&) {
    how = How::Killed;
  } catch (const Endless&) {
    how = How::Endless;
  } catch (const story::Unplayable&) {
    how = How::PassedOver;
  } catch (const std::exception& error) {
    return std::string("an exception has left the program: ") + error.what();
  } catch (...) {
    return "something unknown has left the program";
  }
  if (!drawn_ || how != How::Ended) return "";
  try {
    Apply(*drawn_, event);
  } catch (const story::Unplayable& unplayable) {
    return "the widgets: " + unplayable.What;
  }
  return "";
}

void Play::Apply(Side& side, const Event& event) {
  side.Now->Desk.BeginEvent(event.Answers);
  side.Now->Disk.BeginEvent();
  story::Player& player = *side.Now->Player;
  switch (event.What) {
    case Act::Click:
      return player.Click(event.Name);
    case Act::DblClick:
      return player.DblClick(event.Name);
    case Act::Move:
      return player.Move(event.Name);
    case Act::Pick:
      return player.Pick(event.Name, event.Text);
    case Act::Key:
      return player.Key(event.Name);
    case Act::Type:
      return player.Type(event.Text);
    case Act::Clear:
      return player.Clear();
    case Act::Close:
      return player.Close("");
    case Act::Clock:
      clock_ = event.Number;
      side.Now->Desk.Clock = std::chrono::local_seconds(std::chrono::seconds(clock_));
      return;
    case Act::EndSession:
      return side.Now->Running.EndSession(event.Number == 1);
    case Act::Fault:
      armed_ = true;
      return side.Now->Faulty.Arm(event.Fault);
    case Act::Restart:
    case Act::RestartAtOpener:
      return;
  }
}

std::string Play::Finish() {
  if (over_) return "";
  return StartAgain(false, 0);
}

std::string Play::EndlessComplaint() {
  dead_ = true;
  if (!IsGenreWalk(Running().RecordScreen)) return "a handler that does not end";
  ++figures_.EndlessWalks;
  return guard_.After(Running(), Passed::Event, armed_);
}

std::string Play::FailureComplaint() {
  const std::optional<runtime::Failure>& stopped = Running().Stopped();
  if (bare_.Now->Desk.Reports != (stopped ? 1 : 0)) return "a stop without its one report";
  if (!stopped) return "";
  ++figures_.Failures[std::string(stopped->Name)];
  return NameComplaint(*stopped);
}

std::string Play::DrawnComplaint() const {
  if (!drawn_) return "";
  const Session &bare = *bare_.Now, &drawn = *drawn_->Now;
  if (bare.Desk.Effects != drawn.Desk.Effects) return "the widgets bring other effects";
  if (std::string differs = FirstDifference(Seen(bare.Running), Seen(drawn.Running)); !differs.empty()) return differs;
  return WithoutStamps(bare_.Disk.Content()) == WithoutStamps(drawn_->Disk.Content()) ? ""
                                                                                      : "the widgets leave other files";
}

}  // namespace monkey
