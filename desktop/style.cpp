// What Fusion draws in shades of the window's colour is drawn here: of black there are none.
#include "desktop/style.h"

#include <QAbstractItemView>
#include <QIcon>
#include <QIconEngine>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <memory>
#include <utility>

#include "desktop/contrast.h"
#include "desktop/face.h"

namespace desktop {
namespace {

constexpr QStyle::StandardPixmap MenuArrow = QStyle::SP_ToolBarHorizontalExtensionButton;
constexpr double Corner = 4;  // of buttons and boxes
constexpr int FrameWidth = 2;

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

QColor ColourOf(const QStyleOption& option, QPalette::ColorRole role) { return option.palette.color(role); }

bool Focused(const QStyleOption& option) {
  return option.state & QStyle::State_HasFocus && option.state & QStyle::State_Enabled;
}

void PaintButton(const QStyleOption& option, QPainter& painter) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  ButtonFace face{ColourOf(option, QPalette::Button), ColourOf(option, QPalette::Window),
                  ColourOf(option, QPalette::Highlight)};
  face.Enabled = option.state & QStyle::State_Enabled;
  face.Hovered = option.state & QStyle::State_MouseOver;
  face.Down = option.state & (QStyle::State_Sunken | QStyle::State_On);
  face.Focused = Focused(option);
  face.Default = button && button->features & QStyleOptionButton::DefaultButton;
  painter.save();
  PaintFace(painter, option.rect, face, Corner);
  painter.restore();
}

void PaintOptionMark(const QStyleOption& option, QPainter& painter, bool round) {
  QColor ground = ColourOf(option, QPalette::Window);
  OptionMark mark{StandingOut(ColourOf(option, QPalette::WindowText), ground, MarkContrast), ground, round};
  mark.Set = option.state & QStyle::State_On;
  mark.Hovered = option.state & QStyle::State_MouseOver && option.state & QStyle::State_Enabled;
  mark.Down = option.state & QStyle::State_Sunken;
  painter.save();
  PaintMark(painter, option.rect, mark);
  painter.restore();
}

// A line around the area; with the focus it is wider and has the colour of the chosen line.
void PaintFrame(const QStyleOption& option, QPainter& painter, double corner, bool focused) {
  QColor ground = ColourOf(option, QPalette::Window);
  QColor edge = focused ? StandingOut(ColourOf(option, QPalette::Highlight), ground, MarkContrast)
                        : EdgeOn(ground, ColourOf(option, QPalette::WindowText));
  double line = focused ? FrameWidth : 1;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(edge, line));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(line / 2, line / 2, -line / 2, -line / 2), corner, corner);
  painter.restore();
}

}  // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

// Every menu bar asks for its arrow at once, and the first picture file that is read loads all image plugins.
QIcon Style::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
  if (which != MenuArrow) return QProxyStyle::standardIcon(which, option, widget);
  return QIcon(std::make_unique<LateArrow>(*baseStyle()).release());
}

// Captions are enough, and the same on every desktop.
int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* more) const {
  return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
}

// The room around a caption grows with its letters.
int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (metric == PM_DefaultFrameWidth) return FrameWidth;
  int pixels = QProxyStyle::pixelMetric(metric, option, widget);
  return metric == PM_ButtonMargin && option ? std::max(pixels, option->fontMetrics.height() / 2) : pixels;
}

// The chosen line of the bar shows also before its menu is open, as after Alt alone.
void Style::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                        const QWidget* widget) const {
  const auto* line = element == CE_MenuBarItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
  if (!line) return QProxyStyle::drawControl(element, option, painter, widget);
  QStyleOptionMenuItem shown = *line;
  if (shown.state & State_Selected) shown.state |= State_Sunken;
  QProxyStyle::drawControl(element, &shown, painter, widget);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  switch (element) {
    case PE_PanelButtonCommand:
      return PaintButton(*option, *painter);
    case PE_IndicatorRadioButton:
      return PaintOptionMark(*option, *painter, true);
    case PE_IndicatorCheckBox:
      return PaintOptionMark(*option, *painter, false);
    case PE_FrameFocusRect:  // buttons and lists have a mark of their own
      if (qobject_cast<const QPushButton*>(widget) || qobject_cast<const QAbstractItemView*>(widget)) return;
      return PaintFrame(*option, *painter, Corner, true);
    case PE_PanelLineEdit:  // a box of a form has no frame and draws its ground itself
      if (const auto* box = qobject_cast<const QLineEdit*>(widget); box && !box->hasFrame()) return;
      break;
    case PE_FrameLineEdit:
      return PaintFrame(*option, *painter, Corner, Focused(*option));
    case PE_Frame:
    case PE_FrameMenu:
      return PaintFrame(*option, *painter, 0, Focused(*option));
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
  const auto* bar = control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider*>(option) : nullptr;
  if (bar) return PaintScrollBar(*bar, *painter, widget);
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control == CC_SpinBox || control == CC_ComboBox) PaintFrame(*option, *painter, Corner, Focused(*option));
}

void Style::PaintScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const {
  QColor ground = ColourOf(bar, QPalette::Window);
  QColor text = ColourOf(bar, QPalette::WindowText);
  auto area = [&](SubControl part) { return subControlRect(CC_ScrollBar, &bar, part, widget); };
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(bar.rect, ground);
  QRectF slider = QRectF(area(SC_ScrollBarSlider)).adjusted(3, 3, -3, -3);
  double corner = std::min(slider.width(), slider.height()) / 2;
  bool held = bar.activeSubControls & SC_ScrollBarSlider && bar.state & (State_Sunken | State_MouseOver);
  painter.setPen(Qt::NoPen);
  painter.setBrush(held ? text : EdgeOn(ground, text));
  painter.drawRoundedRect(slider, corner, corner);
  painter.restore();
  bool across = bar.orientation == Qt::Horizontal;
  for (auto [part, arrow] : {std::pair{SC_ScrollBarSubLine, across ? PE_IndicatorArrowLeft : PE_IndicatorArrowUp},
                             std::pair{SC_ScrollBarAddLine, across ? PE_IndicatorArrowRight : PE_IndicatorArrowDown}}) {
    QStyleOption sign(bar);
    sign.rect = area(part).adjusted(3, 3, -3, -3);
    drawPrimitive(arrow, &sign, &painter, widget);
  }
}

}  // namespace desktop
