// The build gives the path to this file alone.
#include "tests/kit/source_tree.h"

namespace kit {

std::filesystem::path SourceFolder() { return REELORA_SOURCE; }

std::filesystem::path DeliveredFolder() { return SourceFolder() / "delivered"; }

std::filesystem::path SampleFile() { return DeliveredFolder() / "sample" / "Recpra.Dat"; }

}  // namespace kit
