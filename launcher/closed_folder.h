// A folder that its owner keeps private: which folder on the way to it is closed, and whose it is.
#pragma once

#include <string>

namespace launcher {

// What to say if this user may not open the folder, an absolute path: whole sentences, in UTF-8. "" if nothing on the
// way to it is closed, whether it exists or not.
std::string WhyClosed(const std::string& folder);

}  // namespace launcher
