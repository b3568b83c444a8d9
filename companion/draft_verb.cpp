// draft shows what was typed and not saved, keeps it as the program does, or drops it.
#include "companion/differences.h"
#include "companion/printable.h"
#include "companion/reading.h"
#include "companion/verbs.h"
#include "companion/writing.h"
#include "runtime/clock.h"
#include "store/draft.h"

namespace companion {
namespace {

constexpr std::string_view NoDraft = "There is no film that was typed and not saved.\n";

struct NamedDraft {
  std::string Name;
  std::string When;  // local time of the last typing
  store::Draft Draft;
};

std::string TimeOf(runtime::Disk& disk, const std::string& name) {
  const runtime::OpenFile file(disk, runtime::InSafetyFolder(name), runtime::Disk::Mode::Read);
  return runtime::StampText(runtime::LocalTime(file.Modified().Seconds));
}

// Those that can be read, or the one of that name.
std::vector<NamedDraft> ReadDrafts(runtime::Disk& disk, const std::string& wanted) {
  std::vector<NamedDraft> drafts;
  for (const std::string& name : store::DraftNames(disk)) {
    if (!wanted.empty() && name != wanted) continue;
    std::optional<store::Draft> draft = store::ReadDraft(disk, name);
    if (draft) drafts.push_back({name, TimeOf(disk, name), *std::move(draft)});
  }
  return drafts;
}

void PrintDraft(const NamedDraft& draft, const store::FilmRecord& there, std::ostream& text) {
  text << draft.Name << ": " << TitleOf(store::ToSave(draft.Draft)) << ", "
       << (draft.Draft.IsNew ? "a new film for record " : "typed into record ") << draft.Draft.Slot << " until "
       << draft.When << ", and what stands there now:\n";
  PrintDifferences(store::ToSave(draft.Draft), there, text);
}

void AddDraft(const NamedDraft& draft, const store::FilmRecord& there, Json& json) {
  json.BeginObject();
  json.Add("name", draft.Name);
  json.Add("typedUntil", draft.When);
  json.Add("record", draft.Draft.Slot);
  json.AddTruth("new", draft.Draft.IsNew);
  json.Add("title", FieldText(store::ToSave(draft.Draft), store::FilmField::Title));
  AddDifferences(store::ToSave(draft.Draft), "typed", there, "isNow", json);
  json.End();
}

int Show(const Reading& reading, const std::vector<NamedDraft>& drafts, const Invocation& invocation, Output& output) {
  if (invocation.Json) {
    Json json(output.Text);
    json.BeginList();
    for (const NamedDraft& draft : drafts) AddDraft(draft, reading.At(draft.Draft.Slot), json);
    return Done;
  }
  for (const NamedDraft& draft : drafts) PrintDraft(draft, reading.At(draft.Draft.Slot), output.Text);
  return Done;
}

void Drop(runtime::Disk& disk, const std::string& name) {
  const std::string file = runtime::InSafetyFolder(name);
  runtime::RetryInterrupted(file, [&] { return disk.Remove(file); });
  runtime::RetryInterrupted(file, [&] { return disk.SyncFolder(std::string(runtime::SafetyFolder)); });
}

// A draft is removed only once its film is saved; if it then stays, it does no harm.
void Keep(runtime::Disk& disk, const NamedDraft& draft) {
  runtime::Files files(disk);
  if (!store::IsSaved(files, draft.Draft)) store::KeepDraft(files, draft.Draft);
  store::RemoveDraft(disk, draft.Name);
}

int SettleAll(runtime::Disk& disk, const std::vector<NamedDraft>& drafts, const Invocation& invocation,
              Output& output) {
  const bool keep = invocation.Has("keep");
  std::optional<Json> json;
  if (invocation.Json) json.emplace(output.Text).BeginList();
  for (const NamedDraft& draft : drafts) {
    if (keep)
      Keep(disk, draft);
    else
      Drop(disk, draft.Name);
    const store::FilmRecord film = store::ToSave(draft.Draft);
    if (!json) {
      output.Text << draft.Name << ": " << TitleOf(film) << (keep ? " was saved.\n" : " was dropped.\n");
      continue;
    }
    json->BeginObject();
    json->Add("name", draft.Name);
    json->Add("title", FieldText(film, store::FilmField::Title));
    json->AddTruth("saved", keep);
    json->End();
  }
  if (keep && !json) output.Text << SortAfterwards;
  return Done;
}

}  // namespace

int Draft(const Invocation& invocation, Output& output) {
  const bool keep = invocation.Has("keep"), drop = invocation.Has("drop");
  if (keep && drop) return WrongUsage(invocation.Verb, output, "keep it or drop it");
  if (invocation.Write && !keep && !drop)
    return WrongUsage(invocation.Verb, output, "--write goes with --keep or --drop");
  const Reading reading(invocation);
  const std::string safety(runtime::SafetyFolder);
  if (!runtime::CanBeListed(reading.Disk(), safety)) return RefuseFolder(invocation.Folder + "/" + safety, output);
  if (keep && reading.Slots() > Reading::MaxSlots) return RefuseLength(reading, output);
  const std::string wanted = invocation.Arguments.empty() ? "" : invocation.Arguments[0];
  const std::vector<NamedDraft> drafts = ReadDrafts(reading.Disk(), wanted);
  if (drafts.empty() && (invocation.Write || !wanted.empty())) {
    output.Errors << NoDraft;
    return Found;
  }
  if (drafts.empty() && !invocation.Json) output.Text << NoDraft;
  if (!invocation.Write) {
    Show(reading, drafts, invocation, output);
    if ((keep || drop) && !drafts.empty() && !invocation.Json) output.Text << NothingWritten;
    return Done;
  }
  return WriteLocked(invocation, output,
                     [&](runtime::Disk& disk) { return SettleAll(disk, drafts, invocation, output); });
}

}  // namespace companion
