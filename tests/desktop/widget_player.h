// Plays a story's actions on the drawn widgets, by key and mouse events. After each action it sees to it that every
// widget shows what its form says.
#pragma once

#include "desktop/stack_view.h"
#include "tests/story/player.h"

class QKeyEvent;

namespace story {

class WidgetPlayer final : public Player {
 public:
  // An application object must be there.
  explicit WidgetPlayer(Program& program);

  void Click(const std::string& name) override { ClickOn(name, false); }
  void DblClick(const std::string& name) override { ClickOn(name, true); }
  void Move(const std::string& name) override;
  void Pick(const std::string& list, const std::string& item) override;
  void Key(const std::string& key) override;
  void Type(const std::string& text) override;
  void Clear() override;
  void Close(const std::string& window) override;
  void Settle() override;
  void Picture(const std::string& path) override;
  void PagePicture(const runtime::PrintJob& job, std::size_t page, const std::string& path) override;
  void HelpPicture(const std::string& folder, int topic, const std::string& path) override;
  void FailurePicture(const runtime::Failure& failure, const std::string& path) override;
  void NoticePicture(const std::string& text, const std::string& buttons, const std::string& path) override;
  void WorkPicture(const std::string& work, int percent, const std::string& path) override;

 private:
  // The part of a control that gets mouse events; nullptr if it is not visible.
  QWidget* FaceOf(const forms::Control& control) const;
  void ClickOn(const std::string& name, bool twice);
  void ChooseFromMenu(const forms::MenuItem& item);
  void Press(int key, Qt::KeyboardModifiers modifiers, const QString& characters);
  void PressCharacter(char character);

  Program& program_;
  desktop::StackView view_;
};

}  // namespace story
