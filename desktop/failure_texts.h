// What a failure report says besides the failure's name and file: what it means, what is safe, and what to do next.
#pragma once

#include <cerrno>
#include <string_view>

#include "runtime/failure.h"

namespace desktop {

// What a file is to the collection.
enum class FileGroup {
  Any,
  Films,     // the master file
  Keys,      // made by Sort
  Settings,  // one line each: settings, counts, the last entry
};

FileGroup GroupOf(std::string_view file);

struct FailureTexts {
  std::string_view Name;
  FileGroup Group = FileGroup::Any;
  int SystemError = 0;  // 0: any
  std::string_view Means = {};
  std::string_view Safe = {};
  std::string_view Next = {};
};

// clang-format off
inline constexpr std::string_view SavedSafe   = "Every film that was saved is safe.";
inline constexpr std::string_view StepNotDone = "Every film that was saved is safe. The last step was not finished.";

inline constexpr std::string_view ReplaceSetting =
    "Open the collection from the applications menu, or with the command reelora and its folder: that puts files that are "
    "missing or empty back as they were delivered. Or take the file from a copy of your collection.";
inline constexpr std::string_view RemoveSetting =
    "Move the file out of the folder. Then open the collection from the applications menu, or with the command reelora and "
    "its folder: that puts the file back as it was delivered.";
inline constexpr std::string_view NotAllowed = "You have no permission to open or write this file.";
inline constexpr std::string_view GivePermission =
    "Give your user account permission to read and write the folder and every file in it. Then start again.";
inline constexpr std::string_view SortAnew = "Start again and press Sort, which makes this file anew.";
inline constexpr std::string_view BackUpFirst =
    "Copy the whole folder to another disk before you do anything else. Check that the disk is firmly connected. Then start again.";

// The first row that fits is taken; each name ends with a row that fits every file.
inline constexpr FailureTexts FailureTable[] = {
  { .Name  = runtime::DiskFull,
    .Means = "The disk is full, so this file could not be written.",
    .Safe  = StepNotDone,
    .Next  = "Make room on the disk: delete files that you no longer need and empty the trash. Then start again." },

  { .Name  = runtime::PathError, .Group = FileGroup::Films, .SystemError = ESTALE,
    .Means = "Another program has replaced or removed the file of your films while it was open here.",
    .Safe  = "Nothing was written into the new file. Every film that was saved lies in the file that was replaced.",
    .Next  = "Find out which program it was, such as a backup or synchronisation, and see that the folder has the file that you want. "
             "Then start again." },
  { .Name  = runtime::PathError, .SystemError = EROFS,
    .Means = "The disk is write-protected, so this file cannot be written.",
    .Safe  = StepNotDone,
    .Next  = "Take off the write protection, or copy the whole folder to another disk and open it there. Then start again." },
  { .Name  = runtime::PathError, .SystemError = EISDIR,
    .Means = "A folder has the name of a file that the program needs.",
    .Safe  = SavedSafe,
    .Next  = "Move that folder to another place. Then start again." },
  { .Name  = runtime::PathError, .SystemError = EACCES, .Means = NotAllowed, .Safe = StepNotDone, .Next = GivePermission },
  { .Name  = runtime::PathError, .SystemError = EPERM,  .Means = NotAllowed, .Safe = StepNotDone, .Next = GivePermission },
  { .Name  = runtime::PathError,
    .Means = "Something is in the way of this file, or of the folder that it lies in.",
    .Safe  = StepNotDone,
    .Next  = "See that the folder and its files have the names that they had, and that none of them is a link or a folder instead. Then "
             "start again." },

  { .Name  = runtime::FileNotFound, .Group = FileGroup::Settings,
    .Means = "This file of settings is missing. The program reads it when it starts.",
    .Safe  = SavedSafe,
    .Next  = ReplaceSetting },
  { .Name  = runtime::FileNotFound, .Group = FileGroup::Films,
    .Means = "The file of your films is missing from the folder.",
    .Safe  = "The program has not removed it. What it wrote there before is in the file, wherever that is now.",
    .Next  = "Put the file back: look where another program may have moved it, or take it from a copy of your collection. Then start again." },
  { .Name  = runtime::FileNotFound, .Group = FileGroup::Keys,
    .Means = "This file, by which the films are listed in order, is missing.",
    .Safe  = SavedSafe,
    .Next  = SortAnew },
  { .Name  = runtime::FileNotFound,
    .Means = "This file is missing.",
    .Safe  = SavedSafe,
    .Next  = "Put the file back from a copy of your collection. Then start again." },

  { .Name  = runtime::InputPastEnd, .Group = FileGroup::Settings,
    .Means = "This file of settings is empty or damaged: a line is missing.",
    .Safe  = SavedSafe,
    .Next  = ReplaceSetting },
  { .Name  = runtime::InputPastEnd,
    .Means = "This file is shorter than it must be.",
    .Safe  = SavedSafe,
    .Next  = "Take the file from a copy of your collection. If it is one that Sort makes, start again and press Sort." },

  { .Name  = runtime::TypeMismatch, .Group = FileGroup::Settings,
    .Means = "This file of settings is damaged: it must contain a number and contains something else.",
    .Safe  = SavedSafe,
    .Next  = RemoveSetting },
  { .Name  = runtime::TypeMismatch,
    .Means = "There is something else in a place where a number must be.",
    .Safe  = SavedSafe,
    .Next  = "Start again and press Sort, so that the numbers of the lists are made anew." },

  { .Name  = runtime::Overflow, .Group = FileGroup::Settings,
    .Means = "This file of settings is damaged: its number is too large.",
    .Safe  = SavedSafe,
    .Next  = RemoveSetting },
  { .Name  = runtime::Overflow,
    .Means = "A number has become too large. The program counts the films of a list up to 32,767.",
    .Safe  = SavedSafe,
    .Next  = "Start again. If it stops in the same step once more, press Sort, and look the film up by a search or by its record number "
             "instead of that list." },

  { .Name  = runtime::BadRecordNumber, .Group = FileGroup::Films,
    .Means = "A film was asked for whose record number cannot exist. A list that is older than the last changes can cause this.",
    .Safe  = StepNotDone,
    .Next  = "Start again and press Sort, so that the lists are made anew." },
  { .Name  = runtime::BadRecordNumber,
    .Means = "A place was asked for that this file cannot have.",
    .Safe  = StepNotDone,
    .Next  = "Start again and press Sort, so that the lists are made anew." },

  { .Name  = runtime::BadFileNumber,
    .Means = "This step needs a file that an earlier step had already closed, such as the list of a view that a search has ended.",
    .Safe  = StepNotDone,
    .Next  = "Start again and repeat the step first of all." },
  { .Name  = runtime::FileAlreadyOpen,
    .Means = "This step needs a file that an earlier step had left open, such as the list of a view.",
    .Safe  = StepNotDone,
    .Next  = "Start again and repeat the step first of all." },

  { .Name  = runtime::DeviceError, .Group = FileGroup::Films,
    .Means = "The disk has failed to read or write the file of your films.",
    .Safe  = "The program has put back what was there before the step, as far as the disk allowed. If a film was half written, the next "
             "start repairs it.",
    .Next  = BackUpFirst },
  { .Name  = runtime::DeviceError,
    .Means = "The disk has failed to read or write this file.",
    .Safe  = StepNotDone,
    .Next  = BackUpFirst },

  { .Name  = runtime::PrinterError,
    .Means = "The printer, or the file that stands for it, did not take the report.",
    .Safe  = "Every film that was saved is safe. Printing changes no film.",
    .Next  = "See that the printer is switched on and connected, has paper and shows no fault; for a file, that its folder can be "
             "written. Then start again and print the report again." },

  { .Name  = runtime::OutOfMemory,
    .Means = "The computer has no memory left for the program.",
    .Safe  = StepNotDone,
    .Next  = "Close other programs. If a file is named above, see that it is not far larger than it should be. Then start again." },
};
// clang-format on

// The row for a failure.
const FailureTexts& TextsOf(const runtime::Failure& failure);

}  // namespace desktop
