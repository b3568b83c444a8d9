// What all walks along a key file share: reading the key at KeyFilePos, the end of the keys, and the record number in a
// key.
#include "screen/frmPage1.h"
#include "store/key_file.h"

#include <utility>

#include "runtime/checked_int.h"

void frmPage1::ReadKey() {
  std::string key = runtime::Fixed(KeyRecord, store::KeyLength);
  if (Files.Get(KeyFileNo, KeyFilePos, key.data())) KeyRecord = key;
}

// No key read yet: not blank.
bool frmPage1::KeyIsBlank() const {
  std::string_view title = std::string_view(KeyRecord).substr(0, store::KeyTitleWidth);
  return !title.empty() && title.find_first_not_of(' ') == std::string_view::npos;
}

// Skips one blank key; a second one in a row is taken as it is.
void frmPage1::ReadKeyPastBlank() {
  ReadKey();
  if (!KeyIsBlank()) return;
  KeyFilePos += 1;
  ReadKey();
}

// Without rounding, so never true if the file ends in a partial key.
bool frmPage1::PastLastKey(int key_length) {
  return static_cast<double>(Files.Length(KeyFileNo)) / key_length + 1 == static_cast<double>(KeyFilePos);
}

std::int16_t frmPage1::CountKeys() {
  return runtime::RoundToInt16(static_cast<double>(Files.Length(KeyFileNo)) / store::KeyLength);
}

// Kept on purpose: reading a key leaves the position of "49" in EditMode.
void frmPage1::TakeScanRecNo() {
  EditMode = static_cast<std::int64_t>(runtime::Position(KeyRecord, "49"));
  ScanRecNo = runtime::RoundToInt32(
      runtime::NumericValue(runtime::Fixed(KeyRecord, store::KeyLength).substr(store::KeyTitleWidth)));
}

void frmPage1::OpenKeyFile(std::string_view name) {
  if (std::exchange(KeyFileLeftBySort, false)) Files.Close(KeyFileNo);
  Files.OpenRandom(KeyFileNo, name, store::KeyLength);
}

// A key without a number ends the walk, with the focus on the title.
bool frmPage1::TakeScanRecNoOrStop() {
  TakeScanRecNo();
  if (ScanRecNo != 0) return true;
  txtTitle.SetFocus();
  return false;
}

// A search or a report may have closed the key file of the open view; a list and a view may take it from each other.
void frmPage1::ReopenKeyFile(std::string_view name) {
  if (Files.IsOpen(KeyFileNo, name) && !KeyFileLeftBySort) return;
  Files.Close(KeyFileNo);
  OpenKeyFile(name);
}
