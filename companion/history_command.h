// The companion command `reelora-history`: lists overwritten films and restores one.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace companion {

// Arguments: without the program name. Both streams are UTF-8. Returns the exit status: 0 done, 1 failed, 2 usage
// error.
int RunHistoryCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& errors);

}  // namespace companion
