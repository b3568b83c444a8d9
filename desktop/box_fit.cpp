// The title bar is the desktop's: its font is taken to be about that of the box.
#include "desktop/box_fit.h"

#include <QFontMetrics>

#include "desktop/form_view.h"

namespace desktop {
namespace {

constexpr int TitleButtons = 8;  // letters' heights

}  // namespace

void FitToWindow(QDialog& box) {
  if (const auto* form = dynamic_cast<const FormView*>(box.parentWidget())) box.setFont(form->TextFont());
}

int TitleWidth(const QDialog& box) {
  QFontMetrics metrics(box.font());
  return metrics.horizontalAdvance(box.windowTitle()) + TitleButtons * metrics.height();
}

}  // namespace desktop
