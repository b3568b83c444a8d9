// Copies the chosen file to the chosen drive: questions, empty drives, full disks. The master file is closed while the
// window is open.
#include "filecopy/frmCopy.h"

#include "forms/window_stack.h"
#include "runtime/code_page.h"
#include "store/master_file.h"

namespace {

constexpr int MasterNo = 1;
// The drive of the program's folder.
constexpr std::string_view OwnDrive = "C:";
constexpr std::string_view NoDiskText =
    "There is no disk in floppy drive, or wrong drive was selected. Insert disk and click ok.";
constexpr std::string_view UnconfirmedText =
    "The file was copied, but the disk did not confirm it. Please copy it again before you remove the disk.";

}  // namespace

frmCopy::frmCopy(forms::WindowStack& windows, frmPage1& record_screen)
    : Window(windows, "frmCopy", "Copy Files", 7200, 4800),
      RecordScreen(record_screen),
      DiskIn([](const std::string& folder) {
        return std::make_unique<runtime::RealDisk>(folder, runtime::RealDisk::Links::Refused);
      }) {
  Modal = true;  // the master file is closed, and the record screen cannot work without it
  Load = [this] { frmCopy_Load(); };
  Unload = [this] { frmCopy_Unload(); };
  WIRE(Dir1, Change);
  WIRE(Dir2, Change);
  WIRE(File1, Click);
  WIRE(File1, DblClick);
  WIRE(Drive1, GotFocus);
  WIRE(Drive1, LostFocus);
  WIRE(Drive1, Change);
}

// A closed window starts afresh; a hidden one keeps its files and labels, but no drive is chosen and no attempt failed.
void frmCopy::Open() {
  Show();
  if (closed_) frmCopy_Load();
  lblCopy7.Hide();
  File1.Refresh();
  Drive1.Empty();
  Drive1.Refresh(RecordScreen.Desk.DriveLetters());
  File1.SetFocus();
}

void frmCopy::frmCopy_Load() {
  closed_ = false;
  RecordScreen.Files.Close(MasterNo);
  File2.Hide();
  Dir2.Hide();
  for (forms::ListBox* list : {static_cast<forms::ListBox*>(&File1), static_cast<forms::ListBox*>(&Drive1)})
    list->Empty();
  Dir1.Refresh();
  File1.SetPath(Dir1.Path());
  for (forms::Label* label : {&lblCopy3, &lblCopy4, &lblCopy5, &lblCopy7}) label->Hide();
  Drive1.Disable();
  SkipChange = 0;
}

void frmCopy::frmCopy_Unload() {
  closed_ = true;
  SkipChange = 1;
  OpenMasterAgain();
}

void frmCopy::Dir1_Change() { File1.SetPath(Dir1.Path()); }
void frmCopy::Dir2_Change() { File2.SetPath(Dir2.Path()); }

void frmCopy::File1_Click() {
  LetterWord.assign(1, 'A');
  Drive1.Enable();
  Drive1_GotFocus();
}

void frmCopy::File1_DblClick() { File1_Click(); }

void frmCopy::Drive1_GotFocus() {
  for (forms::Label* label : {&lblCopy3, &lblCopy4, &lblCopy5}) label->Show();
}

void frmCopy::Drive1_LostFocus() { SkipChange = 0; }

void frmCopy::Drive1_Change() {
  RecordScreen.Files.Close(MasterNo);
  if (SkipChange == 1) return;
  File1.SetPath(Dir1.Path());
  SourceName = File1.Selected();
  runtime::FileFacts source = runtime::FactsOf(HardDisk(), File1.OnDisk(SourceName));
  ReadDrive();
  bool done = false;
  try {
    std::optional<runtime::FileFacts> target = TargetFacts();
    done = target ? AskToReplace(source, *target) : AskToCopy(source);
  } catch (const runtime::Failure&) {
    ReportNoDisk();
  }
  if (done) ReturnToRecordScreen();
}

void frmCopy::ReadDrive() {
  LetterWord = runtime::Upper(Drive1.Selected());
  DriveWord = LetterWord == "A" || LetterWord == "B" ? LetterWord + ":" : LetterWord;
  TargetPath = OnFloppy() ? DriveWord + "\\" + std::string(runtime::Trim(SourceName)) : SourceName;
}

bool frmCopy::OnFloppy() const { return DriveWord == "A:" || DriveWord == "B:"; }

char frmCopy::DriveLetter() const { return static_cast<char>(DriveWord[0] - 'A' + 'a'); }

// Throws PathError if there is no disk in the drive.
std::unique_ptr<runtime::Disk> frmCopy::DriveDisk() {
  std::optional<std::string> folder = RecordScreen.Desk.DriveFolder(DriveLetter());
  if (!folder) throw runtime::Failure{runtime::PathError, TargetPath};
  return DiskIn(*folder);
}

// Nothing if the target does not exist. For any drive but A and B the target is the file of that name in the program's
// folder.
std::optional<runtime::FileFacts> frmCopy::TargetFacts() {
  std::string name = runtime::ToUtf8(SourceName);
  try {
    return OnFloppy() ? runtime::FactsOf(*DriveDisk(), name) : runtime::FactsOf(HardDisk(), name);
  } catch (const runtime::Failure& failure) {
    if (failure.Name != runtime::FileNotFound) throw;
    return std::nullopt;
  }
}

void frmCopy::CopyToDrive(std::int64_t bytes) {
  lblCopy7.Hide();
  if (DriveWord == OwnDrive) return;
  runtime::Copied copied =
      runtime::CopyFile(HardDisk(), File1.OnDisk(SourceName), *DriveDisk(), runtime::ToUtf8(SourceName));
  if (copied == runtime::Copied::Unconfirmed)
    RecordScreen.Desk.MessageBox(forms::Icon::Warning, BoxTitle, UnconfirmedText);
  RecordScreen.Desk.Copied(SourceName, DriveLetter(), bytes);
}

void frmCopy::ReportNoDisk() {
  RecordScreen.Desk.MessageBox(forms::Icon::Warning, BoxTitle, NoDiskText);
  lblCopy7.Show();
}

void frmCopy::OpenMasterAgain() {
  if (!RecordScreen.Files.IsOpen(MasterNo)) store::OpenMaster(RecordScreen.Files, MasterNo);
}

void frmCopy::ReturnToRecordScreen() {
  Hide();
  OpenMasterAgain();
  RecordScreen.Show();
}
