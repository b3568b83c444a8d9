// The ways in which a disk call fails without a kill.
#pragma once

#include <string>
#include <string_view>

#include "runtime/failure.h"
#include "tests/kit/faulty_disk.h"

namespace safety {

// Failure: what the program must report; "" if the user must not notice the fault.
struct FaultRow {
  std::string_view Name;
  kit::Fault As;
  bool FromThenOn;
  std::string_view Failure;
};
// clang-format off
inline constexpr FaultRow Faults[] = {
  { "disk full",                                   kit::Fault::Full,          false, runtime::DiskFull },
  { "disk full from then on",                      kit::Fault::Full,          true,  runtime::DiskFull },
  { "error",                                       kit::Fault::Error,         false, runtime::DeviceError },
  { "error from then on",                          kit::Fault::Error,         true,  runtime::DeviceError },
  { "refused",                                     kit::Fault::Refused,       false, runtime::PathError },
  { "refused from then on",                        kit::Fault::Refused,       true,  runtime::PathError },
  { "half a write, then disk full",                kit::Fault::ShortThenFull, false, runtime::DiskFull },
  { "half a write, then disk full from then on",   kit::Fault::ShortThenFull, true,  runtime::DiskFull },
  { "interrupted",                                 kit::Fault::Interrupted,   false, "" },
  { "short",                                       kit::Fault::Short,         false, "" },
  { "short from then on",                          kit::Fault::Short,         true,  "" },
};
// clang-format on

}  // namespace safety
