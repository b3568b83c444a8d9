#include "launcher/reasons.h"

#include <algorithm>
#include <cerrno>
#include <string_view>
#include <system_error>

namespace launcher {
namespace {

struct Reason {
  std::string_view Name;
  int SystemError = 0;  // 0: any
  std::string_view Text;
};

constexpr std::string_view NotAllowed = "Your user account has no permission for that. Give it that permission.";

// The first row that fits is taken.
// clang-format off
constexpr Reason Reasons[] = {
  { runtime::DiskFull,     0,      "The disk is full. Delete files that you no longer need and empty the trash." },
  { runtime::PathError,    EACCES, NotAllowed },
  { runtime::PathError,    EPERM,  NotAllowed },
  { runtime::PathError,    EROFS,  "The disk is write-protected. Take off the protection, or use another disk." },
  { runtime::PathError,    0,      "Something else of that name is in the way. Move it to another place." },
  { runtime::FileNotFound, 0,      "It is not there." },
  { runtime::DeviceError,  0,      "The disk has failed. Check that it is firmly connected." },
};
// clang-format on

}  // namespace

std::string ReasonOf(const runtime::Failure& failure) {
  const Reason* fits = std::ranges::find_if(Reasons, [&](const Reason& reason) {
    return reason.Name == failure.Name && (reason.SystemError == 0 || reason.SystemError == failure.SystemError);
  });
  std::string text = fits == std::end(Reasons) ? std::string(failure.Name) + "." : std::string(fits->Text);
  if (failure.SystemError != 0)
    text += " The system says: " + std::generic_category().message(failure.SystemError) + ".";
  return text;
}

std::string ReasonOf(int system_error) {
  return ReasonOf(runtime::Failure{runtime::NameOfSystemError(system_error), "", system_error});
}

}  // namespace launcher
