// A desk that gives planned answers and keeps what it was asked.
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/kit/quiet_desk.h"

namespace kit {

class AnsweringDesk final : public QuietDesk {
 public:
  // Used front to back; after the last, Yes. An empty colour cancels the dialog.
  std::deque<forms::Answer> Answers;
  std::deque<std::optional<std::uint32_t>> Colours;
  // The folder of the disk in each drive; nothing if the drive is empty.
  std::map<char, std::optional<std::string>> Drives;

  std::vector<std::string> Boxes;
  std::vector<std::uint32_t> ColourStarts;
  std::vector<std::string> Copies;  // file, drive and bytes of each

  std::optional<std::uint32_t> ColourDialog(std::uint32_t start) override {
    ColourStarts.push_back(start);
    return TakeFront(Colours, std::optional<std::uint32_t>());
  }
  std::string DriveLetters() override {
    std::string letters;
    for (const auto& [letter, folder] : Drives) letters += letter;
    return letters;
  }
  std::optional<std::string> DriveFolder(char letter) override { return Drives[letter]; }
  void Copied(std::string_view file, char drive, std::int64_t bytes) override {
    Copies.push_back(std::string(file) + " " + drive + " " + std::to_string(bytes));
  }

 private:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view text, forms::Buttons buttons) override {
    Boxes.emplace_back(text);
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : TakeFront(Answers, forms::Answer::Yes);
  }

  template <typename Value>
  static Value TakeFront(std::deque<Value>& values, Value otherwise) {
    if (values.empty()) return otherwise;
    Value front = values.front();
    values.pop_front();
    return front;
  }
};

}  // namespace kit
