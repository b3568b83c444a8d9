// Delta debugging: leaves out ever smaller pieces, and keeps what fails without them.
#include "tests/monkey/shrink.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace monkey {
namespace {

class Shrinking {
 public:
  Shrinking(const Script& script, const Fails& fails, int most_plays)
      : best_(script), fails_(fails), plays_left_(most_plays) {}

  Script Run() {
    for (bool smaller = true; smaller && plays_left_ > 0;) {
      smaller = LeaveOut([](Script & script) -> auto& { return script.Events; });
      smaller = LeaveOut([](Script & script) -> auto& { return script.Films.Films; }) || smaller;
      smaller = LeaveOutFiles() || smaller;
    }
    return best_;
  }

 private:
  bool Take(Script smaller) {
    if (plays_left_ == 0) return false;
    --plays_left_;
    if (!fails_(smaller)) return false;
    best_ = std::move(smaller);
    return true;
  }

  // Pieces of half the list, of a quarter, and so on to single ones, from its end.
  template <typename Part>
  bool LeaveOut(Part part) {
    bool smaller = false;
    for (std::size_t piece = part(best_).size(); piece > 0; piece /= 2) {
      for (std::size_t end = part(best_).size(); end > 0;) {
        const std::size_t begin = end > piece ? end - piece : 0;
        Script without = best_;
        auto& list = part(without);
        list.erase(list.begin() + static_cast<std::ptrdiff_t>(begin), list.begin() + static_cast<std::ptrdiff_t>(end));
        smaller = Take(std::move(without)) || smaller;
        end = begin;
      }
    }
    return smaller;
  }

  bool LeaveOutFiles() {
    bool smaller = false;
    const Collection films = best_.Films;
    for (const auto& [name, content] : films.Files) {
      Script without = best_;
      without.Films.Files.erase(name);
      smaller = Take(std::move(without)) || smaller;
    }
    if (!films.Behind.empty()) {
      Script without = best_;
      without.Films.Behind.clear();
      smaller = Take(std::move(without)) || smaller;
    }
    return smaller;
  }

  Script best_;
  const Fails& fails_;
  int plays_left_;
};

}  // namespace

Script Shrunk(const Script& script, const Fails& fails, int most_plays) {
  return Shrinking(script, fails, most_plays).Run();
}

}  // namespace monkey
