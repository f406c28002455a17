#include "programs/Cycle.h"

#include "programs/Figures.h"

namespace gatewise::programs {

namespace {

constexpr long long kCycleDays = 28;
constexpr long long kDayMinutes = 24LL * 60;

long long floorDivide(long long a, long long b) {
    return a >= 0 ? a / b : -((b - 1 - a) / b);
}

DateTime dayOf(int year, int month, int day) {
    DateTime out;
    out.year = year;
    out.month = month;
    out.day = day;
    return out;
}

} // namespace

std::string cycleOf(const DateTime& day) {
    const long long known = daySerial(dayOf(2020, 1, 2));
    const long long begin = known + floorDivide(daySerial(day) - known, kCycleDays) * kCycleDays;
    const int year = fromDaySerial(begin).year;
    const long long number = (begin - daySerial(dayOf(year, 1, 1))) / kCycleDays + 1;
    return wholeFigure(year % 100, 2) + wholeFigure(number, 2);
}

std::string isoTime(const DateTime& utc) {
    return wholeFigure(utc.year, 4) + "-" + wholeFigure(utc.month, 2) + "-" + wholeFigure(utc.day, 2) + "T" +
           wholeFigure(utc.hour, 2) + ":" + wholeFigure(utc.minute, 2) + ":" + wholeFigure(utc.second, 2) +
           "Z";
}

DateTime utcOf(const DateTime& local, int bias) {
    const long long minutes = daySerial(local) * kDayMinutes + local.hour * 60LL + local.minute + bias;
    const long long days = floorDivide(minutes, kDayMinutes);
    const auto inDay = static_cast<int>(minutes - days * kDayMinutes);
    DateTime utc = fromDaySerial(days);
    utc.hour = inDay / 60;
    utc.minute = inDay % 60;
    utc.second = local.second;
    return utc;
}

} // namespace gatewise::programs
