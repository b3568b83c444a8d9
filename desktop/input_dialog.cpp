// Lays out the prompt, the line and its two buttons.
#include "desktop/input_dialog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/text.h"

namespace desktop {
namespace {

constexpr int PromptWidth = 420;

}  // namespace

InputDialog::InputDialog(const QString& title, const QString& prompt, QWidget* parent) : QDialog(parent) {
  setWindowTitle(title);
  auto refuses = [] {
    QApplication::beep();
    return true;
  };
  line_.setValidator(std::make_unique<CodePageValidator>(refuses, &line_).release());
  line_.setAccessibleName(prompt.simplified());
  auto words = std::make_unique<QLabel>(prompt);
  words->setTextFormat(Qt::PlainText);
  words->setWordWrap(true);
  words->setMinimumWidth(PromptWidth);
  auto buttons = std::make_unique<QDialogButtonBox>(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  connect(buttons.get(), &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons.get(), &QDialogButtonBox::rejected, this, &QDialog::reject);
  // The dialog owns the layout, and what is laid out.
  auto column = std::make_unique<QVBoxLayout>(this);
  column->addWidget(words.release());
  column->addWidget(&line_);
  column->addWidget(buttons.release());
  column.release();
  line_.setFocus();
}

}  // namespace desktop
