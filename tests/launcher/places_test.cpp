// Where things lie, whatever the environment says.
#include "launcher/places.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>

#include "tests/kit/fresh_folder.h"

namespace launcher {
namespace {

namespace fs = std::filesystem;

using Variables = std::map<std::string, std::string, std::less<>>;

Places Find(const Variables& variables, const std::string& executable = "/opt/bin/reelora") {
  auto value = [&](std::string_view name) {
    auto found = variables.find(name);
    return found == variables.end() ? std::string() : found->second;
  };
  return FindPlaces(executable, value, "/account");
}

TEST(FindPlaces, TakesTheFoldersOfTheDesktop) {
  Places places = Find({{"HOME", "/home/anna"}});
  EXPECT_EQ(places.Home, "/home/anna");
  EXPECT_EQ(places.Settings, "/home/anna/.config/reelora-prima");
  EXPECT_EQ(places.Sample, "/home/anna/.local/share/reelora-prima/sample");
  EXPECT_EQ(SuggestedCollection(places), "/home/anna/Film Collection");
}

TEST(FindPlaces, TakesTheFoldersThatVariablesName) {
  Places places = Find({{"HOME", "/home/anna"}, {"XDG_CONFIG_HOME", "/config"}, {"XDG_DATA_HOME", "/data"}});
  EXPECT_EQ(places.Settings, "/config/reelora-prima");
  EXPECT_EQ(places.Sample, "/data/reelora-prima/sample");
  Places relative = Find({{"HOME", "/home/anna"}, {"XDG_CONFIG_HOME", "config"}, {"XDG_DATA_HOME", "."}});
  EXPECT_EQ(relative.Settings, "/home/anna/.config/reelora-prima");
  EXPECT_EQ(relative.Sample, "/home/anna/.local/share/reelora-prima/sample");
}

TEST(FindPlaces, WithoutAHomeTakesThatOfTheAccount) {
  EXPECT_EQ(Find({}).Home, "/account");
  EXPECT_EQ(Find({{"HOME", ""}}).Home, "/account");
  EXPECT_EQ(Find({{"HOME", "anna"}}).Home, "/account");
}

TEST(FindPlaces, WithoutAnyHomeHasNone) {
  Places places = FindPlaces(
      "/opt/bin/reelora", [](std::string_view) { return std::string(); }, "");
  EXPECT_EQ(places.Settings, "");
  EXPECT_EQ(places.Sample, "");
  EXPECT_EQ(SuggestedCollection(places), "");
}

TEST(FindPlaces, TheProgramIsNextToTheCommand) {
  EXPECT_EQ(Find({{"PATH", "/elsewhere:."}}).Program, "/opt/bin/reelora-prima");
}

TEST(FindPlaces, FindsTheDeliveredFilesWhereTheyAreInstalled) {
  kit::FreshFolder prefix;
  fs::path delivered = prefix.Path() / "share/reelora-prima/delivered";
  fs::create_directories(delivered);
  fs::create_directories(prefix.Path() / "bin/delivered");
  EXPECT_EQ(Find({}, prefix.Path() / "bin/reelora").Delivered, delivered);
}

TEST(FindPlaces, FindsTheDeliveredFilesInTheBuildFolder) {
  kit::FreshFolder build;
  fs::path executable = build.Path() / "reelora";
  EXPECT_EQ(Find({}, executable).Delivered, "");
  fs::create_directory_symlink(fs::temp_directory_path(), build.Path() / "delivered");
  EXPECT_EQ(Find({}, executable).Delivered, build.Path() / "delivered");
}

TEST(ThisProgram, IsTheFileThatRuns) {
  const fs::path path = ThisProgram("elsewhere");
  EXPECT_TRUE(path.is_absolute());
  EXPECT_TRUE(fs::equivalent(path, "/proc/self/exe"));
}

}  // namespace
}  // namespace launcher
