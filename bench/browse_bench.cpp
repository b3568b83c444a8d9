// Steps in an alphabetical view and pages of twenty rows, on the bare forms and on the real window with drawing, over
// collections of several sizes; in processor time. Without a display the window is drawn offscreen.
// Usage: browse_bench [--large] [RECPRA_DAT]
#include <QApplication>
#include <algorithm>
#include <numeric>
#include <vector>

#include "app/program.h"
#include "bench/measured.h"
#include "bench/table.h"
#include "desktop/stack_view.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"
#include "tools/film_generator.h"

namespace {

// The last is the longest key file that a view and a list walk from end to end.
constexpr std::int64_t Sizes[] = {100, 3200, 32766};
constexpr int Steps = 90;
constexpr int MostPages = 90;
constexpr int Rounds = 5;
constexpr std::int64_t GenrePagesFrom = 1000;  // fewer films have one page
constexpr double FrameSeconds = 0.016;

using Handler = void (frmPage1::*)();

// The program on a collection, with its real window if drawn.
class Walk {
 public:
  Walk(const std::filesystem::path& folder, bool drawn) : disk_(folder.string()), program_(desk_, disk_) {
    program_.StartRecordScreen();
    if (drawn) view_.emplace(program_.Windows, [this](const auto& event) { program_.Deliver(event); });
    if (view_) view_->Paint();
  }

  // One event up to the painted window, in seconds.
  double Run(Handler handler) {
    return bench::ProcessorSeconds([&] {
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

double Mean(const std::vector<double>& times) {
  return std::accumulate(times.begin(), times.end(), 0.0) / static_cast<double>(times.size());
}

double Most(const std::vector<double>& times) { return *std::max_element(times.begin(), times.end()); }

std::vector<double> Repeat(Walk& walk, Handler handler, int times) {
  std::vector<double> taken;
  while (times-- > 0) taken.push_back(walk.Run(handler));
  return taken;
}

// Spread over the key file; the mean.
double Step(const std::filesystem::path& folder, std::int64_t films, bool drawn) {
  Walk walk(folder, drawn);
  walk.Run(&frmPage1::mnuByTitle_Click);
  std::vector<double> taken;
  for (std::int64_t step = 0; step < Steps; ++step) {
    walk.Window().KeyFilePos = static_cast<std::int16_t>(step * films / Steps + 1);
    taken.push_back(walk.Run(&frmPage1::cmdNext_Click));
  }
  return Mean(taken);
}

// The first page; the slowest of the others, forward and back.
struct Pages {
  double First, Further;
};

Pages ListPages(const std::filesystem::path& folder, std::int64_t films) {
  Walk walk(folder, true);
  const double first = walk.Run(&frmPage1::mnuAllTitles_Click);
  const int pages = static_cast<int>(std::min<std::int64_t>(MostPages, films / screen::ListRows - 1));
  return {first, std::max(Most(Repeat(walk, &frmPage1::cmdNext20_Click, pages)),
                          Most(Repeat(walk, &frmPage1::cmdPrev20_Click, pages - 1)))};
}

Pages GenrePages(const std::filesystem::path& folder) {
  Walk walk(folder, true);
  walk.Desk().NextAnswer = "DR";
  const double first = walk.Run(&frmPage1::mnuFindAllGenre_Click);
  return {first, walk.Run(&frmPage1::cmdNext20_Click)};
}

void Measure(const std::filesystem::path& folder, std::int64_t films) {
  const std::string of = " of " + bench::Grouped(films) + " films";
  const bench::Contestant contestants[] = {
      [&] { return Step(folder, films, true); },
      [&] { return Step(folder, films, false); },
  };
  const std::vector<double> steps = bench::Race(Rounds, contestants);
  bench::PrintSeconds({"view: a step on the real window" + of, steps[0], "on the bare forms", steps[1]});
  auto print = [&](const char* name, double seconds) {
    bench::PrintSeconds({name + of, seconds, "a frame of the display", FrameSeconds, 1});
  };
  const Pages list = ListPages(folder, films);
  print("view: the first page of a list", list.First);
  print("view: the slowest further page of a list", list.Further);
  if (films < GenrePagesFrom) return;
  const Pages genre = GenrePages(folder);
  print("view: the first page of a genre", genre.First);
  print("view: a further page of a genre", genre.Further);
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const bench::Films films(argc, argv);
  const kit::Collection collection;
  for (std::int64_t count : Sizes) {
    tools::GenerateFilms(films.Source, (collection.Folder() / "Recpra.Dat").string(), count);
    Walk(collection.Folder(), false).Run(&frmPage1::mnuSort_Click);
    Measure(collection.Folder(), count);
  }
}
