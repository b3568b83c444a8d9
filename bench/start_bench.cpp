// The start of a process up to its shown window, side by side with the smallest program of the toolkit that shows 200
// widgets; on collections of several sizes. Usage: start_bench [RECPRA_DAT]
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "app/program.h"
#include "bench/measured.h"
#include "desktop/application_look.h"
#include "desktop/qt_desk.h"
#include "desktop/stack_view.h"
#include "tests/kit/collection.h"
#include "tests/kit/source_tree.h"
#include "tools/film_generator.h"

namespace {

constexpr int Runs = 9;
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

// Runs this program again to show one window and end; the seconds it took, and its peak memory in MiB.
bench::Measured Start(const std::string& window, const std::string& folder) {
  return bench::Best(Runs, [&] {
    double seconds = bench::Timed([&] {
      pid_t process = ::fork();
      if (process == 0) {
        ::execl("/proc/self/exe", "start_bench", window.c_str(), folder.c_str(), nullptr);
        ::_exit(1);
      }
      int status = 0;
      if (::waitpid(process, &status, 0) != process || status != 0) throw std::runtime_error("a start has failed");
    });
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return std::vector<double>{seconds, double(usage.ru_maxrss) / 1024};
  });
}

void Compare(const std::string& source, const std::filesystem::path& folder) {
  const bench::Measured plain = Start("--plain", folder);
  std::printf("200 plain widgets      %6.1f ms, %.1f MiB\n", plain.Parts[0] * 1e3, plain.Parts[1]);
  for (std::int64_t films : {100, 3200, 100000}) {
    tools::GenerateFilms(source, folder / "Recpra.Dat", films);
    const bench::Measured ours = Start("--program", folder);
    std::printf("program, %7lld films  %6.1f ms, %.1f MiB; ratios %.2f and %.2f (goal: at most 1.5)\n",
                static_cast<long long>(films), ours.Parts[0] * 1e3, ours.Parts[1], ours.Parts[0] / plain.Parts[0],
                ours.Parts[1] / plain.Parts[1]);
  }
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::string first = argc > 1 ? argv[1] : kit::SampleFile().string();
  if (first == "--plain" || first == "--program") {
    int status = first == "--plain" ? StartPlain(argc, argv) : StartProgram(argc, argv, argv[2]);
    return status;
  }
  const kit::Collection collection;
  Compare(first, collection.Folder());
}
