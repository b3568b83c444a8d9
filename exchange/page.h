// The parts of the HTML page, which the build embeds from the files in page/.
#pragma once

#include <string_view>

namespace exchange {

extern const std::string_view PageFrame;  // with marks like {{films}} where the rest goes
extern const std::string_view PageStyle;
extern const std::string_view PageScript;

}  // namespace exchange
