// A character typed into an open film on the real window, up to the painted window, with and without the draft; in
// seconds of real time. Without a display the window is drawn offscreen.
#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <vector>

#include "app/program.h"
#include "bench/measured.h"
#include "bench/table.h"
#include "desktop/stack_view.h"
#include "tests/kit/collection.h"
#include "tests/kit/no_drafts_disk.h"
#include "tests/kit/quiet_desk.h"

namespace {

constexpr int Characters = 2000;
constexpr int Rounds = 5;
constexpr int TitleWidth = 40;

class Typist {
 public:
  Typist(const std::filesystem::path& folder, bool drafts) : disk_(folder.string()), without_(disk_) {
    program_.emplace(desk_, drafts ? static_cast<runtime::Disk&>(disk_) : without_);
    program_->StartRecordScreen();
    view_.emplace(program_->Windows, [this](const auto& event) { program_->Deliver(event); });
    view_->Sync();
    view_->Deliver([this] { program_->RecordScreen.cmdNew_Click(); });
    view_->Paint();
  }

  // Seconds of one character.
  double Type(int number) {
    if (number % TitleWidth == 0) view_->Deliver([this] { program_->RecordScreen.txtTitle.SetText(""); });
    return bench::Timed([&] {
      for (QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_A, Qt::NoModifier, "a");
        QApplication::sendEvent(view_->Front()->focusWidget(), &event);
      }
      view_->Paint();
    });
  }
  bool Typed() const { return program_->RecordScreen.txtTitle.Text().ends_with("a"); }

 private:
  kit::QuietDesk desk_;
  runtime::RealDisk disk_;
  kit::NoDraftsDisk without_;
  std::optional<Program> program_;
  std::optional<desktop::StackView> view_;
};

// The median of a character.
double Measure(const std::filesystem::path& folder, bool drafts) {
  Typist typist(folder, drafts);
  std::vector<double> times;
  times.reserve(Characters);
  for (int number = 0; number < Characters; ++number) times.push_back(typist.Type(number));
  if (!typist.Typed()) throw std::runtime_error("nothing was typed");
  std::nth_element(times.begin(), times.begin() + Characters / 2, times.end());
  return times[Characters / 2];
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const kit::Collection collection;
  const bench::Contestant contestants[] = {
      [&] { return Measure(collection.Folder(), true); },
      [&] { return Measure(collection.Folder(), false); },
  };
  const std::vector<double> seconds = bench::Race(Rounds, contestants);
  bench::PrintSeconds({"a character typed, to the painted window", seconds[0], "without the draft", seconds[1]});
}
