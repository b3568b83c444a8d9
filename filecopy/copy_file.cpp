// Copies in blocks to a hidden file next to the target, syncs it and renames it.
#include "filecopy/copy_file.h"

#include <string_view>

#include "runtime/clock.h"
#include "runtime/failure.h"
#include "runtime/whole_io.h"

namespace filecopy {
namespace {

constexpr std::size_t BlockBytes = 256 * 1024;

void WriteAside(const runtime::OpenFile& source, runtime::Disk& target_disk, const std::string& aside) {
  runtime::OpenFile target(target_disk, aside, runtime::Disk::Mode::Create);
  target.Truncate(0);
  std::string block(BlockBytes, '\0');
  std::int64_t offset = 0;
  while (std::size_t read = source.Read(block.data(), block.size(), offset)) {
    target.Write(std::string_view(block).substr(0, read), offset);
    offset += static_cast<std::int64_t>(read);
  }
  target.Sync();
}

}  // namespace

Copied CopyFile(runtime::Disk& source_disk, const std::string& source_name, runtime::Disk& target_disk,
                const std::string& target_name) {
  runtime::OpenFile source(source_disk, source_name, runtime::Disk::Mode::Read);
  std::string aside = "." + target_name + std::string(runtime::AsideEnding);
  try {
    WriteAside(source, target_disk, aside);
    runtime::RetryInterrupted(target_name, [&] { return target_disk.Rename(aside, target_name); });
  } catch (const runtime::Failure&) {
    runtime::Discard(target_disk, aside);
    throw;
  }
  try {
    runtime::RetryInterrupted(target_name, [&] { return target_disk.SyncFolder(""); });
  } catch (const runtime::Failure&) {
    return Copied::Unconfirmed;  // the new file has the old one's name already
  }
  return Copied::Confirmed;
}

FileFacts FactsOf(runtime::Disk& disk, const std::string& name) {
  runtime::OpenFile file(disk, name, runtime::Disk::Mode::Read);
  return {runtime::LocalTime(runtime::Checked(disk.Modified(name), name)), file.Length()};
}

}  // namespace filecopy
