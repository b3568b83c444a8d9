// Sends a job to the queue or writes a PDF; the page painter draws it.
#include "desktop/paper.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QPdfWriter>
#include <QSaveFile>
#include <QStandardPaths>

#include "desktop/page_painter.h"
#include "desktop/text.h"
#include "runtime/clock.h"
#include "runtime/failure.h"

namespace desktop {
namespace {

// Reason: what the system says, if anything.
[[noreturn]] void Fail(const QString& reason) {
  throw runtime::Failure{runtime::PrinterError, "", 0, reason.toStdString()};
}

[[noreturn]] void Fail(const QFileDevice& file) {
  Fail(file.error() == QFileDevice::NoError ? QString() : file.errorString());
}

// Qt does not report refused jobs; cupsLastError does. Statuses up to 7 are successes.
bool QueueTookJob() {
  using LastError = int (*)();
  auto last_error = reinterpret_cast<LastError>(QLibrary::resolve("cups", 2, "cupsLastError"));
  return !last_error || last_error() <= 7;
}

QString ReasonOfQueue() {
  using LastErrorString = const char* (*)();
  auto reason = reinterpret_cast<LastErrorString>(QLibrary::resolve("cups", 2, "cupsLastErrorString"));
  return reason && !QueueTookJob() ? QString::fromUtf8(reason()) : QString();
}

// A range of the queue's own leaves printRange() at all pages; the queue picks those pages itself.
QPageRanges PagesOf(const QPrinter& printer) {
  return printer.printRange() == QPrinter::PageRange ? printer.pageRanges() : QPageRanges();
}

// The queue makes the copies.
PrintedTo PrintOnQueue(const runtime::PrintJob& job, QPrinter& printer, const Progress& progress) {
  printer.setDocName(Shown(job.Title));
  Painted painted = PaintPages(job, printer, {.Pages = PagesOf(printer)}, progress);
  if (painted == Painted::Nothing) return {};
  if (painted == Painted::Failed || printer.printerState() == QPrinter::Error || !QueueTookJob()) Fail(ReasonOfQueue());
  return {{}, printer.printerName()};
}

Painted PrintIntoFile(const runtime::PrintJob& job, QFileDevice& file, const QPrinter& printer,
                      const Progress& progress) {
  QPdfWriter writer(&file);
  writer.setTitle(Shown(job.Title));
  writer.setCreator(QStringLiteral("Reelora Prima"));
  writer.setPageLayout(printer.pageLayout());
  Painted painted = PaintPages(job, writer,
                               {.Pages = PagesOf(printer),
                                .Copies = printer.copyCount(),
                                .Collated = printer.collateCopies(),
                                .LastFirst = printer.pageOrder() == QPrinter::LastPageFirst},
                               progress);
  bool written = file.flush() && file.error() == QFileDevice::NoError;
  return painted == Painted::Done && !written ? Painted::Failed : painted;
}

// Adds " (2)" and so on to the name if it is taken.
void OpenNew(QFile& file, const QFileInfo& wanted) {
  QString suffix = wanted.suffix().isEmpty() ? QString() : '.' + wanted.suffix();
  for (int number = 1;; ++number) {
    QString count = number == 1 ? QString() : QStringLiteral(" (%1)").arg(number);
    file.setFileName(QDir(wanted.path()).filePath(wanted.completeBaseName() + count + suffix));
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return;
    if (!file.exists()) Fail(file);
  }
}

PrintedTo PrintIntoNewFile(const runtime::PrintJob& job, const QPrinter& printer, const QString& wanted,
                           const Progress& progress) {
  QFile file;
  OpenNew(file, QFileInfo(wanted));
  Painted painted = PrintIntoFile(job, file, printer, progress);
  if (painted == Painted::Done) return {file.fileName(), {}};
  QString reason = file.error() == QFileDevice::NoError ? QString() : file.errorString();
  // Not file.remove(), which fails if the file cannot be closed.
  QFile::remove(file.fileName());
  if (painted == Painted::Failed) Fail(reason);
  return {};
}

PrintedTo PrintOverFile(const runtime::PrintJob& job, const QPrinter& printer, const QString& path,
                        const Progress& progress) {
  QSaveFile file(path);
  // Where the folder takes no new file, the old one is written in place.
  file.setDirectWriteFallback(true);
  if (!file.open(QIODevice::WriteOnly)) Fail(file);
  Painted painted = PrintIntoFile(job, file, printer, progress);
  if (painted == Painted::Nothing) return {};
  if (painted == Painted::Failed || !file.commit()) Fail(file);
  return {path, {}};
}

PrintedTo PrintIntoDocuments(const runtime::PrintJob& job, const QPrinter& printer, std::chrono::local_seconds now,
                             const Progress& progress) {
  QString folder = QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath("Reelora Prima");
  if (!QDir().mkpath(folder)) Fail(QStringLiteral("The folder %1 cannot be made").arg(folder));
  QString stamp = Shown(runtime::StampText(now)).replace(':', '-');
  return PrintIntoNewFile(job, printer, QDir(folder).filePath(Shown(job.Title) + ' ' + stamp + ".pdf"), progress);
}

}  // namespace

PrintedTo PrintOnPaper(const runtime::PrintJob& job, QPrinter& printer, std::chrono::local_seconds now,
                       OldFile old_file, const Progress& progress) {
  if (printer.outputFormat() != QPrinter::PdfFormat) return PrintOnQueue(job, printer, progress);
  QString chosen = printer.outputFileName();
  if (chosen.isEmpty()) return PrintIntoDocuments(job, printer, now, progress);
  if (old_file == OldFile::Replace) return PrintOverFile(job, printer, chosen, progress);
  return PrintIntoNewFile(job, printer, chosen, progress);
}

}  // namespace desktop
