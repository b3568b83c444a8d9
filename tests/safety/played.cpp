// The one place where a kill of the tests is caught.
#include "tests/safety/played.h"

namespace safety {

Played Play(const Road& road, runtime::Disk& disk, const std::function<void(std::size_t)>& finished) {
  Played played;
  try {
    Running run(disk);
    played.Started = !run.Program.Stopped();
    for (const Step& step : road.Steps) {
      if (run.Program.Stopped()) break;
      step(run.Program);
      if (run.Program.Stopped()) break;
      ++played.Steps;
      if (finished) finished(played.Steps);
    }
    played.Stopped = run.Program.Stopped();
    played.Reported = run.Desk.Reported;
  } catch (const kit::Killed&) {
    played.Killed = true;
  }
  return played;
}

std::size_t CallsOf(const Road& road) {
  kit::MemoryDisk memory(road.Before);
  kit::FaultyDisk counting(memory);
  Play(road, counting);
  return counting.Calls();
}

}  // namespace safety
