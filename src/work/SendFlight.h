#pragma once

#include "session/SimulatorHandOff.h"
#include "simulator/FlightFile.h"
#include "work/ExportKinds.h"

#include <string>
#include <vector>

namespace gatewise {

/// Where the simulator's aircraft are.
std::string aircraftFolder(const Settings& settings);

/// The stored positions of the departure airport; the entries that a start is chosen from.
std::vector<std::string> loadStartChoices(const Settings& settings, const Plan& plan,
                                          SimulatorHandOff& simulator);

/// What the fly options add to the flight.
struct FlyOptions {
    std::string aircraft; // title of the chosen one
    std::string fuelPCT;  // per cent, as shown
};

/// The start position, the plan, the situation file: what fails leaves what stands before it in place.
std::error_code WriteFlightToSimulator(const std::string& AppDir, const ExportJob& job,
                                       const FlightRecord& flight, const Settings& settings,
                                       const FlyOptions& options, SimulatorHandOff& simulator);

/// Where the flight goes, for the pilot's eye.
std::string situationPath(const Settings& settings, const std::string& stem);

/// What the pilot is told once the flight stands: that it was sent, or that it was set as the default too.
/// The first of the two is the failure to set it, if it failed.
std::vector<Notice> afterSending(const Settings& settings, const std::string& stem);

} // namespace gatewise
