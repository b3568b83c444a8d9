// The four passes of a sort run, in their order: which keys each writes, and the control statement that asks for them.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "store/key_file.h"

namespace store {

// Everything in which the statements differ.
struct SortPass {
  const KeyFile& Keys;
  std::string_view IncludeTest;   // up to its constant
  std::string_view IncludeValue;  // the constant
  std::string_view Tail;          // after the closing quote
};

// clang-format off
inline constexpr std::array<SortPass, 4> SortPasses = {{
  { .Keys = TitleKeys, .IncludeTest = "1,40,C,GT,",  .IncludeValue = "000000",    .Tail = ") Record(649)" },
  { .Keys = DVDKeys,   .IncludeTest = "266,1,C,EQ,", .IncludeValue = FormatDVD,   .Tail = ") Record(649) " },
  { .Keys = LaserKeys, .IncludeTest = "266,1,C,EQ,", .IncludeValue = FormatLaser, .Tail = ") Record(649) " },
  { .Keys = VHSKeys,   .IncludeTest = "266,1,C,EQ,", .IncludeValue = FormatVHS,   .Tail = ") Record(649) " },
}};
// clang-format on

// The weights of the sort, by character; 256 bytes.
inline constexpr std::string_view WeightsFile = "UPPER.ALT";

std::string StatementOf(const SortPass& pass);
// The statement of the pass that follows this one of SortPasses; "" after the last.
std::string StatementAfter(const SortPass& pass);

}  // namespace store
