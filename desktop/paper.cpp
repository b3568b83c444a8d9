// Sends a job to the queue or writes a PDF; the page painter draws it.
#include "desktop/paper.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>
#include <QPdfWriter>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <cerrno>
#include <string>

#include "desktop/page_painter.h"
#include "desktop/text.h"
#include "runtime/clock.h"
#include "runtime/disk.h"
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

// Calls the disk, repeated while a signal interrupts it.
template <typename Call>
void OnDisk(Call call) {
  int result = 0;
  do {
    result = call();
  } while (result == -EINTR);
  if (result < 0) throw runtime::Failure{runtime::PrinterError, "", -result};
}

std::string NameOnDisk(const QString& name) { return QFile::encodeName(name).toStdString(); }

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

Painted DrawInto(const runtime::PrintJob& job, QFileDevice& file, const QPrinter& printer, const Progress& progress) {
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

// The permissions that a new file has where nobody asks for others.
QFileDevice::Permissions UsualPermissions() {
  const mode_t mask = umask(0);
  umask(mask);
  QFileDevice::Permissions usual = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
  if (!(mask & S_IRGRP)) usual |= QFileDevice::ReadGroup;
  if (!(mask & S_IWGRP)) usual |= QFileDevice::WriteGroup;
  if (!(mask & S_IROTH)) usual |= QFileDevice::ReadOther;
  if (!(mask & S_IWOTH)) usual |= QFileDevice::WriteOther;
  return usual;
}

// Adds " (2)" and so on to the name if it is taken.
void NameNew(QTemporaryFile& file, const QFileInfo& wanted) {
  QString suffix = wanted.suffix().isEmpty() ? QString() : '.' + wanted.suffix();
  for (int number = 1;; ++number) {
    QString count = number == 1 ? QString() : QStringLiteral(" (%1)").arg(number);
    QString name = QDir(wanted.path()).filePath(wanted.completeBaseName() + count + suffix);
    if (QFileInfo::exists(name)) continue;
    if (file.rename(name)) return;
    if (!QFileInfo::exists(name)) Fail(file);
  }
}

// Only a file with a name can take the place of another.
void Replace(const QFileInfo& old, QTemporaryFile& file, runtime::Disk& folder) {
  NameNew(file, QFileInfo(QDir(old.path()).filePath(".reelora-report.new")));
  const QString name = QFileInfo(file.fileName()).fileName();
  OnDisk([&] { return folder.Rename(NameOnDisk(name), NameOnDisk(old.fileName())); });
}

// The file has no name until it is complete, so that a kill leaves none.
PrintedTo PrintIntoFile(const runtime::PrintJob& job, const QPrinter& printer, const QString& wanted, OldFile old_file,
                        const Progress& progress) {
  // A link stays; the file that it leads to is replaced.
  const QString old = old_file == OldFile::Replace ? QFileInfo(wanted).canonicalFilePath() : QString();
  const QFileInfo target(old.isEmpty() ? wanted : old);
  if (!old.isEmpty() && !(target.isFile() && target.isWritable())) OnDisk([] { return -EACCES; });
  QTemporaryFile file(QDir(target.path()).filePath(".reelora-XXXXXX"));
  if (!file.open()) Fail(file);
  Painted painted = DrawInto(job, file, printer, progress);
  if (painted == Painted::Nothing) return {};
  auto permissions = old.isEmpty() ? UsualPermissions() : target.permissions();
  if (painted == Painted::Failed || !file.setPermissions(permissions)) Fail(file);
  runtime::RealDisk folder(NameOnDisk(target.path()));
  OnDisk([&] { return folder.Sync(file.handle()); });
  old.isEmpty() ? NameNew(file, target) : Replace(target, file, folder);
  file.setAutoRemove(false);
  OnDisk([&] { return folder.SyncFolder(""); });
  return {old.isEmpty() ? file.fileName() : wanted, {}};
}

PrintedTo PrintIntoDocuments(const runtime::PrintJob& job, const QPrinter& printer, std::chrono::local_seconds now,
                             const Progress& progress) {
  QString folder = QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath("Reelora Prima");
  if (!QDir().mkpath(folder)) Fail(QStringLiteral("The folder %1 cannot be made").arg(folder));
  QString stamp = Shown(runtime::StampText(now)).replace(':', '-');
  QString name = Shown(job.Title) + ' ' + stamp + ".pdf";
  return PrintIntoFile(job, printer, QDir(folder).filePath(name), OldFile::Keep, progress);
}

}  // namespace

PrintedTo PrintOnPaper(const runtime::PrintJob& job, QPrinter& printer, std::chrono::local_seconds now,
                       OldFile old_file, const Progress& progress) {
  if (printer.outputFormat() != QPrinter::PdfFormat) return PrintOnQueue(job, printer, progress);
  QString chosen = printer.outputFileName();
  if (chosen.isEmpty()) return PrintIntoDocuments(job, printer, now, progress);
  return PrintIntoFile(job, printer, chosen, old_file, progress);
}

}  // namespace desktop
