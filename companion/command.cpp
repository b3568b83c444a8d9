// getopt_long of the C library reads the options, from the same tables that the help is printed from.
#include "companion/command.h"

#include <getopt.h>

#include <algorithm>
#include <iomanip>

#include "companion/verbs.h"
#include "runtime/failure.h"
#include "runtime/text.h"

namespace companion {
namespace {

constexpr std::string_view Program = "reelora-collection";

// clang-format off
constexpr Option FolderOption = { "collection", 'C', "FOLDER", "of the collection; the present folder by default" };
constexpr Option JsonOption   = { "json",       0,   nullptr,  "print JSON, for scripts" };
constexpr Option WriteOption  = { "write",      0,   nullptr,  "do it; without it, only tell what would be done" };
constexpr Option HelpOption   = { "help",       'h', nullptr,  "print this" };
// clang-format on

bool IsFor(const Option& option, std::string_view name) { return name == option.Name; }

const Verb* FindVerb(std::string_view name) {
  for (const Verb& verb : Verbs()) {
    if (verb.Name == name) return &verb;
  }
  return nullptr;
}

// Those before the verb, or those that a verb takes.
std::vector<Option> OptionsOf(const Verb* verb) {
  std::vector<Option> options;
  if (verb) options.assign(verb->Options.begin(), verb->Options.end());
  if (!verb || verb->Writes) options.push_back(WriteOption);
  options.insert(options.end(), {JsonOption, FolderOption, HelpOption});
  return options;
}

// One reading of a command line by getopt_long, whose state is global.
class OptionReader {
 public:
  // The first argument is passed over. in_front: stops at the first argument that is no option.
  OptionReader(std::vector<std::string> arguments, std::vector<Option> options, bool in_front)
      : arguments_(std::move(arguments)), options_(std::move(options)), letters_(in_front ? "+:" : ":") {
    for (std::string& argument : arguments_) pointers_.push_back(argument.data());
    for (std::size_t row = 0; row < options_.size(); ++row) {
      const Option& option = options_[row];
      const int takes = option.Argument ? required_argument : no_argument;
      rows_.push_back({option.Name, takes, nullptr, FirstRow + static_cast<int>(row)});
      if (!option.Letter) continue;
      letters_ += option.Letter;
      if (option.Argument) letters_ += ':';
    }
    rows_.push_back({nullptr, 0, nullptr, 0});
    pointers_.push_back(nullptr);
    optind = 0;
    opterr = 0;
  }

  // The next option; nullptr at the end and after a mistake.
  const Option* Next() {
    const int count = static_cast<int>(arguments_.size());
    const int read = getopt_long(count, pointers_.data(), letters_.c_str(), rows_.data(), nullptr);
    if (read == -1) return nullptr;
    if (read == '?' || read == ':') {
      const bool is_letter = optopt > 0 && optopt < FirstRow;
      const std::string about =
          is_letter ? std::string("-") + static_cast<char>(optopt) : pointers_[static_cast<std::size_t>(optind - 1)];
      mistake_ = about + (read == ':' ? " needs something after it" : " is no option, or takes nothing");
      return nullptr;
    }
    if (read >= FirstRow) return &options_[static_cast<std::size_t>(read - FirstRow)];
    return &*std::find_if(options_.begin(), options_.end(), [&](const Option& row) { return row.Letter == read; });
  }
  static std::string Value() { return optarg ? optarg : ""; }
  // "" if there was none.
  const std::string& Mistake() const { return mistake_; }
  // What follows the options.
  std::vector<std::string> Rest() const { return {pointers_.begin() + optind, pointers_.end() - 1}; }

