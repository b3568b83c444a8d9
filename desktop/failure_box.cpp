// Puts the report together from the table of texts.
#include "desktop/failure_box.h"

#include <QDir>
#include <QPushButton>

#include "desktop/failure_texts.h"
#include "desktop/text.h"
#include "runtime/disk.h"
#include "store/draft.h"

namespace desktop {
namespace {

QString ReasonOf(const runtime::Failure& failure) {
  if (!failure.Reason.empty()) {
    QString reason = QString::fromStdString(failure.Reason);
    return reason.endsWith('.') ? reason.chopped(1) : reason;
  }
  return failure.SystemError == 0 ? QString() : qt_error_string(failure.SystemError);
}

QString HeadOf(const runtime::Failure& failure) {
  QString head = Shown(failure.Name);
  if (!failure.File.empty()) head += QStringLiteral("\n\n%1").arg(Shown(failure.File));
  return head;
}

QString SafeOf(const FailureTexts& texts, const QString& folder) {
  QString safe = Shown(texts.Safe);
  runtime::RealDisk disk(folder.toStdString());
  if (!store::DraftNames(disk).empty()) safe += " The film that was being typed is kept: the next start asks about it.";
  return safe;
}

QString BodyOf(const runtime::Failure& failure, const QString& folder) {
  const FailureTexts& texts = TextsOf(failure);
  QStringList parts;
  if (!failure.File.empty()) {
    QString path = QDir::cleanPath(QDir(folder).absoluteFilePath(Shown(failure.File)));
    parts << QStringLiteral("The file: %1").arg(QDir::toNativeSeparators(path));
  }
  if (!texts.Means.empty()) parts << QStringLiteral("What it means: %1").arg(Shown(texts.Means));
  if (QString reason = ReasonOf(failure); !reason.isEmpty())
    parts.last() += QStringLiteral(" The system says: %1.").arg(reason);
  parts << QStringLiteral("What is safe: %1").arg(SafeOf(texts, folder));
  parts << QStringLiteral("What to do next: %1").arg(Shown(texts.Next));
  return parts.join(QStringLiteral("\n\n"));
}

}  // namespace

FailureBox::FailureBox(const runtime::Failure& failure, const QString& folder, QWidget* parent)
    : QMessageBox(Critical, QStringLiteral("Reelora Prima"), HeadOf(failure), Close, parent),
      start_again_(addButton(QStringLiteral("Start again"), AcceptRole)) {
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setInformativeText(BodyOf(failure, folder));
  setDefaultButton(Close);
  setEscapeButton(Close);
}

FailureBox::Choice FailureBox::Ask() {
  exec();
  return clickedButton() == start_again_ ? Choice::StartAgain : Choice::Close;
}

}  // namespace desktop
