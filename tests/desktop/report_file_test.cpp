// The file of a report on its way to its name: a kill or a failure at every moment, permissions, links, closed folders.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "desktop/paper.h"
#include "runtime/failure.h"
#include "tests/desktop/unnamed_files.h"
#include "tests/kit/ordinary_user.h"

namespace desktop {
namespace {

constexpr const char *Drawn = "a sheet is drawn", *FileSync = "sync of the file", *Naming = "naming",
                     *Replacing = "replacing", *FolderSync = "sync of the folder";

// What happens at each moment, before the call. Returns the error number with which the call fails, 0 if it goes on.
using Moments = std::function<int(const std::string&)>;
Moments at_moment;

int Error(const char* moment) { return at_moment ? at_moment(moment) : 0; }

int Fail(int error) {
  errno = error;
  return -1;
}

}  // namespace
}  // namespace desktop

// These stand before the calls of the C library, for the toolkit too.
extern "C" {

int fsync(int handle) {
  struct stat status {};
  const bool folder = ::fstat(handle, &status) == 0 && S_ISDIR(status.st_mode);
  if (int error = desktop::Error(folder ? desktop::FolderSync : desktop::FileSync)) return desktop::Fail(error);
  return static_cast<int>(::syscall(SYS_fsync, handle));
}

int linkat(int from_folder, const char* from, int to_folder, const char* to, int flags) noexcept {
  if (int error = desktop::Error(desktop::Naming)) return desktop::Fail(error);
  return static_cast<int>(::syscall(SYS_linkat, from_folder, from, to_folder, to, flags));
}

int rename(const char* from, const char* to) noexcept {
  if (int error = desktop::Error(desktop::Replacing)) return desktop::Fail(error);
  return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

}  // extern "C"

namespace desktop {
namespace {

using Steps = std::vector<std::string>;

class ReportFile : public testing::Test {
 protected:
  static constexpr int Pages = 5;
  static inline const QByteArray Old = "the old report";

  ReportFile() {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(Path);
  }
  ~ReportFile() override { at_moment = nullptr; }

  PrintedTo Print(OldFile old_file) {
    runtime::PrintedPage page{{{"film", 1, true, false}}};
    const runtime::PrintJob job{"Test List", "Courier New", 12, std::vector(Pages, page)};
    return PrintOnPaper(job, printer, {}, old_file, [](double) { Error(Drawn); });
  }
  // Whether the failure has that name.
  bool Fails(OldFile old_file, int system_error) {
    try {
      Print(old_file);
    } catch (const runtime::Failure& failure) {
      return failure.Name == runtime::PrinterError && (failure.SystemError == system_error || !failure.Reason.empty());
    }
    return false;
  }
  // The state before a report that replaces the old file, or that is a new one.
  void Prepare(OldFile old_file) const {
    at_moment = nullptr;
    for (const QString& name : Files()) QFile::remove(QDir(home.path()).filePath(name));
    if (old_file == OldFile::Replace) Write(Path, Old);
  }
  Steps StepsOf(OldFile old_file) {
    Prepare(old_file);
    Steps steps;
    at_moment = [&](const std::string& moment) {
      steps.push_back(moment);
      return 0;
    };
    Print(old_file);
    return steps;
  }
  // The file before or after it has its name.
  void ExpectWhole(OldFile old_file, bool named) const {
    const QByteArray bytes = Bytes(Path);
    if (named) {
      EXPECT_TRUE(bytes.startsWith("%PDF") && bytes.trimmed().endsWith("%%EOF"));
      EXPECT_TRUE(bytes.contains("/Count 5"));
    } else {
      EXPECT_EQ(bytes, old_file == OldFile::Replace ? Old : QByteArray());
      EXPECT_EQ(QFile::exists(Path), old_file == OldFile::Replace);
    }
  }
  // Of the program, in a process of its own.
  int SignalThatEnds(OldFile old_file, const Moments& moments) {
    const pid_t child = ::fork();
    if (child == 0) {
      at_moment = moments;
      Fails(old_file, 0);
      ::_exit(0);
    }
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFSIGNALED(status) ? WTERMSIG(status) : 0;
  }
  QStringList Files() const { return QDir(home.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
  static QByteArray Bytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }

  static void Allow(const QString& path, mode_t permissions) {
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), permissions), 0);
  }

  const QTemporaryDir home;
  const QString Path = home.filePath("mine.pdf");
  QPrinter printer{QPrinter::HighResolution};
};

class ReportFileWithoutName : public ReportFile {
 protected:
  void SetUp() override {
    if (!TakesUnnamedFiles(home.path())) GTEST_SKIP() << "on this disk every file has a name";
  }
};

TEST_F(ReportFileWithoutName, IsSyncedBeforeItHasOneAndTheFolderAfterwards) {
  auto after_drawing = [&](Steps steps) {
    EXPECT_EQ(std::erase(steps, Drawn), static_cast<std::size_t>(Pages));
    return steps;
  };
  EXPECT_EQ(after_drawing(StepsOf(OldFile::Keep)), (Steps{FileSync, Naming, FolderSync}));
  EXPECT_EQ(after_drawing(StepsOf(OldFile::Replace)), (Steps{FileSync, Naming, Replacing, FolderSync}));
}

TEST_F(ReportFileWithoutName, AKillAtAnyMomentLeavesTheOldFileOrTheNewOne) {
  for (OldFile old_file : {OldFile::Keep, OldFile::Replace}) {
    const Steps steps = StepsOf(old_file);
    for (std::size_t kill = 0; kill < steps.size(); ++kill) {
      SCOPED_TRACE(std::to_string(kill) + ": " + steps[kill]);
      Prepare(old_file);
      std::size_t moment = 0;
      const Moments killed = [&](const std::string&) { return moment++ == kill ? ::raise(SIGKILL) : 0; };
      ASSERT_EQ(SignalThatEnds(old_file, killed), SIGKILL);
      const bool named = steps[kill] == FolderSync;
      ExpectWhole(old_file, named);
      // A complete report that is about to replace the old one has a name of its own.
      const qsizetype hidden = steps[kill] == Replacing;
      EXPECT_EQ(Files().size(), hidden + (named || old_file == OldFile::Replace));
    }
  }
}

TEST_F(ReportFileWithoutName, ACallThatFailsIsNamedAndLeavesTheOldFileOrTheNewOne) {
  for (OldFile old_file : {OldFile::Keep, OldFile::Replace}) {
    for (const std::string& failing : StepsOf(old_file)) {
      if (failing == Drawn) continue;
      SCOPED_TRACE(failing);
      Prepare(old_file);
      at_moment = [&](const std::string& moment) { return moment == failing ? EIO : 0; };
      EXPECT_TRUE(Fails(old_file, EIO));
      const bool named = failing == FolderSync;
      ExpectWhole(old_file, named);
      EXPECT_EQ(Files().size(), named || old_file == OldFile::Replace);
    }
  }
}

TEST_F(ReportFile, AnInterruptedCallIsRepeated) {
  for (const char* interrupted : {FileSync, Replacing, FolderSync}) {
    SCOPED_TRACE(interrupted);
    Prepare(OldFile::Replace);
    int times = 0;
    at_moment = [&](const std::string& moment) { return moment == interrupted && ++times == 1 ? EINTR : 0; };
    EXPECT_EQ(Print(OldFile::Replace).File, Path);
    EXPECT_EQ(times, 2);
    ExpectWhole(OldFile::Replace, true);
  }
}

TEST_F(ReportFile, AnOldFileInAFolderThatTakesNoOtherStays) {
  const QString folder = home.filePath("shut"), path = folder + "/mine.pdf";
  ASSERT_TRUE(QDir().mkdir(folder));
  Write(path, Old);
  Allow(home.path(), 0755);
  Allow(path, 0666);
  Allow(folder, 0555);
  printer.setOutputFileName(path);
  {
    const kit::OrdinaryUser user;
    EXPECT_TRUE(Fails(OldFile::Replace, EACCES));
  }
  EXPECT_EQ(Bytes(path), Old);
  Allow(folder, 0755);
}

TEST_F(ReportFile, AnOldFileThatMayNotBeWrittenStays) {
  Prepare(OldFile::Replace);
  Allow(Path, 0444);
  if (QFileInfo(Path).isWritable()) GTEST_SKIP() << "root may write every file";
  EXPECT_TRUE(Fails(OldFile::Replace, EACCES));
  EXPECT_EQ(Bytes(Path), Old);
}

TEST_F(ReportFile, OnlyAFileIsReplaced) {
  ASSERT_TRUE(QDir().mkdir(Path));
  EXPECT_TRUE(Fails(OldFile::Replace, EACCES));
  EXPECT_TRUE(QFileInfo(Path).isDir());
}

TEST_F(ReportFile, TakesThePermissionsOfTheOldOne) {
  Prepare(OldFile::Replace);
  Allow(Path, 0604);
  Print(OldFile::Replace);
  struct stat status {};
  ASSERT_EQ(::stat(QFile::encodeName(Path).constData(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0604U);
}

TEST_F(ReportFile, ALinkStaysAndItsFileIsReplaced) {
  const QString file = home.filePath("file.pdf");
  Write(file, Old);
  ASSERT_TRUE(QFile::link(file, Path));
  EXPECT_EQ(Print(OldFile::Replace).File, Path);
  EXPECT_EQ(QFileInfo(Path).symLinkTarget(), file);
  EXPECT_TRUE(Bytes(file).startsWith("%PDF"));
}

}  // namespace
}  // namespace desktop
