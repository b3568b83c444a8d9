// The looks that all windows and boxes of the program share.
#pragma once

namespace desktop {

// Once, after the application object is made and before the first window.
void SetUpLook();

}  // namespace desktop
