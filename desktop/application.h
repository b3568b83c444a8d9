// The application object: an exhausted memory ends in a failure report, also while a window is drawn.
#pragma once

#include <QApplication>
#include <functional>

namespace desktop {

class Application final : public QApplication {
 public:
  Application(int& argc, char** argv) : QApplication(argc, argv) {}
  // Called when memory runs out in an event outside of the program's own handlers.
  void OnOutOfMemory(std::function<void()> report) { report_ = std::move(report); }
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  std::function<void()> report_;
};

}  // namespace desktop
