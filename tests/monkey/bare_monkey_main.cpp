// The monkey without the toolkit: it plays on the bare forms only.
#include "tests/monkey/monkey_main.h"

int main(int argc, char** argv) { return monkey::RunMonkey(argc, argv, nullptr); }
