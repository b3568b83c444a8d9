// Labels, the toolbar strip and pictures.
#pragma once

#include <QLabel>

#include "desktop/control_view.h"

namespace desktop {

// A wrapped caption; the font shrinks if it does not fit.
class LabelView final : public QLabel, public ControlView {
 public:
  // Tag: names a field; its runs of blanks are padding and are folded.
  LabelView(forms::Label& label, QWidget& parent, bool tag);
  QWidget& Widget() override { return *this; }

 protected:
  void ApplyLook(const Grid& grid) override;
  void ApplyContent() override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void FitFont();
  forms::Label& label_;
  bool tag_;
  QFont full_size_;
  bool fitted_ = false;
};

// A bare strip of colour.
class StripView final : public QWidget, public ControlView {
 public:
  StripView(forms::Control& strip, QWidget& parent);
  QWidget& Widget() override { return *this; }

 protected:
  void ApplyLook(const Grid& grid) override;
  void ApplyContent() override {}
  void paintEvent(QPaintEvent* event) override;
};

// A centred picture, as large as fits.
class PictureView final : public QWidget, public ControlView {
 public:
  PictureView(forms::Picture& picture, QWidget& parent);
  QWidget& Widget() override { return *this; }

 protected:
  void ApplyLook(const Grid&) override {}
  void ApplyContent() override {}
  void paintEvent(QPaintEvent* event) override;

 private:
  forms::Picture& picture_;
};

}  // namespace desktop
