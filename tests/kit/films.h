// Generated films, and a folder of them.
#pragma once

#include <string>

#include "screen/frmPage1.h"
#include "tests/kit/memory_disk.h"

namespace kit {

// A film of the slot; every byte of its long fields differs between two versions.
std::string FilmBytes(int slot, int version);
// The films of those slots in version 0.
std::string Films(int first, int last);
// Types that film into the boxes of an open record.
void TypeFilm(frmPage1& screen, int slot, int version);
// The files that a start needs, as delivered, and a master file of that many films in version 0, with `behind` after
// them.
Folder FolderOfFilms(int films, const std::string& behind = "");

}  // namespace kit
