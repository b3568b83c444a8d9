// Settings and data lie where the desktop's conventions put them, the delivered files beside the program.
#include "launcher/places.h"

#include <filesystem>

namespace launcher {
namespace {

constexpr std::string_view Name = "reelora-prima";

// The folder that the variable names; the conventions say that a relative one does not count.
std::string FolderOf(const std::string& named, const std::string& home, std::string_view below_home) {
  if (named.starts_with('/')) return named;
  return home.empty() ? "" : home + std::string(below_home);
}

std::string Below(const std::string& folder, std::string_view name) {
  return folder.empty() ? "" : folder + "/" + std::string(name);
}

// Installed, or in the build folder. REELORA_DATA: from the folder of the programs to that of their data.
std::string DeliveredBeside(const std::filesystem::path& folder) {
  for (const std::filesystem::path& there : {folder / REELORA_DATA / Name / "delivered", folder / "delivered"}) {
    std::error_code none;
    if (std::filesystem::is_directory(there, none)) return there.lexically_normal().string();
  }
  return "";
}

}  // namespace

Places FindPlaces(const std::string& executable, const Variable& variable, const std::string& account_home) {
  Places places;
  const std::filesystem::path folder = std::filesystem::path(executable).parent_path();
  places.Home = variable("HOME");
  if (!places.Home.starts_with('/')) places.Home = account_home;
  places.Settings = Below(FolderOf(variable("XDG_CONFIG_HOME"), places.Home, "/.config"), Name);
  places.Sample = Below(Below(FolderOf(variable("XDG_DATA_HOME"), places.Home, "/.local/share"), Name), "sample");
  places.Delivered = DeliveredBeside(folder);
  places.Program = (folder / Name).string();
  return places;
}

std::string SuggestedCollection(const Places& places) { return Below(places.Home, "Film Collection"); }

}  // namespace launcher
