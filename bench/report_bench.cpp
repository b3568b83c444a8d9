// The full and the abridged list of 32,766 films: on the bare forms, on the real window with drawing, and the making of
// the PDF apart; in seconds of processor time. Without a display the window is drawn offscreen.
// Usage: report_bench [RECPRA_DAT]
#include <QApplication>
#include <QBuffer>
#include <QPdfWriter>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <optional>

#include "app/program.h"
#include "bench/measured.h"
#include "desktop/page_painter.h"
#include "desktop/stack_view.h"
#include "runtime/print_job.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/source_tree.h"
#include "tests/kit/unsynced_disk.h"
#include "tools/film_generator.h"

namespace {

constexpr int Films = 32766;
constexpr std::chrono::milliseconds DisplayFrame(16);

// The bytes of a job's text, and the memory used for it.
struct JobBytes {
  std::size_t Text = 0;
  std::size_t Held = 0;
};
JobBytes BytesOf(const runtime::PrintJob& job) {
  JobBytes bytes;
  for (const auto& page : job.Pages) {
    bytes.Held += sizeof page + page.Lines.capacity() * sizeof page.Lines.front();
    for (const auto& line : page.Lines) {
      bytes.Text += line.Text.size();
      if (line.Text.capacity() > std::string().capacity()) bytes.Held += line.Text.capacity() + 1;
    }
  }
  return bytes;
}

// Keeps the last document and paints like the real desk.
class ReportDesk final : public kit::QuietDesk {
 public:
  desktop::StackView* View = nullptr;
  std::optional<runtime::PrintJob> Document;
  int Frames = 0;

  void Print(const runtime::PrintJob& job) override { Document = job; }
  void Repaint() override {
    if (!View || std::chrono::steady_clock::now() - painted_ < DisplayFrame) return;
    View->Paint();
    ++Frames;
    painted_ = std::chrono::steady_clock::now();
  }

 private:
  std::chrono::steady_clock::time_point painted_;
};

struct Reports {
  ReportDesk Desk;
  runtime::RealDisk Real;
  kit::UnsyncedDisk Disk{Real};
  Program Running;

  explicit Reports(const std::filesystem::path& folder) : Real(folder), Running(Desk, Disk) {
    Running.StartRecordScreen();
  }
  double Run(const forms::MenuItem& item) {
    return bench::ProcessorSeconds([&] { Running.Deliver([&] { item.Click(); }); });
  }
};

void MeasureReport(const std::filesystem::path& folder, const char* name, forms::MenuItem screen::PageControls::*item) {
  double bare = 0;
  {
    Reports reports(folder);
    bare = reports.Run(reports.Running.RecordScreen.*item);
    const runtime::PrintJob& job = *reports.Desk.Document;
    JobBytes bytes = BytesOf(job);
    std::printf("%-9s %zu pages, %.1f MB of text in %.1f MB\n", name, job.Pages.size(),
                static_cast<double>(bytes.Text) / 1e6, static_cast<double>(bytes.Held) / 1e6);
    std::printf("%-9s bare forms  %5.3f s, %6.0f films a second (goal for the full list: 1 s)\n", name, bare,
                Films / bare);
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    double painted = bench::ProcessorSeconds([&] { desktop::PaintPages(job, writer); });
    std::printf("%-9s PDF of %4.1f MB %5.1f us a film (goal for the full list: 150)\n", name,
                static_cast<double>(pdf.size()) / 1e6, painted / Films * 1e6);
  }
  Reports reports(folder);
  desktop::StackView view(reports.Running.Windows, [&](const auto& event) { reports.Running.Deliver(event); });
  reports.Desk.View = &view;
  view.Paint();
  double drawn = reports.Run(reports.Running.RecordScreen.*item);
  std::printf("%-9s real window %5.3f s, %d frames: %.2f times the bare forms (goal: 1.5)\n", name, drawn,
              reports.Desk.Frames, drawn / bare);
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const kit::Collection collection;
  const std::filesystem::path& folder = collection.Folder();
  tools::GenerateFilms(argc > 1 ? argv[1] : kit::SampleFile().string(), folder / "Recpra.Dat", Films);
  {
    Reports sorting(folder);
    sorting.Run(sorting.Running.RecordScreen.mnuSort);
  }
  MeasureReport(folder, "full", &screen::PageControls::mnuAll);
  MeasureReport(folder, "abridged", &screen::PageControls::mnuShort);
}
