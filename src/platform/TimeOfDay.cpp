#include "platform/TimeOfDay.h"

#include "platform/Text.h"

namespace gatewise {

namespace {

std::optional<int> minutesOf(int hours, int minutes) {
    if (hours < 0 || hours >= kHoursOfDay || minutes < 0 || minutes >= kMinutesOfHour) return std::nullopt;
    return hours * kMinutesOfHour + minutes;
}

} // namespace

std::optional<int> timeOfDay(int hhmm) {
    if (hhmm < 0) return std::nullopt;
    int hours = hhmm / 100;
    while (hours > 99) hours /= 10;
    return minutesOf(hours, hhmm % 100);
}

std::optional<int> timeOfDay(std::string_view hours, std::string_view minutes) {
    const auto hour = parseInteger(hours);
    const auto minute = parseInteger(minutes);
    if (!hour || !minute) return std::nullopt;
    return minutesOf(*hour, *minute);
}

} // namespace gatewise
