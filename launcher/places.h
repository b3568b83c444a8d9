// Where things lie for the user who starts the program.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace launcher {

// Absolute paths; "" if there is none.
struct Places {
  std::string Home;
  std::string Settings;   // the folder of the settings file
  std::string Sample;     // the user's copy of the sample collection
  std::string Delivered;  // the files that are delivered with the program
  std::string Program;    // reelora-prima
};

// The path of the running program, links resolved. Name: the word on the command line, used if the system does not
// tell.
std::string ThisProgram(const std::string& name);

// Where the files delivered with the program at that path are; "" if they are not there.
std::string DeliveredFiles(const std::string& executable);

// The value of an environment variable, "" if it is not set.
using Variable = std::function<std::string(std::string_view name)>;

// Executable: the path of this program. AccountHome: the home folder of the user's account, used if HOME is not set.
Places FindPlaces(const std::string& executable, const Variable& variable, const std::string& account_home);

// Where a first collection goes if the user wants no other place; "" without a home.
std::string SuggestedCollection(const Places& places);

}  // namespace launcher
