// A native box with two buttons, and a third that only Esc and the close box press.
#include "desktop/draft_box.h"

#include <QPushButton>

#include "desktop/box_fit.h"

namespace desktop {

DraftBox::DraftBox(const QString& title, const QString& film, QWidget* parent)
    : QMessageBox(parent), keep_(addButton("Keep it", AcceptRole)), drop_(addButton("Drop it", DestructiveRole)) {
  setWindowTitle(title);
  setTextFormat(Qt::PlainText);
  FitToWindow(*this);
  setText(QStringLiteral("This film was not saved when the program ended:\n\n%1")
              .arg(film.isEmpty() ? QStringLiteral("(no title)") : film));
  setDefaultButton(keep_);
  QPushButton* later = addButton(Cancel);
  later->hide();
  setEscapeButton(later);
}

forms::DraftAnswer DraftBox::Ask() {
  exec();
  if (clickedButton() == keep_) return forms::DraftAnswer::Keep;
  return clickedButton() == drop_ ? forms::DraftAnswer::Drop : forms::DraftAnswer::Later;
}

}  // namespace desktop
