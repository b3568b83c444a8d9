#include "companion/bar.h"

#include <algorithm>
#include <iomanip>

namespace companion {
namespace {

constexpr int Cells = 30;
constexpr const char* ClearLine = "\r\x1B[K";

}  // namespace

Bar::~Bar() {
  if (shown_ >= 0) output_.Errors << ClearLine << std::flush;
}

// Drawn once for each percent, so that it costs nothing.
void Bar::Show(double part) {
  const int percent = static_cast<int>(std::clamp(part, 0.0, 1.0) * 100);
  if (!output_.ShowsBars || percent == shown_) return;
  shown_ = percent;
  const std::size_t filled = static_cast<std::size_t>(percent * Cells / 100);
  output_.Errors << ClearLine << label_ << " [" << std::string(filled, '#') << std::string(Cells - filled, ' ') << "] "
                 << std::setw(3) << percent << " %" << std::flush;
}

}  // namespace companion
