// The delivered help file has a topic for every number that F1 can open, and no dead link.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "app/program.h"
#include "help/help_file.h"
#include "tests/kit/answering_desk.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/source_tree.h"

namespace {

std::string ReadWhole(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

help::HelpFile DeliveredHelp() {
  return help::ParseHelp(ReadWhole(kit::DeliveredFolder() / std::string(help::HelpFileName)));
}

// Who opens a topic, by its number.
using Askers = std::map<int, std::string>;

Askers AskedByControls() {
  kit::MemoryDisk disk(kit::Folder{});
  kit::AnsweringDesk desk;
  Program program(desk, disk);
  Askers askers;
  for (const forms::Window* window : program.Windows.All()) {
    for (const forms::Control* control : window->Controls()) {
      for (int number : {control->Ids.HelpId, control->Ids.TopicId}) {
        if (number != 0) askers[number] = control->Name;
      }
    }
  }
  return askers;
}

// Every number in a line of code that sets the help context or names a topic; handlers take the others from controls.
Askers AskedByHandlers() {
  Askers askers;
  const std::regex number("[1-9][0-9]*");
  for (const char* folder : {"screen", "browse", "find", "reports", "prefs", "filecopy", "opening"}) {
    for (const auto& entry : std::filesystem::directory_iterator(kit::SourceFolder() / folder)) {
      std::istringstream code(ReadWhole(entry.path()));
      for (std::string line; std::getline(code, line);) {
        std::size_t set = std::min(line.find("HelpContext = "), line.find("Topic = "));
        if (set == std::string::npos) continue;
        std::string value = line.substr(set);
        for (std::sregex_iterator found(value.begin(), value.end(), number), end; found != end; ++found)
          askers[std::stoi(found->str())] = entry.path().filename().string();
      }
    }
  }
  return askers;
}

TEST(DeliveredHelp, HasATopicForEveryControl) {
  help::HelpFile help = DeliveredHelp();
  Askers askers = AskedByControls();
  for (int known : {170, 400, 440, 260, 500, 17, 18, 603}) EXPECT_TRUE(askers.contains(known)) << known;
  for (const auto& [number, asker] : askers) EXPECT_NE(help.Find(number), nullptr) << number << " of " << asker;
}

TEST(DeliveredHelp, HasATopicForEveryContextThatAHandlerSets) {
  help::HelpFile help = DeliveredHelp();
  Askers askers = AskedByHandlers();
  for (int known : {150, 180}) EXPECT_TRUE(askers.contains(known)) << known;
  for (const auto& [number, asker] : askers) EXPECT_NE(help.Find(number), nullptr) << number << " in " << asker;
}

TEST(DeliveredHelp, NamesEachNumberAndEachTitleOnce) {
  std::set<int> numbers;
  std::set<std::string> titles;
  for (const help::HelpTopic& topic : DeliveredHelp().Topics) {
    EXPECT_TRUE(titles.insert(topic.Title).second) << topic.Title;
    EXPECT_FALSE(topic.Chapter.empty()) << topic.Title;
    EXPECT_FALSE(topic.Paragraphs.empty()) << topic.Title;
    EXPECT_FALSE(topic.Numbers.empty()) << topic.Title;
    for (int number : topic.Numbers) EXPECT_TRUE(numbers.insert(number).second) << number;
  }
}

TEST(DeliveredHelp, ItsLinksLeadToOtherTopics) {
  help::HelpFile help = DeliveredHelp();
  int links = 0;
  for (const help::HelpTopic& topic : help.Topics) {
    for (const help::HelpParagraph& paragraph : topic.Paragraphs) {
      for (const help::HelpPiece& piece : paragraph.Pieces) {
        if (piece.Link == 0) continue;
        ++links;
        EXPECT_NE(help.Find(piece.Link), nullptr) << topic.Title << ": " << piece.Text;
        EXPECT_NE(help.Find(piece.Link), &topic) << topic.Title << " leads to itself";
      }
    }
  }
  EXPECT_GE(links, 60);
}

}  // namespace
