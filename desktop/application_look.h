// The style and icon that all windows and boxes share.
#pragma once

namespace desktop {

// Call once, after creating the application object and before the first window.
void SetUpLook();

}  // namespace desktop
