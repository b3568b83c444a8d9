// history lists the films that were overwritten or deleted, restore puts one of them back.
#include <iomanip>

#include "companion/differences.h"
#include "companion/numbers.h"
#include "companion/printable.h"
#include "companion/reading.h"
#include "companion/verbs.h"
#include "companion/writing.h"
#include "runtime/code_page.h"
#include "store/history.h"
#include "store/master_file.h"

namespace companion {
namespace {

// A longer history is refused; no collector overwrites so many films, and listing it could take hours.
constexpr std::int64_t LongestHistory = 1'000'000;

void PrintRow(const store::KeptFilm& kept, const store::FilmRecord& now, std::ostream& text) {
  text << std::setw(6) << kept.Number << "  " << Printable(kept.When) << std::setw(8) << kept.Slot << "  "
       << TitleOf(kept.Film) << " - " << (now.Bytes == kept.Film.Bytes ? "this film" : TitleOf(now)) << "\n";
}

void AddRow(const store::KeptFilm& kept, const store::FilmRecord& now, Json& json) {
  json.BeginObject();
  json.Add("number", kept.Number);
  json.Add("overwritten", runtime::ToUtf8(kept.When));
  json.Add("record", kept.Slot);
  json.Add("title", FieldText(kept.Film, store::FilmField::Title));
  json.Add("titleNow", FieldText(now, store::FilmField::Title));
  AddDifferences(kept.Film, "was", now, "isNow", json);
  json.End();
}

void PrintList(const Reading& reading, std::ostream& text) {
  bool any = false;
  store::EachKeptFilm(reading.Disk(), 0, [&](const store::KeptFilm& kept) {
    if (!any) text << "   No.  overwritten          record  film, and what stands there now\n";
    any = true;
    PrintRow(kept, reading.At(kept.Slot), text);
  });
  if (!any) text << "No film has been overwritten.\n";
}

void PrintOne(const store::KeptFilm& kept, const store::FilmRecord& now, std::ostream& text) {
  text << TitleOf(kept.Film) << ", record " << kept.Slot << " until " << Printable(kept.When)
       << (now.Bytes == kept.Film.Bytes ? ", is there now.\n" : ", and what stands there now:\n");
  PrintDifferences(kept.Film, now, text);
}

int NoEntry(std::string_view number, Output& output) {
  output.Errors << "There is no entry " << number << ".\n";
  return Found;
}

int ShowOne(const Reading& reading, const Invocation& invocation, std::int64_t number, Output& output) {
  const std::optional<store::KeptFilm> kept = store::ReadKeptFilm(reading.Disk(), number);
  if (!kept) return NoEntry(invocation.Arguments[0], output);
  const store::FilmRecord now = reading.At(kept->Slot);
  if (invocation.Json) {
    Json json(output.Text);
    AddRow(*kept, now, json);
  } else {
    PrintOne(*kept, now, output.Text);
  }
  return Done;
}

void NoteRestored(const store::KeptFilm& kept, std::int64_t slot, const std::string& there, bool written,
                  std::ostream& text) {
  text << "Record " << slot << (written ? " holds " : " would hold ") << TitleOf(kept.Film) << " again, in place of "
       << there << ".\n"
       << (written ? SortAfterwards : NothingWritten);
}

// Where it would go, and what is there; "Bad record number" as for a write if the master file has no such slot.
int TellRestored(const Reading& reading, const store::KeptFilm& kept, bool free, Output& output) {
  const std::int64_t length = reading.Length();
  if (!free && (kept.Slot - 1) * store::RecordLength >= length)
    throw runtime::Failure{runtime::BadRecordNumber, std::string(store::MasterFileName)};
  if (free) {
    output.Text << "The first free record would hold " << TitleOf(kept.Film) << " again.\n" << NothingWritten;
  } else {
    NoteRestored(kept, kept.Slot, TitleOf(reading.At(kept.Slot)), false, output.Text);
  }
  return Done;
}

int WriteRestored(runtime::Disk& disk, const Reading& reading, store::KeptFilm kept, bool free, Output& output) {
  runtime::Files files(disk);
  if (!free) {
    const std::string there = TitleOf(reading.At(kept.Slot));
    store::PutBack(files, kept);
    NoteRestored(kept, kept.Slot, there, true, output.Text);
    return Done;
  }
  constexpr int MasterNo = 1;
  store::OpenMaster(files, MasterNo);
  const std::int64_t slot = store::FirstFreeSlot(files, MasterNo, 1);
  store::WriteRecord(files, MasterNo, slot, kept.Film);
  NoteRestored(kept, slot, "nothing", true, output.Text);
  return Done;
}

}  // namespace

int History(const Invocation& invocation, Output& output) {
  std::optional<std::int64_t> number;
  if (!invocation.Arguments.empty()) {
    number = WholeNumber(invocation.Arguments[0]);
    if (!number) return WrongUsage(invocation.Verb, output, invocation.Arguments[0] + " is no number");
  }
  const Reading reading(invocation);
  if (number) return ShowOne(reading, invocation, *number, output);
  if (std::int64_t entries = store::CountHistory(reading.Disk()); entries > LongestHistory) {
    output.Errors << "The history is damaged: it has " << entries << " entries.\n";
    return Found;
  }
  if (!invocation.Json) {
    PrintList(reading, output.Text);
    return Done;
  }
  Json json(output.Text);
  json.BeginList();
  store::EachKeptFilm(reading.Disk(), 0,
                      [&](const store::KeptFilm& kept) { AddRow(kept, reading.At(kept.Slot), json); });
  return Done;
}

int Restore(const Invocation& invocation, Output& output) {
  const std::optional<std::int64_t> number = WholeNumber(invocation.Arguments[0]);
  if (!number) return WrongUsage(invocation.Verb, output, invocation.Arguments[0] + " is no number");
  const Reading reading(invocation);
  const std::optional<store::KeptFilm> kept = store::ReadKeptFilm(reading.Disk(), *number);
  if (!kept) return NoEntry(invocation.Arguments[0], output);
  const bool free = invocation.Has("free");
  if (!invocation.Write) return TellRestored(reading, *kept, free, output);
  return WriteLocked(invocation, output,
                     [&](runtime::Disk& disk) { return WriteRestored(disk, reading, *kept, free, output); });
}

}  // namespace companion
