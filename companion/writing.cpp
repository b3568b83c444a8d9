#include "companion/writing.h"

#include "runtime/folder_lock.h"
#include "store/master_file.h"

namespace companion {

int WriteLocked(const Invocation& invocation, Output& output, const std::function<int(runtime::Disk&)>& call) {
  const std::unique_ptr<runtime::Disk> disk = invocation.MakeDisk(invocation.Folder);
  disk->NewFilesLike(std::string(store::MasterFileName));
  const runtime::FolderLock lock(invocation.Folder);
  if (lock.Held()) return call(*disk);
  output.Errors << "This collection is already open.\n";
  return Found;
}

void FinishStoppedSave(runtime::Disk& disk) {
  constexpr int AnyNumber = 1;
  runtime::Files files(disk);
  store::OpenMaster(files, AnyNumber);
}

}  // namespace companion
