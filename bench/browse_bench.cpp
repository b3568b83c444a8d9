// Steps in an alphabetical view and pages of twenty rows, on the bare forms and on the real window with drawing, over
// collections of several sizes; in milliseconds of processor time. Without a display the window is drawn offscreen.
// Usage: browse_bench [RECPRA_DAT]
#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <numeric>
#include <vector>

#include "app/program.h"
#include "bench/measured.h"
#include "desktop/stack_view.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/source_tree.h"
#include "tools/film_generator.h"

namespace {

// The last is the longest key file that a view and a list walk from end to end.
constexpr std::int64_t Sizes[] = {100, 3200, 32766};
constexpr int Steps = 90;
constexpr int Pages = 90;
constexpr double FrameMilliseconds = 16;

using Handler = void (frmPage1::*)();

// The program on a collection, with its real window if drawn.
class Walk {
 public:
  Walk(const std::filesystem::path& folder, bool drawn) : disk_(folder.string()), program_(desk_, disk_) {
    program_.StartRecordScreen();
    if (drawn) view_.emplace(program_.Windows, [this](const auto& event) { program_.Deliver(event); });
    if (view_) view_->Paint();
  }

  // One event up to the painted window, in milliseconds.
  double Run(Handler handler) {
    return 1e3 * bench::ProcessorSeconds([&] {
             program_.Deliver([&] { (program_.RecordScreen.*handler)(); });
             if (view_) view_->Paint();
           });
  }
  frmPage1& Window() { return program_.RecordScreen; }
  kit::QuietDesk& Desk() { return desk_; }

 private:
  kit::QuietDesk desk_;
  runtime::RealDisk disk_;
  Program program_;
  std::optional<desktop::StackView> view_;
};

void Print(const char* what, bool drawn, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  std::printf("  %-34s %-12s mean %7.3f ms, most %7.3f ms", what, drawn ? "real window" : "bare forms",
              std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size()), times.back());
  if (drawn) std::printf(", %.2f of a display frame (goal for a page: 1)", times.back() / FrameMilliseconds);
  std::printf("\n");
}

std::vector<double> Repeat(Walk& walk, Handler handler, int times) {
  std::vector<double> taken;
  while (times-- > 0) taken.push_back(walk.Run(handler));
  return taken;
}

// Spread over the key file.
void MeasureSteps(const std::filesystem::path& folder, std::int64_t films, bool drawn) {
  Walk walk(folder, drawn);
  walk.Run(&frmPage1::mnuByTitle_Click);
  std::vector<double> taken;
  for (std::int64_t step = 0; step < Steps; ++step) {
    walk.Window().KeyFilePos = static_cast<std::int16_t>(step * films / Steps + 1);
    taken.push_back(walk.Run(&frmPage1::cmdNext_Click));
  }
  Print("a step in a view", drawn, taken);
}

void MeasurePages(const std::filesystem::path& folder, std::int64_t films, bool drawn) {
  Walk walk(folder, drawn);
  Print("the first page of a list", drawn, {walk.Run(&frmPage1::mnuAllTitles_Click)});
  const int pages = static_cast<int>(std::min<std::int64_t>(Pages, films / screen::ListRows - 1));
  Print("a further page", drawn, Repeat(walk, &frmPage1::cmdNext20_Click, pages));
  Print("a page back", drawn, Repeat(walk, &frmPage1::cmdPrev20_Click, pages - 1));
}

void MeasureGenre(const std::filesystem::path& folder, bool drawn) {
  Walk walk(folder, drawn);
  walk.Desk().NextAnswer = "DR";
  Print("the first page of a genre", drawn, {walk.Run(&frmPage1::mnuFindAllGenre_Click)});
  Print("a further page of it", drawn, Repeat(walk, &frmPage1::cmdNext20_Click, 1));
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const kit::Collection collection;
  for (std::int64_t films : Sizes) {
    tools::GenerateFilms(argc > 1 ? argv[1] : kit::SampleFile().string(), (collection.Folder() / "Recpra.Dat").string(),
                         films);
    Walk(collection.Folder(), false).Run(&frmPage1::mnuSort_Click);
    std::printf("%lld films\n", static_cast<long long>(films));
    for (bool drawn : {false, true}) {
      MeasureSteps(collection.Folder(), films, drawn);
      MeasurePages(collection.Folder(), films, drawn);
      MeasureGenre(collection.Folder(), drawn);
    }
  }
}
