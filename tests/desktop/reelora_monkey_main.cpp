// The monkey: on the bare forms, or with --desktop on the drawn widgets beside them. Needs no display.
#include "tests/desktop/widget_players.h"
#include "tests/monkey/monkey_main.h"

int main(int argc, char** argv) { return monkey::RunMonkey(argc, argv, story::WidgetPlayers(argv)); }
