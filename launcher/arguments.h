// The command line of `reelora`.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace launcher {

// Last: the collection that was open last. Choose: the user is asked. Wrong: Text says what is wrong, in one line.
enum class Wish { Last, Choose, Folder, Sample, Help, Version, Wrong };

struct Arguments {
  Wish For = Wish::Last;
  std::string Folder;  // as given, never empty for Wish::Folder
  std::string Text;
};

extern const std::string_view Usage;

// Without the program's name. After "--" the name of a folder may begin with a dash.
Arguments ReadArguments(const std::vector<std::string>& arguments);

}  // namespace launcher
