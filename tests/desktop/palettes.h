// The palettes of the desktop that the program must cope with: light, dark and high-contrast ones.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QPalette>

#include "desktop/application_look.h"
#include "launcher/opening.h"

namespace desktop {

struct Scheme {
  const char* Name;
  QColor Text, Window, Base, Mark, MarkText;
};
// clang-format off
inline const Scheme Schemes[] = {
  { "Light",         QColor(0x23, 0x26, 0x29), QColor(0xEF, 0xF0, 0xF1), Qt::white,                QColor(0x3D, 0xAE, 0xE9), Qt::white },
  { "Dark",          QColor(0xFC, 0xFC, 0xFC), QColor(0x2A, 0x2E, 0x32), QColor(0x1B, 0x1E, 0x20), QColor(0x3D, 0xAE, 0xE9), Qt::white },
  { "YellowOnBlack", Qt::yellow,               Qt::black,                Qt::black,                Qt::green,                Qt::black },
  { "WhiteOnBlack",  Qt::white,                Qt::black,                Qt::black,                Qt::black,                Qt::white },
  { "BlackOnWhite",  Qt::black,                Qt::white,                Qt::white,                Qt::black,                Qt::white },
};
// clang-format on

inline QPalette PaletteOf(const Scheme& scheme) {
  QPalette palette(scheme.Text, scheme.Window, scheme.Window.lighter(), scheme.Window.darker(), Qt::gray, scheme.Text,
                   Qt::white, scheme.Base, scheme.Window);
  palette.setColor(QPalette::Button, scheme.Window);
  palette.setColor(QPalette::ButtonText, scheme.Text);
  palette.setColor(QPalette::Highlight, scheme.Mark);
  palette.setColor(QPalette::HighlightedText, scheme.MarkText);
  return palette;
}

// Asked in a box with options, lines and buttons.
inline const launcher::Question LostCollection{"/media/disk/films", {"/home/anna/films"}, "/home/anna/Film Collection"};

class Palettes : public testing::TestWithParam<Scheme> {
 protected:
  Palettes() {
    QApplication::setPalette(PaletteOf(GetParam()));
    SetUpLook();
  }
  ~Palettes() override {
    QApplication::setPalette(before_);
    QApplication::setFont(font_);
  }

 private:
  QPalette before_ = QApplication::palette();
  QFont font_ = QApplication::font();
};

}  // namespace desktop
