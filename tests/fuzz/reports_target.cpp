// Any key file under the reports: a report ends or fails by name, writes nothing, and prints as many pages as it
// counts. On a file without a key or with part of one it may go on to the limit of positions.
#include "store/key_file.h"
#include "tests/fuzz/any_keys.h"
#include "tests/fuzz/session.h"

namespace {

using End = fuzz::Session::End;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  kit::Folder folder = fuzz::SmallCollection(input.Below(5));
  const std::string keys = fuzz::AnyKeys(input);
  for (const store::KeyFile& file : {store::TitleKeys, store::DVDKeys, store::LaserKeys, store::VHSKeys})
    folder[std::string(file.Name)] = keys;
  const bool sound = fuzz::AreWhole(keys);
  fuzz::PlainDisk disk(folder);
  fuzz::Session session(disk);
  frmPage1& screen = session.Screen;
  forms::Control* const reports[] = {&screen.mnuAll,     &screen.mnuShort,    &screen.mnuDVD,   &screen.mnuLaser,
                                     &screen.mnuVHS,     &screen.mnuDirector, &screen.mnuStars, &screen.mnuGenre,
                                     &screen.mnuByTitle, &screen.cmdNext};
  constexpr const char* Answers[] = {"dir", "STAR", "co", "", "XX", "\xE9"};
  fuzz::Require(session.Start() == End::Done, "a start does not read the keys");
  session.Desk.Printed = [&](const runtime::PrintJob& job) {
    fuzz::Require(std::ssize(job.Pages) == screen.PrintPending, "a report prints the pages that it counts");
  };
  for (int steps = 0; steps < 6 && !input.AtEnd(); ++steps) {
    session.Desk.NextAnswer = Answers[input.Below(std::size(Answers))];
    session.Desk.Question = input.Below(8) == 1 ? forms::Answer::No : forms::Answer::Yes;
    const End end = session.Click(*reports[input.Below(std::size(reports))]);
    fuzz::Require(end != End::TooLong || !sound, "a report on whole keys with titles ends");
    if (end != End::Done) break;
  }
  fuzz::Require(disk.Changes() == 0 || session.Desk.AskedToSave, "a report writes nothing");
  return 0;
}
