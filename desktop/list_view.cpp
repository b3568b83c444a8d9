// Mirrors the items and the selection of the list box.
#include "desktop/list_view.h"

#include <QApplication>
#include <QPainter>
#include <QScrollBar>

#include "desktop/contrast.h"
#include "desktop/drives.h"
#include "desktop/text.h"
#include "forms/window.h"
#include "forms/window_stack.h"

namespace desktop {
namespace {

// Sets every colour: unset ones are inherited from the parent widget.
QPalette PlainColours() {
  QPalette plain = QApplication::palette();
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    auto colour = static_cast<QPalette::ColorRole>(role);
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
      plain.setBrush(group, colour, plain.brush(group, colour));
  }
  return plain;
}

}  // namespace

ListView::ListView(forms::ListBox& list, QWidget& parent) : QListWidget(&parent), ControlView(list), list_(list) {
  setFocusPolicy(Qt::TabFocus);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideNone);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setAutoFillBackground(true);
  setAccessibleName(AccessibleName(list));
  viewport()->setMouseTracking(true);
}

void ListView::ApplyLook(const Grid& grid) {
  const forms::Look& look = list_.Look();
  setFont(grid.Font(look));
  QPalette colours = palette();
  for (auto role : {QPalette::Base, QPalette::Window}) colours.setColor(role, ToColour(look.Back));
  for (auto role : {QPalette::Text, QPalette::WindowText}) colours.setColor(role, ToColour(look.Fore));
  colours.setColor(QPalette::Highlight, ToColour(look.Fore));
  colours.setColor(QPalette::HighlightedText, ToColour(look.Back));
  colours.setColor(QPalette::Disabled, QPalette::Text, DisabledColour(ToColour(look.Fore), ToColour(look.Back)));
  setPalette(colours);
  verticalScrollBar()->setPalette(PlainColours());
}

void ListView::ApplyContent() {
  mirroring_ = true;
  if (shown_ != list_.Items()) {
    shown_ = list_.Items();
    clear();
    for (const std::string& item : shown_) addItem(Shown(item));
  }
  ShowWholeRows();
  NameDrives();
  if (currentRow() != list_.ListIndex()) setCurrentRow(list_.ListIndex());
  if (currentItem()) scrollToItem(currentItem());
  mirroring_ = false;
}

// Only whole rows show; the rest of the height stays empty.
void ListView::ShowWholeRows() {
  int row = sizeHintForRow(0);
  if (row > 0) setViewportMargins(0, 0, 0, (height() - 2 * frameWidth()) % row);
}

// The items of a list of drives are letters; the tooltip and the screen reader add the disk's name.
void ListView::NameDrives() {
  if (list_.Name != "Drive1") return;
  for (int row = 0; row < count(); ++row) {
    std::optional<std::string> folder =
        list_.Owner().Owner().Desk.DriveFolder(shown_[static_cast<std::size_t>(row)][0]);
    QString disk = folder ? DiskName(*folder) : QStringLiteral("no disk");
    item(row)->setToolTip(disk);
    item(row)->setData(Qt::AccessibleTextRole, QStringLiteral("%1 %2").arg(item(row)->text(), disk).trimmed());
  }
}

void ListView::paintEvent(QPaintEvent* event) {
  QListWidget::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(viewport());
  QColor ground = palette().color(QPalette::Base);
  painter.setPen(QPen(StandingOut(QColor(0xF0, 0xA0, 0x00), ground, MarkContrast), 2));
  painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
}

// The toolkit would select the first item if none is selected; only the form selects.
void ListView::focusInEvent(QFocusEvent* event) {
  mirroring_ = true;
  QListWidget::focusInEvent(event);
  ApplyContent();
}

}  // namespace desktop
