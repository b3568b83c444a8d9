// Completes a collection with the files that are delivered with the program.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/disk.h"

namespace launcher {

// A folder among the delivered files; it is not put into a collection.
inline constexpr std::string_view SampleFolder = "sample";

// In the safety folder: the checksums of the files that a delivery may bring up to date, as it installed them.
inline constexpr std::string_view DeliveryFile = "delivered";

// The checksums of help files that were delivered without such a record.
extern const std::vector<std::uint64_t> EarlierHelp;

inline constexpr std::string_view InstallAgain = "Install Reelora Prima again.";

// What to say if the delivered files cannot be found, or if one is empty.
std::string NoDeliveredFiles();
std::string EmptyDeliveredFile(const std::string& name);

// Puts every delivered file into the collection where it is missing or empty. UPPER.ALT and the help file are also
// replaced if they are still as an earlier delivery installed them; a file that was changed by hand stays. Returns the
// name of a delivered file that is empty and would be needed, "" if there is none. Throws the Failure that names the
// first file that could not be written; the ones before it are in place.
std::string CompleteCollection(runtime::Disk& delivered, runtime::Disk& collection,
                               const std::vector<std::uint64_t>& earlier_help = EarlierHelp);

}  // namespace launcher
