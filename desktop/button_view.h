// Buttons with a picture above their caption, option buttons and check boxes, painted at the window's scale. A click
// goes to the form; only the form changes what they show.
#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/control_view.h"

namespace desktop {

// The font, made smaller until the text is no wider than that; 6 pixels at least.
QFont FittedFont(QFont font, const QString& text, int width);
// Where the widget of a button, an option button or a check box has its caption.
QRect CaptionArea(const forms::Captioned& control, const QWidget& widget);

class ButtonView final : public QPushButton, public ControlView {
 public:
  ButtonView(forms::Button& button, QWidget& parent);
  QWidget& Widget() override { return *this; }

 protected:
  void ApplyLook(const Grid& grid) override;
  void ApplyContent() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  forms::Button& button_;
};

class OptionView final : public QRadioButton, public ControlView {
 public:
  OptionView(forms::OptionButton& option, QWidget& parent);
  QWidget& Widget() override { return *this; }

 protected:
  void ApplyLook(const Grid& grid) override;
  void ApplyContent() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  forms::OptionButton& option_;
};

class CheckView final : public QCheckBox, public ControlView {
 public:
  CheckView(forms::CheckBox& check, QWidget& parent);
  QWidget& Widget() override { return *this; }

 protected:
  void ApplyLook(const Grid& grid) override;
  void ApplyContent() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  forms::CheckBox& check_;
};

}  // namespace desktop
