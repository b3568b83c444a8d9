// Compares new entries of the history with what their records hold now.
#include "app/overwritten_films.h"

#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace {

constexpr int ListUp = 2;  // of ListState

store::FilmRecord FilmIn(runtime::Disk& disk, std::int64_t slot) {
  store::FilmRecord film;
  runtime::OpenFile master(disk, std::string(store::MasterFileName), runtime::Disk::Mode::Read);
  master.Read(film.Bytes.data(), film.Bytes.size(), (slot - 1) * store::RecordLength);
  return film;
}

// A history that cannot be opened stops the first save that needs it, not the start.
std::optional<std::int64_t> CountIfReadable(runtime::Disk& disk) {
  try {
    return store::CountHistory(disk);
  } catch (const runtime::Failure&) {
    return std::nullopt;
  }
}

}  // namespace

OverwrittenFilms::OverwrittenFilms(Program& program)
    : program_(program), entries_(CountIfReadable(program.Files.Disk())) {}

std::vector<store::KeptFilm> OverwrittenFilms::TakeLost() {
  runtime::Files& files = program_.Files;
  if (!entries_) {
    records_written_ = files.RecordsWritten();
    entries_ = CountIfReadable(files.Disk());
    return {};
  }
  if (records_written_ == files.RecordsWritten()) return {};
  records_written_ = files.RecordsWritten();
  std::vector<store::KeptFilm> lost = store::ReadHistory(files.Disk(), *entries_);
  if (!lost.empty()) entries_ = lost.back().Number;
  std::erase_if(lost, [&](const store::KeptFilm& kept) {
    return FilmIn(files.Disk(), kept.Slot).Get(store::FilmField::Title) == kept.Film.Get(store::FilmField::Title);
  });
  return lost;
}

void OverwrittenFilms::PutBack(const store::KeptFilm& kept) {
  store::PutBack(program_.Files, kept);
  frmPage1& screen = program_.RecordScreen;
  bool typing = screen.EditMode == 1 || screen.NewMode == 1;
  if (typing || screen.ListState == ListUp || screen.CurrentRecNo != kept.Slot) return;
  if (!program_.Files.IsOpen(static_cast<int>(screen.MasterFileNo))) return;
  screen.ReadRecord(kept.Slot);
  screen.ShowRecord();
}
