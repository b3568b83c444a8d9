// export writes the films in another format, to the standard output or to a file.
#include <filesystem>

#include "companion/printable.h"
#include "companion/reading.h"
#include "companion/verbs.h"
#include "exchange/formats.h"
#include "runtime/clock.h"
#include "store/master_file.h"

namespace companion {
namespace {

namespace fs = std::filesystem;

// As told, else as the file name tells, else CSV; nullptr for an unknown one.
const exchange::Format* FormatOf(const Invocation& invocation) {
  if (const auto name = invocation.Value("format")) return exchange::FormatOf(*name);
  if (invocation.Json) return exchange::FormatOf("json");
  const exchange::Format* format = exchange::FormatOfFile(invocation.Value("output").value_or(""));
  return format ? format : exchange::FormatOf("csv");
}

// Formats write single values; the disk gets blocks.
void WriteInBlocks(const exchange::Format& format, const exchange::Collection& collection,
                   const runtime::OpenFile& file) {
  constexpr std::size_t BlockBytes = 256 * 1024;
  std::string block;
  std::int64_t written = 0;
  const auto flush = [&] {
    file.Write(block, written);
    written += static_cast<std::int64_t>(block.size());
    block.clear();
  };
  format.Write(collection, [&](std::string_view bytes) {
    block += bytes;
    if (block.size() >= BlockBytes) flush();
  });
  flush();
}

// A file that was there stays as it is until the new one is complete, which takes its permissions.
int WriteFile(const exchange::Format& format, const exchange::Collection& collection, const Invocation& invocation,
              const std::string& path, Output& output) {
  std::error_code none;
  if (!exchange::FormatOfFile(path) && fs::exists(fs::symlink_status(path, none))) {
    output.Errors << path << " is there already, and its name is not one of an export.\n";
    return Found;
  }
  const std::string folder = fs::path(path).parent_path(), name = fs::path(path).filename();
  const std::unique_ptr<runtime::Disk> disk = invocation.MakeDisk(folder.empty() ? "." : folder);
  disk->NewFilesLike(name);
  try {
    runtime::WriteAside(*disk, name, [&](const runtime::OpenFile& file) { WriteInBlocks(format, collection, file); });
    runtime::RetryInterrupted(name, [&] { return disk->SyncFolder(""); });
    return Done;
  } catch (const runtime::Failure& failure) {
    if (failure.File == store::MasterFileName) throw;  // it cannot be read
  }
  output.Errors << path << " cannot be written.\n";
  return Found;
}

}  // namespace

int Export(const Invocation& invocation, Output& output) {
  const exchange::Format* format = FormatOf(invocation);
  if (!format) return WrongUsage(invocation.Verb, output, *invocation.Value("format") + " is no format");
  const Reading reading(invocation);
  if (reading.Slots() > Reading::MaxSlots) return RefuseLength(reading, output);
  exchange::Collection collection;
  std::int64_t films = 0;
  collection.Each = [&, each = exchange::FilmsOf(reading.Disk())](const exchange::Visit& visit) {
    films = 0;
    each([&](std::int64_t number, const store::FilmRecord& film) {
      ++films;
      visit(number, film);
    });
  };
  collection.Look = exchange::ReadColours(reading.Disk());
  collection.When = runtime::LongDateText(runtime::LocalTime());
  const std::optional<std::string> path = invocation.Value("output");
  if (!path) {
    format->Write(collection, [&](std::string_view bytes) { output.Text << bytes; });
    return Done;
  }
  const int status = WriteFile(*format, collection, invocation, *path, output);
  if (status == Done) output.Text << Counted(films, "film") << " in " << *path << ".\n";
  return status;
}

}  // namespace companion
