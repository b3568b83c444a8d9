// Jobs on paper: their size, and the PDF files written if there is no printer.
#include "desktop/paper.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <csignal>

#include "desktop/page_painter.h"
#include "runtime/failure.h"
#include "runtime/printer.h"
#include "tests/desktop/unnamed_files.h"

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
  const QSizeF low(Letter.width(), 7 * Inch);
  PaperGrid grid = FitGrid(JobOf(1, 60, 80), low, Inch);
  EXPECT_LT(grid.Size, 12);
  EXPECT_NEAR(Reach(grid, 60), low.height(), 0.1);
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
  job.Pages.push_back(JobOf(1, 60, 89).Pages.front());
  EXPECT_EQ(FitGrid(job, Letter, Inch).Size, FitGrid(JobOf(1, 60, 89), Letter, Inch).Size);
}

TEST(FitGrid, ALongerPageLeavesTheOthersTheirSize) {
  runtime::PrintJob job = JobOf(2, 60, 80);
  PaperGrid alone = FitGrid(job, Letter, Inch);
  job.Pages.push_back(JobOf(1, 400, 80).Pages.front());
  PaperGrid grid = FitGrid(job, Letter, Inch);
  EXPECT_EQ(grid.Size, alone.Size);
  EXPECT_EQ(grid.Pitch, alone.Pitch);
  EXPECT_EQ(grid.Lines, 60u);
}

TEST(FitGrid, AllTheLinesOfASheetFit) {
  for (int lines : {1, 40, 55, 60, 62}) {
    PaperGrid grid = FitGrid(JobOf(1, lines, 80), Letter, Inch);
    EXPECT_GE(grid.Lines, static_cast<std::size_t>(lines));
    EXPECT_LE(Reach(grid, static_cast<int>(grid.Lines)), Letter.height() + 0.01) << lines;
  }
}

std::string FirstLine(const Sheet& sheet) { return sheet.front().Text.substr(0, sheet.front().Text.find("  ")); }

TEST(SheetsOf, ALongerPageGoesOnFurtherSheets) {
  runtime::PrintJob job = JobOf(1, 60, 80);
  job.Pages.push_back(JobOf(1, 130, 80).Pages.front());
  std::vector<Sheet> sheets = SheetsOf(job, 60);
  ASSERT_EQ(sheets.size(), 4u);
  EXPECT_EQ(sheets[1].size(), 60u);
  EXPECT_EQ(sheets[3].size(), 10u);
  EXPECT_EQ(FirstLine(sheets[2]), "page 1 line 61");
  EXPECT_EQ(FirstLine(sheets[3]), "page 1 line 121");
}

TEST(SheetsOf, NoSheetOfALongerPageHoldsMoreThanFits) {
  for (std::size_t lines : {46u, 55u, 62u}) {
    for (int page = static_cast<int>(LongestPage) + 1; page < 300; ++page) {
      std::size_t dealt = 0;
      runtime::PrintJob job = JobOf(1, page, 80);
      for (const Sheet& sheet : SheetsOf(job, lines)) {
        EXPECT_LE(sheet.size(), lines);
        EXPECT_GE(sheet.size(), 1u);
        dealt += sheet.size();
      }
      EXPECT_EQ(dealt, static_cast<std::size_t>(page));
    }
  }
}

TEST(SheetsOf, AnEmptyJobIsOneEmptySheet) {
  ASSERT_EQ(SheetsOf({}, 60).size(), 1u);
  EXPECT_TRUE(SheetsOf({}, 60)[0].empty());
}

// "1 2 3" for the sheets of a job of three pages in the order of printing.
std::string Order(const SheetChoice& choice) {
  runtime::PrintJob job = JobOf(3, 1, 20);
  std::string order;
  for (const Sheet& sheet : Chosen(SheetsOf(job, 60), choice)) order += sheet.front().Text.substr(5, 1);
  return order;
}

TEST(Chosen, RangeCopiesAndOrderAreAsTheUserSaid) {
  EXPECT_EQ(Order({}), "123");
  EXPECT_EQ(Order({.Pages = QPageRanges::fromString("2-9")}), "23");
  EXPECT_EQ(Order({.Pages = QPageRanges::fromString("4-9")}), "");
  EXPECT_EQ(Order({.Copies = 2}), "123123");
  EXPECT_EQ(Order({.Copies = 2, .Collated = false}), "112233");
  EXPECT_EQ(Order({.Pages = QPageRanges::fromString("1,3"), .Copies = 2, .LastFirst = true}), "3131");
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
  QStringList Files() const { return FilesIn(Folder()); }
  // Hidden ones too.
  static QStringList FilesIn(const QDir& folder) { return folder.entryList(QDir::Files | QDir::Hidden, QDir::Name); }
  // Of the only file in the folder.
  QByteArray Bytes() const { return BytesOf(Folder().entryInfoList(QDir::Files).at(0).filePath()); }
  static QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  // Fails every write past the first bytes of a file while it lives.
  class SmallDisk {
   public:
    explicit SmallDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
      getrlimit(RLIMIT_FSIZE, &old_);
      rlimit small{bytes, old_.rlim_max};
      setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
      setrlimit(RLIMIT_FSIZE, &old_);
      std::signal(SIGXFSZ, handler_);
    }

   private:
    rlimit old_{};
    void (*handler_)(int);
  };
  bool FailsOnASmallDisk(OldFile old_file, rlim_t bytes = 4096) {
    SmallDisk disk(bytes);
    try {
      PrintOnPaper(JobOf(30, 60, 80), printer, Noon, old_file);
    } catch (const runtime::Failure& failure) {
      return failure.Name == runtime::PrinterError;
    }
    return false;
  }
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

