// Plays on the bare forms, with no display: each action is an event of a window, delivered by the program.
#pragma once

#include <functional>
#include <string>

#include "tests/story/player.h"

namespace story {

class BarePlayer final : public Player {
 public:
  explicit BarePlayer(Program& program) : program_(program) {}

  void Click(const std::string& name) override;
  void DblClick(const std::string& name) override;
  void Move(const std::string& name) override;
  void Pick(const std::string& list, const std::string& item) override;
  void Key(const std::string& key) override;
  void Type(const std::string& text) override;
  void Clear() override;
  void Close(const std::string& window) override;

 private:
  // Runs an event on the window in front; nothing where no window is visible.
  void OnFront(const std::function<void(forms::Window&)>& event);

  Program& program_;
};

}  // namespace story
