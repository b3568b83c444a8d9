#include "companion/questions.h"

namespace companion {

bool Questions::Agreed(std::string_view question) {
  std::string answer;
  while (!all_ && !none_) {
    output_.Text << question << " [y/n/a/q] " << std::flush;
    if (!std::getline(output_.Answers, answer)) {
      output_.Text << "\n";
      answer = "q";
    }
    if (answer == "y") return true;
    if (answer == "n") return false;
    all_ = answer == "a";
    none_ = answer == "q";
  }
  return all_;
}

}  // namespace companion
