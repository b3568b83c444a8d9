// The full and the abridged list of 32,766 films: on the bare forms, on the real window with drawing, and the making of
// the PDF apart; in processor time. Without a display the window is drawn offscreen.
// Usage: report_bench [--large] [RECPRA_DAT]
#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "app/program.h"
#include "bench/measured.h"
#include "bench/table.h"
#include "desktop/page_painter.h"
#include "desktop/stack_view.h"
#include "runtime/print_job.h"
#include "runtime/text.h"
#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/collection.h"
#include "tests/kit/quiet_desk.h"
#include "tests/kit/unsynced_disk.h"
#include "tools/film_generator.h"

namespace {

constexpr int Films = 32766;
constexpr int Rounds = 3;
constexpr std::chrono::milliseconds DisplayFrame(16);

// Keeps the last document and paints like the real desk.
class ReportDesk final : public kit::QuietDesk {
 public:
  desktop::StackView* View = nullptr;
  std::optional<runtime::PrintJob> Document;

  void Print(const runtime::PrintJob& job) override { Document = job; }
  void Repaint() override {
    if (!View || std::chrono::steady_clock::now() - painted_ < DisplayFrame) return;
    View->Paint();
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

using Item = forms::MenuItem screen::PageControls::*;

double OnBareForms(const std::filesystem::path& folder, Item item) {
  Reports reports(folder);
  return reports.Run(reports.Running.RecordScreen.*item);
}

double OnRealWindow(const std::filesystem::path& folder, Item item) {
  Reports reports(folder);
  desktop::StackView view(reports.Running.Windows, [&](const auto& event) { reports.Running.Deliver(event); });
  reports.Desk.View = &view;
  view.Paint();
  return reports.Run(reports.Running.RecordScreen.*item);
}

// Each film read in key order, its fields copied into plain strings.
double CopyFields(const std::filesystem::path& folder) {
  return bench::ProcessorSeconds([&] {
    runtime::RealDisk disk(folder);
    runtime::Files files(disk);
    store::OpenMaster(files, 1);
    store::FilmRecord film;
    std::vector<std::string> texts(std::size(store::FilmFields));
    for (std::int64_t record = 1; files.Get(1, record, film.Bytes.data()); ++record)
      for (std::size_t field = 0; field < texts.size(); ++field)
        texts[field] = runtime::Trim(film.Get(store::FilmField(field)));
  });
}

double PaintPdf(const std::function<void(QPdfWriter&)>& paint) {
  QBuffer pdf;
  pdf.open(QIODevice::WriteOnly);
  QPdfWriter writer(&pdf);
  return bench::ProcessorSeconds([&] { paint(writer); });
}

// The same lines, each drawn with one call and in one font.
void PaintPlainly(const runtime::PrintJob& job, QPdfWriter& writer) {
  QPainter painter(&writer);
  painter.setFont(QFont("Liberation Mono", job.FontSize));
  const int height = painter.fontMetrics().height();
  for (const runtime::PrintedPage& page : job.Pages) {
    if (&page != &job.Pages.front()) writer.newPage();
    int y = 0;
    for (const runtime::PrintedLine& line : page.Lines)
      painter.drawText(0, y += height, QString::fromLatin1(line.PlainText()));
  }
}

void MeasureReport(const std::filesystem::path& folder, const std::string& name, Item item) {
  const bench::Contestant contestants[] = {
      [&] { return OnBareForms(folder, item); },
      [&] { return OnRealWindow(folder, item); },
      [&] { return CopyFields(folder); },
  };
  const std::vector<double> seconds = bench::Race(Rounds, contestants);
  const std::string report = "report: " + name + " of " + bench::Grouped(Films) + " films";
  bench::PrintSeconds({report + ", bare forms", seconds[0], "reading the films, copying their fields", seconds[2]});
  bench::PrintSeconds({report + ", real window", seconds[1], "on the bare forms", seconds[0], 1.5});
  Reports reports(folder);
  reports.Run(reports.Running.RecordScreen.*item);
  const runtime::PrintJob& job = *reports.Desk.Document;
  const bench::Contestant painters[] = {
      [&] { return PaintPdf([&](QPdfWriter& writer) { desktop::PaintPages(job, writer); }); },
      [&] { return PaintPdf([&](QPdfWriter& writer) { PaintPlainly(job, writer); }); },
  };
  const std::vector<double> painted = bench::Race(1, painters);
  bench::PrintSeconds({"PDF of that report", painted[0], "its lines drawn plainly, in one font", painted[1]});
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const bench::Films films(argc, argv);
  const kit::Collection collection;
  const std::filesystem::path& folder = collection.Folder();
  tools::GenerateFilms(films.Source, folder / "Recpra.Dat", Films);
  OnBareForms(folder, &screen::PageControls::mnuSort);
  MeasureReport(folder, "full list", &screen::PageControls::mnuAll);
  MeasureReport(folder, "abridged list", &screen::PageControls::mnuShort);
}
