// The menu bar of a window, built from its menu items.
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
  using ItemHandler = std::function<void(forms::MenuItem&)>;
  // Chosen is called with the item that the user chooses; help_asked with the item of the bar on which, or in whose
  // menu, F1 is pressed; closed when the bar gives up the keyboard.
  MenuView(forms::Window& window, QWidget& parent, const ItemHandler& chosen, ItemHandler help_asked,
           std::function<void()> closed);

  QMenuBar& Bar() { return bar_; }
  bool Empty() const { return actions_.empty(); }
  // Copies captions, visibility and enabled state.
  void Sync();
  // Sets the font for the window's scale.
  void Scale(const Grid& grid);
  // Whether the user moves through the bar by keyboard.
  bool InKeyboardUse() const { return bar_.hasFocus() && bar_.activeAction(); }
  // Opens the item's menu with its first line chosen, as Alt and its letter do; does nothing for an item without one.
  void Open(const forms::MenuItem& item);
  // Opens the first menu of the bar, as F10 does.
  void Enter();
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
  void Open(QAction& action);

  bool AskedForHelp();
  void UpdateFocus();

  ItemHandler help_asked_;
  std::function<void()> closed_;
  QMenuBar bar_;
  std::vector<std::unique_ptr<QMenu>> menus_;
  std::vector<Line> lines_;
  std::unordered_map<const forms::MenuItem*, QAction*> actions_;
};

}  // namespace desktop
