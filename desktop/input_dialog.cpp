// Lays out the prompt, the answer line and the two buttons.
#include "desktop/input_dialog.h"

#include <QFontInfo>
#include <algorithm>
#include <utility>

#include "desktop/box_fit.h"

namespace desktop {
namespace {

constexpr int PromptWidth = 420;  // pixels, at a text height of
constexpr int PlainText = 13;

}  // namespace

InputDialog::InputDialog(const QString& title, const QString& prompt, QWidget* parent,
                         CodePageValidator::Refused refused)
    : QDialog(parent),
      column_(this),
      // With a field of its own the label takes an ampersand for the mark of a hot key.
      prompt_(QString(prompt).replace(u'&', QStringLiteral("&&"))),
      validator_(line_, std::move(refused)),
      buttons_(QDialogButtonBox::Ok | QDialogButtonBox::Cancel) {
  setWindowTitle(title);
  prompt_.setTextFormat(Qt::PlainText);
  prompt_.setWordWrap(true);
  FitToWindow(*this);
  prompt_.setMinimumWidth(std::max(PromptWidth * fontInfo().pixelSize() / PlainText, TitleWidth(*this)));
  // The label names its line by relation, too.
  prompt_.setBuddy(&line_);
  for (QWidget* part : {static_cast<QWidget*>(&prompt_), static_cast<QWidget*>(&line_)})
    part->setAccessibleName(prompt.simplified());
  connect(&buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(&buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
  for (QWidget* part :
       {static_cast<QWidget*>(&prompt_), static_cast<QWidget*>(&line_), static_cast<QWidget*>(&buttons_)})
    column_.addWidget(part);
  line_.setFocus();
  // By itself the toolkit keeps to two thirds of the display, which may cut off a prompt in large letters.
  int width = column_.sizeHint().width();
  resize(width, column_.totalHeightForWidth(width));
}

}  // namespace desktop
