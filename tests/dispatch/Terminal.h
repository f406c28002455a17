#pragma once

#include "app/StartUp.h"
#include "input/UserEvents.h"
#include "pages/Screens.h"
#include "platform/simulated/SimulatedMachine.h"
#include "sound/DS_Engine.h"
#include "sound/SilentDevice.h"
#include "support/Schedule.h"
#include "support/TempFolder.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gatewise::test {

/// A data set that a test writes by hand. Airports are named by their place.
struct Schedule {
    std::vector<AirportRecord> airports;
    std::vector<AirlineRecord> airlines;
    std::vector<AircraftRecord> aircraft;
    std::vector<FlightRecord> flights; // grouped by their OriginIndex, in its order

    /// Fills the blocks and codes that follow from the flights.
    void complete();
    void write(const TempFolder& folder, std::string_view dataFolder) const;
};

/// Three airports of a triangle, one airline, one type, two flights from the first to the second.
Schedule smallSchedule();

/// The program in a folder of its own, from start-up on. A modal screen does the next of `answers` and is
/// hidden if that leaves it open; without an answer it is just hidden. What was shown is written down.
class Terminal {
public:
    explicit Terminal(const TempFolder& folder);
    void start() { startUp(p); }

    SilentDevice sound;
    simulated::SimulatedMachine machine;
    Program p;
    std::deque<std::function<void()>> answers;
    std::vector<std::string> shown; // modal screens, in their order
    std::string lastMessage;        // of the message screen
};

inline void writeSettings(const TempFolder& folder, std::string_view more = {}) {
    folder.write("/GT.cfg",
                 std::string("[Main]\r\nIndex=0\r\nDataSet=\\Data\r\nStatusBoard=0\r\n"
                             "[Announcements]\r\nTimeSort=True\r\nCitySort=False\r\nFltNumSort=False\r\n") +
                     std::string(more));
}

} // namespace gatewise::test
