// The dialog works on a copy of the printer, since it changes what it is given even if the user cancels it.
#include "desktop/run_printer.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QStandardPaths>
#include <utility>

#include "desktop/printer_memory.h"

namespace desktop {
namespace {

std::unique_ptr<QPrinter> CopyOf(const QPrinter& from) {
  auto copy = std::make_unique<QPrinter>(QPrinter::HighResolution);
  if (from.outputFormat() == QPrinter::PdfFormat) {
    copy->setOutputFormat(QPrinter::PdfFormat);
    if (!from.outputFileName().isEmpty()) copy->setOutputFileName(from.outputFileName());
  } else {
    copy->setPrinterName(from.printerName());
  }
  copy->setPageLayout(from.pageLayout());
  copy->setPrintRange(from.printRange());
  copy->setPageRanges(from.pageRanges());
  copy->setCopyCount(from.copyCount());
  copy->setCollateCopies(from.collateCopies());
  copy->setPageOrder(from.pageOrder());
  copy->setDuplex(from.duplex());
  copy->setColorMode(from.colorMode());
  return copy;
}

// A free name, so that a mere OK replaces nothing.
QString DefaultFile() {
  QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  documents.mkpath(".");
  QString path = documents.filePath("Reelora Prima.pdf");
  for (int number = 2; QFileInfo::exists(path); ++number)
    path = documents.filePath(QStringLiteral("Reelora Prima (%1).pdf").arg(number));
  return path;
}

// The toolkit's dialog is made for printing at once; here nothing is printed yet.
void Dress(QPrintDialog& dialog, const QPrinter& printer) {
  dialog.setWindowTitle(QStringLiteral("Setup Printer"));
  if (auto* buttons = dialog.findChild<QDialogButtonBox*>())
    if (QPushButton* accept = buttons->button(QDialogButtonBox::Ok)) accept->setText(QStringLiteral("OK"));
  if (!printer.outputFileName().isEmpty()) return;
  if (auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"))) file->setText(DefaultFile());
}

}  // namespace

QPrinter& RunPrinter::Device() {
  if (!device_) device_ = RememberedPrinter();
  return *device_;
}

void RunPrinter::SetUp(QWidget* parent) {
  std::unique_ptr<QPrinter> chosen = CopyOf(Device());
  QPrintDialog dialog(chosen.get(), parent);
  Dress(dialog, *chosen);
  if (dialog.exec() != QDialog::Accepted) return;
  bool other_paper = !chosen->pageLayout().isEquivalentTo(device_->pageLayout());
  // The dialog has asked about a file that exists.
  old_file_ = QFileInfo::exists(chosen->outputFileName()) ? OldFile::Replace : OldFile::Keep;
  device_ = std::move(chosen);
  RememberPrinter(*device_, other_paper);
}

PrintedTo RunPrinter::Print(const runtime::PrintJob& job, std::chrono::local_seconds now, const Progress& progress) {
  return PrintOnPaper(job, Device(), now, std::exchange(old_file_, OldFile::Keep), progress);
}

}  // namespace desktop
