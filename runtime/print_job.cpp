// A printed line as plain text.
#include "runtime/print_job.h"

namespace runtime {

std::string PrintedLine::PlainText() const {
  std::string text(From - 1u, ' ');
  text += Text;
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

}  // namespace runtime
