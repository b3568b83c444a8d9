#include "launcher/arguments.h"

#include <algorithm>

namespace launcher {

const std::string_view Usage =
    "Usage: reelora             opens the collection that was open last\n"
    "       reelora FOLDER      opens the collection in FOLDER; a new folder becomes one\n"
    "       reelora --choose    asks which collection to open\n"
    "       reelora --sample    opens a copy of the sample collection\n"
    "       reelora --help      prints this text\n"
    "       reelora --version   prints the version\n"
    "If the name of the folder begins with a dash, write -- before it.\n";

namespace {

struct Option {
  std::string_view Name;
  Wish For;
};

// clang-format off
constexpr Option Options[] = {
  { "--choose",  Wish::Choose },
  { "--sample",  Wish::Sample },
  { "--help",    Wish::Help },
  { "--version", Wish::Version },
};
// clang-format on

Arguments Wrong(const std::string& text) { return {Wish::Wrong, "", text}; }

}  // namespace

Arguments ReadArguments(const std::vector<std::string>& arguments) {
  Arguments read;
  bool options = true;
  for (const std::string& argument : arguments) {
    if (options && argument == "--") {
      options = false;
      continue;
    }
    Wish wish = Wish::Folder;
    if (options && argument.starts_with('-')) {
      const Option* option = std::ranges::find(Options, argument, &Option::Name);
      if (option == std::end(Options)) return Wrong("There is no option " + argument + ".");
      wish = option->For;
    }
    if (argument.empty()) return Wrong("The name of the folder is empty.");
    if (read.For != Wish::Last) return Wrong("Only one folder or one option can be given.");
    read.For = wish;
    if (wish == Wish::Folder) read.Folder = argument;
  }
  return read;
}

}  // namespace launcher
