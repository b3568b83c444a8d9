// Boxes in proportion to the window that they open over, and wide enough for their titles.
#pragma once

#include <QDialog>

namespace desktop {

// Takes over the text size of the window that the box belongs to.
void FitToWindow(QDialog& box);
// In pixels, with room for the buttons of the title bar.
int TitleWidth(const QDialog& box);

}  // namespace desktop
