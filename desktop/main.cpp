// The desktop program: locks the current folder, opens the first window and runs until the program ends.
#include <QApplication>
#include <QMessageBox>

#include "app/program.h"
#include "desktop/application_look.h"
#include "desktop/qt_desk.h"
#include "desktop/stack_view.h"
#include "runtime/disk.h"
#include "runtime/folder_lock.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  desktop::SetUpLook();
  runtime::FolderLock lock(".");
  if (!lock.Held()) {
    QMessageBox(QMessageBox::NoIcon, "Reelora Prima", "This collection is already open.", QMessageBox::Ok).exec();
    return 1;
  }
  runtime::RealDisk disk(".");
  desktop::QtDesk desk(".");
  Program program(desk, disk);
  desktop::StackView view(program.Windows, [&program](const std::function<void()>& event) { program.Deliver(event); });
  desk.DrawOn(view);
  program.StartOpener();
  view.Sync();
  if (!program.Ended()) QApplication::exec();
  return program.Stopped() ? 1 : 0;
}
