// Work for the two cores of a machine.
#pragma once

#include <future>
#include <utility>

namespace store {

// Runs work(0) and work(1), at the same time where that is wanted; what either throws is thrown when both are over.
template <typename Work>
void Twice(bool at_once, Work&& work) {
  if (!at_once) {
    work(0);
    work(1);
    return;
  }
  std::future<void> other = std::async([&work] { work(1); });
  work(0);
  other.get();
}

}  // namespace store
