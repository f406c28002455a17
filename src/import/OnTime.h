#pragma once

#include "import/ReadRows.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Flights as flown: one row for each day and flight, in four forms. Months are long, so that a row keeps
// numbers alone.

namespace gatewise::importer {

/// Texts that occur again and again, each with a number from 0 in the order of their first appearance.
class Names {
public:
    std::uint32_t add(std::string_view text);
    [[nodiscard]] const std::string& operator[](std::uint32_t number) const { return texts_[number]; }
    [[nodiscard]] std::size_t size() const { return texts_.size(); }
    /// For each number the place of its text in the alphabet: an order that does not depend on the sources'.
    [[nodiscard]] std::vector<std::uint32_t> ranks() const;

private:
    std::deque<std::string> texts_;
    std::unordered_map<std::string_view, std::uint32_t> numbers_;
};

struct OnTimeRow {
    std::int32_t day = 0; // serial, as daySerial() counts
    std::uint32_t carrier = 0, origin = 0, destination = 0, tail = 0;
    std::int16_t number = 0;
    std::int16_t departure = 0, arrival = 0; // scheduled, local, minutes of the day
    std::int16_t miles = 0;                  // statute, 0 unknown
};

struct OnTimeData {
    Names carriers, airports, tails;
    std::vector<OnTimeRow> rows;
};

/// What one file of on-time data held.
struct OnTimeFile {
    Edition edition;
    std::string error;
    int firstDay = 0, lastDay = 0; // serials, 0 for a file without rows
};

/// Adds the rows of a file to the data: scheduled flights, the cancelled ones too.
OnTimeFile readOnTime(const Reading& reading, OnTimeData& data);

} // namespace gatewise::importer
