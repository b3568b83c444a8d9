// Builds the menus from the items' levels and mirrors their state.
#include "desktop/menu_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "desktop/text.h"

namespace desktop {
namespace {

constexpr int SmallestFont = 11;  // pixels

}  // namespace

MenuView::MenuView(forms::Window& window, QWidget& parent, const ItemHandler& chosen, ItemHandler help_asked,
                   std::function<void()> closed)
    : help_asked_(std::move(help_asked)), closed_(std::move(closed)), bar_(&parent) {
  bar_.setNativeMenuBar(false);
  bar_.installEventFilter(this);
  std::vector<QAction*> above;  // the last item of each level
  for (forms::Control* control : window.Controls()) {
    if (control->Kind != forms::Kind::MenuItem) continue;
    auto& item = static_cast<forms::MenuItem&>(*control);
    auto level = static_cast<std::size_t>(item.Level);
    above.resize(std::min(above.size(), level));
    QWidget& place = above.empty() ? static_cast<QWidget&>(bar_) : MenuFor(*above.back());
    QAction* action = place.addAction(Shown(item.Caption()));
    QObject::connect(action, &QAction::triggered, &bar_, [&item, chosen] { chosen(item); });
    lines_.push_back({&item, action, 0});
    actions_.emplace(&item, action);
    above.push_back(action);
  }
}

QMenu& MenuView::MenuFor(QAction& action) {
  if (!action.menu()) {
    menus_.push_back(std::make_unique<QMenu>());
    QMenu& menu = *menus_.back();
    menu.installEventFilter(this);
    // In a large font the toolkit leaves too little room beside the longest line.
    connect(&menu, &QMenu::aboutToShow, this,
            [&menu] { menu.setMinimumWidth(menu.sizeHint().width() + menu.fontMetrics().height()); });
    action.setMenu(&menu);
  }
  return *action.menu();
}

void MenuView::Sync() {
  for (Line& line : lines_) {
    if (line.Seen == line.Item->Version()) continue;
    line.Seen = line.Item->Version();
    line.Action->setText(Shown(line.Item->Caption()));
    line.Action->setVisible(line.Item->Visible());
    line.Action->setEnabled(line.Item->Enabled());
  }
}

void MenuView::Scale(const Grid& grid) {
  QFont font = bar_.font();
  font.setPixelSize(std::max(grid.Pixels(TextPoints), SmallestFont));
  if (font == bar_.font()) return;
  bar_.setFont(font);
  for (const auto& menu : menus_) {
    menu->setMinimumWidth(0);
    menu->setFont(font);
  }
}

void MenuView::Open(const forms::MenuItem& item) {
  QAction* action = ActionOf(item);
  if (action && action->menu() && bar_.isVisible()) Open(*action);
}

void MenuView::Enter() {
  if (!Empty() && bar_.isVisible()) Open(*lines_.front().Action);
}

// Down chooses the first line as it does for a user; choosing it directly would open the menu that it may have.
void MenuView::Open(QAction& action) {
  bar_.setActiveAction(&action);
  if (action.menu()->activeAction()) return;
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(action.menu(), &down);
}

QAction* MenuView::ActionOf(const forms::MenuItem& item) const {
  auto found = actions_.find(&item);
  return found == actions_.end() ? nullptr : found->second;
}

// Keys sent to the bar or to one of its menus.
bool MenuView::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) return AskedForHelp();
  QTimer::singleShot(0, this, [this] { UpdateFocus(); });
  return false;
}

// The menus close first, or they would keep the keyboard; Esc then also deselects the item of the bar.
bool MenuView::AskedForHelp() {
  forms::MenuItem* item = ActiveItem();
  if (!item) return false;
  while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(&bar_, &escape);
  help_asked_(*item);
  return true;
}

// Qt keeps the focus in the window when an arrow key goes from a menu to an item of the bar that has no menu.
void MenuView::UpdateFocus() {
  if (QApplication::activePopupWidget()) return;
  if (bar_.activeAction()) {
    bar_.setFocus(Qt::MenuBarFocusReason);
  } else if (bar_.hasFocus()) {
    closed_();
  }
}

forms::MenuItem* MenuView::ActiveItem() const {
  auto found = std::find_if(lines_.begin(), lines_.end(),
                            [this](const Line& line) { return line.Action == bar_.activeAction(); });
  return found == lines_.end() ? nullptr : found->Item;
}

}  // namespace desktop
