// Any history: what is read has a number, a time and a slot; an entry appended is read again behind the others; a film
// put back goes into its slot alone or is refused.
#include <algorithm>

#include "store/history.h"
#include "store/master_file.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/plain_disk.h"

namespace {

constexpr std::size_t EntryLength = store::HistoryHeadLength + store::RecordLength;
const std::string History = ".reelora/history";
const std::string Master(store::MasterFileName);

// The head of each entry as it comes, the film behind it from a few bytes; the last entry may be cut off.
std::string AnyHistory(fuzz::Input& input) {
  std::string history;
  const std::size_t cut = input.Below(EntryLength);
  while (!input.AtEnd() && history.size() < 40 * EntryLength) {
    std::string entry(input.Bytes(store::HistoryHeadLength));
    entry.resize(store::HistoryHeadLength, '\0');
    entry += input.Bytes(4);
    entry.resize(EntryLength, 'x');
    history += entry;
  }
  history.resize(history.size() - std::min(history.size(), cut));
  return history;
}

bool Same(const store::KeptFilm& one, const store::KeptFilm& other) {
  return one.Number == other.Number && one.When == other.When && one.Slot == other.Slot &&
         one.Film.Bytes == other.Film.Bytes;
}

void CheckEntries(runtime::Disk& disk, const std::vector<store::KeptFilm>& films) {
  std::int64_t last = 0;
  const std::int64_t count = store::CountHistory(disk);
  for (const store::KeptFilm& film : films) {
    fuzz::Require(film.Number > last && film.Number <= count, "entries are numbered upward to their count");
    fuzz::Require(film.Slot >= 1 && film.Slot <= 999'999'999, "the slot of an entry has nine digits at most");
    fuzz::Require(film.When.size() == 19, "the time of an entry has 19 characters");
    last = film.Number;
  }
  const std::vector<store::KeptFilm> later = store::ReadHistory(disk, 1);
  const bool has_first = !films.empty() && films.front().Number == 1;
  fuzz::Require(std::equal(films.begin() + (has_first ? 1 : 0), films.end(), later.begin(), later.end(), Same),
                "reading from an entry on gives those behind it");
}

void AppendAndRead(runtime::Disk& disk, const std::vector<store::KeptFilm>& before, std::int64_t slot,
                   const store::FilmRecord& film) {
  store::KeepOverwritten(disk, slot, {film.Bytes.data(), film.Bytes.size()}, "");
  const std::vector<store::KeptFilm> films = store::ReadHistory(disk);
  const bool is_film = film.Get(store::FilmField::Title).find_first_not_of(' ') != std::string_view::npos;
  fuzz::Require(films.size() == before.size() + (is_film ? 1 : 0), "an overwritten film becomes an entry");
  fuzz::Require(std::equal(before.begin(), before.end(), films.begin(), Same), "entries stay as they are");
  if (is_film) {
    fuzz::Require(films.back().Slot == slot && films.back().Film.Bytes == film.Bytes,
                  "an entry written and read again is the same");
  }
}

void PutBack(fuzz::PlainDisk& disk, const store::KeptFilm& kept) {
  std::string expected = disk.Content(Master);
  const auto offset = static_cast<std::size_t>(kept.Slot - 1) * store::RecordLength;
  const bool fits = offset < expected.size();
  runtime::Files files(disk);
  try {
    store::PutBack(files, kept);
    fuzz::Require(fits, "a film goes back into a slot that there is");
    expected.replace(offset, store::RecordLength, kept.Film.Bytes.data(), store::RecordLength);
  } catch (const runtime::Failure& failure) {
    fuzz::Require(!fits && failure.Name == runtime::BadRecordNumber, "a slot that there is not is refused");
  }
  fuzz::Require(disk.Content(Master) == expected, "a film put back changes its slot alone");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::size_t master_length = input.Below(4 * store::RecordLength);
  const auto slot = static_cast<std::int64_t>(1 + static_cast<std::uint64_t>(input.Number()) % 999'999'999);
  store::FilmRecord film;
  film.Set(store::FilmField::Title, input.Bytes(2));
  fuzz::PlainDisk disk({{History, AnyHistory(input)}, {Master, std::string(master_length, 'm')}});
  const std::vector<store::KeptFilm> films = store::ReadHistory(disk);
  CheckEntries(disk, films);
  fuzz::Require(disk.Changes() == 0, "reading writes nothing");
  AppendAndRead(disk, films, slot, film);
  if (!films.empty()) PutBack(disk, films[films.size() / 2]);
  return 0;
}
