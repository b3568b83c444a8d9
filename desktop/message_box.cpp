// A native box whose Esc key and close box are held back on questions.
#include "desktop/message_box.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <memory>

#include "desktop/box_fit.h"

namespace desktop {
namespace {

QMessageBox::Icon IconOf(forms::Icon icon) {
  if (icon == forms::Icon::Warning) return QMessageBox::Warning;
  return icon == forms::Icon::Question ? QMessageBox::Question : QMessageBox::NoIcon;
}

}  // namespace

MessageBox::MessageBox(forms::Icon icon, const QString& title, const QString& text, forms::Buttons buttons,
                       QWidget* parent)
    : QMessageBox(parent), is_question_(buttons == forms::Buttons::YesNo) {
  setWindowTitle(title);
  setIcon(IconOf(icon));
  setTextFormat(Qt::PlainText);
  setText(text);
  setStandardButtons(is_question_ ? Yes | No : QMessageBox::StandardButtons(Ok));
  FitToWindow(*this);
  // The box lays itself out by its text alone; a row beneath makes it as wide as its title.
  auto* rows = dynamic_cast<QGridLayout*>(layout());
  auto width = std::make_unique<QSpacerItem>(TitleWidth(*this), 0, QSizePolicy::Minimum, QSizePolicy::Fixed);
  if (rows) rows->addItem(width.release(), rows->rowCount(), 0, 1, rows->columnCount());
}

forms::Answer MessageBox::Ask() {
  int pressed = exec();
  if (!is_question_) return forms::Answer::Ok;
  return pressed == Yes ? forms::Answer::Yes : forms::Answer::No;
}

void MessageBox::keyPressEvent(QKeyEvent* key) {
  if (is_question_ && key->key() == Qt::Key_Escape) return;
  QMessageBox::keyPressEvent(key);
}

void MessageBox::closeEvent(QCloseEvent* event) {
  if (is_question_) {
    event->ignore();
  } else {
    QMessageBox::closeEvent(event);
  }
}

}  // namespace desktop
