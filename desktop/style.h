// The style of all windows: Fusion, with buttons, frames and scroll bars that stand out in every palette.
#pragma once

#include <QProxyStyle>
#include <QStyleOption>

namespace desktop {

class Style final : public QProxyStyle {
 public:
  Style();
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;

 private:
  void PaintScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const;
};

}  // namespace desktop