// A kill in the middle would leave what is there: nothing, hidden or not.
TEST_F(PaperTest, AReportHasNoNameUntilItIsComplete) {
  if (!TakesUnnamedFiles(home.path())) GTEST_SKIP() << "on this disk every file has a name";
  int looked = 0;
  PrintOnPaper(JobOf(30, 60, 80), printer, Noon, OldFile::Keep, [&](double) {
    ++looked;
    EXPECT_EQ(Files(), QStringList());
  });
  EXPECT_GT(looked, 0);
  EXPECT_EQ(Files().size(), 1);
}

TEST_F(PaperTest, AReportHasThePermissionsOfAnyNewFile) {
  const mode_t old_mask = umask(027);
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  umask(old_mask);
  struct stat facts {};
  ASSERT_EQ(stat(QFile::encodeName(Folder().entryInfoList(QDir::Files).at(0).filePath()).constData(), &facts), 0);
  EXPECT_EQ(facts.st_mode & 0777, 0640U);
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
  EXPECT_TRUE(FailsOnASmallDisk(OldFile::Keep));
  EXPECT_EQ(Files(), QStringList());
}

// The disk is full at each write of a report, wherever it ends in the file.
TEST_F(PaperTest, AFullDiskAtAnyWriteLeavesNoPartOfAReport) {
  QString path = home.filePath("old.pdf");
  printer.setOutputFileName(path);
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  const QByteArray old = BytesOf(path);
  PrintOnPaper(JobOf(30, 60, 80), printer, Noon, OldFile::Replace);
  const auto whole = static_cast<rlim_t>(QFileInfo(path).size());
  ASSERT_GT(whole, 20000U);
  for (rlim_t bytes = 0; bytes < whole; bytes += whole / 24) {
    SCOPED_TRACE(bytes);
    QFile restored(path);
    ASSERT_TRUE(restored.open(QIODevice::WriteOnly) && restored.write(old) == old.size());
    restored.close();
    EXPECT_TRUE(FailsOnASmallDisk(OldFile::Replace, bytes));
    EXPECT_EQ(BytesOf(path), old);
    EXPECT_TRUE(FailsOnASmallDisk(OldFile::Keep, bytes));
    EXPECT_EQ(FilesIn(home.path()), QStringList("old.pdf"));
  }
}

TEST_F(PaperTest, AFileThatTheUserAgreedToReplaceIsReplaced) {
  QString path = home.filePath("mine.pdf");
  printer.setOutputFileName(path);
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  PrintedTo printed = PrintOnPaper(JobOf(3, 5, 40), printer, Noon, OldFile::Replace);
  EXPECT_EQ(printed.File, path);
  EXPECT_TRUE(BytesOf(path).contains("/Count 3"));
  EXPECT_EQ(FilesIn(home.path()), QStringList("mine.pdf"));
}

TEST_F(PaperTest, AReplacementThatFailsLeavesTheOldFile) {
  QString path = home.filePath("mine.pdf");
  printer.setOutputFileName(path);
  PrintOnPaper(JobOf(1, 5, 40), printer, Noon);
  QByteArray old = BytesOf(path);
  EXPECT_TRUE(FailsOnASmallDisk(OldFile::Replace));
  EXPECT_EQ(BytesOf(path), old);
  EXPECT_EQ(FilesIn(home.path()), QStringList("mine.pdf"));
}

TEST_F(PaperTest, AFileWithoutASuffixKeepsItsName) {
  printer.setOutputFileName(home.filePath("my films"));
  printer.setOutputFormat(QPrinter::PdfFormat);
  EXPECT_EQ(PrintOnPaper(JobOf(1, 5, 40), printer, Noon).File, home.filePath("my films"));
  EXPECT_EQ(PrintOnPaper(JobOf(1, 5, 40), printer, Noon).File, home.filePath("my films (2)"));
}

TEST_F(PaperTest, TheFileHasThePaperAndTheCopiesOfThePrinter) {
  printer.setPageSize(QPageSize(QPageSize::A5));
  printer.setPageOrientation(QPageLayout::Landscape);
  printer.setCopyCount(3);
  PrintOnPaper(JobOf(2, 5, 40), printer, Noon);
  EXPECT_TRUE(Bytes().contains("/Count 6"));
  EXPECT_TRUE(Bytes().contains("/MediaBox [0 0 595")) << Bytes().mid(Bytes().indexOf("/MediaBox"), 40).toStdString();
}

TEST_F(PaperTest, OnlyTheChosenPagesArePrinted) {
  printer.setPrintRange(QPrinter::PageRange);
  printer.setFromTo(2, 3);
  PrintOnPaper(JobOf(5, 5, 40), printer, Noon);
  EXPECT_TRUE(Bytes().contains("/Count 2"));
}

TEST_F(PaperTest, AReportWithoutTheChosenPagesIsNotPrinted) {
  printer.setPrintRange(QPrinter::PageRange);
  printer.setFromTo(7, 9);
  PrintedTo printed = PrintOnPaper(JobOf(5, 5, 40), printer, Noon);
  EXPECT_EQ(printed.File + printed.Queue, QString());
  EXPECT_EQ(Files(), QStringList());
}

TEST_F(PaperTest, ALongerPageIsPrintedOnSeveralSheets) {
  PrintOnPaper(JobOf(1, 150, 80), printer, Noon);
  EXPECT_TRUE(Bytes().contains("/Count 3"));
}

}  // namespace
}  // namespace desktop
