// Setup Printer: the dialog as the user sees it, and what holds afterwards, in this run and the next.
#include "desktop/run_printer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

#include "desktop/printer_memory.h"

namespace desktop {
namespace {

runtime::PrintJob TwoPages() {
  runtime::PrintedPage page{{{"film", 1, true, false}}};
  return {"Test List", "Courier New", 12, {page, page}};
}

// A home folder of its own, on a machine without a printer.
class RunPrinterTest : public testing::Test {
 protected:
  RunPrinterTest() {
    qputenv("HOME", home.path().toLocal8Bit());
    qunsetenv("XDG_CONFIG_HOME");
  }
  ~RunPrinterTest() override {
    qputenv("HOME", old_home_);
    if (!old_settings_.isEmpty()) qputenv("XDG_CONFIG_HOME", old_settings_);
  }

  // Opens the dialog and does that in it; a question about a file is answered Yes.
  void SetUpPrinter(const std::function<void(QPrintDialog&)>& doing) {
    bool seen = false;
    QTimer::singleShot(0, [&] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      seen = true;
      doing(*dialog);
      if (dialog->isVisible()) dialog->reject();
    });
    printer.SetUp(nullptr);
    EXPECT_TRUE(seen);
  }
  static void Ok(QPrintDialog& dialog) {
    QTimer::singleShot(0, [] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        box->button(QMessageBox::Yes)->click();
    });
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
  }
  static QLineEdit& FileLine(QPrintDialog& dialog) { return *dialog.findChild<QLineEdit*>("filename"); }
  QString Print() { return printer.Print(TwoPages(), std::chrono::local_seconds(std::chrono::hours(12))).File; }

  QTemporaryDir home;
  RunPrinter printer;

 private:
  QByteArray old_home_ = qgetenv("HOME");
  QByteArray old_settings_ = qgetenv("XDG_CONFIG_HOME");
};

TEST_F(RunPrinterTest, TheDialogIsNamedAsTheMenuAndItsButtonSaysOk) {
  SetUpPrinter([](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Setup Printer");
    EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->text(), "OK");
  });
}

TEST_F(RunPrinterTest, TheDefaultFileLiesInDocumentsAndReplacesNothing) {
  QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  QDir().mkpath(documents);
  QFile old(documents + "/Reelora Prima.pdf");
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  SetUpPrinter([&](QPrintDialog& dialog) {
    EXPECT_EQ(FileLine(dialog).text(), documents + "/Reelora Prima (2).pdf");
    Ok(dialog);
  });
  EXPECT_EQ(Print(), documents + "/Reelora Prima (2).pdf");
}

TEST_F(RunPrinterTest, AMereOkKeepsThePaper) {
  printer.Device().setPageSize(QPageSize(QPageSize::Letter));
  SetUpPrinter(Ok);
  EXPECT_EQ(printer.Device().pageLayout().pageSize().id(), QPageSize::Letter);
  EXPECT_EQ(RememberedPrinter()->pageLayout(), HomePaper());
}

TEST_F(RunPrinterTest, CancelChangesNothing) {
  SetUpPrinter([&](QPrintDialog& dialog) {
    FileLine(dialog).setText(home.filePath("mine.pdf"));
    dialog.findChild<QSpinBox*>("copies")->setValue(4);
    dialog.reject();
  });
  EXPECT_EQ(printer.Device().outputFileName(), "");
  EXPECT_EQ(printer.Device().copyCount(), 1);
}

TEST_F(RunPrinterTest, WhatWasChosenHoldsForEveryReportOfTheRun) {
  SetUpPrinter([&](QPrintDialog& dialog) {
    FileLine(dialog).setText(home.filePath("mine.pdf"));
    dialog.findChild<QSpinBox*>("copies")->setValue(4);
    Ok(dialog);
  });
  EXPECT_EQ(Print(), home.filePath("mine.pdf"));
  EXPECT_EQ(Print(), home.filePath("mine (2).pdf"));
  EXPECT_EQ(printer.Device().copyCount(), 4);
  SetUpPrinter([&](QPrintDialog& dialog) {
    EXPECT_EQ(FileLine(dialog).text(), home.filePath("mine.pdf"));
    EXPECT_EQ(dialog.findChild<QSpinBox*>("copies")->value(), 4);
  });
}

TEST_F(RunPrinterTest, ARangeOfPagesHoldsForEveryReportOfTheRun) {
  SetUpPrinter([&](QPrintDialog& dialog) {
    dialog.findChild<QRadioButton*>("printRange")->setChecked(true);
    dialog.findChild<QSpinBox*>("from")->setValue(2);
    dialog.findChild<QSpinBox*>("to")->setValue(2);
    Ok(dialog);
  });
  for (int report = 1; report <= 2; ++report) {
    QFile file(Print());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("/Count 1")) << report;
  }
}

TEST_F(RunPrinterTest, AFileThatTheUserAgreesToReplaceIsReplacedByTheNextReportOnly) {
  QFile old(home.filePath("mine.pdf"));
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.close();
  SetUpPrinter([&](QPrintDialog& dialog) {
    FileLine(dialog).setText(old.fileName());
    Ok(dialog);
  });
  EXPECT_EQ(Print(), old.fileName());
  EXPECT_GT(old.size(), 0);
  EXPECT_EQ(Print(), home.filePath("mine (2).pdf"));
}

TEST_F(RunPrinterTest, TheNextRunHasTheChosenPaperButNotTheFile) {
  SetUpPrinter([&](QPrintDialog& dialog) {
    FileLine(dialog).setText(home.filePath("mine.pdf"));
    dialog.printer()->setPageSize(QPageSize(QPageSize::A3));
    dialog.printer()->setPageOrientation(QPageLayout::Landscape);
    Ok(dialog);
  });
  RunPrinter next;
  EXPECT_EQ(next.Device().pageLayout().pageSize().id(), QPageSize::A3);
  EXPECT_EQ(next.Device().pageLayout().orientation(), QPageLayout::Landscape);
  EXPECT_EQ(next.Device().outputFormat(), QPrinter::PdfFormat);
  EXPECT_EQ(next.Device().outputFileName(), "");
}

TEST_F(RunPrinterTest, SettingsOfAnythingAreTaken) {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/reelora-prima";
  QDir().mkpath(folder);
  QFile settings(folder + "/printer.ini");
  ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
  settings.write("[Printer]\nName=Gone\nPaperWidth=-3\nPaperHeight=x\nLandscape=7\n");
  settings.close();
  EXPECT_EQ(RememberedPrinter()->pageLayout(), HomePaper());
}

TEST(HomePaper, IsLetterWherePeopleMeasureInInchesAndA4Elsewhere) {
  EXPECT_EQ(HomePaper(QLocale("en_US")).pageSize().id(), QPageSize::Letter);
  EXPECT_EQ(HomePaper(QLocale("en_GB")).pageSize().id(), QPageSize::A4);
  EXPECT_EQ(HomePaper(QLocale("de_DE")).pageSize().id(), QPageSize::A4);
}

}  // namespace
}  // namespace desktop
