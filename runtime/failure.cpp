// Maps the operating system's error numbers to names.
#include "runtime/failure.h"

#include <cerrno>

namespace runtime {

std::string_view NameOfSystemError(int system_error) {
  switch (system_error) {
    case ENOENT:
      return FileNotFound;
    case ENOSPC:
    case EDQUOT:
      return DiskFull;
    case ENOMEM:
      return OutOfMemory;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
    case ETXTBSY:
    case EEXIST:
    case ENXIO:
    case ENODEV:
      return PathError;
    default:
      return DeviceError;
  }
}

}  // namespace runtime
