// Where a report goes: to the printer of the run, or into a PDF file where none is set up.
#pragma once

#include <QPrinter>
#include <chrono>

#include "runtime/print_job.h"

namespace desktop {

// Prints the job on that printer. Where the machine has none, it becomes a new PDF file in the folder "Reelora Prima"
// of the user's documents, named by the job's title and the time; where the user chose a PDF file in the printer's
// dialog, a new one of that name. No file is overwritten. Throws the failure "Printer error".
void PrintOnPaper(const runtime::PrintJob& job, QPrinter& printer, std::chrono::local_seconds now);

}  // namespace desktop
