// Checks that the widgets show what the forms say.
#pragma once

#include "desktop/stack_view.h"
#include "forms/window_stack.h"

namespace story {

// Throws Unplayable for the first widget that differs from its control.
void CheckDrawn(const forms::WindowStack& windows, const desktop::StackView& view);

}  // namespace story
