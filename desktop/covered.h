// What of a window lies under other controls, out of the user's sight.
#pragma once

namespace forms {
class Control;
}

namespace desktop {

// Whether less than half of the shown control is left by the controls that lie over it.
bool Covered(const forms::Control& control);

}  // namespace desktop
