// Compares the boxes with the draft after each event.
#include "app/draft_keeper.h"

#include "runtime/text.h"
#include "screen/record_boxes.h"
#include "store/master_file.h"

void DraftKeeper::AskAboutDrafts() {
  runtime::Disk& disk = screen_.Files.Disk();
  for (const std::string& name : store::DraftNames(disk)) {
    std::optional<store::Draft> draft = Read(name);
    if (!draft) continue;
    auto answer = forms::DraftAnswer::Drop;
    if (!store::IsBlank(draft->Film) && !store::IsSaved(screen_.Files, *draft))
      answer = screen_.Desk.AskDraft(runtime::Trim(draft->Title));
    if (answer == forms::DraftAnswer::Later) continue;
    if (answer == forms::DraftAnswer::Keep) store::KeepDraft(screen_.Files, *draft);
    store::RemoveDraft(disk, name);
  }
}

// A draft that cannot be read now stays for a later start.
std::optional<store::Draft> DraftKeeper::Read(const std::string& name) {
  try {
    return store::ReadDraft(screen_.Files.Disk(), name);
  } catch (const runtime::Failure&) {
    return std::nullopt;
  }
}

void DraftKeeper::AfterEvent() {
  bool is_open = screen_.EditMode == 1 && !screen_.Desk.Ended();
  if (open_ || is_open) {
    store::Draft typed = Typed();
    if (open_ && (!is_open || open_->Slot != typed.Slot)) Leave();
    if (is_open && !open_) {
      typed.Before = Stored(typed.Slot).value_or(store::FilmRecord());
      open_ = typed;
    } else if (is_open && (typed.Film.Bytes != open_->Film.Bytes || typed.Title != open_->Title)) {
      typed.Before = open_->Before;
      open_ = typed;
      Write();
    }
  }
  no_answers_ = screen_.Desk.NoAnswers();
  given_up_ = false;
}

store::Draft DraftKeeper::Typed() const {
  store::Draft draft;
  // No save can write a record below 0: what is typed there is kept as a new film.
  draft.Slot = screen_.CurrentRecNo < 1 ? 1 : static_cast<std::int64_t>(screen_.CurrentRecNo);
  draft.IsNew = screen_.NewMode == 1 || screen_.CurrentRecNo < 0;
  draft.Title = screen_.txtTitle.Text();
  for (const screen::RecordBox& row : screen::RecordBoxes) draft.Film.Set(row.Field, (screen_.*row.Box).Text());
  draft.Film.Set(store::FilmField::Tail, "\r\n");
  return draft;
}

std::optional<store::FilmRecord> DraftKeeper::Stored(std::int64_t slot) {
  try {
    store::FilmRecord film;
    store::ReadRecord(screen_.Files, static_cast<int>(screen_.MasterFileNo), slot, film);
    return film;
  } catch (const runtime::Failure&) {
    return std::nullopt;
  }
}

// Some handlers leave an open film without a question; its draft then stands, and the next start asks.
bool DraftKeeper::IsSettled() {
  if (given_up_ || screen_.Desk.NoAnswers() != no_answers_) return true;
  std::optional<store::FilmRecord> stored = Stored(open_->Slot);
  if (!stored) return false;
  if (stored->Bytes != open_->Before.Bytes || stored->Bytes == store::ToSave(*open_).Bytes) return true;
  return screen_.CurrentRecNo == open_->Slot && store::IsBlank(Typed().Film);  // a new film deleted unsaved
}

void DraftKeeper::Leave() {
  if (!name_.empty() && IsSettled()) store::RemoveDraft(screen_.Files.Disk(), name_);
  open_.reset();
  name_.clear();
}

void DraftKeeper::Write() {
  try {
    if (name_.empty()) name_ = store::FreeDraftName(screen_.Files.Disk());
    store::WriteDraft(screen_.Files.Disk(), name_, *open_);
  } catch (const runtime::Failure& failure) {
    if (!told_)
      screen_.Desk.Notice("What you type cannot be kept in case of a stop: " + std::string(failure.Name) + ".");
    told_ = true;
  }
}
