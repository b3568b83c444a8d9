// The command `reelora`: prepares a collection and becomes the program on it. No shell comes between.
#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "desktop/launcher_boxes.h"
#include "desktop/launcher_notice.h"
#include "launcher/arguments.h"
#include "launcher/opening.h"
#include "launcher/places.h"
#include "launcher/reasons.h"
#include "runtime/clock.h"

namespace {

constexpr int Failed = 1;
constexpr int WrongUse = 2;

std::string VariableOf(std::string_view name) {
  const char* value = std::getenv(std::string(name).c_str());
  return value ? value : "";
}

std::string AccountHome() {
  const passwd* account = ::getpwuid(::getuid());
  return account && account->pw_dir ? account->pw_dir : "";
}

std::string CurrentFolder() {
  std::error_code none;
  return std::filesystem::current_path(none).string();
}

// Returns only if the program cannot be started.
void BecomeProgram(const std::string& program, const launcher::Opened& opened) {
  if (opened.Notice.empty())
    ::unsetenv(desktop::LauncherNoticeVariable);
  else
    ::setenv(desktop::LauncherNoticeVariable, opened.Notice.c_str(), 1);
  if (::chdir(opened.Folder.c_str()) != 0) return;
  std::string name = program;
  std::array<char*, 2> arguments{name.data(), nullptr};
  ::execv(program.c_str(), arguments.data());
}

int Open(const launcher::Arguments& arguments, const launcher::Places& places) {
  launcher::Opened opened;
  {
    desktop::LauncherBoxes boxes;
    if (!boxes.CanHaveDisplay()) {
      boxes.Tell("Reelora Prima needs a display for its windows, and there is none.");
      return Failed;
    }
    auto found = launcher::OpenCollection(arguments, places, CurrentFolder(), runtime::LocalTime(), boxes);
    if (!found) return boxes.HasTold() ? Failed : 0;
    opened = *found;
  }
  BecomeProgram(places.Program, opened);
  const int error = errno;
  desktop::LauncherBoxes().Tell("The program " + places.Program + " cannot be started in " + opened.Folder + ". " +
                                launcher::ReasonOf(error) + " If nothing else helps, install Reelora Prima again.");
  return Failed;
}

}  // namespace

int main(int argc, char** argv) {
  launcher::Arguments arguments = launcher::ReadArguments({argv + 1, argv + argc});
  switch (arguments.For) {
    case launcher::Wish::Help:
      return std::fputs(launcher::Usage.data(), stdout) < 0 ? Failed : 0;
    case launcher::Wish::Version:
      return std::puts("Reelora Prima " REELORA_VERSION) < 0 ? Failed : 0;
    case launcher::Wish::Wrong:
      desktop::LauncherBoxes().Tell(arguments.Text + " The command reelora --help lists what can be given.");
      return WrongUse;
    default:
      return Open(arguments, launcher::FindPlaces(launcher::ThisProgram(argv[0]), VariableOf, AccountHome()));
  }
}
