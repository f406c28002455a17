#pragma once

#include <optional>
#include <string>

// What the gate announcements and the welcome say alike: the flight's airline and number, and a city.

namespace gatewise {

/// The parts of a flight text that are spoken.
struct SpokenFlight {
    std::string airline;     // left 3 characters
    std::string firstDigits; // of four, without leading zeros
    std::string lastDigits;  // the last two of four, as they stand
};

/// Nothing when the number from the fourth character on is none or needs more than 16 bits.
std::optional<SpokenFlight> splitFlight(const std::string& flightKey);

/// The recording of an airline in a voice folder ("...\Male\"), or the one that stands for any airline.
std::string airlineRecording(const std::string& folder, const std::string& airline);

/// A linking word and the city after it.
struct SpokenCity {
    std::string link;
    std::string city;
};

/// `link` is the recording's name in the folder. A city without a recording is "0.wav" in both places.
SpokenCity cityRecordings(const std::string& folder, const std::string& link, const std::string& city);

} // namespace gatewise
