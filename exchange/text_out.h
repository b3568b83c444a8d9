// Collects what a writer writes and hands it on in large pieces.
#pragma once

#include <string>
#include <string_view>

#include "exchange/rows.h"

namespace exchange {

class TextOut {
 public:
  explicit TextOut(const ByteSink& sink) : sink_(sink) { Text.reserve(2 * Enough); }
  TextOut(const TextOut&) = delete;
  TextOut& operator=(const TextOut&) = delete;

  // Append here, and call Pass now and then.
  std::string Text;
  void Pass() {
    if (Text.size() >= Enough) End();
  }
  void End() {
    sink_(Text);
    Text.clear();
  }

 private:
  static constexpr std::size_t Enough = std::size_t(64) * 1024;
  const ByteSink& sink_;
};

}  // namespace exchange