 private:
  static constexpr int FirstRow = 256;  // past every letter
  std::vector<std::string> arguments_;
  std::vector<Option> options_;
  std::vector<char*> pointers_;
  std::vector<struct option> rows_;
  std::string letters_;
  std::string mistake_;
};

void PrintOptions(std::ostream& text, const std::vector<Option>& options) {
  text << "\nOptions:\n";
  for (const Option& option : options) {
    std::string names = option.Letter ? std::string("-") + option.Letter + ", " : "    ";
    names.append("--").append(option.Name);
    if (option.Argument) names.append(" ").append(option.Argument);
    text << "  " << std::left << std::setw(28) << names << option.Help << "\n";
  }
}

int PrintHelp(const Verb* verb, std::ostream& text) {
  if (verb) {
    text << "usage: " << Program << " " << verb->Name << " [OPTION]..." << (verb->Arguments.empty() ? "" : " ")
         << verb->Arguments << "\n\n"
         << runtime::Upper(verb->Help[0]) << verb->Help.substr(1) << ".\n"
         << verb->Details;
  } else {
    text << "usage: " << Program << " [-C FOLDER] VERB [OPTION]... [ARGUMENT]...\n\n"
         << "Works on a film collection without a window. VERB --help tells more of a verb.\n\nVerbs:\n";
    for (const Verb& row : Verbs()) text << "  " << std::left << std::setw(16) << row.Name << row.Help << "\n";
  }
  PrintOptions(text, OptionsOf(verb));
  text << "\nExit status: 0 done, 1 found something or could not, 2 usage.\n";
  return Done;
}

enum class Read { All, Help, Mistake };

Read ReadOptions(OptionReader& reader, Invocation& invocation) {
  while (const Option* option = reader.Next()) {
    if (IsFor(*option, HelpOption.Name)) return Read::Help;
    if (IsFor(*option, JsonOption.Name)) {
      invocation.Json = true;
    } else if (IsFor(*option, WriteOption.Name)) {
      invocation.Write = true;
    } else if (IsFor(*option, FolderOption.Name)) {
      invocation.Folder = OptionReader::Value();
    } else {
      invocation.Options.emplace_back(option->Name, OptionReader::Value());
    }
  }
  return reader.Mistake().empty() ? Read::All : Read::Mistake;
}

int RunVerb(const Verb& verb, const Invocation& invocation, Output& output) {
  if (invocation.Arguments.size() < verb.LeastArguments) {
    return WrongUsage(verb.Name, output, "it needs " + std::string(verb.Arguments));
  }
  if (invocation.Arguments.size() > verb.MostArguments) return WrongUsage(verb.Name, output, "too many arguments");
  if (invocation.Write && !verb.Writes) return WrongUsage(verb.Name, output, "it writes nothing");
  try {
    return verb.Run(invocation, output);
  } catch (const runtime::Failure& failure) {
    output.Errors << failure.Name << ": " << invocation.Folder << "/" << failure.File << "\n";
    return Found;
  }
}

}  // namespace

int WrongUsage(std::string_view verb, Output& output, std::string_view complaint) {
  const std::string command = std::string(Program) + (verb.empty() ? "" : " ") + std::string(verb);
  output.Errors << command << ": " << complaint << "; see " << command << " --help\n";
  return Usage;
}

int RunCommand(const std::vector<std::string>& arguments, Output& output, const DiskIn& make_disk,
               const std::string& delivered) {
  Invocation invocation;
  invocation.MakeDisk = make_disk;
  invocation.Delivered = delivered;
  std::vector<std::string> line = {std::string(Program)};
  line.insert(line.end(), arguments.begin(), arguments.end());
  OptionReader before(line, OptionsOf(nullptr), true);
  Read read = ReadOptions(before, invocation);
  if (read == Read::Help) return PrintHelp(nullptr, output.Text);
  if (read == Read::Mistake) return WrongUsage("", output, before.Mistake());
  line = before.Rest();
  if (line.empty()) return WrongUsage("", output, "which verb?");
  const Verb* verb = FindVerb(line[0]);
  if (!verb) return WrongUsage("", output, "there is no verb " + line[0]);
  invocation.Verb = line[0];
  OptionReader after(line, OptionsOf(verb), false);
  read = ReadOptions(after, invocation);
  if (read == Read::Help) return PrintHelp(verb, output.Text);
  if (read == Read::Mistake) return WrongUsage(verb->Name, output, after.Mistake());
  invocation.Arguments = after.Rest();
  return RunVerb(*verb, invocation, output);
}

}  // namespace companion
