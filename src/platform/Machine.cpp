#include "platform/Machine.h"

#include <array>

namespace gatewise {

namespace {

constexpr std::array<const char*, 12> kMonths = {"January",   "February", "March",    "April",
                                                 "May",       "June",     "July",     "August",
                                                 "September", "October",  "November", "December"};
constexpr std::array<const char*, 7> kDays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                              "Thursday", "Friday", "Saturday"};

// Days from 1 March of year 0 of the proleptic Gregorian calendar: leap days then stand at the end of the
// year.
long long civilDays(long long year, int month, int day) {
    if (month <= 2) --year;
    const long long era = (year >= 0 ? year : year - 399) / 400;
    const long long yearOfEra = year - era * 400;
    const long long dayOfYear = (153LL * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
}

const long long kSerialZero = civilDays(1899, 12, 30);

} // namespace

long long daySerial(const DateTime& m) {
    return civilDays(m.year, m.month, m.day) - kSerialZero;
}

DateTime fromDaySerial(long long days) {
    const long long z = days + kSerialZero;
    const long long era = (z >= 0 ? z : z - 146096) / 146097;
    const long long dayOfEra = z - era * 146097;
    const long long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long long monthFromMarch = (5 * dayOfYear + 2) / 153;
    DateTime out;
    out.day = static_cast<int>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    out.month = static_cast<int>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    out.year = static_cast<int>(yearOfEra + era * 400 + (out.month <= 2 ? 1 : 0));
    return out;
}

std::optional<DateTime> calendarDay(double serial) {
    if (!(serial > -600000 && serial < 3000000)) return std::nullopt;
    return fromDaySerial(static_cast<long long>(serial));
}

int weekday(const DateTime& m) {
    return static_cast<int>(((daySerial(m) + 6) % 7 + 7) % 7);
}

std::string Locale::longDate(const DateTime& m) const {
    return std::string(kDays[static_cast<std::size_t>(weekday(m))]) + ", " +
           kMonths[static_cast<std::size_t>(m.month - 1)] + " " + std::to_string(m.day) + ", " +
           std::to_string(m.year);
}

std::string Locale::shortDate(const DateTime& m) const {
    return std::to_string(m.month) + "/" + std::to_string(m.day) + "/" + std::to_string(m.year);
}

} // namespace gatewise
