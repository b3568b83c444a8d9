// The power fails at each moment of a road, and each state that this can leave has to be sound.
#pragma once

#include <string>

#include "tests/kit/faulty_disk.h"
#include "tests/safety/complaint.h"
#include "tests/safety/road.h"

namespace safety {

// What is wrong with the first unsound state, "" where all are sound. fit: what stands between program and disk.
std::string PowerLossComplaint(const Road& road, const Fitting& fit = {});

// The same where a fault comes first: the program is killed or stops, is started again, and saves a film elsewhere.
std::string PowerLossAfterFaultComplaint(const Road& road, kit::Fault fault, const Fitting& fit = {});

// A fault at each call, once; what is wrong with the first folder that the stopped program leaves, before any start.
std::string TakeBackComplaint(const Road& road, kit::Fault fault, const Fitting& fit = {});

}  // namespace safety
