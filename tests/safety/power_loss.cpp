// Each state is checked once.
#include "tests/safety/power_loss.h"

#include <algorithm>
#include <set>

#include "store/film_record.h"
#include "store/master_file.h"
#include "tests/kit/films.h"
#include "tests/kit/no_drafts_disk.h"
#include "tests/safety/scenario_run.h"

namespace safety {
namespace {

constexpr std::size_t MaxStates = 4096;
constexpr std::size_t MaxStatesInRecovery = 64;
constexpr std::size_t MaxStatesAfterFault = 24;

std::unique_ptr<runtime::Disk> WithoutDrafts(runtime::Disk& below, const DiskWrapper& wrapper) {
  return std::make_unique<kit::NoDraftsDisk>(Wrapped(below, wrapper));
}

std::string At(std::size_t moment, const std::string& complaint) {
  return complaint.empty() ? "" : "at moment " + std::to_string(moment) + ": " + complaint;
}

// The power fails again while the start repairs the damage of the first loss.
std::string SecondLossComplaint(const kit::Folder& state, const std::vector<kit::Folder>& allowed,
                                const kit::Folder& before, const DiskWrapper& wrapper) {
  kit::MemoryDisk disk(state);
  std::string complaint = Complaint(disk, allowed, before, wrapper);
  for (std::size_t moment = 1; complaint.empty() && moment < disk.Moments(); ++moment) {
    for (const kit::Folder& again : disk.AfterPowerLoss(moment, MaxStatesInRecovery)) {
      complaint = Complaint(again, allowed, before, wrapper);
      if (!complaint.empty()) break;
    }
  }
  return complaint;
}

// Each folder after film 1 was saved in version 9.
std::vector<kit::Folder> WithFilmOne(std::vector<kit::Folder> folders) {
  for (kit::Folder& folder : folders) {
    std::string& master = folder[std::string(store::MasterFileName)];
    master.replace(0, std::min<std::size_t>(master.size(), store::RecordLength), kit::FilmBytes(1, 9));
  }
  return folders;
}

}  // namespace

std::string PowerLossComplaint(const Scenario& scenario, const DiskWrapper& wrapper) {
  std::vector<std::vector<kit::Folder>> allowed_after = AllowedFolders(scenario);
  kit::MemoryDisk memory(scenario.Before);
  std::vector<std::size_t> finished;
  RunScenario(scenario, *WithoutDrafts(memory, wrapper), [&](std::size_t) { finished.push_back(memory.Moments()); });
  std::set<std::pair<std::size_t, kit::Folder>> seen;
  for (std::size_t moment = 0; moment <= memory.Moments(); ++moment) {
    auto steps =
        static_cast<std::size_t>(std::upper_bound(finished.begin(), finished.end(), moment) - finished.begin());
    for (const kit::Folder& state : memory.AfterPowerLoss(moment, MaxStates)) {
      if (!seen.emplace(steps, state).second) continue;
      std::string complaint = SecondLossComplaint(state, allowed_after[steps], scenario.Before, wrapper);
      if (!complaint.empty()) return At(moment, complaint);
    }
  }
  return "";
}

std::string PowerLossAfterFaultComplaint(const Scenario& scenario, kit::Fault fault, const DiskWrapper& wrapper) {
  std::vector<std::vector<kit::Folder>> allowed_after = AllowedFolders(scenario);
  std::size_t calls = CallsOf(scenario);
  for (std::size_t at = 0; at < calls; ++at) {
    kit::MemoryDisk memory(scenario.Before);
    kit::FaultyDisk faulty(memory, {fault, at});
    ScenarioRun run = RunScenario(scenario, *WithoutDrafts(faulty, wrapper));
    if (faulty.Calls() <= at) break;  // without drafts there are fewer
    std::size_t fault_moment = memory.Moments();
    if (fault_moment == 0) continue;
    auto wrapped = WithoutDrafts(memory, wrapper);
    StartedProgram started(*wrapped);
    EditFilm(1, 9)(started.Program);
    if (started.Program.Stopped()) return "the program stops after a fault at call " + std::to_string(at);

    const std::vector<kit::Folder>& old_ones = allowed_after[run.Steps];
    std::vector<kit::Folder> after = WithFilmOne(old_ones);
    std::vector<kit::Folder> during = old_ones;
    during.insert(during.end(), after.begin(), after.end());
    std::set<kit::Folder> seen;
    for (std::size_t moment = fault_moment; moment <= memory.Moments(); ++moment) {
      const std::vector<kit::Folder>& allowed = moment == memory.Moments() ? after : during;
      for (const kit::Folder& state : memory.AfterPowerLoss(moment, MaxStatesAfterFault)) {
        if (moment != memory.Moments() && !seen.insert(state).second) continue;
        std::string complaint = Complaint(state, allowed, scenario.Before, wrapper);
        if (!complaint.empty()) return "after a fault at call " + std::to_string(at) + ", " + At(moment, complaint);
      }
    }
  }
  return "";
}

std::string TakeBackComplaint(const Scenario& scenario, kit::Fault fault, const DiskWrapper& wrapper) {
  std::vector<std::vector<kit::Folder>> allowed_after = AllowedFolders(scenario);
  std::size_t calls = CallsOf(scenario);
  for (std::size_t at = 0; at < calls; ++at) {
    kit::MemoryDisk memory(scenario.Before);
    kit::FaultyDisk faulty(memory, {fault, at});
    ScenarioRun run = RunScenario(scenario, *Wrapped(faulty, wrapper));
    const std::vector<kit::Folder>& allowed = allowed_after[run.Steps];
    kit::Folder left = Visible(memory.Content());
    if (run.Started && std::find(allowed.begin(), allowed.end(), left) == allowed.end())
      return "a mixture is left behind by a fault at call " + std::to_string(at);
  }
  return "";
}

}  // namespace safety
