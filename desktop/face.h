// The faces of buttons and the marks of options in their states, the same on the forms, in boxes and in the help.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace desktop {

struct ButtonFace {
  QColor Back;    // of a button at rest
  QColor Ground;  // around it
  QColor Focus;   // of the focus mark, as far as it stands out
  bool Enabled = true, Hovered = false, Down = false, Focused = false;
  // The button that Enter presses.
  bool Default = false;
  // Without a line around it at rest.
  bool Flat = false;
};

// The grey of the forms as it is drawn: lighter, so that the pictures of the buttons stand out.
QColor Lit(const QColor& grey);
// What the face is filled with in that state.
QColor FillOf(const ButtonFace& face);
// Of a caption in the wanted colour on that face.
QColor CaptionColour(const QColor& wanted, const ButtonFace& face);
// Corner: its radius in pixels.
void PaintFace(QPainter& painter, const QRectF& area, const ButtonFace& face, double corner);

// Of an option: a ring with a dot, or a square with a tick.
struct OptionMark {
  QColor Colour;
  QColor Ground;  // around it, and shows through
  bool Round = false, Set = false, Hovered = false, Down = false;
};
void PaintMark(QPainter& painter, const QRectF& area, const OptionMark& mark);

// The line around a box or a button on that ground: a shade of the text's colour that can just be seen.
QColor EdgeOn(const QColor& ground, const QColor& text);

}  // namespace desktop
