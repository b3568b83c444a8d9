// Jobs on paper: their size, and the PDF files written if there is no printer.
#include "desktop/paper.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <csignal>

#include "desktop/page_painter.h"
#include "runtime/failure.h"
#include "runtime/printer.h"

namespace desktop {
namespace {

constexpr double Inch = 72;
const QSizeF Letter(8 * Inch, 10.5 * Inch);
const QSizeF A4(559.28, 805.89);

// Each page has that many lines, which reach that column.
runtime::PrintJob JobOf(int pages, int lines, int columns) {
  runtime::Printer printer;
  printer.SetFont("Courier New", 12);
  printer.SetBold(true);
  for (int page = 0; page < pages; ++page) {
    if (page > 0) printer.NewPage();
    for (int line = 1; line <= lines; ++line)
      printer.Print({"page ", std::to_string(page + 1), " line ", std::to_string(line), runtime::Tab{columns}, "|"});
  }
  return printer.EndDocument("Test List");
}

double Reach(const PaperGrid& grid, int lines) { return grid.Ascent * (1.1333 / 0.8333) + (lines - 1) * grid.Pitch; }

TEST(FitGrid, LeavesTwelvePointsWhereEightyColumnsAndThePageFit) {
  PaperGrid grid = FitGrid(JobOf(1, 55, 80), Letter, Inch);
  EXPECT_DOUBLE_EQ(grid.Size, 12);
  EXPECT_DOUBLE_EQ(grid.Cell, 7.2);
  EXPECT_LE(Reach(grid, 55), Letter.height() + 0.01);
}

TEST(FitGrid, MovesTheLinesTogetherBeforeTheSizeGoesDown) {
  PaperGrid grid = FitGrid(JobOf(1, 62, 80), Letter, Inch);
  EXPECT_DOUBLE_EQ(grid.Size, 12);
  EXPECT_LT(grid.Pitch, 12.3);
  EXPECT_LE(Reach(grid, 62), Letter.height() + 0.01);
}

TEST(FitGrid, GoesDownByAsLittleAsThePageNeeds) {
  PaperGrid grid = FitGrid(JobOf(1, 67, 80), Letter, Inch);
  EXPECT_LT(grid.Size, 12);
  EXPECT_NEAR(Reach(grid, 67), Letter.height(), 0.1);
  EXPECT_NEAR(grid.Pitch, grid.Size, 0.01);
}

TEST(FitGrid, GoesDownByAsLittleAsTheColumnsNeed) {
  EXPECT_NEAR(80 * FitGrid(JobOf(1, 1, 80), A4, Inch).Cell, A4.width(), 0.001);
  EXPECT_NEAR(89 * FitGrid(JobOf(1, 1, 89), Letter, Inch).Cell, Letter.width(), 0.001);
}

TEST(FitGrid, IsTheSameForNarrowJobsAsForEightyColumns) {
  EXPECT_EQ(FitGrid(JobOf(1, 1, 20), A4, Inch).Size, FitGrid(JobOf(1, 1, 80), A4, Inch).Size);
}

TEST(FitGrid, IsTheSameOnAllPages) {
  runtime::PrintJob job = JobOf(1, 10, 80);
  job.Pages.push_back(JobOf(1, 70, 89).Pages.front());
  EXPECT_EQ(FitGrid(job, Letter, Inch).Size, FitGrid(JobOf(1, 70, 89), Letter, Inch).Size);
}

// A home folder of its own, on a machine without a printer.
class PaperTest : public testing::Test {
 protected:
  PaperTest() : old_home_(qgetenv("HOME")), old_settings_(qgetenv("XDG_CONFIG_HOME")) {
    qputenv("HOME", home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
    printer.setOutputFormat(QPrinter::PdfFormat);
  }
  ~PaperTest() override {
    qputenv("HOME", old_home_);
    if (!old_settings_.isEmpty()) qputenv("XDG_CONFIG_HOME", old_settings_);
  }
  QDir Folder() const {
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + "/Reelora Prima");
  }
  QStringList Files() const { return Folder().entryList(QDir::Files, QDir::Name); }
  static QString Text(const QString& path) {
    QProcess reader;
    reader.start("pdftotext", {"-layout", path, "-"});
    return reader.waitForFinished() ? QString::fromUtf8(reader.readAllStandardOutput()) : QString();
  }

  QTemporaryDir home;
  QPrinter printer{QPrinter::HighResolution};
  const std::chrono::local_seconds Noon{std::chrono::hours(12)};

 private:
  QByteArray old_home_;
  QByteArray old_settings_;
};

TEST_F(PaperTest, WithoutAPrinterAReportBecomesAFileNamedByTitleAndTime) {
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  EXPECT_EQ(Files(), QStringList({"Test List 1970-01-01 12-00-00.pdf"}));
}

TEST_F(PaperTest, NoFileIsOverwritten) {
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  QFileInfo first = Folder().entryInfoList(QDir::Files).at(0);
  PrintOnPaper(JobOf(2, 5, 40), printer, Noon);
  PrintOnPaper(JobOf(3, 5, 40), printer, Noon);
  EXPECT_EQ(Files().size(), 3);
  EXPECT_EQ(QFileInfo(first.filePath()).size(), first.size());
  EXPECT_TRUE(Files().contains("Test List 1970-01-01 12-00-00 (3).pdf"));
}

TEST_F(PaperTest, AFileChosenInTheDialogGivesItsNameAndIsNotOverwritten) {
  printer.setOutputFileName(home.filePath("mine.pdf"));
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  EXPECT_EQ(QDir(home.path()).entryList({"*.pdf"}, QDir::Files, QDir::Name), QStringList({"mine (2).pdf", "mine.pdf"}));
}

TEST_F(PaperTest, TheFileHoldsTheLinesOfThePages) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "pdftotext (poppler-utils) is missing";
  runtime::Printer lines;
  lines.SetFont("Courier New", 12);
  lines.SetBold(true);
  lines.Print({"Am\xE9lie", runtime::Tab{34}, "Jean-Pierre Jeunet", " (Dir.)"});
  lines.SetUnderline(true);
  lines.Print({"Notes/Awards: ", runtime::Tab{77}, ":  "});
  lines.NewPage();
  lines.Print({"8\xBD \x96 end"});
  PrintOnPaper(lines.EndDocument("Test List"), printer, Noon);
  QStringList pages = Text(Folder().entryInfoList(QDir::Files).at(0).filePath()).split('\f');
  ASSERT_GE(pages.size(), 2);
  EXPECT_EQ(pages[0].simplified(), QStringLiteral("Amélie Jean-Pierre Jeunet (Dir.) Notes/Awards: :"));
  EXPECT_EQ(pages[1].simplified(), QStringLiteral("8½ – end"));
}

TEST_F(PaperTest, AFolderThatCannotBeMadeIsAPrinterError) {
  QFile file(home.filePath("Documents"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  try {
    PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
    FAIL();
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.Name, runtime::PrinterError);
  }
}

TEST_F(PaperTest, APageThatCannotBeWrittenLeavesNoFile) {
  rlimit old{};
  getrlimit(RLIMIT_FSIZE, &old);
  rlimit small{4096, old.rlim_max};
  auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  bool failed = false;
  try {
    PrintOnPaper(JobOf(30, 60, 80), printer, Noon);
  } catch (const runtime::Failure& failure) {
    failed = failure.Name == runtime::PrinterError;
  }
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, handler);
  EXPECT_TRUE(failed);
  EXPECT_EQ(Files(), QStringList());
}

}  // namespace
}  // namespace desktop
