// Sends a job to the queue or writes a PDF; the page painter draws it.
#include "desktop/paper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QLocale>
#include <QPdfWriter>
#include <QStandardPaths>

#include "desktop/page_painter.h"
#include "desktop/text.h"
#include "runtime/clock.h"
#include "runtime/failure.h"

namespace desktop {
namespace {

// Most printers reach this far, so the PDF can be printed later with nothing cut off.
constexpr double PdfMargin = 0.25;  // inches

[[noreturn]] void Fail() { throw runtime::Failure{runtime::PrinterError, ""}; }

// Qt does not report refused jobs; cupsLastError does. Statuses up to 7 are successes.
bool QueueTookJob() {
  using LastError = int (*)();
  auto last_error = reinterpret_cast<LastError>(QLibrary::resolve("cups", 2, "cupsLastError"));
  return !last_error || last_error() <= 7;
}

PrintedTo PrintOnQueue(const runtime::PrintJob& job, QPrinter& printer, const Progress& progress) {
  printer.setDocName(Shown(job.Title));
  if (!PaintPages(job, printer, progress) || printer.printerState() == QPrinter::Error || !QueueTookJob()) Fail();
  return {{}, printer.printerName()};
}

// Creates a new file; adds " (2)" and so on to the name if it is taken.
void OpenNew(QFile& file, const QString& folder, const QString& name) {
  for (int number = 1;; ++number) {
    QString suffix = number == 1 ? QString() : QStringLiteral(" (%1)").arg(number);
    file.setFileName(QDir(folder).filePath(name + suffix + QStringLiteral(".pdf")));
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return;
    if (!file.exists()) Fail();
  }
}

PrintedTo PrintIntoFile(const runtime::PrintJob& job, QFile& file, const QPageSize& size,
                        QPageLayout::Orientation turned, const Progress& progress) {
  QPdfWriter writer(&file);
  writer.setTitle(Shown(job.Title));
  writer.setCreator(QStringLiteral("Reelora Prima"));
  writer.setPageLayout(
      QPageLayout(size, turned, QMarginsF(PdfMargin, PdfMargin, PdfMargin, PdfMargin), QPageLayout::Inch));
  bool drawn = PaintPages(job, writer, progress);
  if (drawn && file.flush() && file.error() == QFileDevice::NoError) return {file.fileName(), {}};
  // Not file.remove(), which fails if the file cannot be closed.
  QFile::remove(file.fileName());
  Fail();
}

PrintedTo PrintIntoDocuments(const runtime::PrintJob& job, std::chrono::local_seconds now, const Progress& progress) {
  QString folder = QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath("Reelora Prima");
  if (!QDir().mkpath(folder)) Fail();
  QString stamp = Shown(runtime::StampText(now)).replace(':', '-');
  QFile file;
  OpenNew(file, folder, Shown(job.Title) + ' ' + stamp);
  bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return PrintIntoFile(job, file, QPageSize(letter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
                       progress);
}

PrintedTo PrintIntoChosenFile(const runtime::PrintJob& job, const QPrinter& printer, const Progress& progress) {
  QFileInfo chosen(printer.outputFileName());
  QFile file;
  OpenNew(file, chosen.path(), chosen.completeBaseName());
  return PrintIntoFile(job, file, printer.pageLayout().pageSize(), printer.pageLayout().orientation(), progress);
}

}  // namespace

PrintedTo PrintOnPaper(const runtime::PrintJob& job, QPrinter& printer, std::chrono::local_seconds now,
                       const Progress& progress) {
  if (!printer.outputFileName().isEmpty()) return PrintIntoChosenFile(job, printer, progress);
  if (printer.outputFormat() == QPrinter::PdfFormat) return PrintIntoDocuments(job, now, progress);
  return PrintOnQueue(job, printer, progress);
}

}  // namespace desktop
