#pragma once

#include "logbook/LogRecord.h"
#include "platform/Numbers.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

// What the log page and the entry screen show, and how their fields are stepped.

namespace gatewise {

inline constexpr int kLogRows = 7;

/// Pages of a log whose last index is given (-1 when empty); at least 1.
int logPages(int LastLogIndex);

/// "1.5": hours under the format "#0.0".
std::string hoursText(double hours, const NumberLocale& numbers);

struct LogRowTexts {
    std::string departure, arrival, notes, instrument, pilot;
};

struct LogPageTexts {
    std::array<LogRowTexts, kLogRows> rows; // empty behind the last entry
    std::string pageInstrument, pagePilot, previousInstrument, previousPilot, totalInstrument, totalPilot;
};

/// Page `page` (from 1) with the sums of the page, of the pages before and of both. Time as pilot in command
/// is day and night hours; instrument time is counted apart.
LogPageTexts logPageTexts(const std::vector<LogRecord>& entries, int page, const NumberLocale& numbers);

/// "07:05" of 705.
std::string hhmmText(int hhmm);

/// Scheduled minus actual as "hh:mm" with a minus sign when the flight was late; times of day, with no wrap
/// at midnight.
std::string differenceText(int scheduled, int actual);

/// One step of a time field, by the type of the button: "timeHr_up", "timeHr_dn", "timeMin_up", "timeMin_dn".
std::int16_t stepTime(std::int16_t hhmm, std::string_view type);

/// One step of an hours field, 1.0 or 0.1, kept within 0 and 99.9.
float stepHours(float hours, std::string_view type);

} // namespace gatewise
