// minizip (libminizip-dev), which the imports use too, on bytes in memory: so a zip is written and read through the
// disk like any other file. It reads an entry as a stream, so a zip that claims any length takes no memory for it.
#include "companion/zip.h"

#include <minizip/unzip.h>
#include <minizip/zip.h>

#include <algorithm>
#include <array>
#include <memory>

namespace companion {
namespace {

struct Memory {
  std::string Bytes;
  std::size_t At = 0;
};

voidpf Open(voidpf memory, const void*, int) { return memory; }

uLong Read(voidpf, voidpf stream, void* target, uLong count) {
  Memory& memory = *static_cast<Memory*>(stream);
  if (memory.At >= memory.Bytes.size()) return 0;
  const std::size_t read = memory.Bytes.copy(static_cast<char*>(target), count, memory.At);
  memory.At += read;
  return read;
}

uLong Write(voidpf, voidpf stream, const void* source, uLong count) {
  Memory& memory = *static_cast<Memory*>(stream);
  memory.Bytes.resize(std::max<std::size_t>(memory.Bytes.size(), memory.At + count));
  std::copy_n(static_cast<const char*>(source), count, memory.Bytes.data() + memory.At);
  memory.At += count;
  return count;
}

ZPOS64_T Tell(voidpf, voidpf stream) { return static_cast<Memory*>(stream)->At; }

long Seek(voidpf, voidpf stream, ZPOS64_T offset, int from) {
  Memory& memory = *static_cast<Memory*>(stream);
  const std::size_t start = from == ZLIB_FILEFUNC_SEEK_SET   ? 0
                            : from == ZLIB_FILEFUNC_SEEK_CUR ? memory.At
                                                             : memory.Bytes.size();
  if (offset > memory.Bytes.size() || start + offset > memory.Bytes.size()) return -1;
  memory.At = start + offset;
  return 0;
}

int Close(voidpf, voidpf) { return 0; }
int Error(voidpf, voidpf) { return 0; }

zlib_filefunc64_def CallsFor(Memory& memory) { return {Open, Read, Write, Tell, Seek, Close, Error, &memory}; }

bool AddFile(zipFile zip, const std::string& name, const std::string& bytes) {
  const zip_fileinfo info{};
  if (zipOpenNewFileInZip64(zip, name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 6, 0) != ZIP_OK)
    return false;
  const bool written = zipWriteInFileInZip(zip, bytes.data(), static_cast<unsigned>(bytes.size())) == ZIP_OK;
  return zipCloseFileInZip(zip) == ZIP_OK && written;
}

struct CloseZip {
  void operator()(void* zip) const { unzClose(zip); }
};

// The name and the claimed length of the current entry; "" if the name is missing or long.
struct Entry {
  std::string Name;
  std::uint64_t Length = 0;
};

Entry EntryOf(unzFile zip) {
  std::array<char, 64> name{};
  unz_file_info64 info{};
  if (unzGetCurrentFileInfo64(zip, &info, name.data(), name.size(), nullptr, 0, nullptr, 0) != UNZ_OK) return {};
  return {info.size_filename < name.size() ? std::string(name.data()) : "", info.uncompressed_size};
}

// Appends the current entry; false if it is damaged or longer than `most`. The library compares the checksum only of an
// entry that is as long as claimed.
bool ReadEntry(unzFile zip, const Entry& entry, std::string& bytes, std::size_t most) {
  if (entry.Length > most || unzOpenCurrentFile(zip) != UNZ_OK) return false;
  std::array<char, 64 * 1024> block{};
  int read = 0;
  while ((read = unzReadCurrentFile(zip, block.data(), block.size())) > 0 && bytes.size() <= entry.Length) {
    bytes.append(block.data(), static_cast<std::size_t>(read));
  }
  return unzCloseCurrentFile(zip) == UNZ_OK && read == 0 && bytes.size() == entry.Length;
}

}  // namespace

std::optional<std::string> Zipped(const FilesByName& files) {
  Memory memory;
  zlib_filefunc64_def calls = CallsFor(memory);
  zipFile zip = zipOpen2_64("", APPEND_STATUS_CREATE, nullptr, &calls);
  if (!zip) return std::nullopt;
  const bool added =
      std::all_of(files.begin(), files.end(), [&](const auto& file) { return AddFile(zip, file.first, file.second); });
  if (zipClose(zip, nullptr) != ZIP_OK || !added) return std::nullopt;
  return std::move(memory.Bytes);
}

std::optional<FilesByName> Unzipped(std::string_view bytes, const std::function<bool(std::string_view)>& wanted,
                                    std::size_t most) {
  Memory memory{std::string(bytes)};
  zlib_filefunc64_def calls = CallsFor(memory);
  const std::unique_ptr<void, CloseZip> zip(unzOpen2_64("", &calls));
  if (!zip) return std::nullopt;
  FilesByName files;
  std::size_t total = 0;
  int next = unzGoToFirstFile(zip.get());
  for (; next == UNZ_OK; next = unzGoToNextFile(zip.get())) {
    const Entry entry = EntryOf(zip.get());
    if (!wanted(entry.Name) || files.contains(entry.Name)) continue;
    std::string& file = files[entry.Name];
    if (!ReadEntry(zip.get(), entry, file, most - total)) return std::nullopt;
    total += file.size();
  }
  if (next != UNZ_END_OF_LIST_OF_FILE) return std::nullopt;
  return files;
}

}  // namespace companion
