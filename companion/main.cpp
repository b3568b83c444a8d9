// Entry point of reelora-history.
#include <iostream>

#include "companion/history_command.h"

int main(int argc, char** argv) { return companion::RunHistoryCommand({argv + 1, argv + argc}, std::cout, std::cerr); }
