// The Copy Files window: copies a data file from the program's folder to a disk in drive A or B.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "filecopy/pickers.h"
#include "runtime/copy_file.h"
#include "screen/frmPage1.h"

namespace filecopy {

inline constexpr std::string_view Pattern = "*.dat";
// The help topic of the window.
inline constexpr int CopyTopic = 603;

// clang-format off
inline constexpr forms::Look HeadingLook = { .Fore = forms::Yellow, .Back = forms::Blue, .Transparent = true, .FontSize = 16, .Bold = true };
inline constexpr forms::Look StepLook    = { .Fore = forms::Yellow, .Back = forms::Blue, .Transparent = true, .FontSize = 10, .Bold = true };
inline constexpr forms::Look AgainLook   = { .Fore = forms::White,  .Back = forms::Blue, .Transparent = true, .FontSize = 14, .Bold = true };
inline constexpr forms::Look PickerLook  = { .Fore = forms::Black,  .Back = forms::White, .FontSize = 10 };
// clang-format on

}  // namespace filecopy

// clang-format off
struct frmCopy : forms::Window {
  frmCopy(forms::WindowStack& windows, frmPage1& record_screen);

  frmPage1& RecordScreen;
  // Creates the disk for a drive's folder; tests replace it.
  std::function<std::unique_ptr<runtime::Disk>(const std::string& folder)> DiskIn;

  // Dir1 is hidden under File1; its path is File1's folder.
  filecopy::FolderList Dir2   { *this, "Dir2", filecopy::PickerLook, {300, 1500, 3300, 3000}, RecordScreen.Files.Disk() };
  filecopy::FileList   File2  { *this, "File2", {}, filecopy::PickerLook, {300, 1500, 3300, 3000}, RecordScreen.Files.Disk(), filecopy::Pattern.substr(1) };
  filecopy::FolderList Dir1   { *this, "Dir1", filecopy::PickerLook, {300, 1500, 3300, 3000}, RecordScreen.Files.Disk() };
  filecopy::FileList   File1  { *this, "File1", {0, filecopy::CopyTopic, 0}, filecopy::PickerLook, {300, 1500, 3300, 3000}, RecordScreen.Files.Disk(), filecopy::Pattern.substr(1) };
  filecopy::DriveList  Drive1 { *this, "Drive1", {1, filecopy::CopyTopic, 0}, filecopy::PickerLook, {3900, 3300, 3000, 1200} };

  forms::Label lblCopy  { *this, "lblCopy",  "Copy Data to Floppy",                                 {}, filecopy::HeadingLook, { 300,  210, 6600, 480} };
  forms::Label lblCopy2 { *this, "lblCopy2", "Copy recpra.dat",                                     {}, filecopy::StepLook,    { 300,  780, 3300, 300} };
  forms::Label lblCopy6 { *this, "lblCopy6", "Click on file to make selection",                     {}, filecopy::StepLook,    { 300, 1110, 3300, 300} };
  forms::Label lblCopy3 { *this, "lblCopy3", "Click on  down arrow ",                               {}, filecopy::StepLook,    {3900, 1500, 3000, 300} };
  forms::Label lblCopy4 { *this, "lblCopy4", "Click on \"a\" to copy data to  floppy drive \"a\"",  {}, filecopy::StepLook,    {3900, 1860, 3000, 540} };
  forms::Label lblCopy5 { *this, "lblCopy5", "Make sure  there's a disc in drive \"A\" or \"B\".",  {}, filecopy::StepLook,    {3900, 2460, 3000, 540} };
  forms::Label lblCopy7 { *this, "lblCopy7", "Try Again!",                                          {}, filecopy::AgainLook,   {3900,  960, 3000, 420} };

  std::string SourceName;         // the chosen file
  std::string TargetPath;         // its name on the drive, as shown in the questions
  std::string DriveWord;          // the drive: "A:", "B:", or the text of the list in capitals
  std::string LetterWord;         // the drive as shown in the questions
  runtime::Int16 SkipChange;      // 1: ignore the next Change of Drive1

  // Shows the window with the current files and drives.
  void Open();
  void frmCopy_Load();
  void frmCopy_Unload();
  void Dir1_Change();
  void Dir2_Change();
  void File1_Click();
  void File1_DblClick();
  void Drive1_GotFocus();
  void Drive1_LostFocus();
  void Drive1_Change();

 private:
  void ReadDrive();
  bool OnFloppy() const;
  char DriveLetter() const;
  runtime::Disk& HardDisk() const { return RecordScreen.Files.Disk(); }
  std::unique_ptr<runtime::Disk> DriveDisk();
  std::optional<runtime::FileFacts> TargetFacts();
  bool AskToReplace(const runtime::FileFacts& source, const runtime::FileFacts& target);
  bool AskToCopy(const runtime::FileFacts& source);
  // Bytes: the size of the source.
  void CopyToDrive(std::int64_t bytes);
  void ReportNoDisk();
  void OpenMasterAgain();
  void ReturnToRecordScreen();
  bool closed_ = false;
};
// clang-format on
