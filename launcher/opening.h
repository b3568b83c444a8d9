// Which collection is opened: the one that the command line names, the one that was open last, or one that the user
// chooses.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "launcher/arguments.h"
#include "launcher/places.h"
#include "launcher/preparation.h"

namespace launcher {

// What the user wants. New: a folder that becomes a collection if it is not one. Existing: the collection in a folder.
struct Choice {
  enum class What { New, Existing, Sample, Nothing };
  What For = What::Nothing;
  std::string Folder;  // an absolute path
};

struct Question {
  std::string Missing;             // the collection that was open last and cannot be found; "" for none
  std::vector<std::string> Known;  // collections that are there, the last one opened first
  std::string Suggested;           // a folder for a new one; "" for none
};

// How the launcher asks and informs the user; the desktop does it with windows. Texts are in UTF-8.
class Person {
 public:
  virtual ~Person() = default;
  // Which collection to open.
  virtual Choice Ask(const Question& question) = 0;
  // Whether to put a collection into a folder that has files, but no collection.
  virtual bool MayFill(const std::string& folder) = 0;
  virtual void Tell(const std::string& text) = 0;
};

// A folder that the program can start in. Notice: what went wrong without stopping the start, "" for nothing.
struct Opened {
  std::string Folder;
  std::string Notice;
};

// Finds the collection and prepares it. Nothing if the user wants none or has been told why it cannot be opened.
// CurrentFolder: what a relative path starts from.
std::optional<Opened> OpenCollection(const Arguments& arguments, const Places& places,
                                     const std::string& current_folder, std::chrono::local_seconds now, Person& person,
                                     const DiskIn& disk_in = RealDiskIn);

}  // namespace launcher
