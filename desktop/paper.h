// Prints a report on the printer of the run, or as a PDF file if none is set up.
#pragma once

#include <QPrinter>
#include <chrono>

#include "desktop/page_painter.h"
#include "runtime/print_job.h"

namespace desktop {

// Where a job went: the path of the file, or "" and the name of the printer's queue.
struct PrintedTo {
  QString File;
  QString Queue;
};

// Prints the job on that printer. If the machine has none, writes a new PDF file in the folder "Reelora Prima" of the
// user's documents, named after the job's title and the time; if the user chose a PDF file in the printer dialog, a new
// file of that name. Never overwrites a file. Progress gets the part of the pages that is drawn, from 0 to 1. Throws
// the failure "Printer error".
PrintedTo PrintOnPaper(const runtime::PrintJob& job, QPrinter& printer, std::chrono::local_seconds now,
                       const Progress& progress = {});

}  // namespace desktop
