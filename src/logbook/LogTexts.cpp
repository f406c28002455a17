#include "logbook/LogTexts.h"

#include <cstdlib>

namespace gatewise {

namespace {

constexpr float kMostHours = 99.9F;
constexpr int kWholeDay = 2400; // HHMM

struct Sums {
    double instrument = 0;
    double pilot = 0;

    void add(const LogRecord& entry) {
        instrument += static_cast<double>(entry.instrumentHours);
        pilot += static_cast<double>(entry.dayHours) + static_cast<double>(entry.nightHours);
    }
};

/// The right two digits of the time as it is written, whatever its sign.
int lastTwo(int hhmm) {
    return std::abs(hhmm % 100);
}

/// "0735" split at the middle and read as hours and minutes: minutes of the day.
int minutesOfDay(int hhmm) {
    return hhmm / 100 * 60 + hhmm % 100;
}

} // namespace

int logPages(int LastLogIndex) {
    return LastLogIndex / kLogRows + 1;
}

std::string hoursText(double hours, const NumberLocale& numbers) {
    return numbers.formatSingle("#0.0", static_cast<float>(hours));
}

LogPageTexts logPageTexts(const std::vector<LogRecord>& entries, int page, const NumberLocale& numbers) {
    LogPageTexts out;
    Sums before;
    Sums here;
    const auto first = static_cast<std::size_t>(page > 1 ? page - 1 : 0) * kLogRows;
    for (std::size_t i = 0; i < first && i < entries.size(); ++i) before.add(entries[i]);
    for (std::size_t r = 0; r < kLogRows && first + r < entries.size(); ++r) {
        const LogRecord& entry = entries[first + r];
        here.add(entry);
        LogRowTexts& row = out.rows[r];
        row.departure = entry.departureIcao.str() + " - " + entry.departureName.str();
        row.arrival = entry.arrivalIcao.str() + " - " + entry.arrivalName.str();
        row.notes = entry.comments.str();
        row.instrument = hoursText(static_cast<double>(entry.instrumentHours), numbers);
        row.pilot =
            hoursText(static_cast<double>(entry.dayHours) + static_cast<double>(entry.nightHours), numbers);
    }
    out.pageInstrument = hoursText(here.instrument, numbers);
    out.pagePilot = hoursText(here.pilot, numbers);
    out.previousInstrument = hoursText(before.instrument, numbers);
    out.previousPilot = hoursText(before.pilot, numbers);
    out.totalInstrument = hoursText(here.instrument + before.instrument, numbers);
    out.totalPilot = hoursText(here.pilot + before.pilot, numbers);
    return out;
}

std::string hhmmText(int hhmm) {
    const int hours = hhmm / 100;
    return formatInteger("00", hours) + ":" + formatInteger("00", hhmm - hours * 100);
}

std::string differenceText(int scheduled, int actual) {
    const int difference = minutesOfDay(scheduled) - minutesOfDay(actual);
    const std::string text =
        formatInteger("00", std::abs(difference / 60)) + ":" + formatInteger("00", std::abs(difference % 60));
    return difference < 0 ? "-" + text : text;
}

std::int16_t stepTime(std::int16_t hhmm, std::string_view type) {
    int time = hhmm;
    if (type == "timeHr_up") {
        time += 100;
        if (time >= kWholeDay) time -= kWholeDay;
    } else if (type == "timeHr_dn") {
        time -= 100;
        if (time < 0) time += kWholeDay;
    } else if (type == "timeMin_up") {
        time += 1;
        if (lastTwo(time) >= 60) time += 40;
        if (time >= kWholeDay) time -= kWholeDay;
    } else if (type == "timeMin_dn") {
        time -= 1;
        if (time < 0) time += kWholeDay;
        if (lastTwo(time) > 59) time -= 40;
        if (time < 0) time += kWholeDay;
    }
    return static_cast<std::int16_t>(time);
}

float stepHours(float hours, std::string_view type) {
    const double step = type.starts_with("timeHr") ? 1.0 : 0.1;
    const double sum = static_cast<double>(hours) + (type.ends_with("_up") ? step : -step);
    const auto value = static_cast<float>(sum);
    if (value < 0) return 0;
    return value > kMostHours ? kMostHours : value;
}

} // namespace gatewise
