// The printer of the run: what the user chooses in Setup Printer holds for every report until the program ends.
#pragma once

#include <QPrinter>
#include <QWidget>
#include <chrono>
#include <memory>

#include "desktop/paper.h"
#include "runtime/print_job.h"

namespace desktop {

class RunPrinter {
 public:
  // Setup Printer. Cancel changes nothing.
  void SetUp(QWidget* parent);
  PrintedTo Print(const runtime::PrintJob& job, std::chrono::local_seconds now, const Progress& progress = {});
  // Found when it is first needed: asking for the printers of a network takes time.
  QPrinter& Device();

 private:
  std::unique_ptr<QPrinter> device_;
  // Of the first report after the dialog only: the next must not replace the report before it.
  OldFile old_file_ = OldFile::Keep;
};

}  // namespace desktop
