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

// A film that goes back, or would.
struct Restored {
  const store::FilmRecord& Film;
  std::int64_t Record = 0;
  store::FilmRecord There;  // before
  bool Written = false;
};

int Tell(const Restored& restored, const Invocation& invocation, Output& output) {
  if (invocation.Json) {
    Json json(output.Text);
    json.BeginObject();
    json.Add("record", restored.Record);
    json.Add("title", FieldText(restored.Film, store::FilmField::Title));
    json.Add("inPlaceOf", FieldText(restored.There, store::FilmField::Title));
    json.AddTruth("written", restored.Written);
    return Done;
  }
  output.Text << "Record " << restored.Record << (restored.Written ? " holds " : " would hold ")
              << TitleOf(restored.Film) << " again, in place of " << TitleOf(restored.There) << ".\n"
              << (restored.Written ? SortAfterwards : NothingWritten);
  return Done;
}

std::int64_t FreeRecord(const Reading& reading) {
  std::int64_t free = 0;
  reading.EachSlot([&](const NumberedFilm& film) {
    if (free == 0 && !HasTitle(film.Film)) free = film.Number;
  });
  return free > 0 ? free : reading.Slots() + 1;
}

// "Bad record number" as for a write if the master file has no such slot.
int TellRestored(const Reading& reading, const store::KeptFilm& kept, const Invocation& invocation, Output& output) {
  const std::int64_t record = invocation.Has("free") ? FreeRecord(reading) : kept.Slot;
  if (!invocation.Has("free") && (record - 1) * store::RecordLength >= reading.Length())
    throw runtime::Failure{runtime::BadRecordNumber, std::string(store::MasterFileName)};
  return Tell({kept.Film, record, reading.At(record), false}, invocation, output);
}

int WriteRestored(runtime::Disk& disk, const store::KeptFilm& kept, const Invocation& invocation, Output& output) {
  constexpr int MasterNo = 1;
  runtime::Files files(disk);
  store::OpenMaster(files, MasterNo);
  Restored restored{kept.Film, kept.Slot, {}, true};
  if (invocation.Has("free")) restored.Record = store::FirstFreeSlot(files, MasterNo, 1);
  store::ReadRecord(files, MasterNo, restored.Record, restored.There);
  if (invocation.Has("free")) {
    store::WriteRecord(files, MasterNo, restored.Record, kept.Film);
  } else {
    store::PutBack(files, kept);
  }
  return Tell(restored, invocation, output);
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
  if (invocation.Has("free") && reading.Slots() > Reading::MaxSlots) return RefuseLength(reading, output);
  if (!invocation.Write) return TellRestored(reading, *kept, invocation, output);
  return WriteLocked(invocation, output,
                     [&](runtime::Disk& disk) { return WriteRestored(disk, *kept, invocation, output); });
}

}  // namespace companion
