// A user of the launcher with planned answers, in a home of its own.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "launcher/opening.h"
#include "tests/kit/fresh_folder.h"

namespace launcher {

class PlannedPerson final : public Person {
 public:
  std::deque<Choice> Choices;  // then Nothing
  bool Fills = false;

  std::vector<Question> Questions;
  std::vector<std::string> Filled, Told;

  Choice Ask(const Question& question) override {
    Questions.push_back(question);
    if (Choices.empty()) return {};
    Choice choice = Choices.front();
    Choices.pop_front();
    return choice;
  }
  bool MayFill(const std::string& folder) override {
    Filled.push_back(folder);
    return Fills;
  }
  void Tell(const std::string& text) override { Told.push_back(text); }
};

inline std::string ContentOf(const std::filesystem::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

inline void Put(const std::filesystem::path& path, const std::string& content) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << content;
}

inline const std::chrono::local_seconds Noon =
    std::chrono::local_days(
        std::chrono::year_month_day{std::chrono::year(2026), std::chrono::month(11), std::chrono::day(22)}) +
    std::chrono::hours(12);

// A home, and three delivered files with the sample.
struct LauncherHome {
  LauncherHome() {
    Put(Delivered / "AutoSave", "YES\r\n");
    Put(Delivered / "Reelora4.HLP", "help");
    Put(Delivered / "UPPER.ALT", "letters");
    Put(Delivered / "sample/Recpra.Dat", "sample films");
    std::filesystem::create_directory(Home);
    Where.Home = Home.string();
    Where.Settings = (Home / ".config/reelora-prima").string();
    Where.Sample = (Home / ".local/share/reelora-prima/sample").string();
    Where.Delivered = Delivered.string();
  }

  std::optional<Opened> Open(const Arguments& arguments = {}) {
    return OpenCollection(arguments, Where, Home.string(), Noon, User);
  }
  std::optional<Opened> OpenFolder(const std::string& folder) { return Open({Wish::Folder, folder, ""}); }

  void ExpectComplete(const std::filesystem::path& folder) const {
    for (const char* name : {"AutoSave", "Reelora4.HLP", "UPPER.ALT"})
      EXPECT_EQ(ContentOf(folder / name), ContentOf(Delivered / name)) << name << " in " << folder;
  }

  kit::FreshFolder Machine;
  const std::filesystem::path Home = Machine.Path() / "home";
  const std::filesystem::path Delivered = Machine.Path() / "delivered";
  const std::filesystem::path Settings = Home / ".config/reelora-prima/reelora.conf";
  Places Where;
  PlannedPerson User;
};

}  // namespace launcher
