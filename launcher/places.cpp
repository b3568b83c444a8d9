// Settings and data lie where the desktop's conventions put them, the delivered files beside the program.
#include "launcher/places.h"

#include <filesystem>

namespace launcher {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Name = "reelora-prima";

// The folder that the variable names; the conventions say that a relative one does not count.
std::string FolderOf(const std::string& named, const std::string& home, std::string_view below_home) {
  if (named.starts_with('/')) return named;
  return home.empty() ? "" : home + std::string(below_home);
}

std::string Below(const std::string& folder, std::string_view name) {
  return folder.empty() ? "" : folder + "/" + std::string(name);
}

}  // namespace

std::string ThisProgram(const std::string& name) {
  std::error_code error;
  const fs::path path = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::absolute(name, error).string() : path.string();
}

// Installed, or in the build folder. REELORA_DATA: from the folder of the programs to that of their data.
std::string DeliveredFiles(const std::string& executable) {
  const fs::path folder = fs::path(executable).parent_path();
  for (const fs::path& there : {folder / REELORA_DATA / Name / "delivered", folder / "delivered"}) {
    std::error_code none;
    if (fs::is_directory(there, none)) return there.lexically_normal().string();
  }
  return "";
}

Places FindPlaces(const std::string& executable, const Variable& variable, const std::string& account_home) {
  Places places;
  places.Home = variable("HOME");
  if (!places.Home.starts_with('/')) places.Home = account_home;
  places.Settings = Below(FolderOf(variable("XDG_CONFIG_HOME"), places.Home, "/.config"), Name);
  places.Sample = Below(Below(FolderOf(variable("XDG_DATA_HOME"), places.Home, "/.local/share"), Name), "sample");
  places.Delivered = DeliveredFiles(executable);
  places.Program = (fs::path(executable).parent_path() / Name).string();
  return places;
}

std::string SuggestedCollection(const Places& places) { return Below(places.Home, "Film Collection"); }

}  // namespace launcher
