// The start of a process up to its shown window, side by side with the smallest program of the toolkit that shows 200
// widgets, on collections of several sizes, and once as a first start.
// Usage: start_bench [--large] [RECPRA_DAT]
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "app/program.h"
#include "bench/measured.h"
#include "bench/table.h"
#include "desktop/application_look.h"
#include "desktop/qt_desk.h"
#include "desktop/stack_view.h"
#include "tests/kit/collection.h"
#include "tools/film_generator.h"

namespace {

constexpr int Rounds = 21;
constexpr int PlainWidgets = 200;

// Shows a window in this process.
template <typename Start>
int ShowWindow(int argc, char** argv, Start start) {
  QApplication application(argc, argv);
  start([] {
    for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
  });
  return 0;
}

int StartPlain(int argc, char** argv) {
  return ShowWindow(argc, argv, [](auto settle) {
    QWidget window;
    window.resize(924, 768);
    for (int index = 0; index < PlainWidgets; ++index) {
      QWidget* widget = nullptr;
      if (index % 2 == 0) {
        widget = new QLineEdit(QString("Field %1").arg(index), &window);
      } else {
        widget = new QLabel(QString("Label %1").arg(index), &window);
      }
      widget->setGeometry(index % 5 * 180, index / 5 * 19, 170, 18);
    }
    window.show();
    settle();
  });
}

int StartProgram(int argc, char** argv, const std::string& folder) {
  return ShowWindow(argc, argv, [&](auto settle) {
    desktop::SetUpLook();
    runtime::RealDisk disk(folder);
    desktop::QtDesk desk(folder);
    Program program(desk, disk);
    desktop::StackView view(program.Windows, [&](const std::function<void()>& event) { program.Deliver(event); });
    desk.DrawOn(view);
    program.StartRecordScreen();
    view.Sync();
    settle();
  });
}

// Runs this program again to show one window and end; returns its seconds, and in memory its peak in bytes.
double Start(const std::string& window, const std::string& folder, double& memory) {
  rusage usage{};
  const double seconds = bench::Timed([&] {
    pid_t process = ::fork();
    if (process == 0) {
      ::execl("/proc/self/exe", "start_bench", window.c_str(), folder.c_str(), nullptr);
      ::_exit(1);
    }
    int status = 0;
    if (::wait4(process, &status, 0, &usage) != process || status != 0) throw std::runtime_error("a start has failed");
  });
  memory = static_cast<double>(usage.ru_maxrss) * 1024;
  return seconds;
}

void Compare(const std::string& folder, const std::string& name) {
  double plain_memory = 0;
  double our_memory = 0;
  const bench::Contestant contestants[] = {
      [&] { return Start("--plain", folder, plain_memory); },
      [&] { return Start("--program", folder, our_memory); },
  };
  const std::vector<double> seconds = bench::Race(Rounds, contestants);
  bench::PrintSeconds({name, seconds[1], "a program of 200 plain widgets", seconds[0], 1.2});
  bench::PrintBytes({name + ": peak memory", our_memory, "that program", plain_memory});
}

// Offscreen, and on the display if there is one.
void CompareOnDisplays(const std::filesystem::path& folder, const std::string& name) {
  if (!qEnvironmentVariableIsEmpty("DISPLAY")) Compare(folder, name + ", on the display");
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Compare(folder, name);
  platform.isNull() ? qunsetenv("QT_QPA_PLATFORM") : qputenv("QT_QPA_PLATFORM", platform);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view first = argc > 1 ? argv[1] : "";
  if (first == "--plain") return StartPlain(argc, argv);
  if (first == "--program") return StartProgram(argc, argv, argv[2]);
  const bench::Films films(argc, argv);
  // A first start opens the quick start besides; every day it is off.
  const kit::Collection first_start;
  const kit::Collection everyday;
  for (const char* window : {"Fo", "Fo1"}) std::ofstream(everyday.Folder() / window) << "NO\r\n";
  for (std::int64_t count : {100, 3200, 100000}) {
    tools::GenerateFilms(films.Source, everyday.Folder() / "Recpra.Dat", count);
    CompareOnDisplays(everyday.Folder(), "start to the shown window, " + bench::Grouped(count) + " films");
  }
  tools::GenerateFilms(films.Source, first_start.Folder() / "Recpra.Dat", 3200);
  CompareOnDisplays(first_start.Folder(), "first start, to both shown windows");
}
