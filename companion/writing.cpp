#include "companion/writing.h"

#include "runtime/folder_lock.h"
#include "store/master_file.h"

namespace companion {

namespace {

// As by a start of the program, so that no verb takes half of a film for the whole. A missing file stays missing.
void FinishStoppedSave(runtime::Disk& disk) {
  constexpr int AnyNumber = 1;
  runtime::Files files(disk);
  try {
    files.Length(store::MasterFileName);
  } catch (const runtime::Failure& failure) {
    if (failure.Name == runtime::FileNotFound) return;
    throw;
  }
  store::OpenMaster(files, AnyNumber);
}

}  // namespace

int WriteLocked(const Invocation& invocation, Output& output, const std::function<int(runtime::Disk&)>& call) {
  const std::unique_ptr<runtime::Disk> disk = invocation.MakeDisk(invocation.Folder);
  disk->NewFilesLike(std::string(store::MasterFileName));
  const runtime::FolderLock lock(invocation.Folder);
  if (!lock.Held()) {
    output.Errors << "This collection is already open.\n";
    return Found;
  }
  FinishStoppedSave(*disk);
  return call(*disk);
}

}  // namespace companion
