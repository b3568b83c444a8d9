// One small settings file. A printer or a paper that is unknown by now counts as none.
#include "desktop/printer_memory.h"

#include <QDir>
#include <QPrinterInfo>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>

namespace desktop {
namespace {

// Most printers reach this far, so the PDF can be printed later with nothing cut off.
constexpr double FileMargin = 0.25;  // inches

// What is smaller is no paper.
constexpr double SmallestPaper = 72;  // points

// An empty name stands for PDF files.
constexpr auto NameKey = "Printer/Name";
constexpr auto WidthKey = "Printer/PaperWidth";    // points
constexpr auto HeightKey = "Printer/PaperHeight";  // points
constexpr auto LandscapeKey = "Printer/Landscape";

QString SettingsFile() {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
      .filePath(QStringLiteral("reelora-prima/printer.ini"));
}

}  // namespace

QPageLayout HomePaper(const QLocale& locale) {
  bool inches = locale.measurementSystem() == QLocale::ImperialUSSystem;
  return QPageLayout(QPageSize(inches ? QPageSize::Letter : QPageSize::A4), QPageLayout::Portrait,
                     QMarginsF(FileMargin, FileMargin, FileMargin, FileMargin), QPageLayout::Inch);
}

std::unique_ptr<QPrinter> RememberedPrinter() {
  QSettings settings(SettingsFile(), QSettings::IniFormat);
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  QString name = settings.value(NameKey).toString();
  if (QPrinterInfo::availablePrinterNames().contains(name)) printer->setPrinterName(name);
  if (settings.contains(NameKey) && name.isEmpty()) printer->setOutputFormat(QPrinter::PdfFormat);
  if (printer->outputFormat() == QPrinter::PdfFormat) printer->setPageLayout(HomePaper());
  QSizeF paper(settings.value(WidthKey).toDouble(), settings.value(HeightKey).toDouble());
  if (std::min(paper.width(), paper.height()) < SmallestPaper) return printer;
  printer->setPageSize(QPageSize(paper, QPageSize::Point));
  printer->setPageOrientation(settings.value(LandscapeKey).toBool() ? QPageLayout::Landscape : QPageLayout::Portrait);
  return printer;
}

void RememberPrinter(const QPrinter& printer, bool paper) {
  QSettings settings(SettingsFile(), QSettings::IniFormat);
  settings.setValue(NameKey, printer.outputFormat() == QPrinter::PdfFormat ? QString() : printer.printerName());
  if (!paper) return;
  QSizeF size = printer.pageLayout().pageSize().size(QPageSize::Point);
  settings.setValue(WidthKey, size.width());
  settings.setValue(HeightKey, size.height());
  settings.setValue(LandscapeKey, printer.pageLayout().orientation() == QPageLayout::Landscape);
}

}  // namespace desktop
