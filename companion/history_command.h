// The companion command `reelora-history`: shows the films that were overwritten and puts one back.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace companion {

// Arguments: those behind the command's own name. Speaks UTF-8 to the two streams. The exit status: 0 done, 1 it could
// not be done, 2 the arguments are none.
int RunHistoryCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& complaints);

}  // namespace companion
