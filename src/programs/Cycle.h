#pragma once

#include "platform/Machine.h"

#include <string>

namespace gatewise::programs {

/// The cycle of aeronautical data that is in force on a day, "0206": two digits of its year, two of its place
/// in the year. A cycle begins every 28 days, one of them on 2 January 2020; the first of a year is the first
/// that begins in it.
std::string cycleOf(const DateTime& day);

/// "2002-06-17T07:05:00Z"
std::string isoTime(const DateTime& utc);

/// A moment of local time in UTC; `bias` minutes are what is to be added to it.
DateTime utcOf(const DateTime& local, int bias);

} // namespace gatewise::programs
