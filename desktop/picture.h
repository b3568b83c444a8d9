// A picture of a drawn window.
#pragma once

#include <string>

class QWidget;

namespace desktop {

// Saves it as a PNG file; false where the file cannot be written.
bool SavePicture(QWidget& window, const std::string& path);

}  // namespace desktop
