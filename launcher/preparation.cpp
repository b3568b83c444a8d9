// Each step says what it could not do, and the next one follows.
#include "launcher/preparation.h"

#include <array>
#include <charconv>
#include <filesystem>
#include <system_error>
#include <utility>

#include "launcher/copies.h"
#include "launcher/delivered_files.h"
#include "launcher/reasons.h"
#include "runtime/checksum.h"
#include "runtime/copy_file.h"
#include "runtime/folder_lock.h"
#include "runtime/whole_io.h"
#include "store/master_file.h"

namespace launcher {
namespace {

namespace fs = std::filesystem;

bool IsFolder(const std::string& path) {
  std::error_code none;
  return fs::is_directory(path, none);
}

// The permissions of another folder, so that copies are read by nobody else. Returns whether the folder is new.
bool MakeFolderLike(const std::string& folder, const std::string& model) {
  std::error_code error;
  bool made = fs::create_directory(folder, model, error);
  if (error) throw runtime::Failure{runtime::NameOfSystemError(error.value()), folder, error.value()};
  return made;
}

std::string MasterSeenFrom(const std::string& copies_folder, const std::string& folder) {
  std::error_code none;
  return fs::relative(fs::path(folder) / store::MasterFileName, copies_folder, none).string();
}

}  // namespace

std::string SecondCopiesName(const std::string& folder) {
  std::array<char, 16> digits{};
  auto end = std::to_chars(digits.data(), digits.data() + digits.size(), runtime::Checksum(folder) >> 32, 16).ptr;
  return fs::path(folder).filename().string() + " " + std::string(digits.data(), end);
}

std::unique_ptr<runtime::Disk> RealDiskIn(const std::string& folder, runtime::RealDisk::Links links) {
  return std::make_unique<runtime::RealDisk>(folder, links);
}

Preparation::Preparation(const Places& places, std::chrono::local_seconds now, Teller tell, DiskIn disk_in)
    : places_(places), now_(now), tell_(std::move(tell)), disk_in_(std::move(disk_in)) {
  ReadSettings();
}

std::unique_ptr<runtime::Disk> Preparation::DiskOf(const std::string& folder) const {
  return disk_in_(folder, runtime::RealDisk::Links::Followed);
}

void Preparation::Note(const std::string& text) { notice_ += (notice_.empty() ? "" : " ") + text; }

void Preparation::ReadSettings() {
  if (places_.Settings.empty()) return;
  try {
    known_ = ReadKnown(*DiskOf(places_.Settings));
    settings_read_ = true;
  } catch (const runtime::Failure& failure) {
    Note("The settings in " + places_.Settings + " cannot be read. " + ReasonOf(failure));
  }
}

void Preparation::Prepare(const std::string& folder) {
  runtime::FolderLock lock(folder);
  if (!lock.Held()) return;
  Complete(folder);
  KeepCopies(folder);
}

bool Preparation::PrepareSample(const std::string& folder) {
  runtime::FolderLock lock(folder);
  if (!lock.Held()) return true;
  if (!PutSample(folder)) return false;
  Complete(folder);
  return true;
}

bool Preparation::PutSample(const std::string& folder) {
  const std::string master(store::MasterFileName);
  std::error_code none;
  if (fs::exists(fs::path(folder) / master, none)) return true;
  try {
    const auto source = DiskOf(places_.Delivered + "/" + std::string(SampleFolder));
    const auto target = DiskOf(folder);
    runtime::CopyFile(*source, master, *target, master);
    return true;
  } catch (const runtime::Failure& failure) {
    tell_(failure.Name == runtime::FileNotFound
              ? "The sample that comes with Reelora Prima is missing. " + std::string(InstallAgain)
              : "The sample cannot be put into " + folder + ". " + ReasonOf(failure));
    return false;
  }
}

void Preparation::Complete(const std::string& folder) {
  if (places_.Delivered.empty()) return tell_(NoDeliveredFiles());
  try {
    const auto delivered = DiskOf(places_.Delivered);
    const auto collection = DiskOf(folder);
    collection->NewFilesLike(std::string(store::MasterFileName));
    if (std::string damaged = CompleteCollection(*delivered, *collection); !damaged.empty())
      tell_(EmptyDeliveredFile(damaged));
  } catch (const runtime::Failure& failure) {
    tell_("The file " + failure.File + " cannot be put into the collection in " + folder + ". " + ReasonOf(failure));
  }
}

void Preparation::KeepCopies(const std::string& folder) {
  CopyTo(folder, folder + "/" + std::string(CopiesFolder));
  const std::string& second = known_.CopiesFolder;
  if (second.empty()) return;
  if (!second.starts_with('/'))
    Note("The folder for second copies, " + second + ", must begin with a slash in " + places_.Settings + "/" +
         std::string(SettingsFile) + ".");
  else if (!IsFolder(second))
    Note("No second copy of the films was made: the folder " + second + " is not there.");
  else
    CopyTo(folder, second + "/" + SecondCopiesName(folder));
}

void Preparation::CopyTo(const std::string& folder, const std::string& copies_folder) {
  try {
    const auto collection = DiskOf(folder);
    if (!HasFilms(*collection)) return;
    if (MakeFolderLike(copies_folder, folder)) {
      const auto parent = DiskOf(fs::path(copies_folder).parent_path().string());
      runtime::RetryInterrupted(copies_folder, [&] { return parent->SyncFolder(""); });
    }
    const auto copies = disk_in_(copies_folder, runtime::RealDisk::Links::Refused);
    copies->NewFilesLike(MasterSeenFrom(copies_folder, folder));
    KeepCopy(*collection, *copies, now_);
  } catch (const runtime::Failure& failure) {
    Note("No copy of the films was made in " + copies_folder + ". " + ReasonOf(failure));
  }
}

void Preparation::Remember(const std::string& folder) {
  if (places_.Settings.empty()) return Note("There is no home folder, so this collection is not remembered.");
  if (!settings_read_) return;  // they must not be replaced; the notice says that they cannot be read
  try {
    KnownCollections known = known_;
    launcher::Remember(known, folder);
    if (known == known_) return;
    std::error_code error;
    fs::create_directories(places_.Settings, error);
    if (error) throw runtime::Failure{runtime::NameOfSystemError(error.value()), places_.Settings, error.value()};
    WriteKnown(*DiskOf(places_.Settings), known);
    known_ = known;
  } catch (const runtime::Failure& failure) {
    Note("This collection is not remembered in " + places_.Settings + ". " + ReasonOf(failure));
  }
}

}  // namespace launcher
