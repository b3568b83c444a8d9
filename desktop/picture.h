// Pictures of drawn windows and of printed pages.
#pragma once

#include <string>

#include "runtime/print_job.h"

class QWidget;

namespace desktop {

// Saves a PNG file; false if it cannot be written.
bool SavePicture(QWidget& window, const std::string& path);
// Likewise one page of the job, counted from 0, on a sheet of A4.
bool SavePagePicture(const runtime::PrintJob& job, std::size_t page, const std::string& path);

}  // namespace desktop
