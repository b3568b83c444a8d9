// The ground on which a window's controls lie. On the record screen the counts and the page switch have bands of a
// deeper shade, so that no lines need divide them from the fields and the messages.
#pragma once

#include <QWidget>

#include "forms/window.h"

namespace desktop {

class Ground final : public QWidget {
 public:
  Ground(QWidget& parent, const forms::Window& window);
  // Paints the bands again if the colours have changed.
  void Sync();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor Shade() const;

  const forms::Window& window_;
  const forms::Control* words_ = nullptr;  // a label in a band
  QColor shade_;
};

}  // namespace desktop
