#pragma once

#include "board/BoardTypes.h"
#include "logbook/LogBook.h"
#include "plan/PlanTable.h"
#include "platform/Numbers.h"
#include "schedule/Records.h"
#include "selection/AirportFinder.h"
#include "simulator/AircraftScan.h"
#include "simulator/StoredPositions.h"
#include "sound/AnnouncementScan.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace gatewise {

/// A flag of the global state: -1 true, 0 false.
using Flag = std::int16_t;
inline constexpr Flag kTrue = -1;
inline constexpr Flag kFalse = 0;

/// Values that connect calls of the navigation geometry.
struct GeometryState {
    float lastCourse = 0;            // degrees, found by the last Distance
    std::int32_t offsetDistance = 0; // nautical miles that the offset functions move
};

/// The global state of the program, one instance from start-up to shutdown, grouped by who works with it.
struct Globals {
    // Program
    std::string AppDir;                 // folder of the program
    std::string DataSetPath = "\\Data"; // data set, below AppDir
    std::string FsPath;                 // folder of the simulator
    Flag ProFlightFound = kFalse;
    Flag StartupDone = kFalse;
    std::string FavoriteAirlineName;
    std::string MessageMode; // "regular", "del_log", "path", "fly_now"
    std::string ErrorText;   // description of the last failure, for message 14

    // Airports and modes
    std::int32_t HomeIndex = 0;
    std::int32_t BoardAirportIndex = 0;
    std::int32_t DepartureIndex = 0;
    std::int32_t DestinationIndex = 0;
    std::int32_t AlternateIndex = 0;
    Flag HaveDeparture = kFalse;
    Flag HaveDestination = kFalse;
    Flag HaveAlternate = kFalse;
    std::string BoardMode = "departing"; // or "arriving"
    std::string SelectMode = "departure";
    FixedText<3> BoardAirlineCode;

    // Schedule
    Tables tables;
    AirportFinder airportFinder;                // over tables.airports
    std::vector<FlightRecord> DepartureFlights; // of the dispatch airport
    std::vector<FlightRecord> BoardFlights;     // of the board airport
    FlightRecord CurrentFlight;
    [[nodiscard]] int DepartureFlightCount() const { return static_cast<int>(DepartureFlights.size()) - 1; }
    [[nodiscard]] int BoardFlightCount() const { return static_cast<int>(BoardFlights.size()) - 1; }

    // Board
    BoardLists board;
    std::int16_t BoardPage = 0;

    // Clock
    int Bias = 0; // minutes, taken once at start-up
    std::int16_t ClockRegion = 1;
    std::int16_t HourOffset = 0, MinuteOffset = 0;
    std::int16_t LastHourOffset = 0, LastMinuteOffset = 0;
    std::int16_t ClockHours = 0, ClockMinutes = 0;
    std::array<std::int16_t, 24> ZoneHours{}, ZoneMinutes{}, ZoneShade{};

    // Locale and display
    NumberLocale numbers; // LocaleDecimal and DecimalSign
    std::string MoneyThousand, LocaleThousand, LocaleTimeSign, LocaleListSign;
    std::int32_t ScreenDpi = 96;
    float SmallFontFactor = 1;

    // Main screen
    int HelpPage = 0;
    Flag DragActive = kFalse;
    int DragX = 0, DragY = 0;

    // Dispatch
    std::array<std::int32_t, 1000> FlightPicks{};
    std::int32_t FlightPickCount = -1;

    // Plan
    Plan plan;
    GeometryState geometry;

    // Export
    std::string ExportKind;
    std::string RadarContactPath, RadarContactDrive, SBPath, SBDrive, ACSPath, ACSDrive;

    // Simulator
    float StartLat = 0, StartLon = 0, StartHdg = 0;
    std::string StartChoice;
    std::int16_t SelectedPoint = 0;
    std::vector<ScannedAircraft> AircraftTable; // as found when the fly options were loaded
    StoredPositions storedPositions;            // of the departure airport

    // Log book
    std::vector<LogRecord> LogEntries; // 0 to LastLogIndex
    LogStore logStore;
    LogRecord LogWorkingCopy; // the entry as it was when its screen opened
    std::int16_t LogPage = 1;
    std::int16_t LogSelected = 0;
    std::string LogField;
    [[nodiscard]] int LastLogIndex() const { return static_cast<int>(LogEntries.size()) - 1; }

    // Sound
    std::int16_t AmbienceVolume = 0;    // target, -9000 to 0
    std::int16_t AmbienceLevel = -9000; // where the fade stands
    std::string FadeDirection = "in";   // "in" or "out"
    std::array<Flag, 6> PlayedFlags{};  // kinds 1 to 6
    std::array<AnnouncementRing, 3> AnnouncedDepartures, AnnouncedArrivals;
};

} // namespace gatewise
