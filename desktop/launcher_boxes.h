// The windows of `reelora`. Each text goes to the standard error output, too, where it is all if there is no display.
#pragma once

#include <memory>
#include <string>

#include "launcher/opening.h"

class QApplication;

namespace desktop {

class LauncherBoxes final : public launcher::Person {
 public:
  LauncherBoxes();
  ~LauncherBoxes() override;

  // Whether a display is named, without opening it.
  static bool CanHaveDisplay();
  // Whether windows can be shown. Opens the display.
  bool HasDisplay();
  // Something was told.
  bool HasTold() const { return has_told_; }

  launcher::Choice Ask(const launcher::Question& question) override;
  bool MayFill(const std::string& folder) override;
  void Tell(const std::string& text) override;

 private:
  std::unique_ptr<QApplication> application_;
  bool has_told_ = false;
};

}  // namespace desktop
