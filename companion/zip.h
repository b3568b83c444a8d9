// Files in a zip, both in memory.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace companion {

using FilesByName = std::map<std::string, std::string>;

// Nothing if the library refuses.
std::optional<std::string> Zipped(const FilesByName& files);
// The entries whose names are wanted, the first of each name. Nothing if it is not a zip, is damaged, or has more than
// `most` bytes in them.
std::optional<FilesByName> Unzipped(std::string_view zip, const std::function<bool(std::string_view)>& wanted,
                                    std::size_t most);

}  // namespace companion
