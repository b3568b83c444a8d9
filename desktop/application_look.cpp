// One style, so that the windows look the same on every desktop, in the desktop's colours as far as they can be read.
#include "desktop/application_look.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <memory>

#include "desktop/artwork.h"
#include "desktop/contrast.h"
#include "desktop/control_view.h"
#include "desktop/grid.h"
#include "desktop/style.h"

namespace desktop {
namespace {

// On many desktops links, hints and what cannot be used are too like their ground.
void MakeReadable(QPalette& colours, QPalette::ColorRole words, QPalette::ColorRole ground) {
  for (auto group : {QPalette::Active, QPalette::Inactive}) {
    QColor back = colours.color(group, ground);
    QColor fore = StandingOut(colours.color(group, words), back, TextContrast);
    if (fore != colours.color(group, words)) colours.setColor(group, words, fore);
  }
  QColor back = colours.color(QPalette::Disabled, ground);
  if (Contrast(colours.color(QPalette::Disabled, words), back) >= TextContrast) return;
  colours.setColor(QPalette::Disabled, words, DisabledColour(colours.color(QPalette::Active, words), back));
}

// The chosen line, its words, and the mark of the focus, which has the colour of the line.
void MakeChoiceReadable(QPalette& colours) {
  QColor ground = colours.color(QPalette::Window);
  QColor words = colours.color(QPalette::HighlightedText);
  QColor mark = StandingOut(colours.color(QPalette::Highlight), ground, MarkContrast);
  QColor other = StandingOut(mark, words, TextContrast);
  if (Contrast(other, ground) >= MarkContrast) mark = other;
  words = StandingOut(words, mark, TextContrast);
  if (mark != colours.color(QPalette::Highlight)) colours.setColor(QPalette::Highlight, mark);
  if (words != colours.color(QPalette::HighlightedText)) colours.setColor(QPalette::HighlightedText, words);
}

void MakeReadable() {
  QPalette colours = QApplication::palette();
  MakeReadable(colours, QPalette::WindowText, QPalette::Window);
  MakeReadable(colours, QPalette::ButtonText, QPalette::Button);
  MakeReadable(colours, QPalette::ToolTipText, QPalette::ToolTipBase);
  for (auto words : {QPalette::Text, QPalette::Link, QPalette::LinkVisited})
    MakeReadable(colours, words, QPalette::Base);
  QColor base = colours.color(QPalette::Base);
  QColor hint = colours.color(QPalette::PlaceholderText);
  if (hint.alpha() < 255 || Contrast(hint, base) < TextContrast)
    colours.setColor(QPalette::PlaceholderText, DisabledColour(colours.color(QPalette::Text), base));
  MakeChoiceReadable(colours);
  if (colours != QApplication::palette()) QApplication::setPalette(colours);
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
