// Prints a report on the printer of the run, or as a PDF file if none is set up.
#pragma once

#include <QPrinter>
#include <chrono>

#include "runtime/print_job.h"

namespace desktop {

// Prints the job on that printer. If the machine has none, writes a new PDF file in the folder "Reelora Prima" of the
// user's documents, named after the job's title and the time; if the user chose a PDF file in the printer dialog, a new
// file of that name. Never overwrites a file. Throws the failure "Printer error".
void PrintOnPaper(const runtime::PrintJob& job, QPrinter& printer, std::chrono::local_seconds now);

}  // namespace desktop
