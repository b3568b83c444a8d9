// The desktop program: locks the current folder, opens the first window and runs until the program ends.
#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <optional>

#include "app/program.h"
#include "desktop/application.h"
#include "desktop/application_look.h"
#include "desktop/film_words.h"
#include "desktop/front_request.h"
#include "desktop/launcher_notice.h"
#include "desktop/put_back_notice.h"
#include "desktop/qt_desk.h"
#include "desktop/session_end.h"
#include "desktop/stack_view.h"
#include "runtime/disk.h"
#include "runtime/folder_lock.h"

namespace {

constexpr int Failed = 1;

void ReportOpenFolder(const QString& folder) {
  desktop::AskForFront(folder);
  QString text = QStringLiteral("The collection in %1 is already open.").arg(QDir::toNativeSeparators(folder));
  QMessageBox box(QMessageBox::NoIcon, "Reelora Prima", text, QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.setWindowFlag(Qt::WindowStaysOnTopHint);  // over the window that comes to the front
  box.exec();
}

// The lock must be free, or the new run finds the collection open.
void StartAgain(const QStringList& arguments, const QString& folder) {
  if (QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments, folder)) return;
  QMessageBox(QMessageBox::Warning, "Reelora Prima", "The program could not be started again.", QMessageBox::Ok).exec();
}

int Run(desktop::Application& application, const QStringList& arguments) {
  const QString folder = QDir::currentPath();
  const QString launcher_notice = desktop::TakeLauncherNotice();
  std::optional<runtime::FolderLock> lock(std::in_place, ".");
  if (!lock->Held()) {
    ReportOpenFolder(folder);
    return Failed;
  }
  std::optional<runtime::Failure> stopped;
  bool start_again = false;
  {
    runtime::RealDisk disk(".");
    desktop::QtDesk desk(".");
    Program program(desk, disk);
    desktop::PutBackNotice put_back(program);
    desktop::WindowPlaces places;
    desktop::StackView view(program.Windows, [&](const std::function<void()>& event) { put_back.Deliver(event); });
    put_back.DrawOn(view);
    desktop::FilmNews news(program.RecordScreen);
    view.SayAlso([&news] { return news.Take(); });
    view.RememberPlaces(places);
    desktop::FrontListener listener(folder, [&view] { view.BringToFront(); });
    desk.DrawOn(view);
    application.OnOutOfMemory([&] {
      if (program.Stopped()) return;
      program.RunOutOfMemory();
      if (!view.Delivering()) return;
      // A handler waits for a box: it must not go on, so nothing is unwound.
      lock.reset();
      if (desk.StartAgain()) StartAgain(arguments, folder);
      std::_Exit(Failed);
    });
    desktop::SessionEnd session_end(program, view, desk);
    program.StartOpener();
    view.Sync();
    desktop::ShowLauncherNotice(view, launcher_notice);
    if (!program.Ended()) QApplication::exec();
    application.OnOutOfMemory({});
    stopped = program.Stopped();
    start_again = desk.StartAgain();
  }
  lock.reset();
  if (start_again) StartAgain(arguments, folder);
  return stopped ? Failed : 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    QStringList arguments(argv + 1, argv + argc);  // before the toolkit takes out its own
    desktop::Application application(argc, argv);
    desktop::SetUpLook();
    return Run(application, arguments);
  } catch (const std::bad_alloc&) {
    std::fputs("Reelora Prima: Out of memory\n", stderr);
    return Failed;
  }
}
