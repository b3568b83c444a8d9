// The line below a form that says what the program has done or is doing: a notice with its buttons, or how far long
// work is. It is there only while it has something to say, is read out by a screen reader, and never takes the focus.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "desktop/grid.h"

namespace desktop {

class NoticeLine final : public QFrame {
 public:
  struct Action {
    QString Caption;
    std::function<void()> Run;
  };

  // Changed: called after each change of what the line says.
  explicit NoticeLine(std::function<void()> changed);

  // Shows a notice over all others, in place of the one with the same key; at most two actions. A notice stays until
  // the user puts it away or it is cleared; then the one before it shows again.
  void Show(const QString& text, std::vector<Action> actions, const QString& key);
  // Shows over the notices how far long work is, from 0 to 1.
  void Progress(const QString& work, double done);
  void EndProgress();
  // Does nothing for an unknown key.
  void Clear(const QString& key);
  // Nothing to say.
  bool Empty() const { return notices_.empty() && !work_; }

  // Sets the font for the window's scale.
  void Scale(const Grid& grid);
  // In pixels at that width, 0 if empty.
  int HeightFor(int width) const;

  QString Text() const { return text_.text(); }
  // The button of that action of the shown notice, from 0.
  QPushButton& ActionButton(std::size_t action) { return *action_buttons_.at(action); }
  QToolButton& CloseButton() { return close_; }
  QProgressBar& Bar() { return bar_; }

 private:
  struct Notice {
    QString Text;
    std::vector<Action> Actions;
    QString Key;
  };
  struct Work {
    QString Text;
    double Done;
  };
  void Refresh();
  void Announce(const QString& text);
  void RunAction(std::size_t action);
  void Remove(const QString& key);

  std::function<void()> changed_;
  std::vector<Notice> notices_;  // the shown one last
  std::optional<Work> work_;
  QLabel text_;
  QProgressBar bar_;
  std::array<QPushButton*, 2> action_buttons_;
  QPushButton first_, second_;
  QToolButton close_;
};

}  // namespace desktop
