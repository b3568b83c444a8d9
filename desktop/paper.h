// Prints a report on a printer, or as a PDF file if there is none.
#pragma once

#include <QPrinter>
#include <chrono>

#include "desktop/page_painter.h"
#include "runtime/print_job.h"

namespace desktop {

// What to do if the chosen PDF file exists: take a free name like it, or replace the file, as the user agreed to.
enum class OldFile { Keep, Replace };

// Where a report went: the path of its PDF file, or the name of its queue. Both are empty if the report has none of
// the pages that the user chose, and nothing was printed.
struct PrintedTo {
  QString File;
  QString Queue;
};

// Prints the job on that printer with its paper, pages and copies. If it is none of the machine's, writes a new PDF
// file: the one that the user chose in the printer dialog, or one named after the job's title and the time in the
// folder "Reelora Prima" of the user's documents. A file that is replaced stays as it was until the new one is
// complete. Progress gets the part of the sheets that is drawn, from 0 to 1. Throws the failure "Printer error".
PrintedTo PrintOnPaper(const runtime::PrintJob& job, QPrinter& printer, std::chrono::local_seconds now,
                       OldFile old_file = OldFile::Keep, const Progress& progress = {});

}  // namespace desktop
