// The menu bar of a window, made from its menu lines.
#pragma once

#include <QMenuBar>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/grid.h"
#include "forms/window.h"

namespace desktop {

class MenuView final : public QObject {
 public:
  using Told = std::function<void(forms::MenuItem&)>;
  // Chosen gets the menu line that the user has chosen; helped gets the line of the bar whose menu F1 was pressed in;
  // left is told when the bar has done with the keys.
  MenuView(forms::Window& window, QWidget& parent, const Told& chosen, Told helped, std::function<void()> left);

  QMenuBar& Bar() { return bar_; }
  bool Empty() const { return actions_.empty(); }
  // Captions, visible and enabled state as the form has them.
  void Sync();
  // Letters of the size that the window's scale gives them.
  void Scale(const Grid& grid);
  // Whether the user walks the bar with the keys.
  bool Walked() const { return bar_.hasFocus() && bar_.activeAction(); }
  // As Alt and its letter do; nothing for a line without items.
  void Open(const forms::MenuItem& item);
  QAction* ActionOf(const forms::MenuItem& item) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Line {
    forms::MenuItem* Item;
    QAction* Action;
    unsigned Seen;
  };
  QMenu& MenuFor(QAction& action);
  forms::MenuItem* ActiveItem() const;

  bool AskedForHelp();
  void PassKeysOn();

  Told helped_;
  std::function<void()> left_;
  QMenuBar bar_;
  std::vector<std::unique_ptr<QMenu>> menus_;
  std::vector<Line> lines_;
  std::unordered_map<const forms::MenuItem*, QAction*> actions_;
};

}  // namespace desktop
