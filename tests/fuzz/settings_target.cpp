// Any file of a setting or a colour: the start reads its first line or fails and names it, and writes nothing; a
// setting chosen then is what the next start reads.
#include "runtime/text.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/session.h"

namespace {

using End = fuzz::Session::End;

constexpr const char* Names[] = {"AutoSave", "AutoSort", "Fo1", "BGColor", "txtBGColor", "txtForColor", "tagForColor"};

// The first line, without the blanks in front.
std::string FirstLine(const std::string& content) {
  const std::size_t end = content.find('\n');
  std::string_view line = std::string_view(content).substr(0, end);
  if (end != std::string::npos && line.ends_with('\r')) line.remove_suffix(1);
  return std::string(runtime::TrimFront(line));
}

void ChooseAndRestart(fuzz::PlainDisk& disk, fuzz::Session& session, forms::Answer answer) {
  session.Desk.Question = answer;
  fuzz::Require(session.Click(session.Screen.mnuAutoSave) == End::Done &&
                    session.Click(session.Screen.mnuAutoSort) == End::Done &&
                    session.Click(session.Screen.mnudefault) == End::Done,
                "settings can be chosen");
  fuzz::Session next(disk);
  fuzz::Require(next.Start() == End::Done, "settings that the program wrote can be read");
  const bool yes = answer == forms::Answer::Yes;
  fuzz::Require(next.Screen.AutoSaveSetting == (yes ? "YES" : "NO"), "Auto Save is what was chosen");
  fuzz::Require(next.Screen.AutoSortSetting == (yes ? "YES" : ""), "Auto Sort is what was chosen");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::string name = Names[input.Below(std::size(Names))];
  const std::size_t kind = input.Byte();
  kit::Folder folder = fuzz::SmallCollection(2);
  const std::string content(input.Rest());
  folder[name] = content;
  fuzz::PlainDisk disk(folder);
  if (kind == 255) disk.SetLength(name, std::int64_t{1} << 40);
  fuzz::Session session(disk);
  const End end = session.Start();
  fuzz::Require(end != End::TooLong, "a start ends");
  fuzz::Require(disk.Changes() == 0, "a start writes nothing");
  if (end == End::Failed) {
    fuzz::Require(session.Failure()->File == name, "the failure of a start names the file");
    return 0;
  }
  if (kind != 255 && name == "AutoSave")
    fuzz::Require(session.Screen.AutoSaveSetting == FirstLine(content), "a setting is the first line");
  if (kind % 4 == 1) ChooseAndRestart(disk, session, kind % 8 == 1 ? forms::Answer::Yes : forms::Answer::No);
  return 0;
}
