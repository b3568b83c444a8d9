// The story runner: plays stories on the bare forms, or with --desktop on the drawn widgets. Needs no display.
#include "tests/desktop/widget_players.h"
#include "tests/story/story_main.h"

int main(int argc, char** argv) { return story::RunStories(argc, argv, story::WidgetPlayers(argv)); }
