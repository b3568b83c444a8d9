// A program in its own working folder, and a desk that answers at once and records requests.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/program.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/source_tree.h"
#include "tests/story/set_up.h"

class BrowsingDesk final : public kit::QuietDesk {
 public:
  // The answer to every input box.
  std::string Typed;
  // Called while a message box or an input box is open.
  std::function<void()> Watch = [] {};
  // The texts of the message boxes; "beep" for a beep.
  std::vector<std::string> Shown;

  std::string InputBox(std::string_view, std::string_view) override {
    Watch();
    return Typed;
  }
  void Beep() override { Shown.emplace_back("beep"); }

 private:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view text, forms::Buttons buttons) override {
    Watch();
    Shown.emplace_back(text);
    return buttons == forms::Buttons::YesNo ? forms::Answer::No : forms::Answer::Ok;
  }
};

class BrowsingTest : public testing::Test {
 protected:
  BrowsingTest() : world{fresh.Path()} { story::LayOutFolder(world, kit::DeliveredFolder()); }

  void SetUpLine(std::string_view line) { story::SetUp(world, story::ParseLine(line, 1), fresh.Path()); }
  frmPage1& Start() {
    program.reset();
    disk.emplace(fresh.Path());
    program.emplace(desk, *disk);
    program->StartRecordScreen();
    desk.Shown.clear();
    desk.Reported.clear();
    return program->RecordScreen;
  }
  void Click(forms::Control& control) {
    program->Deliver([&] { program->RecordScreen.UserClick(control); });
  }

  kit::FreshFolder fresh;
  story::World world;
  BrowsingDesk desk;
  std::optional<runtime::RealDisk> disk;
  std::optional<Program> program;
};
