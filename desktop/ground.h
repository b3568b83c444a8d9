// The ground on which a window's controls lie, with the lines that divide the record screen.
#pragma once

#include <QWidget>

#include "forms/window.h"

namespace desktop {

class Ground final : public QWidget {
 public:
  Ground(QWidget& parent, const forms::Window& window);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const forms::Window& window_;
};

}  // namespace desktop
