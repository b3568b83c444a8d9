// Copies of a whole collection: a folder that is a collection itself, or a zip of its files. The copies that the
// command reelora makes before each start contain the films only; they are in the same folder, `backups`.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "companion/verb.h"
#include "companion/zip.h"

namespace companion {

// Larger collections are refused: a copy is held in memory.
inline constexpr std::size_t LargestCopy = std::size_t{512} * 1024 * 1024;

// Whether a copy includes a file of that name.
bool BelongsToCollection(std::string_view name);
// Reads those files of a folder, the films as a start of the program would leave them. Nothing if they are larger than
// LargestCopy.
std::optional<FilesByName> ReadCollection(runtime::Disk& disk);

// The folder of the copies.
std::string CopiesIn(const std::string& collection);

enum class CopyKind { Films, Folder, Zip };
struct NamedCopy {
  std::string Name;
  CopyKind Kind = CopyKind::Films;
  std::chrono::local_seconds When;
};
// The copy that has that name in the folder; nothing if it is not the name of a copy.
std::optional<NamedCopy> CopyOfName(const std::string& name);
// The oldest first.
std::vector<NamedCopy> ListCopies(runtime::Disk& copies);

struct NewCopy {
  std::optional<std::string> Name;  // nothing if it cannot be zipped or read back, or has not been written
  bool IsBusy = false;              // another run is writing a copy into the folder; nothing has been written
};
// Writes a new copy, synced and read back; until then no other run can write one there. A stop leaves a folder or a zip
// that is marked as unfinished by a name that ends in .new; the next copy removes both. No file is more readable than
// the collection's films.
NewCopy WriteCopy(const Invocation& invocation, const std::string& folder, const FilesByName& files, CopyKind kind);

// The files of a copy or of another collection. Name: of a copy in the collection's folder of copies, or the path of a
// folder, a zip or a file of films. Nothing if it cannot be read.
std::optional<FilesByName> ReadOther(const Invocation& invocation, const std::string& name);

}  // namespace companion
