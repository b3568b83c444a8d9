// A desk that answers the question about a draft, and keeps what it was asked and told.
#pragma once

#include <string>
#include <vector>

#include "tests/kit/quiet_desk.h"

namespace kit {

class DraftDesk final : public QuietDesk {
 public:
  forms::DraftAnswer Draft = forms::DraftAnswer::Later;
  forms::Answer Question = forms::Answer::Yes;
  std::vector<std::string> Asked;  // titles
  std::vector<std::string> Notices;

  forms::DraftAnswer AskDraft(std::string_view title) override {
    Asked.emplace_back(title);
    return Draft;
  }
  void Notice(std::string_view text) override { Notices.emplace_back(text); }

 protected:
  forms::Answer AskMessageBox(forms::Icon, std::string_view, std::string_view, forms::Buttons buttons) override {
    return buttons == forms::Buttons::Ok ? forms::Answer::Ok : Question;
  }
};

}  // namespace kit
