// The only place that catches Killed.
#include "tests/safety/scenario_run.h"

namespace safety {

ScenarioRun RunScenario(const Scenario& scenario, runtime::Disk& disk,
                        const std::function<void(std::size_t)>& finished) {
  ScenarioRun run;
  try {
    StartedProgram started(disk);
    run.Started = !started.Program.Stopped();
    for (const Step& step : scenario.Steps) {
      if (started.Program.Stopped()) break;
      try {
        step(started.Program);
      } catch (const Refused& refused) {
        run.Refused = refused.Told;
        break;
      }
      if (started.Program.Stopped()) break;
      ++run.Steps;
      if (finished) finished(run.Steps);
    }
    run.Stopped = started.Program.Stopped();
    run.Reported = started.Desk.Reported;
  } catch (const kit::Killed&) {
    run.Killed = true;
  }
  return run;
}

std::size_t CallsOf(const Scenario& scenario) {
  kit::MemoryDisk memory(scenario.Before);
  kit::FaultyDisk counting(memory);
  RunScenario(scenario, counting);
  return counting.Calls();
}

}  // namespace safety
