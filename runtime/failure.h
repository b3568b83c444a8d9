// The one failure type: thrown if a failure stops the program, caught only at the top and in a few guarded places.
#pragma once

#include <string>
#include <string_view>

namespace runtime {

// Names shown to the user.
inline constexpr std::string_view Overflow = "Overflow";
inline constexpr std::string_view FileNotFound = "File not found";
inline constexpr std::string_view InputPastEnd = "Input past end of file";
inline constexpr std::string_view BadRecordNumber = "Bad record number";
inline constexpr std::string_view BadFileNumber = "Bad file name or number";
inline constexpr std::string_view FileAlreadyOpen = "File already open";
inline constexpr std::string_view TypeMismatch = "Type mismatch";
inline constexpr std::string_view DiskFull = "Disk full";
inline constexpr std::string_view DeviceError = "Device I/O error";
inline constexpr std::string_view PathError = "Path/File access error";
inline constexpr std::string_view PrinterError = "Printer error";
inline constexpr std::string_view OutOfMemory = "Out of memory";

// Name: one of the names above. File: the file concerned, or "". SystemError: the operating system's number for the
// cause, 0 if it gave none. Reason: the cause in words, in UTF-8, if something other than the operating system named
// it.
struct Failure {
  std::string_view Name;
  std::string File;
  int SystemError = 0;
  std::string Reason = {};
};

// The name of an error number of the operating system.
std::string_view NameOfSystemError(int system_error);

}  // namespace runtime
