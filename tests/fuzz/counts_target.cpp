// Any count file: the start, a view, a list and a report of it end or fail by name, and write nothing.
#include "runtime/text.h"
#include "store/key_file.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/fuzz/session.h"

namespace {

using End = fuzz::Session::End;
using screen::PageControls;

struct Counted {
  store::KeyFile Keys;
  forms::MenuItem PageControls::*View;
  forms::MenuItem PageControls::*List;
  forms::MenuItem PageControls::*Report;
};
// clang-format off
constexpr Counted Files[] = {
  { store::TitleKeys, &PageControls::mnuByTitle, &PageControls::mnuAllTitles, &PageControls::mnuShort },
  { store::DVDKeys,   &PageControls::mnuByDVD,   &PageControls::mnualldvd,    &PageControls::mnuDVD },
  { store::LaserKeys, &PageControls::mnuByLaser, &PageControls::mnualllas,    &PageControls::mnuLaser },
  { store::VHSKeys,   &PageControls::mnuByVHS,   &PageControls::mnuAllVHS,    &PageControls::mnuVHS },
};
// clang-format on

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const Counted& counted = Files[input.Below(std::size(Files))];
  forms::MenuItem PageControls::*const commands[] = {counted.View, counted.List, counted.Report};
  const std::size_t order = input.Byte();
  kit::Folder folder = fuzz::SmallCollection(1 + input.Below(4));
  const std::string name(counted.Keys.CountFile);
  folder[name] = input.Rest();
  fuzz::PlainDisk disk(folder);
  fuzz::Session session(disk);
  End end = session.Start();
  for (std::size_t step = 0; step < std::size(commands) && end == End::Done; ++step)
    end = session.Click(session.Screen.*commands[(order + step) % std::size(commands)]);
  fuzz::Require(end != End::TooLong, "an event on good keys ends");
  fuzz::Require(disk.Changes() == 0, "reading writes nothing");
  if (end == End::Failed) {
    const runtime::Failure& failure = *session.Failure();
    fuzz::Require(failure.File == name || failure.Name == runtime::Overflow, "the failure of a count names the file");
  }
  return 0;
}
