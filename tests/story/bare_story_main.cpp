// The story runner without the toolkit: plays stories on the bare forms only.
#include "tests/story/story_main.h"

int main(int argc, char** argv) { return story::RunStories(argc, argv, nullptr); }
