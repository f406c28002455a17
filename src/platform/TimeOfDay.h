#pragma once

#include <optional>
#include <string_view>

// Times of day as the records and the clock hold them, in minutes from midnight; nothing for what is none.

namespace gatewise {

inline constexpr int kHoursOfDay = 24;
inline constexpr int kMinutesOfHour = 60;

/// A decimal number HHMM: the first two and the last two of its digits, which are four at least.
std::optional<int> timeOfDay(int hhmm);

/// Hours and minutes as texts.
std::optional<int> timeOfDay(std::string_view hours, std::string_view minutes);

} // namespace gatewise
