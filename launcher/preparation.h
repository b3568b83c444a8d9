// What is done to a collection before the program starts on it: it is completed, its films are copied, and it is
// remembered. Nothing that fails here stops the start.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "launcher/known_collections.h"
#include "launcher/places.h"
#include "runtime/disk.h"

namespace launcher {

// The disk of a folder.
using DiskIn = std::function<std::unique_ptr<runtime::Disk>(const std::string& folder, runtime::RealDisk::Links links)>;
std::unique_ptr<runtime::Disk> RealDiskIn(const std::string& folder, runtime::RealDisk::Links links);

class Preparation {
 public:
  using Teller = std::function<void(const std::string&)>;
  // Tell: says in a box what keeps the program from working.
  Preparation(const Places& places, std::chrono::local_seconds now, Teller tell, DiskIn disk_in);

  // The settings; empty if they cannot be read, which the notice says.
  const KnownCollections& Known() const { return known_; }

  // The folder must exist. If another run has locked it, it is left as it is.
  void Prepare(const std::string& folder);
  // The same for the sample, which gets its films and no copies. False if it has no films.
  bool PrepareSample(const std::string& folder);
  void Remember(const std::string& folder);

  // What went wrong without stopping the start, "" for nothing.
  const std::string& Notice() const { return notice_; }

 private:
  void Note(const std::string& text);
  void ReadSettings();
  bool PutSample(const std::string& folder);
  void Complete(const std::string& folder);
  void KeepCopies(const std::string& folder);
  void CopyTo(const std::string& folder, const std::string& copies_folder);
  std::unique_ptr<runtime::Disk> DiskOf(const std::string& folder) const;

  const Places& places_;
  std::chrono::local_seconds now_;
  Teller tell_;
  DiskIn disk_in_;
  KnownCollections known_;
  bool settings_read_ = false;
  std::string notice_;
};

// The name of a collection's folder among the second copies. Collections of the same name have different folders.
std::string SecondCopiesName(const std::string& folder);

}  // namespace launcher
