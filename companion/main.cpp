// Entry point of reelora-collection.
#include <sys/ioctl.h>
#include <unistd.h>

#include <iostream>

#include "companion/command.h"
#include "launcher/places.h"

namespace {

// 0 if the standard output is no terminal.
int TerminalColumns() {
  if (!isatty(STDOUT_FILENO)) return 0;
  winsize size{};
  return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  companion::Output output{std::cout, std::cerr, std::cin};
  output.Columns = TerminalColumns();
  output.ShowsBars = isatty(STDERR_FILENO) != 0;
  const int status = companion::RunCommand({argv + 1, argv + argc}, output, companion::RealDiskIn,
                                           launcher::DeliveredFiles(launcher::ThisProgram(argv[0])));
  std::cout.flush();
  if (std::cout) return status;
  std::cerr << "The output could not be written.\n";
  return companion::Found;
}
