// The players of programs whose main function serves bare forms and widgets.
#pragma once

#include "tests/story/player.h"

namespace story {

// Makes players on the drawn widgets, without a display unless QT_QPA_PLATFORM names one. The toolkit starts with the
// first of them; the bare forms do not need it. argv must outlive the factory.
PlayerFactory WidgetPlayers(char** argv);

}  // namespace story
