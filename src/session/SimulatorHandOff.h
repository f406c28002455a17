#pragma once

#include "session/Flag.h"
#include "simulator/AircraftScan.h"
#include "simulator/StoredPositions.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gatewise {

/// What is handed to the simulator besides the plan, and what was found of it.
struct SimulatorHandOff {
    Flag ProFlightFound = kFalse;
    float StartLat = 0, StartLon = 0, StartHdg = 0; // degrees
    std::string StartChoice;
    std::int16_t SelectedPoint = 0;             // of the plan, to start at in flight
    std::vector<ScannedAircraft> AircraftTable; // as found when the fly options were loaded
    std::optional<std::string> scannedFolder;   // whose aircraft these are; nothing before the first scan
    std::shared_ptr<ScanProgress> scan;         // that runs now
    StoredPositions storedPositions;            // of the departure airport
};

} // namespace gatewise
