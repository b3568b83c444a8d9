// The start to a shown window, side by side with the smallest program of the toolkit that shows 200 widgets; on
// collections of several sizes. Usage: start_bench RECPRA_DAT
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <cstdio>
#include <filesystem>

#include "bench/film_generator.h"
#include "bench/measured.h"
#include "desktop/application_look.h"
#include "desktop/qt_desk.h"
#include "desktop/screen_view.h"
#include "opening/program.h"

namespace {

constexpr int Runs = 9;
constexpr int PlainWidgets = 200;

template <typename Start>
double TimeToShown(Start start) {
  return bench::Timed([&] {
    int argc = 1;
    char name[] = "start_bench";
    char* argv[] = {name, nullptr};
    QApplication application(argc, argv);
    start([] {
      for (int turn = 0; turn < 3; ++turn) QApplication::processEvents();
    });
  });
}

double StartPlain() {
  return TimeToShown([](auto settle) {
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

double StartProgram(const std::string& folder) {
  return TimeToShown([&](auto settle) {
    desktop::SetUpLook();
    runtime::RealDisk disk(folder);
    desktop::QtDesk desk(folder);
    Program program(desk, disk);
    desktop::ScreenView view(program.Screen, [&](const std::function<void()>& event) { program.Deliver(event); });
    desk.DrawOn(view);
    program.StartRecordScreen();
    view.Sync();
    settle();
  });
}

}  // namespace

int main(int argc, char** argv) {
  const std::string source = argc > 1 ? argv[1] : REELORA_DELIVERED "/sample/Recpra.Dat";
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "reelora_start_bench";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  for (const auto& entry : std::filesystem::directory_iterator(REELORA_DELIVERED)) {
    if (entry.is_regular_file()) std::filesystem::copy(entry.path(), folder);
  }
  const bench::Measured plain = bench::Best(Runs, [] { return std::vector<double>{StartPlain()}; });
  std::printf("200 plain widgets      %6.1f ms  %5.1f MiB\n", plain.Seconds() * 1e3,
              double(plain.PeakBytes) / (1 << 20));
  for (std::int64_t films : {100, 3200, 100000}) {
    bench::GenerateFilms(source, folder / "Recpra.Dat", films);
    const bench::Measured ours = bench::Best(Runs, [&] { return std::vector<double>{StartProgram(folder)}; });
    std::printf("program, %7lld films  %6.1f ms  %5.1f MiB  ratio %.2f in time, %.2f in memory (goal: at most 1.5)\n",
                static_cast<long long>(films), ours.Seconds() * 1e3, double(ours.PeakBytes) / (1 << 20),
                ours.Seconds() / plain.Seconds(), double(ours.PeakBytes) / double(plain.PeakBytes));
  }
  std::filesystem::remove_all(folder);
}
