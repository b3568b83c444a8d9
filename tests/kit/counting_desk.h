// A desk that answers OK or No and keeps what it was asked, in the trace of a window's events too.
#pragma once

#include <string>
#include <vector>

#include "tests/kit/quiet_desk.h"

namespace kit {

class CountingDesk final : public QuietDesk {
 public:
  explicit CountingDesk(std::vector<std::string>& trace) : trace_(trace) {}

  int Beeps = 0;
  std::vector<int> HelpTopics;

  void Beep() override {
    ++Beeps;
    trace_.emplace_back("beep");
  }
  void Help(int topic) override {
    HelpTopics.push_back(topic);
    trace_.push_back("help " + std::to_string(topic));
  }

 private:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view text, forms::Buttons buttons) override {
    trace_.push_back("box " + std::string(text));
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : forms::Answer::No;
  }

  std::vector<std::string>& trace_;
};

}  // namespace kit
