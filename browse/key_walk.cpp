// What all walks along a key file share: reading the key at KeyFilePos, the end of the keys, and the number that a key
// leads to.
#include "browse/key_walk.h"

#include <utility>

#include "runtime/checked_int.h"

void frmPage1::ReadKey() {
  std::string key = runtime::Fixed(KeyRecord, browse::KeyLength);
  if (Files.Get(KeyFileNo, KeyFilePos, key.data())) KeyRecord = key;
}

// Before the first key of a run has been read there is nothing that could be blank.
bool frmPage1::KeyIsBlank() const {
  std::string_view title = std::string_view(KeyRecord).substr(0, browse::KeyTitleWidth);
  return !title.empty() && title.find_first_not_of(' ') == std::string_view::npos;
}

// One blank key is passed over, a second one in a row is taken as it stands.
void frmPage1::ReadKeyPastBlank() {
  ReadKey();
  if (!KeyIsBlank()) return;
  KeyFilePos += 1;
  ReadKey();
}

// Without rounding: a file with a part of a key at its end has no end.
bool frmPage1::PastLastKey(int key_length) {
  return static_cast<double>(Files.Length(KeyFileNo)) / key_length + 1 == static_cast<double>(KeyFilePos);
}

std::int16_t frmPage1::CountKeys() {
  return runtime::RoundToInt16(static_cast<double>(Files.Length(KeyFileNo)) / browse::KeyLength);
}

// EditMode is left with the position of "49" in the key: a habit of every reader of keys.
void frmPage1::TakeScanRecNo() {
  EditMode = static_cast<std::int64_t>(runtime::Position(KeyRecord, "49"));
  ScanRecNo = runtime::RoundToInt32(
      runtime::NumericValue(runtime::Fixed(KeyRecord, browse::KeyLength).substr(browse::KeyTitleWidth)));
}

void frmPage1::OpenKeyFile(std::string_view name) {
  if (std::exchange(KeyFileLeftBySort, false)) Files.Close(KeyFileNo);
  Files.OpenRandom(KeyFileNo, name, browse::KeyLength);
}

// A key without a number leads nowhere: the focus goes to the title, and the walk is over.
bool frmPage1::TakeScanRecNoOrStop() {
  TakeScanRecNo();
  if (ScanRecNo != 0) return true;
  txtTitle.SetFocus();
  return false;
}

// A search or a report may have closed the key file of a view that goes on; a list and a view may take it from each
// other.
void frmPage1::ReopenKeyFile(std::string_view name) {
  if (Files.IsOpen(KeyFileNo, name) && !KeyFileLeftBySort) return;
  Files.Close(KeyFileNo);
  OpenKeyFile(name);
}
