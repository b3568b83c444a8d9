// What a verb of `reelora-collection` receives and returns: the command line as parsed, and streams in place of a
// terminal, so that tests run verbs in process. All texts are UTF-8.
#pragma once

#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/disk.h"

namespace companion {

// Exit statuses. Found: found something, or could not do it.
inline constexpr int Done = 0;
inline constexpr int Found = 1;
inline constexpr int Usage = 2;

// Makes the disk of a folder; tests supply their own.
using DiskIn = std::function<std::unique_ptr<runtime::Disk>(const std::string& folder)>;
std::unique_ptr<runtime::Disk> RealDiskIn(const std::string& folder);

struct Output {
  std::ostream& Text;
  std::ostream& Errors;
  std::istream& Answers;   // to questions
  int Columns = 0;         // of the terminal that Text goes to; 0 if it goes elsewhere
  bool ShowsBars = false;  // Errors goes to a terminal
};

struct Invocation {
  std::string Verb;
  std::string Folder = ".";  // of the collection
  bool Json = false;
  bool Write = false;
  std::vector<std::string> Arguments;                        // without options
  std::vector<std::pair<std::string, std::string>> Options;  // of the verb, by long name, in the order given
  DiskIn MakeDisk = RealDiskIn;
  std::string Delivered;  // the folder of the files that are delivered with the program; "" if it is not there

  bool Has(std::string_view option) const;
  // The last one given.
  std::optional<std::string> Value(std::string_view option) const;
  std::vector<std::string> Values(std::string_view option) const;
};

struct Option {
  const char* Name;      // --NAME
  char Letter;           // -L; 0 if it has none
  const char* Argument;  // how the help names its value; nullptr if it takes none
  const char* Help;
};

struct Verb {
  std::string_view Name;
  std::string_view Arguments;  // as the help shows them
  std::string_view Help;       // one line
  std::string_view Details;    // of its own help; may be empty
  std::span<const Option> Options;
  std::size_t LeastArguments, MostArguments;
  bool Writes;  // accepts --write
  int (*Run)(const Invocation& invocation, Output& output);
};

inline constexpr std::size_t AnyNumber = std::size_t(-1);

// Complains and returns Usage.
int WrongUsage(std::string_view verb, Output& output, std::string_view complaint);
// Says that the folder cannot be listed; returns Found.
int RefuseFolder(const std::string& folder, Output& output);

}  // namespace companion
