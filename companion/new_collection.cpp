#include "companion/new_collection.h"

#include <filesystem>

#include "launcher/collection_folder.h"
#include "launcher/delivered_files.h"
#include "runtime/files.h"
#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace companion {

namespace fs = std::filesystem;

bool HasMasterFile(runtime::Disk& disk) {
  try {
    const runtime::OpenFile master(disk, std::string(store::MasterFileName), runtime::Disk::Mode::Read);
    return true;
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
    return false;
  }
}

bool MayBecomeCollection(const Invocation& invocation, Output& output) {
  const std::string& folder = invocation.Folder;
  std::error_code none;
  if (!fs::is_directory(folder, none)) {
    output.Errors << "There is no folder " << folder << ".\n";
    return false;
  }
  if (launcher::IsEmpty(folder) || launcher::IsCollection(folder)) return true;
  output.Errors << "The folder " << WholeName(folder)
                << " has other files in it, and no collection. A new collection needs an empty folder.\n";
  return false;
}

bool MakeCollection(runtime::Disk& disk, const Invocation& invocation, Output& output) {
  if (invocation.Delivered.empty()) {
    output.Errors << launcher::NoDeliveredFiles() << "\n";
    return false;
  }
  runtime::RealDisk delivered(invocation.Delivered);
  const std::string damaged = launcher::CompleteCollection(delivered, disk);
  if (!damaged.empty()) output.Errors << launcher::EmptyDeliveredFile(damaged) << "\n";
  constexpr int AnyNumber = 1;
  runtime::Files files(disk);
  store::OpenMaster(files, AnyNumber);
  return true;
}

std::string WholeName(const std::string& folder) {
  std::error_code error;
  const fs::path whole = fs::canonical(folder, error);
  return error ? folder : whole.string();
}

}  // namespace companion
