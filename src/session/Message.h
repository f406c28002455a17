#pragma once

#include <string>

namespace gatewise {

/// The messages of the program, under the numbers that its manual and its tests call them by.
enum class Message : int {
    FmcExported = 1,
    LogEntryMade = 2,
    DeleteLogEntry = 3,
    NoFlights = 4,
    FlightSent = 5,
    LogEntrySaved = 6,
    Fs2000Exported = 7,
    AcsGpsExported = 8,
    SquawkBoxExported = 9,
    RadarContactExported = 10,
    SimulatorNotFound = 11,
    PlanTooLong = 12,
    NoProFlight = 13,
    Failure = 14,
    NewDataSet = 15,
    NoArrivals = 16,
    DefaultFlightSent = 17,
    FsNavigatorExported = 18,
    NoFsNavigator = 19,
};

enum class Heading : int { Information = 1, Warning = 2 };

/// A message that work asks the pages to raise.
struct Notice {
    Heading heading = Heading::Information;
    Message message = Message::Failure;
    int errorNumber = 0;     // of Message::Failure
    std::string errorText;   // of Message::Failure: becomes ErrorText
    std::string file = {};   // path of what was written, or could not be; empty: no file
    std::string reason = {}; // why it could not be written, in plain words; empty: it was
};

} // namespace gatewise
