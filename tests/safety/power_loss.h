// Lets the power fail at each moment of a scenario; every state that this can leave must be sound.
#pragma once

#include <string>

#include "tests/kit/faulty_disk.h"
#include "tests/safety/scenario.h"
#include "tests/safety/soundness.h"

namespace safety {

// The complaint about the first unsound state, "" if all are sound. wrapper: see soundness.h.
std::string PowerLossComplaint(const Scenario& scenario, const DiskWrapper& wrapper = {});

// The same after a fault: the program is killed or stops, starts again and saves a film in another slot.
std::string PowerLossAfterFaultComplaint(const Scenario& scenario, kit::Fault fault, const DiskWrapper& wrapper = {});

// Lets each call fail once; the complaint about the first bad folder that the stopped program leaves, before any
// restart.
std::string TakeBackComplaint(const Scenario& scenario, kit::Fault fault, const DiskWrapper& wrapper = {});

}  // namespace safety
