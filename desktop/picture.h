// Pictures of drawn windows and of printed pages.
#pragma once

#include <string>

#include "runtime/print_job.h"

class QWidget;

namespace desktop {

// Saves it as a PNG file; false where the file cannot be written.
bool SavePicture(QWidget& window, const std::string& path);
// The same of a page of the job, from 0, as it stands on a sheet of A4.
bool SavePagePicture(const runtime::PrintJob& job, std::size_t page, const std::string& path);

}  // namespace desktop
