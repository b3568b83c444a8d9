// One style, so that the windows look the same on every desktop.
#include "desktop/application_look.h"

#include <QApplication>
#include <QIcon>
#include <QIconEngine>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <memory>

#include "desktop/artwork.h"
#include "desktop/contrast.h"
#include "desktop/control_view.h"
#include "desktop/grid.h"

namespace desktop {
namespace {

constexpr QStyle::StandardPixmap MenuArrow = QStyle::SP_ToolBarHorizontalExtensionButton;

// The arrow of a menu bar that is too narrow, read when it is first painted.
class LateArrow final : public QIconEngine {
 public:
  explicit LateArrow(const QStyle& style) : style_(style) {}
  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
    Read().paint(painter, area, Qt::AlignCenter, mode, state);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return Read().pixmap(size, mode, state);
  }
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return Read().actualSize(size, mode, state);
  }
  QIconEngine* clone() const override { return std::make_unique<LateArrow>(style_).release(); }

 private:
  QIcon Read() const { return style_.standardIcon(MenuArrow); }
  const QStyle& style_;
};

// Every menu bar asks for its arrow at once, and the first picture file that is read loads all image plugins.
class Style final : public QProxyStyle {
 public:
  Style() : QProxyStyle(QStringLiteral("Fusion")) {}
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override {
    if (which != MenuArrow) return QProxyStyle::standardIcon(which, option, widget);
    return QIcon(std::make_unique<LateArrow>(*baseStyle()).release());
  }
  // The chosen line of the bar shows also before its menu is open, as after Alt alone.
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* line = element == CE_MenuBarItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
    if (!line) return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionMenuItem shown = *line;
    if (shown.state & State_Selected) shown.state |= State_Sunken;
    QProxyStyle::drawControl(element, &shown, painter, widget);
  }
};

// On a dark desktop the toolkit's links and hints are as dark as their ground. Elsewhere the palette stays the
// desktop's own: the toolkit keeps pictures of its buttons for each palette, and boxes would have one each.
void MakeReadable() {
  QPalette colours = QApplication::palette();
  QColor ground = colours.color(QPalette::Base);
  if (Contrast(colours.color(QPalette::Link), ground) >= TextContrast) return;
  colours.setColor(QPalette::Link, StandingOut(colours.color(QPalette::Link), ground, TextContrast));
  QColor hint = DisabledColour(colours.color(QPalette::Text), ground);
  colours.setColor(QPalette::PlaceholderText, hint);
  QApplication::setPalette(colours);
}

}  // namespace

void SetUpLook() {
  QApplication::setStyle(std::make_unique<Style>().release());
  // The family of the forms for menus, boxes and help too; the size is the desktop's.
  QFont font = QApplication::font();
  font.setFamilies(FontFamilies());
  QApplication::setFont(font);
  MakeReadable();
  QApplication::setQuitOnLastWindowClosed(false);
  // The name of the desktop entry: by it a desktop knows to which entry a window belongs.
  QGuiApplication::setDesktopFileName(QStringLiteral("reelora-prima"));
  QIcon icon;
  for (int side : {16, 32, 48, 128}) icon.addPixmap(Artwork("reelora", {side, side}, 1));
  QApplication::setWindowIcon(icon);
}

}  // namespace desktop
