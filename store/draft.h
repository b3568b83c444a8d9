// Drafts: films that were being typed and have not been saved.
//
// A draft is a file of one length in the safety folder, `draft`; `draft2`, `draft3`, ... while the user has not decided
// about earlier ones. docs/safety.md has its layout.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "runtime/files.h"
#include "store/film_record.h"

namespace store {

struct Draft {
  std::int64_t Slot = 1;  // where a save puts the film, from 1
  bool IsNew = false;
  std::string Title;  // as typed; a draft keeps the first 64 bytes, more than a save uses
  FilmRecord Before;  // what the slot held when the film was opened; blanks past the end of the file
  FilmRecord Film;    // the boxes as a save takes them, the article still in front
};

// The film as a save writes it.
FilmRecord ToSave(const Draft& draft);
// Whether no field has any text.
bool IsBlank(const FilmRecord& film);

// Replaces the draft of that name, without a sync.
void WriteDraft(runtime::Disk& disk, const std::string& name, const Draft& draft);
// Nothing if there is no such file or if its length, mark, numbers or checksum are wrong. Other failures are thrown.
std::optional<Draft> ReadDraft(runtime::Disk& disk, const std::string& name);
void RemoveDraft(runtime::Disk& disk, const std::string& name);
// The names that drafts may have, of the files that there are.
std::vector<std::string> DraftNames(runtime::Disk& disk);
// The first name that no draft has; one that cannot be read keeps its name.
std::string FreeDraftName(runtime::Disk& disk);

// Whether the draft's slot holds exactly what a save would write there.
bool IsSaved(runtime::Files& files, const Draft& draft);
// Writes the film as safely as a save: into its slot if that is free or still holds the film that was opened, otherwise
// into the first free one or behind the last.
void KeepDraft(runtime::Files& files, const Draft& draft);

}  // namespace store
