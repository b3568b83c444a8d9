// The failure report: every name has its texts, and the form behind the box stays as it was drawn.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <new>

#include "app/program.h"
#include "desktop/application.h"
#include "desktop/failure_box.h"
#include "desktop/failure_texts.h"
#include "desktop/qt_desk.h"
#include "desktop/stack_view.h"
#include "runtime/disk.h"
#include "store/draft.h"
#include "tests/kit/films.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/memory_disk.h"
#include "tests/kit/passing_disk.h"
#include "tests/kit/quiet_desk.h"

namespace desktop {
namespace {

constexpr std::string_view Names[] = {
    runtime::Overflow,      runtime::FileNotFound,    runtime::InputPastEnd, runtime::BadRecordNumber,
    runtime::BadFileNumber, runtime::FileAlreadyOpen, runtime::TypeMismatch, runtime::DiskFull,
    runtime::DeviceError,   runtime::PathError,       runtime::PrinterError, runtime::OutOfMemory,
};

// Runs while a box is open, then closes it.
template <typename Look>
void WhileABoxIsOpen(Look look) {
  QTimer::singleShot(0, [look] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    look(*box);
    if (box->isVisible()) box->reject();
  });
}

std::string InformationOf(const runtime::Failure& failure) {
  return FailureBox(failure, "/films", nullptr).informativeText().toStdString();
}

TEST(FailureTexts, EveryNameHasARowForAnyFileAfterItsSpecialRows) {
  for (std::string_view name : Names) {
    std::vector<const FailureTexts*> rows;
    for (const FailureTexts& row : FailureTable)
      if (row.Name == name) rows.push_back(&row);
    ASSERT_FALSE(rows.empty()) << name;
    EXPECT_TRUE(rows.back()->Group == FileGroup::Any && rows.back()->SystemError == 0) << name;
    for (const FailureTexts* row : rows) {
      EXPECT_TRUE(row->Means.ends_with('.') && row->Safe.ends_with('.') && row->Next.ends_with('.')) << name;
      const FailureTexts& found = TextsOf({name,
                                           row->Group == FileGroup::Films      ? "Recpra.Dat"
                                           : row->Group == FileGroup::Keys     ? "DVDpra.Dat"
                                           : row->Group == FileGroup::Settings ? "AutoSave"
                                                                               : "films.txt",
                                           row->SystemError});
      EXPECT_EQ(&found, row) << name << ": " << row->Means;
    }
  }
}

TEST(FailureTexts, NoRowHasAnotherName) {
  for (const FailureTexts& row : FailureTable)
    EXPECT_NE(std::find(std::begin(Names), std::end(Names), row.Name), std::end(Names)) << row.Name;
}

TEST(FailureTexts, KnowTheFilesOfTheCollection) {
  EXPECT_EQ(GroupOf("Recpra.Dat"), FileGroup::Films);
  for (const char* keys : {"Titlepra.Dat", "DVDpra.Dat", "Laserpra.Dat", "VHSpra.Dat"})
    EXPECT_EQ(GroupOf(keys), FileGroup::Keys) << keys;
  for (const char* setting : {"AutoSave", "AutoSort", "BGColor", "txtBGColor", "txtForColor", "tagForColor", "Fo",
                              "Fo1", "Last", "Titlepra", "DVDpra", "Laserpra", "VHSpra"})
    EXPECT_EQ(GroupOf(setting), FileGroup::Settings) << setting;
  EXPECT_EQ(GroupOf(".reelora/journal"), FileGroup::Any);
  EXPECT_EQ(GroupOf(""), FileGroup::Any);
}

TEST(FailureReport, SaysThatTheFilmBeingTypedIsKept) {
  kit::FreshFolder folder;
  runtime::RealDisk disk(folder.Path());
  auto told = [&] {
    FailureBox box({runtime::DiskFull, "Recpra.Dat", ENOSPC}, QString::fromStdString(folder.Path()), nullptr);
    return box.informativeText().contains("The film that was being typed is kept");
  };
  EXPECT_FALSE(told());
  store::WriteDraft(disk, store::FreeDraftName(disk), {});
  EXPECT_TRUE(told());
}

TEST(FailureReport, KeepsItsTwoLinesAndAddsPathMeaningReasonAndAdvice) {
  FailureBox box({runtime::DiskFull, "Recpra.Dat", ENOSPC}, "/films", nullptr);
  EXPECT_EQ(box.text(), "Disk full\n\nRecpra.Dat");
  std::string text = box.informativeText().toStdString();
  const FailureTexts& texts = TextsOf({runtime::DiskFull, "Recpra.Dat", ENOSPC});
  EXPECT_TRUE(text.starts_with("The file: /films/Recpra.Dat\n")) << text;
  EXPECT_NE(text.find("The system says: " + qt_error_string(ENOSPC).toStdString() + "."), std::string::npos) << text;
  for (std::string_view part : {texts.Means, texts.Safe, texts.Next})
    EXPECT_NE(text.find(part), std::string::npos) << part;
}

TEST(FailureReport, SaysWhatThePrinterGaveAsItsReason) {
  std::string text = InformationOf({runtime::PrinterError, "", 0, "Out of paper"});
  EXPECT_NE(text.find("The system says: Out of paper."), std::string::npos) << text;
  EXPECT_EQ(text.find("The file:"), std::string::npos) << text;
}

TEST(FailureReport, LeavesOutAReasonThatNobodyGave) {
  EXPECT_EQ(InformationOf({runtime::FileAlreadyOpen, "DVDpra.Dat"}).find("The system"), std::string::npos);
}

TEST(FailureReport, StartsAgainOnlyAtThatButton) {
  FailureBox box({runtime::DiskFull, ""}, "/films", nullptr);
  WhileABoxIsOpen([](QMessageBox&) {});
  EXPECT_EQ(box.Ask(), FailureBox::Choice::Close);
  WhileABoxIsOpen([](QMessageBox& open) { open.defaultButton()->click(); });
  EXPECT_EQ(box.Ask(), FailureBox::Choice::Close);
  WhileABoxIsOpen([](QMessageBox& open) {
    for (QAbstractButton* button : open.buttons())
      if (button->text() == "Start again") button->click();
  });
  EXPECT_EQ(box.Ask(), FailureBox::Choice::StartAgain);
}

TEST(FailureReport, AFailedCallCarriesTheNumberOfTheSystem) {
  kit::MemoryDisk disk({});
  runtime::Files files(disk);
  try {
    files.OpenInput(1, "Last");
    FAIL() << "the file is not there";
  } catch (const runtime::Failure& failure) {
    EXPECT_EQ(failure.SystemError, ENOENT);
  }
}

// The record screen on a disk that is full from a chosen moment on.
class FullDisk final : public kit::PassingDisk {
 public:
  using PassingDisk::PassingDisk;
  bool Full = false;
  std::int64_t WriteAt(int handle, const char* source, std::size_t count, std::int64_t offset) override {
    return Full ? -ENOSPC : PassingDisk::WriteAt(handle, source, count, offset);
  }
};

TEST(FailureReport, TheFormBehindItIsNotDrawnAnew) {
  kit::MemoryDisk films(kit::FolderOfFilms(3));
  FullDisk disk(films);
  QtDesk desk("/films");
  Program program(desk, disk);
  StackView view(program.Windows, [&](const std::function<void()>& event) { program.Deliver(event); });
  desk.DrawOn(view);
  frmPage1& screen = program.RecordScreen;
  view.Deliver([&] { program.StartRecordScreen(); });
  view.Deliver([&] { screen.UserClick(screen.cmdEdit); });
  FormView& form = *view.ViewOf(screen);
  auto says_saved = [&] {
    ControlView* label = form.ViewOf(screen.lblSave);
    return label && label->Widget().isVisible();
  };
  disk.Full = true;

  bool seen = false;
  auto look = [&](QMessageBox& box) {
    seen = true;
    EXPECT_EQ(box.text().toStdString(), "Disk full\n\n.reelora/journal");
    EXPECT_EQ(box.parentWidget(), &form);
    form.resize(form.width() + 40, form.height() + 30);
    view.Sync();
    EXPECT_FALSE(says_saved());
  };
  QTimer::singleShot(0, [&] {
    WhileABoxIsOpen(look);
    view.Deliver([&] { screen.UserClick(screen.cmdSave); });
  });
  EXPECT_EQ(QApplication::exec(), 1);
  EXPECT_TRUE(seen);
  EXPECT_TRUE(screen.lblSave.Visible()) << "the form itself says that the work is saved";
  EXPECT_FALSE(says_saved());
  EXPECT_FALSE(desk.StartAgain());
}

TEST(OutOfMemory, InAHandlerStopsTheProgramWithItsReport) {
  kit::MemoryDisk films(kit::FolderOfFilms(1));
  kit::QuietDesk desk;
  Program program(desk, films);
  program.StartRecordScreen();
  program.Deliver([] { throw std::bad_alloc(); });
  EXPECT_EQ(desk.Reported, runtime::OutOfMemory);
  EXPECT_TRUE(program.Ended());
}

TEST(OutOfMemory, InTheEventLoopIsReportedToo) {
  struct Hungry final : QObject {
    bool event(QEvent*) override { throw std::bad_alloc(); }
  } hungry;
  int reports = 0;
  auto& application = dynamic_cast<Application&>(*QCoreApplication::instance());
  application.OnOutOfMemory([&] { ++reports; });
  QApplication::postEvent(&hungry, std::make_unique<QEvent>(QEvent::User).release());
  QApplication::processEvents();
  application.OnOutOfMemory({});
  EXPECT_EQ(reports, 1);
}

}  // namespace
}  // namespace desktop
