// The length of the master file, the settings, and the safety folder.
#include "companion/folder_checks.h"

#include <algorithm>

#include "companion/fields.h"
#include "companion/printable.h"
#include "runtime/journal_block.h"
#include "runtime/text.h"
#include "store/draft.h"
#include "store/history.h"
#include "store/master_file.h"
#include "store/sort_pass.h"

namespace companion {
namespace {

constexpr std::int64_t LargestColour = 0xFFFFFF;

enum class Holds { YesOrNo, YesOrEmpty, Colour };

struct SettingRow {
  std::string_view Name;
  Holds What;
  bool MayBeMissing;
};

// clang-format off
constexpr SettingRow Settings[] = {
  { "AutoSave",    Holds::YesOrNo,    false },
  { "AutoSort",    Holds::YesOrEmpty, false },
  { "Fo1",         Holds::YesOrNo,    false },
  { "Fo",          Holds::YesOrNo,    true },
  { "BGColor",     Holds::Colour,     false },
  { "txtBGColor",  Holds::Colour,     false },
  { "txtForColor", Holds::Colour,     false },
  { "tagForColor", Holds::Colour,     false },
};
// clang-format on

bool IsRight(Holds what, std::string_view line) {
  if (what == Holds::Colour) {
    const std::optional<std::int64_t> colour = NumberIn(line);
    return colour && *colour <= LargestColour;
  }
  return line == "YES" || line == "NO" || (what == Holds::YesOrEmpty && line.empty());
}

void LookAtSetting(const SettingRow& row, std::string_view text, Findings& findings) {
  const std::string_view line = runtime::Trim(text.substr(0, text.find_first_of("\r\n")));
  if (IsRight(row.What, line)) return;
  const std::string name(row.Name);
  const std::string quoted = "\"" + Printable(line) + "\"";
  if (row.What == Holds::Colour) {
    findings.push_back({0, name, quoted + " is no colour", "Choose the colour again in the program."});
    return;
  }
  Finding finding{0, name, quoted + " is neither YES nor NO", "Choose it again in the program."};
  const std::string upper = runtime::Upper(line);
  if (IsRight(row.What, upper)) {
    finding.ToDo = "Capitals count.";
    finding.How = Mend{store::FilmField::Title, upper};
  }
  findings.push_back(std::move(finding));
}

void LookAtJournal(runtime::Disk& disk, Findings& findings) {
  const runtime::FoundJournal journal = runtime::ReadJournal(disk, store::MasterFileName, store::RecordLength);
  if (!journal.Block) return;
  findings.push_back({journal.Block->Slot, "journal", "a save of this record was cut off",
                      "The next start of the program, or a verb with --write, finishes it."});
}

void LookAtHistory(runtime::Disk& disk, Findings& findings) {
  const std::int64_t entries = store::CountHistory(disk);
  if (entries <= LongestHistory) return;
  findings.push_back({0, "history", "it has " + std::to_string(entries) + " entries",
                      "Nobody overwrites so many films. Move the file .reelora/history away."});
}

void LookAtDrafts(runtime::Disk& disk, Findings& findings) {
  const std::string safety(runtime::SafetyFolder);
  if (!runtime::CanBeListed(disk, safety)) {
    findings.push_back({0, safety, "the folder cannot be listed",
                        "It may hold films that were typed and not saved. Let your user account read it."});
    return;
  }
  for (const std::string& name : store::DraftNames(disk)) {
    const std::optional<store::Draft> draft = store::ReadDraft(disk, name);
    if (draft) {
      findings.push_back({draft->Slot, name, "\"" + TitleOf(draft->Film) + "\" was typed and not saved",
                          "The next start of the program asks about it; draft shows it."});
    } else {
      findings.push_back({0, name, "it is damaged", "Remove the file .reelora/" + name + "."});
    }
  }
}

}  // namespace

std::optional<std::string> ReadSmall(runtime::Disk& disk, std::string_view name) {
  constexpr std::int64_t Most = 1024 * 1024;
  try {
    const runtime::OpenFile file(disk, std::string(name), runtime::Disk::Mode::Read);
    std::string bytes(static_cast<std::size_t>(std::min(file.Length(), Most)), '\0');
    bytes.resize(file.Read(bytes.data(), bytes.size(), 0));
    return bytes;
  } catch (const runtime::Failure& failure) {
    if (failure.Name == runtime::FileNotFound) return std::nullopt;
    throw;
  }
}

sort::Weights ReadWeights(runtime::Disk& disk, Findings& findings) {
  sort::Weights weights;
  const std::optional<std::string> bytes = ReadSmall(disk, store::WeightsFile);
  if (bytes && bytes->size() == weights.size()) {
    std::copy(bytes->begin(), bytes->end(), weights.begin());
    return weights;
  }
  for (std::size_t at = 0; at < weights.size(); ++at) weights[at] = static_cast<unsigned char>(at);
  findings.push_back({0, std::string(store::WeightsFile), bytes ? "it is not 256 bytes long" : "the file is missing",
                      "Nothing can be sorted. Remove it, and open the collection with the command reelora."});
  return weights;
}

void CheckLength(const Reading& reading, Findings& findings) {
  const std::int64_t rest = reading.Length() % store::RecordLength;
  if (rest == 0) return;
  findings.push_back({reading.Slots(), std::string(store::MasterFileName),
                      Counted(rest, "byte") + " after the last whole record",
                      "They may be part of a film. Compare with a copy; the next film that is added goes there."});
}

void CheckSettings(runtime::Disk& disk, Findings& findings) {
  for (const SettingRow& row : Settings) {
    const std::optional<std::string> text = ReadSmall(disk, row.Name);
    if (text) {
      LookAtSetting(row, *text, findings);
    } else if (!row.MayBeMissing) {
      findings.push_back({0, std::string(row.Name), "the file is missing; the program does not start without it",
                          "Open the collection with the command reelora, which puts it there."});
    }
  }
}

void CheckSafetyFolder(runtime::Disk& disk, Findings& findings) {
  LookAtJournal(disk, findings);
  LookAtHistory(disk, findings);
  LookAtDrafts(disk, findings);
}

}  // namespace companion
