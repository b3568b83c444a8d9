// Any key file under the views and the twenty-row lists: a step ends or fails by name, and writes nothing. Only a walk
// that looks for a genre or for the rows of a list may go on and on, as it does in a damaged file.
#include "store/key_file.h"
#include "tests/fuzz/any_keys.h"
#include "tests/fuzz/session.h"

namespace {

using End = fuzz::Session::End;

struct Command {
  forms::Control& Control;
  bool MayGoOn;
};

std::vector<Command> CommandsOf(frmPage1& screen) {
  const bool in_genre = screen.ViewKind == screen::GenreView;
  return {
      {screen.cmdNext, in_genre},     {screen.cmdPrevious, in_genre}, {screen.cmdNext20, true},
      {screen.cmdPrev20, true},       {screen.mnuByTitle, false},     {screen.mnuByDVD, false},
      {screen.mnuByLaser, false},     {screen.mnuByVHS, false},       {screen.mnuAllTitles, true},
      {screen.mnualldvd, true},       {screen.mnualllas, true},       {screen.mnuAllVHS, true},
      {screen.mnuFindAllGenre, true}, {screen.mnuFindGenre, true},    {screen.cmdReset, false},
  };
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const std::size_t films = input.Below(5);
  kit::Folder folder = fuzz::SmallCollection(films);
  const std::string keys = fuzz::AnyKeys(input);
  for (const store::KeyFile& file : {store::TitleKeys, store::DVDKeys, store::LaserKeys, store::VHSKeys})
    folder[std::string(file.Name)] = keys;
  fuzz::PlainDisk disk(folder);
  fuzz::Session session(disk);
  constexpr const char* Answers[] = {"CO", "dr", "", "XX"};
  session.Desk.NextAnswer = Answers[input.Below(4)];
  fuzz::Require(session.Start() == End::Done, "a start does not read the keys");
  for (int steps = 0; steps < 24 && !input.AtEnd(); ++steps) {
    const std::vector<Command> commands = CommandsOf(session.Screen);
    const Command& command = commands[input.Below(commands.size())];
    const End end = session.Click(command.Control);
    fuzz::Require(end != End::TooLong || command.MayGoOn, "a step along damaged keys ends");
    if (end != End::Done) break;
  }
  fuzz::Require(disk.Changes() == 0 || session.Desk.AskedToSave, "browsing writes nothing");
  return 0;
}
